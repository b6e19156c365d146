#include "image2d/filter/holes.hpp"

#include "foundation/console/console.hpp"
#include "image2d/filter/run_groups.hpp"

#include <algorithm>
#include <new>

namespace morvane {
namespace {
struct HOLE {
    NAT count = 0;
    bool isOpen = false; // it reaches the border, or out of the area
};

NAT Keep(TCANVAS &missing, const COMPLEXNAT &sizes, const PIXEL_AREA &area) {
    const RUN_GROUPS groups(missing.WIDTH, missing.HEIGHT, [&](NAT y, BYTE *mask) {
        std::copy_n(missing.ROW(y), missing.WIDTH, mask);
    });
    const PIXEL_AREA inner{std::max<NAT>(area.left, 2), std::max<NAT>(area.top, 2),
                           std::min(area.right, missing.WIDTH - 1),
                           std::min(area.bottom, missing.HEIGHT - 1)};
    std::vector<HOLE> holes(groups.groupCount);
    groups.EACH_RUN([&](NAT y, const RUN &run) {
        HOLE &hole = holes[run.group];
        hole.count += run.right - NAT{run.left};
        hole.isOpen |= !inner.HOLDS(run.left + NAT{1}, y) || !inner.HOLDS(run.right, y);
    });
    const auto isWanted = [&](const HOLE &hole) {
        return !hole.isOpen && hole.count >= sizes.x && hole.count <= sizes.y;
    };
    groups.EACH_RUN([&](NAT y, const RUN &run) {
        if (isWanted(holes[run.group])) return;
        std::fill(missing.ROW(y) + run.left, missing.ROW(y) + run.right, BYTE{0});
    });
    return std::count_if(holes.begin(), holes.end(), isWanted);
}
} // namespace

NAT KEEP_HOLES(TCANVAS &missing, const COMPLEXNAT &sizes, const PIXEL_AREA &area) try {
    return Keep(missing, sizes, area);
} catch (const std::bad_alloc &) {
    WRITELN("  Out of memory! No holes found.");
    missing.FILL(0);
    return 0;
}
} // namespace morvane
