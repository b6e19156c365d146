#include "app/image/image_handlers.hpp"
#include "app/image/plane_text.hpp"
#include "app/range_parameters.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/record_operators.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/console.hpp"
#include "image2d/image/filters.hpp"
#include "image2d/image/spheres.hpp"

#include <algorithm>
#include <vector>

// Measures of the image in use, and fields of angles, distances and windows painted into it.
namespace morvane {
void IMAGE_WINDOW_SIN(TMACRO *) { WINDOW_SIN(IMAGES.CURRENT()); }
void IMAGE_WINDOW_COS(TMACRO *) { WINDOW_COS(IMAGES.CURRENT()); }

namespace {
void Radial(TMACRO *engine, REAL turn) {
    RADIAL(IMAGES.CURRENT(), GETCOMPLEX(engine->GETPARAMETER(1)), turn);
}
} // namespace

void IMAGE_RADIAL(TMACRO *engine) { Radial(engine, 2 * PI); }
void IMAGE_RADIAL_HALF(TMACRO *engine) { Radial(engine, PI); }
void IMAGE_RADIAL_QUATER(TMACRO *engine) { Radial(engine, PI / 2); }

void IMAGE_DISTANCE(TMACRO *engine) {
    std::vector<COMPLEX> points;
    for (NAT i = 1; i <= engine->PARAMETERLENGTH(); ++i)
        points.push_back(GETCOMPLEX(engine->GETPARAMETER(i)));
    DISTANCE(IMAGES.CURRENT(), points);
}

void IMAGE_FLIP_X(TMACRO *) { FLIPX(IMAGES.CURRENT()); }
void IMAGE_FLIP_Y(TMACRO *) { FLIPY(IMAGES.CURRENT()); }
void IMAGE_ROTATE_90(TMACRO *) { ROTATE90(IMAGES.CURRENT()); }
void IMAGE_ROTATE_180(TMACRO *) { ROTATE180(IMAGES.CURRENT()); }
void IMAGE_ROTATE_270(TMACRO *) { ROTATE270(IMAGES.CURRENT()); }
void IMAGE_ROTATE_360(TMACRO *) {} // a whole turn

void IMAGE_GETSPHERE(TMACRO *engine) {
    const NAT count = GETSPHERE(IMAGES.CURRENT(), GETRANGE(engine->GETPARAMETER(1)),
                                GETREAL(engine->GETPARAMETER(2)), LINES.CURRENT());
    WRITELN("  Circles: " + GETSTRING(count));
}

namespace {
// What `low [scale] high` or one range or value says.
struct SELECTION {
    NAT low = 0, high = 0;
    REAL scale = 1;
    bool isWell = false;
};
SELECTION ReadSelection(TMACRO *engine, NAT most) {
    const NAT count = engine->PARAMETERLENGTH();
    SELECTION selection;
    if (count < 1) engine->MIN_PARAMETERERROR(2);
    if (count > most) engine->MAX_PARAMETERERROR(most);
    if (count < 1 || count > most) return selection;
    const COMPLEXNAT range = count == 1 ? GETRANGE(engine->GETPARAMETER(1))
                                        : COMPLEXNAT{GETNAT(engine->GETPARAMETER(1)),
                                                     GETNAT(engine->GETPARAMETER(count))};
    selection.low = std::min(range.x, range.y);
    selection.high = std::max(range.x, range.y);
    if (count == 3) selection.scale = GETREAL(engine->GETPARAMETER(2));
    selection.isWell = true;
    return selection;
}

// a := measure low [scale] high, as a pair.
void Pair(TMACRO *engine, COMPLEX (*measure)(const TIMAGE &, NAT, NAT), NAT most) {
    const SELECTION s = ReadSelection(engine, most);
    if (!s.isWell) return;
    const COMPLEX pair = measure(IMAGES.CURRENT(), s.low, s.high);
    engine->COMMAND_RESULT = GETSTRING(COMPLEX{pair.x * s.scale, pair.y * s.scale});
}

void Numbers(TMACRO *engine, PLANE_NUMBERS (*measure)(const TIMAGE &, NAT, NAT)) {
    const SELECTION s = ReadSelection(engine, 2);
    if (s.isWell) engine->COMMAND_RESULT = PLANE_TEXT(measure(IMAGES.CURRENT(), s.low, s.high));
}
} // namespace

void IMAGE_OBJECT_CENTER_REF(TMACRO *engine) { Pair(engine, OBJECT_CENTER, 3); }
void IMAGE_OBJECT_SIZE_REF(TMACRO *engine) { Pair(engine, OBJECT_SIZE, 2); }
void IMAGE_STATISTIC_REF(TMACRO *engine) { Pair(engine, OBJECT_STATISTIC, 3); }
void IMAGE_CENTROID_REF(TMACRO *engine) { Pair(engine, OBJECT_CENTROID, 2); }
void IMAGE_COG_REF(TMACRO *engine) { Pair(engine, OBJECT_COG, 2); }
void IMAGE_COUNT_REF(TMACRO *engine) { Numbers(engine, COUNT); }
void IMAGE_SUM_REF(TMACRO *engine) { Numbers(engine, SUM); }

void IMAGE_GETBACKGROUND_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = PLANE_TEXT(GETBACKGROUND(IMAGES.CURRENT()));
}
void IMAGE_MIN_LAMD(TMACRO *engine) { engine->COMMAND_RESULT = PLANE_TEXT(MIN(IMAGES.CURRENT())); }
void IMAGE_MAX_LAMD(TMACRO *engine) { engine->COMMAND_RESULT = PLANE_TEXT(MAX(IMAGES.CURRENT())); }

