#include "app/image/image_handlers.hpp"
#include "app/image/plane_text.hpp"
#include "app/range_parameters.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "image2d/image/fills.hpp"
#include "image2d/image/filters.hpp"

#include <algorithm>

// Filters, fills and morphology of the image in use.
namespace morvane {
UTF16 PLANE_TEXT(const PLANE_NUMBERS &numbers) {
    const auto &v = numbers.values;
    if (numbers.planes == 4) return GETSTRING(HYPERNAT{v[0], v[1], v[2], v[3]});
    if (numbers.planes == 3) return GETSTRING(VECTORNAT{v[0], v[1], v[2]});
    return GETSTRING(v[0]);
}

namespace {
// filter [count]: one pass without a count.
void Passes(TMACRO *engine, void (*filter)(TIMAGE &, NAT)) {
    const NAT times = engine->PARAMETERLENGTH() == 0 ? 1 : GETNAT(engine->GETPARAMETER(1));
    filter(IMAGES.CURRENT(), times);
}

void TellChanges(const PLANE_NUMBERS &changes) {
    WRITELN("  Changed " + PLANE_TEXT(changes) + " pixels.");
}

void TellFilled(NAT count, const char *what) {
    WRITELN("  " + UTF16(what) + " filled: " + GETSTRING(count));
}

// The position by the rule of the axis (from both ends, shares of it, 0 the middle).
COMPLEXNAT PointOfLine(TMACRO *engine, NAT index) {
    return IMAGES.CURRENT().COORD(GETCOMPLEX(engine->GETPARAMETER(index)));
}

// The value that a step writes, from 0 on; negative ones are 0.
NAT ValueOfLine(TMACRO *engine, NAT index) {
    return std::max<NAT>(GETNAT(engine->GETPARAMETER(index)), 0);
}

using MORPHOLOGY = PLANE_NUMBERS (*)(TIMAGE &, const STRUCTURE &);

// step range n [value]: the value below 0, the mean, without one.
void Step(TMACRO *engine, MORPHOLOGY step) {
    const NAT count = engine->PARAMETERLENGTH();
    if (count < 2) return engine->MIN_PARAMETERERROR(2);
    if (count > 3) return engine->MAX_PARAMETERERROR(3);
    STRUCTURE structure{GETRANGE(engine->GETPARAMETER(1)), GETNAT(engine->GETPARAMETER(2))};
    if (count == 3) structure.value = ValueOfLine(engine, 3);
    TellChanges(step(IMAGES.CURRENT(), structure));
}

// steps range n [value], or range n1 n2 value1 value2 with one of each for each step.
void Steps(TMACRO *engine, MORPHOLOGY first, MORPHOLOGY second) {
    const NAT count = engine->PARAMETERLENGTH();
    if (count < 2) return engine->MIN_PARAMETERERROR(2);
    if (count == 4 || count > 5) return engine->PARAMETERERROR(5);
    STRUCTURE one{GETRANGE(engine->GETPARAMETER(1)), GETNAT(engine->GETPARAMETER(2))};
    if (count == 3) one.value = ValueOfLine(engine, 3);
    STRUCTURE other = one;
    if (count == 5) {
        other.n = GETNAT(engine->GETPARAMETER(3));
        one.value = ValueOfLine(engine, 4);
        other.value = ValueOfLine(engine, 5);
    }
    TellChanges(first(IMAGES.CURRENT(), one));
    TellChanges(second(IMAGES.CURRENT(), other));
}
} // namespace

void IMAGE_SOFTSMOOTH(TMACRO *engine) { Passes(engine, SOFTSMOOTH); }
void IMAGE_SMOOTH(TMACRO *engine) { Passes(engine, SMOOTH); }
void IMAGE_HARDSMOOTH(TMACRO *engine) { Passes(engine, HARDSMOOTH); }
void IMAGE_UNSHARPMASKING(TMACRO *engine) { Passes(engine, UNSHARPMASKING); }
void IMAGE_CLEANUP(TMACRO *) { CLEAN_NOISE(IMAGES.CURRENT()); }

// filter w1 .. w9 divisor: weights row by row.
void IMAGE_FILTER(TMACRO *engine) {
    KERNEL3 kernel;
    for (std::size_t i = 0; i < kernel.weights.size(); ++i)
        kernel.weights[i] = GETREAL(engine->GETPARAMETER(static_cast<NAT>(i) + 1));
    kernel.divisor = GETREAL(engine->GETPARAMETER(10));
    FILTER(IMAGES.CURRENT(), kernel);
}

void IMAGE_FILL(TMACRO *) { FILL(IMAGES.CURRENT()); }
void IMAGE_FILL_RANDOM(TMACRO *) { FILL_RANDOM(IMAGES.CURRENT()); }

void IMAGE_FILL_CUBE(TMACRO *engine) {
    FILL_CUBE(IMAGES.CURRENT(), PointOfLine(engine, 1), PointOfLine(engine, 2));
}

void IMAGE_FILL_HOLE(TMACRO *engine) {
    TellFilled(FILL_HOLE(IMAGES.CURRENT(), GETRANGE(engine->GETPARAMETER(1))), "Holes");
}

void IMAGE_FILL_ZERO(TMACRO *) { TellFilled(FILL_ZERO(IMAGES.CURRENT()), "Pixels"); }

// fill.gap [a b]: the whole image without corners.
void IMAGE_FILL_GAP(TMACRO *engine) {
    TIMAGE &image = IMAGES.CURRENT();
    const NAT count = engine->PARAMETERLENGTH();
    if (count != 0 && count != 2) return engine->PARAMETERERROR(2);
    COMPLEXNAT a{1, 1}, b = image.SIZE();
    if (count == 2) {
        a = PointOfLine(engine, 1);
        b = PointOfLine(engine, 2);
    }
    const PIXEL_AREA area{std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x),
                          std::max(a.y, b.y)};
    TellFilled(FILL_GAP(image, area), "Pixels");
}

void IMAGE_SHRINK(TMACRO *engine) { Step(engine, SHRINK); }
void IMAGE_GROW(TMACRO *engine) { Step(engine, GROW); }
void IMAGE_FULLSHRINK(TMACRO *engine) { Step(engine, FULLSHRINK); }
void IMAGE_FULLGROW(TMACRO *engine) { Step(engine, FULLGROW); }
void IMAGE_OPEN(TMACRO *engine) { Steps(engine, SHRINK, GROW); }
void IMAGE_CLOSE(TMACRO *engine) { Steps(engine, GROW, SHRINK); }

// remove.outliers [factor]: without a factor the usual 1.5 quartile distances.
void IMAGE_REMOVE_OUTLIERS(TMACRO *engine) {
    const REAL factor = engine->PARAMETERLENGTH() == 0 ? 1.5 : GETREAL(engine->GETPARAMETER(1));
    TellChanges(REMOVE_OUTLIERS(IMAGES.CURRENT(), factor));
}
} // namespace morvane
