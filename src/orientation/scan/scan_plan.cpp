#include "orientation/scan/scan_plan.hpp"

#include "foundation/base/record_operators.hpp"
#include "orientation/scan/hemisphere.hpp"

#include <algorithm>
#include <utility>

namespace morvane {
namespace {
constexpr NAT LONGEST_RADIUS = 64;       // of the tables; int32 sums hold up to here, too
constexpr NAT TILE_LIMIT = NAT{4} << 20; // elements of a tile, two bytes each
constexpr NAT MOST_COLUMNS = 128, MOST_ROWS = 16;

NAT FloorDiv(NAT a, NAT b) { return a >= 0 ? a / b : -((b - 1 - a) / b); }

// Both walks of a direction, as moves from the centre.
struct WALK_PAIR {
    VECTORNAT d, step;
    NAT samples = 0;

    explicit WALK_PAIR(const VECTORNAT &offset) : d(offset) {
        const LINE_WALK walk = GETWALK(d, -d);
        step = walk.step;
        samples = walk.steps > 0 ? walk.steps + 1 : 0;
    }
    // The shift rounds towards minus infinity, so a move does not depend on the centre.
    VECTORNAT FORWARD(NAT i) const {
        return {d.x + (i * step.x >> 16), d.y + (i * step.y >> 16), d.z + (i * step.z >> 16)};
    }
    VECTORNAT BACKWARD(NAT i) const {
        return {-d.x + (-i * step.x >> 16), -d.y + (-i * step.y >> 16), -d.z + (-i * step.z >> 16)};
    }
};

struct EXTENT {
    VECTORNAT low, high;
    void ADD(const VECTORNAT &v) {
        low = {std::min(low.x, v.x), std::min(low.y, v.y), std::min(low.z, v.z)};
        high = {std::max(high.x, v.x), std::max(high.y, v.y), std::max(high.z, v.z)};
    }
};

TILE_SHAPE GetShape(const EXTENT &extent, NAT factor, NAT columns, NAT rows) {
    TILE_SHAPE shape;
    shape.factor = factor;
    shape.columns = columns;
    shape.rows = rows;
    shape.left = -FloorDiv(extent.low.x, factor);
    shape.right = FloorDiv(extent.high.x, factor);
    shape.above = -extent.low.y;
    shape.below = extent.high.y;
    shape.front = -extent.low.z;
    shape.behind = extent.high.z;
    shape.stride = (shape.left + columns + shape.right + SCAN_LANES - 1) / SCAN_LANES * SCAN_LANES;
    shape.height = shape.above + factor * (rows - 1) + 1 + shape.below;
    shape.depth = shape.front + 1 + shape.behind;
    return shape;
}

// The largest tile below the limit: fewer rows first, then fewer columns.
TILE_SHAPE ChooseShape(const EXTENT &extent, NAT factor, NAT width, NAT mostRows) {
    NAT columns = std::min((width + SCAN_LANES - 1) / SCAN_LANES * SCAN_LANES, MOST_COLUMNS);
    NAT rows = mostRows;
    TILE_SHAPE shape = GetShape(extent, factor, columns, rows);
    while (shape.ELEMENTS() > TILE_LIMIT && (rows > 1 || columns > SCAN_LANES)) {
        if (rows > 1)
            rows /= 2;
        else
            columns -= SCAN_LANES;
        shape = GetShape(extent, factor, columns, rows);
    }
    return shape;
}
} // namespace

NAT TILE_SHAPE::OFFSET(const VECTORNAT &move) const {
    const NAT whole = FloorDiv(move.x, factor);
    return ((move.z * height + move.y) * factor + move.x - whole * factor) * stride + whole;
}

SCAN_PLAN::SCAN_PLAN(const SCAN_SETTINGS &scanSettings, NAT length, NAT step, NAT width, bool fast)
    : r(length), factor(step), settings(scanSettings) {
    _GETHEMISPHERE(directions.points, directions.vectors, r);
    if (fast) MAKE_TABLES(width, MOST_ROWS);
}

SCAN_PLAN::SCAN_PLAN(const SCAN_SETTINGS &scanSettings, SCAN_DIRECTIONS scanDirections, NAT length,
                     NAT width, bool fast)
    : r(length), settings(scanSettings), directions(std::move(scanDirections)) {
    if (fast) MAKE_TABLES(width, 1);
}

void SCAN_PLAN::MAKE_TABLES(NAT width, NAT mostRows) {
    if (r > LONGEST_RADIUS || directions.points.LENGTH < 1 || width < 1) return;
    if (!MAKE_LONE() || !MAKE_LINES(width, mostRows)) lines = LINE_OFFSETS{};
}

bool SCAN_PLAN::MAKE_LINES(NAT width, NAT mostRows) {
    const NAT count = directions.points.LENGTH;
    EXTENT extent;
    NAT samples = 0;
    for (const VECTORNAT &point : directions.points.SPAN()) {
        const WALK_PAIR walks(point);
        for (NAT i = 0; i < walks.samples; ++i) {
            extent.ADD(walks.FORWARD(i));
            extent.ADD(walks.BACKWARD(i));
        }
        if (walks.samples > LONGEST_LINE) return false;
        samples += walks.samples;
    }
    shape = ChooseShape(extent, factor, width, mostRows);
    if (shape.ELEMENTS() > TILE_LIMIT) return false;
    if (!forward.INIT(samples) || !backward.INIT(samples) || !begins.INIT(count + 1)) return false;
    NAT at = 0;
    for (NAT k = 0; k < count; ++k) {
        const WALK_PAIR walks(directions.points._GET(k + 1));
        for (NAT i = 0; i < walks.samples; ++i, ++at) {
            forward[at] = static_cast<std::int32_t>(shape.OFFSET(walks.FORWARD(i)));
            backward[at] = static_cast<std::int32_t>(shape.OFFSET(walks.BACKWARD(i)));
        }
        begins[k + 1] = static_cast<std::uint32_t>(at);
    }
    lines = {forward.DATA(), backward.DATA(), begins.DATA(), count};
    return true;
}

bool SCAN_PLAN::MAKE_LONE() {
    const NAT count = directions.points.LENGTH;
    if (!lone.INIT(count)) return false;
    SCAN_SETTINGS free = settings;
    free.max = 1;
    for (NAT k = 0; k < count; ++k) {
        const std::uint32_t direction = static_cast<std::uint32_t>(k);
        const SCAN_TIES ties{1, &direction, 1, NATMAX};
        if (!GETIMAGEVECTOR_TIES(free, directions, r, ties, lone[k])) return false;
    }
    return true;
}
} // namespace morvane
