#pragma once

#include "image2d/canvas/canvas.hpp"

#include <array>

// Filters of the 3x3 neighbourhood. m is the truncated mean of the pixels around a pixel that lie
// inside the canvas, itself included: 9 of them, 6 on an edge, 4 in a corner, 1 to 3 on a canvas of
// one row or column. All divisions truncate. The neighbours are those of the canvas before the
// filter, also across the border of the area; pixels outside the area stay.
namespace morvane {
template <class PIXEL> void HARDSMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area); // m
template <class PIXEL> void SMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area); // (c + m) / 2
// (8c + m) / 9, on edges and in corners too.
template <class PIXEL> void SOFTSMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area);
// As SMOOTH, but a pixel of 0 stays 0, so that masks keep their outline.
template <class PIXEL> void SMOOTH0(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area);
template <class PIXEL> void UNSHARPMASKING(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area); // 2c - m

// A 3x3 convolution: weights row by row, the sum divided by `divisor` (0 gives 0), rounded and
// limited. Pixels outside the canvas read as its nearest pixel.
struct KERNEL3 {
    std::array<REAL, 9> weights{};
    REAL divisor = 1;
};
template <class PIXEL>
void FILTER(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const KERNEL3 &kernel);

// The definition of the results, read pixel by pixel.
namespace plain {
template <class PIXEL> NAT MEAN3(const CANVAS<PIXEL> &canvas, NAT x, NAT y); // m
template <class PIXEL> void HARDSMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area);
template <class PIXEL> void SMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area);
template <class PIXEL> void SOFTSMOOTH(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area);
template <class PIXEL> void SMOOTH0(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area);
template <class PIXEL> void UNSHARPMASKING(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area);
} // namespace plain
} // namespace morvane
