#pragma once

#include "foundation/base/random.hpp"
#include "image2d/canvas/canvas.hpp"

#include <vector>

// Groups are connected components of the pixels in a value range, joined over edges (4 neighbours).
// An image of groups holds the number of its group in each pixel, 0 outside.
namespace morvane {
// Which groups are kept, by their count of pixels, both bounds included.
struct GROUP_SIZES {
    NAT least = 1, most = NATMAX;
};
struct GROUP_RESULT {
    NAT found = 0;           // groups of a wanted size
    NAT first = 1, last = 0; // the numbers given; last < first when there are none
};
// Numbers the groups of `source` in scan order (y outermost) into the zero pixels of `target`, from
// its largest value + 1 on; other pixels of the target belong to former groups and part what they
// lie between. `source` and `target` have one size, else nothing happens. With more groups than
// numbers up to the target's largest pixel value the largest groups (the earlier of equals) are
// numbered, still in scan order; the others stay 0. Without memory, which is told, nothing changes.
template <class SOURCE, class TARGET>
GROUP_RESULT GROUP(const CANVAS<SOURCE> &source, const COMPLEXNAT &range, const GROUP_SIZES &sizes,
                   CANVAS<TARGET> &target);

// What an image of groups tells of a group: its pixels, and its border, the count of their edges to
// pixels of other values or to the outside.
struct GROUP_COUNT {
    NAT number = 0, count = 0, border = 0;
    REAL FRACTION() const { return static_cast<REAL>(border) / static_cast<REAL>(count); }
};
// Of all groups, by number; empty without memory, which is told.
template <class PIXEL> std::vector<GROUP_COUNT> COUNT_GROUPS(const CANVAS<PIXEL> &groups);

enum class GROUP_KEY { COUNT, BORDER, FRACTION };
struct GROUP_ORDER {
    GROUP_KEY key = GROUP_KEY::COUNT;
    REAL base = 0;          // above 0: by the logarithm of the key to this base
    bool isInverse = false; // the smallest first
    NAT most = NATMAX;      // groups behind that place become 0
};
// Numbers the groups anew, 1 for the largest key; equal ones keep their order. The result is the
// count of groups that are left.
template <class PIXEL> NAT SORT_GROUPS(CANVAS<PIXEL> &groups, const GROUP_ORDER &order);
// Exchanges the numbers of the groups at random.
template <class PIXEL> void UNSORT_GROUPS(CANVAS<PIXEL> &groups, RANDOM_STREAM &random);
} // namespace morvane
