#include "image2d/image/fills.hpp"

#include "foundation/console/console.hpp"
#include "image2d/filter/fill_missing.hpp"
#include "image2d/filter/holes.hpp"

#include <algorithm>
#include <new>
#include <utility>

namespace morvane {
namespace {
// f(x, y) for the pixels of the mask.
template <class F> void EachPixel(const TCANVAS &mask, const F &f) {
    for (NAT y = 1; y <= mask.HEIGHT; ++y)
        for (NAT x = 1; x <= mask.WIDTH; ++x)
            if (mask._GET(x, y) != 0) f(x, y);
}

template <class PIXEL> void MarkZeros(const CANVAS<PIXEL> &canvas, TCANVAS &mask) {
    std::transform(canvas.DATA(), canvas.DATA() + mask.COUNT(), mask.DATA(),
                   [](PIXEL pixel) { return static_cast<BYTE>(pixel == 0); });
}

TCANVAS MissingOf(const TIMAGE &image) {
    TCANVAS mask(image.SIZEX(), image.SIZEY());
    if (const TGRAY *gray = image._GRAY()) MarkZeros(*gray, mask);
    if (const TFULLGRAY *full = image._FULLGRAY()) MarkZeros(*full, mask);
    if (const TRGB *rgb = image._RGB())
        for (NAT i = 0; i < mask.COUNT(); ++i)
            mask.DATA()[i] =
                (rgb->RED().DATA()[i] | rgb->GREEN().DATA()[i] | rgb->BLUE().DATA()[i]) == 0;
    return mask;
}

template <class PIXEL> void FillNoise(CANVAS<PIXEL> &plane, std::uint64_t command, NAT number) {
    RANDOM_STREAM random(command, static_cast<std::uint64_t>(number));
    for (NAT i = 0; i < plane.COUNT(); ++i)
        plane.DATA()[i] = static_cast<PIXEL>(random.NEXT32());
}

NAT FillMissing(TIMAGE &image, const TCANVAS &mask) try {
    MISSING_PIXELS missing(mask);
    if (missing.COUNT() == mask.COUNT() || image._ZRGB()) return 0;
    image._PLANES([&](auto &plane) { missing.FILL(plane); });
    return missing.COUNT();
} catch (const std::bad_alloc &) {
    WRITELN("  Out of memory! Pixels not filled.");
    return 0;
}
} // namespace

void FILL(TIMAGE &image) {
    const HYPERNAT pen = image._GETRGBAVALUE();
    if (TGRAY *gray = image._GRAY()) gray->FILL(gray->VALUE);
    if (TFULLGRAY *full = image._FULLGRAY()) full->FILL(full->VALUE);
    if (TRGB *rgb = image._RGB()) rgb->FILL({pen.x, pen.y, pen.z});
    if (TRGBA *rgba = image._RGBA()) rgba->alpha.FILL(static_cast<BYTE>(pen.w));
    if (TZRGB *zrgb = image._ZRGB()) zrgb->alpha.FILL(static_cast<BYTE>(pen.w));
}

void FILL_RANDOM(TIMAGE &image) {
    const std::uint64_t command = NEXT_RANDOM_COMMAND();
    NAT number = 0;
    if (TGRAY *gray = image._GRAY()) FillNoise(*gray, command, number);
    if (TFULLGRAY *full = image._FULLGRAY()) FillNoise(*full, command, number);
    if (TRGB *rgb = image._RGB())
        for (TGRAY &plane : rgb->planes)
            FillNoise(plane, command, number++);
    if (TRGBA *rgba = image._RGBA()) rgba->alpha.FILL(TGRAY::MAXIMUM);
    if (TZRGB *zrgb = image._ZRGB()) zrgb->alpha.FILL(TGRAY::MAXIMUM);
}

void FILL_CUBE(TIMAGE &image, const COMPLEXNAT &a, const COMPLEXNAT &b) {
    const PIXEL_AREA area{
        std::max<NAT>(std::min(a.x, b.x), 1), std::max<NAT>(std::min(a.y, b.y), 1),
        std::min(std::max(a.x, b.x), image.SIZEX()), std::min(std::max(a.y, b.y), image.SIZEY())};
    for (NAT y = area.top; y <= area.bottom; ++y)
        for (NAT x = area.left; x <= area.right; ++x)
            image.PUT(x, y);
}

NAT FILL_HOLE(TIMAGE &image, const COMPLEXNAT &sizes) {
    TCANVAS mask = MissingOf(image);
    if (mask.EMPTY()) return 0;
    const NAT holes = KEEP_HOLES(mask, sizes, mask.WHOLE());
    EachPixel(mask, [&](NAT x, NAT y) { image.PUT(x, y); });
    return holes;
}

NAT FILL_ZERO(TIMAGE &image) { return FillMissing(image, MissingOf(image)); }

NAT FILL_GAP(TIMAGE &image, const PIXEL_AREA &area) {
    TCANVAS mask = MissingOf(image);
    if (mask.EMPTY()) return 0;
    static_cast<void>(KEEP_HOLES(mask, {1, NATMAX}, area));
    return FillMissing(image, mask);
}
} // namespace morvane
