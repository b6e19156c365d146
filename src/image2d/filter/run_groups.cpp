#include "image2d/filter/run_groups.hpp"

#include <algorithm>
#include <limits>
#include <new>

namespace morvane {
namespace {
constexpr NAT MOST = std::numeric_limits<RUN_INDEX>::max();
constexpr NAT USUAL = 4; // pixels a run of noise
} // namespace

// Two passes with union-find (Rosenfeld & Pfaltz 1966), on runs (He, Chao & Suzuki 2008). While
// runs are joined `group` is an earlier run of the group, or the run itself.
RUN_GROUPS::RUN_GROUPS(NAT width, NAT height, const ROW_MASK &rowMask) {
    if (width >= MOST) throw std::bad_alloc();
    const auto length = static_cast<std::size_t>(width);
    std::vector<BYTE> mask(length + 2); // a 0 at each end
    std::vector<RUN_INDEX> edges(length + 2);
    rows.reserve(static_cast<std::size_t>(height) + 1);
    runs.reserve(static_cast<std::size_t>(width * height / USUAL));
    rows.push_back(0);
    for (NAT y = 1; y <= height; ++y) {
        rowMask(y, mask.data() + 1);
        Cut(mask, edges);
        if (y > 1) Join(static_cast<std::size_t>(y));
    }
    for (std::size_t i = 0; i < runs.size(); ++i) // those of earlier runs are places already
        runs[i].group = runs[i].group == i ? groupCount++ : runs[runs[i].group].group;
}

// The runs of a row lie between the places where its mask changes.
void RUN_GROUPS::Cut(const std::vector<BYTE> &mask, std::vector<RUN_INDEX> &edges) {
    std::size_t count = 0;
    for (std::size_t x = 1; x < mask.size(); ++x) {
        edges[count] = static_cast<RUN_INDEX>(x - 1);
        count += mask[x] != mask[x - 1];
    }
    if (runs.size() + count >= static_cast<std::size_t>(MOST)) throw std::bad_alloc();
    for (std::size_t i = 0; i + 1 < count; i += 2)
        runs.push_back({edges[i], edges[i + 1], static_cast<RUN_INDEX>(runs.size())});
    rows.push_back(runs.size());
}

// Unites the runs of a row, from 2, with those that they touch in the row above.
void RUN_GROUPS::Join(std::size_t row) {
    std::size_t upper = rows[row - 2];
    const std::size_t upperEnd = rows[row - 1];
    for (std::size_t lower = upperEnd; lower < rows[row]; ++lower) {
        const RUN_INDEX left = runs[lower].left, right = runs[lower].right;
        while (upper < upperEnd && runs[upper].right <= left)
            ++upper;
        if (upper == upperEnd) return;
        if (runs[upper].left >= right) continue;
        RUN_INDEX root = runs[lower].group = Root(upper);
        for (; upper + 1 < upperEnd && runs[upper + 1].left < right; ++upper)
            root = Unite(root, Root(upper + 1));
    }
}

RUN_INDEX RUN_GROUPS::Root(std::size_t run) {
    auto index = static_cast<RUN_INDEX>(run);
    while (runs[index].group != index) {
        runs[index].group = runs[runs[index].group].group;
        index = runs[index].group;
    }
    return index;
}

RUN_INDEX RUN_GROUPS::Unite(RUN_INDEX rootA, RUN_INDEX rootB) {
    const RUN_INDEX root = std::min(rootA, rootB);
    runs[std::max(rootA, rootB)].group = root;
    return root;
}
} // namespace morvane
