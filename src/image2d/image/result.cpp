#include "image2d/image/result.hpp"

#include "foundation/base/record_operators.hpp"
#include "foundation/console/console.hpp"

#include <algorithm>

namespace morvane {
namespace {
// Pen and background; a grey one is opaque on a kind with alpha.
void TakePens(TIMAGE &image, const TIMAGE &source) {
    if (source.ISGRAY()) {
        image._SETRGBVALUE(source._GETRGBVALUE());
        const NAT background = source._GETBACKGROUND();
        if (background != 0) image._SETRGBBACKGROUND({background, background, background});
        return;
    }
    image._SETRGBAVALUE(source._GETRGBAVALUE());
    image._SETRGBABACKGROUND(source._GETRGBABACKGROUND());
}

void TakeSettings(TIMAGE &image, const TIMAGE &source) {
    image.copyMethod = source.copyMethod;
    image.subMethod = source.subMethod;
    image.diffusionMethod = source.diffusionMethod;
    image.fullScan = source.fullScan;
    image.diffusionAngle = source.diffusionAngle;
    image.diffusionMax = source.diffusionMax;
    image.diffusionAxial = source.diffusionAxial;
}
} // namespace

COMPLEXNAT COMMON_SIZE(OPERANDS operands) {
    COMPLEXNAT size;
    bool isSame = true;
    UTF16 sizes;
    for (const TIMAGE *operand : operands) {
        isSame = isSame && operand->SIZE() == operands.front()->SIZE();
        size = {std::max(size.x, operand->SIZEX()), std::max(size.y, operand->SIZEY())};
    }
    if (!isSame) {
        for (const TIMAGE *operand : operands)
            sizes = sizes + (sizes.EMPTY() ? "" : ", ") + GETSTRING(operand->SIZEX()) + "x" +
                    GETSTRING(operand->SIZEY());
        WRITELN("  Images of different size (" + sizes + "): the rest is background.");
    }
    return size;
}

IMAGE_RESULT::IMAGE_RESULT(TIMAGE &goal, const COMPLEXNAT &size, BYTE kind)
    : image(kind, size.x, size.y), target(goal),
      isWell(size.x < 1 || size.y < 1 || image.ISNOTEMPTY()) {}

void IMAGE_RESULT::GIVE(const TIMAGE &source, const FRAME &frame) {
    if (!isWell) return;
    const bool isNew = !target.ISNOTEMPTY();
    const FRAME newFrame = frame;
    TakePens(image, isNew ? source : target);
    target.TAKE(image);
    if (!isNew) return;
    target.SETFRAME(newFrame);
    TakeSettings(target, source);
}

FRAME MOVED_FRAME(const TIMAGE &source, NAT x, NAT y) {
    FRAME frame = source.GETFRAME();
    frame.SETMOVE(frame.L2G({static_cast<REAL>(x), static_cast<REAL>(y), 1}));
    return frame;
}

FRAME SCALED_FRAME(const TIMAGE &source, const COMPLEX &steps) {
    FRAME frame = source.GETFRAME();
    MATRIX3 matrix = frame.MATRIX();
    matrix[0] = matrix[0] * steps.x;
    matrix[1] = matrix[1] * steps.y;
    frame.SETMATRIX(matrix);
    return frame;
}
} // namespace morvane
