#include "orientation/scan/scan_block.hpp"

#include "foundation/base/geometry.hpp"
#include "orientation/scan/line_statistic.hpp"

#include <algorithm>
#include <bit>
#include <cmath>

namespace morvane {
namespace {
// What stands for a statistic.
SCAN_MOMENT MomentOf(BYTE subMethod) {
    if (IS_RANK(subMethod)) return SCAN_MOMENT::RANK;
    if (subMethod == 0) return SCAN_MOMENT::SUM;
    return subMethod == 1 ? SCAN_MOMENT::MEAN : SCAN_MOMENT::VARIANCE;
}

// The samples of a line in the tile, for the methods' own walk.
struct TILE_SOURCE {
    const SCAN_TILE *tile;
    const LINE_OFFSETS *lines;
    const void *centre;
    static NAT READ(const void *self, NAT direction, NAT *samples) {
        const TILE_SOURCE *source = static_cast<const TILE_SOURCE *>(self);
        return source->tile->GETLINE_W0(source->centre, *source->lines, direction, samples);
    }
};
} // namespace

SCAN_BLOCK::SCAN_BLOCK(const SCAN_PLAN &scanPlan, const SCAN_VOLUME &scanVolume,
                       const SCAN_KERNEL &scanKernel)
    : plan(scanPlan), volume(scanVolume), kernel(scanKernel) {}

bool SCAN_BLOCK::INIT() {
    const NAT count = plan.lines.count;
    return tile.INIT(plan.shape) && lists.INIT(plan.r) && values.INIT(count * SCAN_LANES) &&
           masks.INIT(count) && candidates.INIT(count * SCAN_LANES);
}

void SCAN_BLOCK::SCAN(const VECTORNAT &first, NAT columns, NAT rows, const BYTE *wanted,
                      VECTOR *results) {
    for (NAT left = 0; left < columns; left += plan.shape.columns) {
        const NAT width = std::min(plan.shape.columns, columns - left);
        bool any = false;
        for (NAT row = 0; row < rows && !any; ++row) {
            const BYTE *line = wanted + row * columns + left;
            any = std::any_of(line, line + width, [](BYTE flag) { return flag != 0; });
        }
        if (!any) continue;
        tile.LOAD(volume, {first.x + left * plan.factor, first.y, first.z});
        for (NAT row = 0; row < rows; ++row) {
            const NAT at = row * columns + left;
            SCAN_TILE_ROW(row, width, wanted + at, results + at);
        }
    }
}

void SCAN_BLOCK::SCAN_TILE_ROW(NAT row, NAT columns, const BYTE *wanted, VECTOR *results) {
    for (NAT column = 0; column < columns; column += SCAN_LANES) {
        const NAT width = std::min(SCAN_LANES, columns - column);
        std::uint32_t bits = 0;
        for (NAT i = 0; i < width; ++i)
            bits |= static_cast<std::uint32_t>(wanted[column + i] != 0) << i;
        if (bits == 0) continue;
        SCAN_GROUP({tile.CENTRE(row, column), bits, tile.ZEROS(row, column), results + column});
    }
}

// The approximate values find the candidates, which are then compared exactly.
void SCAN_BLOCK::SCAN_GROUP(const GROUP &group) {
    float best[SCAN_LANES], limits[SCAN_LANES];
    std::int32_t scanned[SCAN_LANES];
    SCAN_TASK task;
    task.centres = group.centres;
    task.lines = plan.lines;
    task.moment = MomentOf(plan.settings.subMethod);
    task.statistic = plan.settings.subMethod;
    task.wanted = group.wanted;
    task.zeros = group.zeros;
    task.shift = tile.SHIFT();
    task.largest = tile.LARGEST();
    task.r = plan.r;
    task.values = values.DATA();
    task.best = best;
    task.scanned = scanned;
    (tile.NARROW() ? kernel.narrow : kernel.wide)(task);

    const BYTE *lanes = tile.NARROW() ? kernel.narrowLanes : kernel.wideLanes;
    if (task.moment == SCAN_MOMENT::RANK) lanes = plain::KERNEL.narrowLanes;
    for (NAT slot = 0; slot < SCAN_LANES; ++slot) {
        const bool asked = (group.wanted >> lanes[slot] & 1) != 0 && std::isfinite(best[slot]);
        limits[slot] = asked ? best[slot] * (1 + 4 * SCAN_TOLERANCE) : -1;
        counts[slot] = 0;
    }
    const NAT count = plan.lines.count;
    kernel.select(values.DATA(), count, limits, masks.DATA());
    for (NAT k = 0; k < count; ++k)
        for (std::uint32_t mask = masks[k]; mask != 0; mask &= mask - 1) {
            const NAT slot = std::countr_zero(mask);
            candidates[slot * count + counts[slot]++] = static_cast<std::uint32_t>(k);
        }
    for (NAT slot = 0; slot < SCAN_LANES; ++slot) {
        const NAT lane = lanes[slot];
        if ((group.wanted >> lane & 1) == 0) continue;
        group.results[lane] = BEST_VECTOR(CENTRE(group, lane), slot, scanned[slot], best[slot]);
    }
}

const void *SCAN_BLOCK::CENTRE(const GROUP &group, NAT lane) const {
    if (tile.NARROW()) return static_cast<const std::int8_t *>(group.centres) + lane;
    return static_cast<const std::int16_t *>(group.centres) + lane;
}

REAL SCAN_BLOCK::VALUE(const void *centre, std::uint32_t direction) {
    const NAT count = tile.GETLINE_W0(centre, plan.lines, direction, lists.line.DATA());
    return LINE_STATISTIC(plan.settings.subMethod, lists.line.DATA(), count);
}

VECTOR SCAN_BLOCK::WHOLE_SCAN(const void *centre) {
    const TILE_SOURCE source{&tile, &plan.lines, centre};
    return GETIMAGEVECTOR(
        {plan.settings, plan.directions, lists, {TILE_SOURCE::READ, &source}, plan.r});
}

VECTOR SCAN_BLOCK::BEST_VECTOR(const void *centre, NAT slot, NAT scanned, float best) {
    const NAT count = counts[slot];
    if (count < 1 || (plan.settings.fullScan && scanned < plan.lines.count)) return VZERO;
    std::uint32_t *list = candidates.DATA() + slot * plan.lines.count;
    if (count == 1) return LONE_VECTOR(centre, list[0], scanned);
    SCAN_TIES ties{0, list, count, scanned};
    if (IS_RANK(plan.settings.subMethod)) {
        ties.best = static_cast<REAL>(best); // exact, and so are all candidates
    } else if (best != 0) {                  // else every candidate is exactly 0
        ties.best = WORST_VALUE;
        for (NAT i = 0; i < count; ++i) {
            const REAL value = VALUE(centre, list[i]);
            if (value > ties.best) continue;
            if (value < ties.best) ties.count = 0;
            ties.best = value;
            list[ties.count++] = list[i];
        }
    }
    VECTOR result;
    if (GETIMAGEVECTOR_TIES(plan.settings, plan.directions, plan.r, ties, result)) return result;
    return WHOLE_SCAN(centre);
}

// Most voxels have one best direction, and the default method needs no more than its number.
VECTOR SCAN_BLOCK::LONE_VECTOR(const void *centre, std::uint32_t direction, NAT scanned) {
    if (plan.settings.method >= SCAN_METHOD::BRENK2015A) {
        const bool accepted = scanned > 2 && static_cast<REAL>(scanned) * plan.settings.max > 1;
        if (!accepted) return VZERO;
        const VECTOR &lone = plan.LONE(direction);
        const bool hasLength = plan.settings.method == SCAN_METHOD::BRENK2019;
        return hasLength ? lone * VALUE(centre, direction) : lone;
    }
    const SCAN_TIES ties{VALUE(centre, direction), &direction, 1, scanned};
    VECTOR result;
    static_cast<void>(GETIMAGEVECTOR_TIES(plan.settings, plan.directions, plan.r, ties, result));
    return result;
}
} // namespace morvane
