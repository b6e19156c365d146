#pragma once

#include "image2d/canvas/canvas.hpp"

namespace morvane {
// Holes are groups of missing pixels (4 neighbours) that do not reach the border of the image.
// `missing` becomes 1 in the pixels of holes of a size in the range (pixels, both ends included)
// that lie wholly within the area, 0 in all others; before, 0 or 1. The result is the count of
// holes; without memory, which is told, the mask is all 0.
NAT KEEP_HOLES(TCANVAS &missing, const COMPLEXNAT &sizes, const PIXEL_AREA &area);
} // namespace morvane
