#pragma once

#include "image2d/canvas/canvas.hpp"

// Windows and fields over a whole canvas.
namespace morvane {
// The pixels times w(x) w(y), rounded: the sine window sin(pi i / (n-1)) or the raised cosine
// (1 - cos(2 pi i / (n-1))) / 2 of Hann, i from 0 to n-1 (Harris 1978). 0 on the border; an axis of
// one pixel stays.
template <class PIXEL> void WINDOW_SIN(CANVAS<PIXEL> &canvas);
template <class PIXEL> void WINDOW_COS(CANVAS<PIXEL> &canvas);

// Each pixel its angle around the point, from the x axis (0) towards the y axis, as 0 to the
// largest pixel value, rounded. A `turn` (radians) is the whole range, further ones begin anew. The
// point itself is 0.
template <class PIXEL> void RADIAL(CANVAS<PIXEL> &canvas, const COMPLEX &point, REAL turn);
} // namespace morvane
