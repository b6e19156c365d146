#pragma once

#include "image2d/canvas/canvas.hpp"

// New sizes. A size below 1 gives an empty canvas; when memory runs out, which is told, the old
// pixels stay. The window is the whole canvas afterwards.
namespace morvane {
// Nearest neighbour: with sx = old width / (w + 1), the new pixel x is the old pixel round(x * sx);
// 0 reads pixel 1. The same in y.
template <class PIXEL> void RESIZE(CANVAS<PIXEL> &canvas, NAT width, NAT height);
// Each new pixel stands for a cell of old width / w by old height / h old pixels. A scale within
// 0.1 of 1 both ways takes the pixel nearest to the cell's centre; a cell smaller than a pixel in
// one direction the mean of the four around its centre; a larger one the mean of the pixels at the
// centres of its parts, as many parts each way as the cell has pixels, rounded. Means are rounded.
template <class PIXEL> void SMOOTHRESIZE(CANVAS<PIXEL> &canvas, NAT width, NAT height);
// SMOOTHRESIZE to the size times the factors, rounded, at least 1.
template <class PIXEL> void SMOOTHSCALE(CANVAS<PIXEL> &canvas, REAL factorX, REAL factorY);
} // namespace morvane
