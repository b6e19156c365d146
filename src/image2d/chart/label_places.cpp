#include "image2d/chart/label_places.hpp"

#include "foundation/base/rounding.hpp"
#include "image2d/canvas/draw.hpp"

#include <algorithm>
#include <limits>

namespace morvane {
namespace {
constexpr REAL CELL = 4;   // picture units a side, times the unit
constexpr REAL MARGIN = 3; // between a label and the frame, times the unit
constexpr REAL DISTANCES[] = {7, 12, 18, 26, 36, 50};
// Where a label stands seen from its point, and which part of it is nearest: -0.5 its right end,
// 0 its middle, 0.5 its left end.
struct STANCE {
    COMPLEX side;
    REAL shift;
};
constexpr STANCE STANCES[] = {{{0, -1}, 0},       {{0.3, -1}, 0.25},    {{-0.3, -1}, -0.25},
                              {{0.7, -0.8}, 0.5}, {{-0.7, -0.8}, -0.5}, {{1, 0}, 0.5},
                              {{-1, 0}, -0.5},    {{0, 1}, 0},          {{0.3, 1}, 0.25},
                              {{-0.3, 1}, -0.25}, {{0.7, 0.8}, 0.5},    {{-0.7, 0.8}, -0.5}};
constexpr NAT CURVE_COST = 100; // of a cell; any place off the curves comes before all others

// A box of that size beside the point, with `gap` between them.
PICTURE_AREA Beside(const COMPLEX &point, const STANCE &stance, REAL gap, REAL width, REAL height) {
    const COMPLEX &side = stance.side;
    const REAL x = point.x + side.x * gap + stance.shift * width;
    const REAL y = point.y + side.y * gap + (side.y > 0 ? 0.5 : side.y < 0 ? -0.5 : 0) * height;
    return {x - width / 2, y - height / 2, x + width / 2, y + height / 2};
}
} // namespace

LABEL_PLACES::LABEL_PLACES(NAT width, NAT height, const PICTURE_AREA &newFrame, REAL newUnit)
    : frame(newFrame), unit(newUnit) {
    cells.INIT(Cell(static_cast<REAL>(width)) + 1, Cell(static_cast<REAL>(height)) + 1);
}

NAT LABEL_PLACES::Cell(REAL coordinate) const { return FLOOR(coordinate / (CELL * unit)) + 1; }

void LABEL_PLACES::TAKELINE(const std::vector<COMPLEX> &points) {
    for (std::size_t i = 0; i + 1 < points.size(); ++i) {
        const COMPLEX &a = points[i], &b = points[i + 1];
        LINE(cells, Cell(a.x), Cell(a.y), Cell(b.x), Cell(b.y));
    }
}

bool LABEL_PLACES::IsFree(const PICTURE_AREA &area) const {
    const REAL gap = MARGIN * unit;
    if (!frame.HOLDS({area.left - gap, area.top - gap, area.right + gap, area.bottom + gap}))
        return false;
    return std::none_of(taken.begin(), taken.end(),
                        [&](const PICTURE_AREA &other) { return other.MEETS(area); });
}

NAT LABEL_PLACES::CurveCells(const PICTURE_AREA &area) const {
    if (cells.EMPTY()) return 0;
    return COUNT(
        cells, 1, 255,
        cells.LIMITED({Cell(area.left), Cell(area.top), Cell(area.right), Cell(area.bottom)}));
}

bool LABEL_PLACES::PLACE(const COMPLEX &point, REAL width, REAL height, PICTURE_AREA &place) const {
    NAT lowest = std::numeric_limits<NAT>::max(), order = 0;
    for (const REAL distance : DISTANCES)
        for (const STANCE &stance : STANCES) {
            const PICTURE_AREA area = Beside(point, stance, distance * unit, width, height);
            ++order; // near places and those above come first
            if (!IsFree(area)) continue;
            const NAT cost = CurveCells(area) * CURVE_COST + order;
            if (cost >= lowest) continue;
            lowest = cost;
            place = area;
        }
    return lowest < std::numeric_limits<NAT>::max();
}

bool LABEL_PLACES::PLACEBOX(REAL width, REAL height, PICTURE_AREA &place) const {
    const REAL gap = 2 * MARGIN * unit, step = CELL * unit;
    const REAL left = frame.left + gap, right = frame.right - gap - width;
    const REAL top = frame.top + gap, bottom = frame.bottom - gap - height;
    if (right < left || bottom < top) return false;
    std::vector<COMPLEX> corners{{right, top}, {left, top}, {right, bottom}, {left, bottom}};
    for (REAL x = right - step; x > left; x -= step)
        corners.push_back({x, top});
    for (REAL y = top + step; y < bottom; y += step) {
        corners.push_back({right, y});
        corners.push_back({left, y});
    }
    for (REAL x = right - step; x > left; x -= step)
        corners.push_back({x, bottom});
    for (const COMPLEX &corner : corners) {
        const PICTURE_AREA area{corner.x, corner.y, corner.x + width, corner.y + height};
        const PICTURE_AREA around{area.left - step, area.top - step, area.right + step,
                                  area.bottom + step};
        if (!IsFree(area) || CurveCells(around) > 0) continue;
        place = area;
        return true;
    }
    return false;
}
} // namespace morvane
