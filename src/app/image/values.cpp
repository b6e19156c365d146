#include "app/image/image_handlers.hpp"
#include "app/image/targets.hpp"
#include "app/range_parameters.hpp"
#include "foundation/base/number_text.hpp"
#include "image2d/image/levels.hpp"

// Edits of the values of the image in use.
namespace morvane {
void IMAGE_SETSIGN(TMACRO *) { SETSIGN(IMAGES.CURRENT()); }
void IMAGE_SETRANGE(TMACRO *) { SETRANGE(IMAGES.CURRENT()); }
void IMAGE_SETCROP(TMACRO *) { SETCROP(IMAGES.CURRENT()); }
void IMAGE_SETEQUAL(TMACRO *) { EQUAL(IMAGES.CURRENT()); }
void IMAGE_SETGRAY(TMACRO *) { GRAY(IMAGES.CURRENT()); }
void IMAGE_SETHDRGRAY(TMACRO *) { HDRGRAY(IMAGES.CURRENT()); }
void IMAGE_COLORIZE(TMACRO *) { COLORIZE(IMAGES.CURRENT()); }

void IMAGE_SETLOWER(TMACRO *engine) {
    SETLOWER(IMAGES.CURRENT(), GETNAT(engine->GETPARAMETER(1)), GETNAT(engine->GETPARAMETER(2)));
}

void IMAGE_SETHIGHER(TMACRO *engine) {
    SETHIGHER(IMAGES.CURRENT(), GETNAT(engine->GETPARAMETER(1)), GETNAT(engine->GETPARAMETER(2)));
}

namespace {
// Three components, as a colour has them; a range has two.
bool IsColour(const UTF16 &text) {
    const NAT comma = std::max(POS(",", text), POS(";", text));
    return comma > 0 && (POS(",", text, comma + 1) > 0 || POS(";", text, comma + 1) > 0);
}
} // namespace

// setvalue range value, or colour colour.
void IMAGE_SETVALUE(TMACRO *engine) {
    const UTF16 old = engine->GETPARAMETER(1), value = engine->GETPARAMETER(2);
    if (IsColour(old)) return SETVALUE(IMAGES.CURRENT(), GETCOLOUR(old), GETCOLOUR(value));
    SETVALUE(IMAGES.CURRENT(), GETRANGE(old), GETNAT(value));
}

// setadjust [<a, b> [<c, d>]]
void IMAGE_SETADJUST(TMACRO *engine) {
    TIMAGE &image = IMAGES.CURRENT();
    const NAT count = engine->PARAMETERLENGTH();
    if (count == 0) return ADJUST(image);
    const COMPLEXNAT whole{0, image.PIXELMAX()};
    ADJUST_LINEAR(image, GETRANGE(engine->GETPARAMETER(1)),
                  count == 2 ? GETRANGE(engine->GETPARAMETER(2)) : whole);
}

void IMAGE_SETADJUST_ONE(TMACRO *) {
    constexpr REAL ONE_PERCENT = 0.01;
    ADJUST_PERCENTAGE(IMAGES.CURRENT(), ONE_PERCENT, ONE_PERCENT);
}

// setadjust.percentage low [high]: one share holds for both ends.
void IMAGE_SETADJUST_PERCENTAGE(TMACRO *engine) {
    const NAT count = engine->PARAMETERLENGTH();
    if (count < 1) return engine->MIN_PARAMETERERROR(1);
    if (count > 2) return engine->MAX_PARAMETERERROR(2);
    ADJUST_PERCENTAGE(IMAGES.CURRENT(), GETREAL(engine->GETPARAMETER(1)),
                      GETREAL(engine->GETPARAMETER(count)));
}

// setadjust.percentage.weak inner outer [inner outer of the high end]
void IMAGE_SETADJUST_PERCENTAGE_WEAK(TMACRO *engine) {
    const NAT count = engine->PARAMETERLENGTH();
    if (count != 2 && count != 4) return engine->PARAMETERERROR(2);
    const auto share = [&](NAT index) { return GETREAL(engine->GETPARAMETER(index)); };
    ADJUST_WEAK(IMAGES.CURRENT(), {.innerLow = share(1),
                                   .innerHigh = share(count - 1),
                                   .outerLow = share(2),
                                   .outerHigh = share(count)});
}

void IMAGE_SETADJUST_OUTLIERS(TMACRO *) { ADJUST_OUTLIERS(IMAGES.CURRENT()); }

void IMAGE_SETMONO(TMACRO *engine) { MONO(IMAGES.CURRENT(), GETNAT(engine->GETPARAMETER(1))); }

// invert [m]: 65535 when not given.
void IMAGE_INVERT(TMACRO *engine) {
    const bool isGiven = engine->PARAMETERLENGTH() == 1;
    INVERT(IMAGES.CURRENT(), isGiven ? GETNAT(engine->GETPARAMETER(1)) : TFULLGRAY::MAXIMUM);
}
} // namespace morvane
