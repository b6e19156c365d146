#pragma once

#include "image2d/canvas/canvas.hpp"

namespace morvane {
// Deviating pixels become the median of their 3x3 neighbourhood: with q1 and q3 its quartiles (the
// third and seventh of the nine in order), a pixel stays within median ± |q1 - q3| * factor. The
// result is the count of changed pixels.
// Deliberate: the pixels on the border of the area, which have no full neighbourhood, become 0.
template <class PIXEL>
NAT REMOVE_OUTLIERS(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, REAL factor);

namespace plain {
// The definition: a list of nine and its quartiles for each pixel.
template <class PIXEL>
NAT REMOVE_OUTLIERS(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, REAL factor);
} // namespace plain
} // namespace morvane
