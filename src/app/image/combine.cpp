#include "app/image/image_handlers.hpp"
#include "app/image/targets.hpp"
#include "app/range_parameters.hpp"
#include "foundation/base/number_text.hpp"
#include "image2d/image/arithmetic.hpp"
#include "image2d/image/masks.hpp"
#include "image2d/image/stacking.hpp"

// Images joined pixel by pixel: every operand is named in the line, the image in use plays no part.
namespace morvane {
namespace {
// f(operands, target) with all images of the line.
template <class F> void Join(TMACRO *engine, NAT least, NAT most, F &&f) {
    const auto operands = OPERANDS_OF_LINE(engine, least, most);
    if (operands.empty()) return;
    WITH_TARGET(engine, [&](TIMAGE &target) { f(OPERANDS(operands), target); });
}

void Calculate(TMACRO *engine, PIXEL_OPERATION operation, NAT least, NAT most) {
    Join(engine, least, most, [operation](OPERANDS operands, TIMAGE &target) {
        COMBINE_PIXELS(operation, operands, target);
    });
}

// f(first image, target), and f(first, second, target).
template <class F> void WithImage(TMACRO *engine, F &&f) {
    const TIMAGE *const image = OPERAND(engine, 1);
    if (!image) return;
    WITH_TARGET(engine, [&](TIMAGE &target) { f(*image, target); });
}
template <class F> void WithTwoImages(TMACRO *engine, F &&f) {
    const TIMAGE *const image = OPERAND(engine, 1);
    const TIMAGE *const second = image ? OPERAND(engine, 2) : nullptr;
    if (!second) return;
    WITH_TARGET(engine, [&](TIMAGE &target) { f(*image, *second, target); });
}
} // namespace

void IMAGE_SUB_REF(TMACRO *engine) { Calculate(engine, PIXEL_OPERATION::SUB, 2, 2); }
void IMAGE_SUB_ABS_REF(TMACRO *engine) { Calculate(engine, PIXEL_OPERATION::SUB_ABS, 2, 2); }
void IMAGE_SUB_RANGE_REF(TMACRO *engine) { Calculate(engine, PIXEL_OPERATION::SUB_RANGE, 2, 2); }
void IMAGE_BETWEEN_REF(TMACRO *engine) { Calculate(engine, PIXEL_OPERATION::BETWEEN, 3, 3); }
void IMAGE_ADD_REF(TMACRO *engine) { Calculate(engine, PIXEL_OPERATION::ADD, 2, MOST_OPERANDS); }
void IMAGE_ADD_MIN_REF(TMACRO *engine) {
    Calculate(engine, PIXEL_OPERATION::ADD_MIN, 2, MOST_OPERANDS);
}
void IMAGE_ADD_MAX_REF(TMACRO *engine) {
    Calculate(engine, PIXEL_OPERATION::ADD_MAX, 2, MOST_OPERANDS);
}
void IMAGE_MUL_REF(TMACRO *engine) { Calculate(engine, PIXEL_OPERATION::MUL, 2, MOST_OPERANDS); }
void IMAGE_DIV_REF(TMACRO *engine) { Calculate(engine, PIXEL_OPERATION::DIV, 2, 2); }
void IMAGE_MEAN_REF(TMACRO *engine) { Calculate(engine, PIXEL_OPERATION::MEAN, 2, MOST_OPERANDS); }
void IMAGE_MEDIAN_REF(TMACRO *engine) {
    Calculate(engine, PIXEL_OPERATION::MEDIAN, 3, MOST_OPERANDS);
}

void IMAGE_STACKING_REF(TMACRO *engine) { Join(engine, 2, MOST_OPERANDS, STACKING); }
void IMAGE_OVER_REF(TMACRO *engine) { Join(engine, 2, MOST_OPERANDS, OVER); }

void IMAGE_INTENSITY_REF(TMACRO *engine) {
    const REAL timeA = GETREAL(engine->GETPARAMETER(3)), timeB = GETREAL(engine->GETPARAMETER(4));
    WithTwoImages(engine, [&](const TIMAGE &a, const TIMAGE &b, TIMAGE &target) {
        INTENSITY(a, b, timeA, timeB, target);
    });
}

// new := image.select image range [value]
void IMAGE_SELECT_REF(TMACRO *engine) {
    const NAT count = engine->PARAMETERLENGTH();
    if (count < 2) return engine->MIN_PARAMETERERROR(2);
    if (count > 3) return engine->MAX_PARAMETERERROR(3);
    const COMPLEXNAT range = GETRANGE(engine->GETPARAMETER(2));
    const NAT value = count == 3 ? std::max<NAT>(0, GETNAT(engine->GETPARAMETER(3))) : -1;
    WithImage(engine,
              [&](const TIMAGE &image, TIMAGE &target) { SELECT(image, range, value, target); });
}

void IMAGE_MASK_REF(TMACRO *engine) {
    TPOLYNAT values;
    GETVALUES(engine, 3, values);
    WithTwoImages(engine, [&](const TIMAGE &image, const TIMAGE &mask, TIMAGE &target) {
        MASK(image, mask, values, target);
    });
}

namespace {
void MaskSame(TMACRO *engine, bool isDifferent) {
    const UTF16 text = engine->GETPARAMETER(3);
    const bool isColour = POS(",", text) > 0 || POS(";", text) > 0;
    const REAL value = GETREAL(text);
    const SAMENESS sameness{isColour ? GETVECTOR(text) : VECTOR{value, value, value},
                            GETREAL(engine->GETPARAMETER(4)), isDifferent};
    WithTwoImages(engine, [&](const TIMAGE &image, const TIMAGE &mask, TIMAGE &target) {
        MASK_SAME(image, mask, sameness, target);
    });
}
} // namespace

void IMAGE_MASK_SAME_REF(TMACRO *engine) { MaskSame(engine, false); }
void IMAGE_MASK_DIFFERENT_REF(TMACRO *engine) { MaskSame(engine, true); }

void IMAGE_EXTRACT_COLOR_REF(TMACRO *engine) {
    WithImage(engine, [&](const TIMAGE &image, TIMAGE &target) {
        EXTRACT_COLOURS(image, COLOURS_OF_LINE(engine, 2), target);
    });
}

void IMAGE_EXTRACT_COLORPOINT_REF(TMACRO *engine) {
    WithImage(engine, [&](const TIMAGE &image, TIMAGE &target) {
        EXTRACT_COLOURS(image, COLOURS_AT_POINTS(engine, 2, image), target);
    });
}
} // namespace morvane
