#pragma once

#include "image2d/canvas/canvas.hpp"

// Erosion and dilation by values. Both look at the state before the pass; outside the canvas a
// neighbour is the background. `range` is low and high, `n` is limited to 0..8.
namespace morvane {
struct STRUCTURE {
    COMPLEXNAT range; // values that belong to a structure
    NAT n = 0;        // a pixel changes when more than n of its 8 neighbours ask for it
    NAT value = -1;   // what it becomes; below 0: the truncated mean of those neighbours
};
// A pixel in the range with more than n neighbours outside the range becomes their mean, or the
// value. The result is the count of changed pixels.
template <class PIXEL>
NAT SHRINK(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const STRUCTURE &structure);
// A pixel outside the range with more than n neighbours in it becomes their mean, or the value.
template <class PIXEL>
NAT GROW(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const STRUCTURE &structure);
// Passes until one changes nothing, at most 9999; the count of all changes.
inline constexpr NAT MOST_PASSES = 9999;
template <class PIXEL>
NAT FULLSHRINK(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const STRUCTURE &structure);
template <class PIXEL>
NAT FULLGROW(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const STRUCTURE &structure);

namespace plain {
template <class PIXEL>
NAT SHRINK(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const STRUCTURE &structure);
template <class PIXEL>
NAT GROW(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const STRUCTURE &structure);
} // namespace plain
} // namespace morvane