// quantile low [scale] high: a list of min, q.25, median, q.75, max.
void IMAGE_QUANTILE_REF(TMACRO *engine) {
    const SELECTION s = ReadSelection(engine, 3);
    if (!s.isWell) return;
    const OBJECT_QUARTILES q = OBJECT_QUANTILE(IMAGES.CURRENT(), s.low, s.high);
    UTF16 list;
    for (const NAT value : {q.min, q.q1, q.median, q.q3, q.max})
        list = list + (list.EMPTY() ? "" : "\t") + GETSTRING(static_cast<REAL>(value) * s.scale);
    engine->COMMAND_RESULT = list;
}

namespace {
// profile [position [half width]]: a line "position<tab>value" for each column or row.
void Profile(TMACRO *engine, PROFILE_AXIS axis, PROFILE_VALUE value) {
    constexpr NAT FAR = NAT{1} << 40; // beyond all images; sums do not overflow
    const TIMAGE &image = IMAGES.CURRENT();
    const NAT count = engine->PARAMETERLENGTH();
    const NAT length = axis == PROFILE_AXIS::COLUMNS ? image.SIZEX() : image.SIZEY();
    NAT first = 1, last = length;
    if (count > 0) first = last = LIMIT(GETNAT(engine->GETPARAMETER(1)), -FAR, FAR);
    if (count > 1) {
        const NAT half = LIMIT(GETNAT(engine->GETPARAMETER(2)), NAT{0}, FAR);
        first -= half;
        last += half;
    }
    first = std::max<NAT>(first, 1);
    const TPOLYREAL profile = PROFILE(image, axis, value, first, last);
    for (NAT i = 1; i <= profile.LENGTH; ++i)
        WRITELN(GETSTRING(first + i - 1) + "\t" + GETSTRING(profile.GET(i)));
}
} // namespace

void IMAGE_VERTICAL_SUM(TMACRO *engine) {
    Profile(engine, PROFILE_AXIS::COLUMNS, PROFILE_VALUE::SUM);
}
void IMAGE_VERTICAL_MEAN(TMACRO *engine) {
    Profile(engine, PROFILE_AXIS::COLUMNS, PROFILE_VALUE::MEAN);
}
void IMAGE_VERTICAL_SD(TMACRO *engine) {
    Profile(engine, PROFILE_AXIS::COLUMNS, PROFILE_VALUE::SD);
}
void IMAGE_HORIZONTAL_SUM(TMACRO *engine) {
    Profile(engine, PROFILE_AXIS::ROWS, PROFILE_VALUE::SUM);
}
void IMAGE_HORIZONTAL_MEAN(TMACRO *engine) {
    Profile(engine, PROFILE_AXIS::ROWS, PROFILE_VALUE::MEAN);
}
void IMAGE_HORIZONTAL_SD(TMACRO *engine) { Profile(engine, PROFILE_AXIS::ROWS, PROFILE_VALUE::SD); }
} // namespace morvane
