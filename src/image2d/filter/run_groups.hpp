#pragma once

#include "foundation/base/records.hpp"

#include <functional>
#include <vector>

namespace morvane {
using RUN_INDEX = std::uint32_t;

// Neighbouring pixels of one row that belong together: offsets left up to but not including right.
struct RUN {
    RUN_INDEX left, right;
    RUN_INDEX group; // the place of its group, from 0
};

// The runs of a mask and the groups that they form over the edges of pixels (4 neighbours), counted
// from 0 in the scan order of their first pixels. Throws bad_alloc without memory.
class RUN_GROUPS {
public:
    // Writes the mask of row y, from 1, as bytes of 0 and 1.
    using ROW_MASK = std::function<void(NAT y, BYTE *mask)>;
    RUN_GROUPS(NAT width, NAT height, const ROW_MASK &rowMask);

    std::vector<RUN> runs;
    std::vector<std::size_t> rows; // the runs of row y, from 1: rows[y - 1] up to rows[y]
    RUN_INDEX groupCount = 0;

    // f(y, run) for each run in scan order.
    template <class F> void EACH_RUN(F &&f) const {
        for (std::size_t y = 1; y < rows.size(); ++y)
            for (std::size_t i = rows[y - 1]; i < rows[y]; ++i)
                f(static_cast<NAT>(y), runs[i]);
    }

private:
    void Cut(const std::vector<BYTE> &mask, std::vector<RUN_INDEX> &edges);
    void Join(std::size_t row);
    RUN_INDEX Root(std::size_t run);
    RUN_INDEX Unite(RUN_INDEX rootA, RUN_INDEX rootB);
};
} // namespace morvane
