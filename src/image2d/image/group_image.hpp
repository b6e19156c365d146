#pragma once

#include "image2d/filter/groups.hpp"
#include "image2d/image/image.hpp"

// Images of groups: each pixel holds the number of its group, 0 outside; see groups.hpp.
namespace morvane {
// The groups of the source's grey values in the range into the target, whose size and frame become
// those of the source. Colour has no room for numbers: such a target becomes 16-bit grey. With
// `keeps` the target's former groups stay and keep their numbers when it has pixels; it must be
// grey and of the source's size then, else nothing happens and a line tells so.
GROUP_RESULT GROUP(const TIMAGE &source, const COMPLEXNAT &range, const GROUP_SIZES &sizes,
                   TIMAGE &target, bool keeps = false);

// On images of groups, of grey kinds; none of colour.
std::vector<GROUP_COUNT> COUNT_GROUPS(const TIMAGE &image);
NAT SORT_GROUPS(TIMAGE &image, const GROUP_ORDER &order);
void UNSORT_GROUPS(TIMAGE &image);
// A line "number<tab>border<tab>count<tab>border/count" for each group; false after a failure,
// which is told, and without a group, which is told too.
bool SAVE_GROUPS(const TIMAGE &image, const UTF16 &name);
} // namespace morvane
