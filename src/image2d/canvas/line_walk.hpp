#pragma once

#include "image2d/canvas/rgb.hpp"

// Pixels along a straight line, in fixed point with 16 fraction bits. What lies outside the canvas
// counts as zero, whatever BACKGROUND is.
namespace morvane {
struct PIXEL_WALK {
    NAT steps = 0; // rounded length of the line; 0: there is no line
    COMPLEXNAT step;
};
PIXEL_WALK GETWALK(const COMPLEXNAT &from, const COMPLEXNAT &to);

// The contiguous run of non-zero pixels on the line from (x1, y1) to (x2, y2): from the first end
// when it is not zero, else from the second when that is not, else the first run after the first
// end. The grey value counts in a colour image.
template <class PIXEL>
void GETLINE_W0(const CANVAS<PIXEL> &canvas, NAT x1, NAT y1, NAT x2, NAT y2, TPOLYNAT &line);
void GETLINE_W0(const TRGB &image, NAT x1, NAT y1, NAT x2, NAT y2, TPOLYNAT &line);

// The same run, read into `samples`, which has room for the rounded length of the line and one
// more; the number of samples.
template <class PIXEL>
NAT GETLINE_W0(const CANVAS<PIXEL> &canvas, const COMPLEXNAT &p1, const COMPLEXNAT &p2,
               NAT *samples);

// Writes the values, limited to the pixel range, one a step from (x1, y1) on; a list that is
// shorter than the line ends it. Colour images get grey.
template <class PIXEL>
void PUTLINE(CANVAS<PIXEL> &canvas, NAT x1, NAT y1, NAT x2, NAT y2, const TPOLYNAT &line);
void PUTLINE(TRGB &image, NAT x1, NAT y1, NAT x2, NAT y2, const TPOLYNAT &line);
} // namespace morvane
