#pragma once

#include "image2d/canvas/canvas.hpp"

#include <span>
#include <vector>

namespace morvane {
// Each pixel the Euclidean distance from its centre to the nearest point, in pixels, rounded and
// limited. Points may lie between pixels and outside. Without a point nothing happens.
template <class PIXEL> void DISTANCE(CANVAS<PIXEL> &canvas, std::span<const COMPLEX> points);

// The exact squared distance of each pixel of the mask (0 or 1) to the nearest pixel of 0 or the
// nearest place outside, from centre to centre; 0 for the pixels of 0. Row by row, as the mask
// (Felzenszwalb & Huttenlocher 2012). Throws bad_alloc without memory.
std::vector<NAT> INNER_DISTANCES(const TCANVAS &mask);

// A circle within the pixels of a mask: a pixel as its centre, and half a pixel less than the
// distance to the nearest pixel of 0, or place outside, as its radius.
struct MASK_CIRCLE {
    NAT x = 0, y = 0;
    REAL radius = 0;
};
// Greedy: again and again the largest circle that overlaps none before, of at most the given
// radius; equal ones in scan order. The smallest is that of a single pixel, 0.5. Empty without
// memory, which is told.
std::vector<MASK_CIRCLE> INNER_CIRCLES(const TCANVAS &mask, REAL largest);
} // namespace morvane
