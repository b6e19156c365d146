#pragma once

#include "image2d/canvas/canvas.hpp"

// Drawing on a canvas with its pen VALUE, inside its window. On 8 bits lines and circles are
// smooth: a point between pixels is shared among its four neighbours. On 16 bits they are plain.
// Coordinates are pixels from 1; what lies outside is left out.
namespace morvane {
// A point in tenths of a pixel: the four neighbours move towards VALUE by their shares of 100.
void _POINT10(TCANVAS &canvas, NAT x, NAT y);

// From the smaller x up to, not including, the larger; a column with both ends; a row with both.
template <class PIXEL> void _HLINE(CANVAS<PIXEL> &canvas, NAT x1, NAT x2, NAT y);
template <class PIXEL> void _VLINE(CANVAS<PIXEL> &canvas, NAT x, NAT y1, NAT y2);
template <class PIXEL> void _LINE(CANVAS<PIXEL> &canvas, NAT x1, NAT x2, NAT y);
// A column blended: each pixel becomes (3*old + VALUE) / 4.
template <class PIXEL> void _VVLINE(CANVAS<PIXEL> &canvas, NAT x, NAT y1, NAT y2);

// The edge of a filled polygon: on each row between the ends the run from the edge to column x,
// once a row and side since _SCAN_RESET, so that edges that meet plot no pixel twice. _VVLINE
// blends.
template <class PIXEL> void _SCAN_RESET(CANVAS<PIXEL> &canvas);
template <class PIXEL> void _VLINE(CANVAS<PIXEL> &canvas, NAT x1, NAT y1, NAT x2, NAT y2, NAT x);
template <class PIXEL> void _VVLINE(CANVAS<PIXEL> &canvas, NAT x1, NAT y1, NAT x2, NAT y2, NAT x);

template <class PIXEL> void LINE(CANVAS<PIXEL> &canvas, NAT x1, NAT y1, NAT x2, NAT y2);
template <class PIXEL> void RECTANGLE(CANVAS<PIXEL> &canvas, NAT x1, NAT y1, NAT x2, NAT y2);
template <class PIXEL> void FULLRECTANGLE(CANVAS<PIXEL> &canvas, NAT x1, NAT y1, NAT x2, NAT y2);
// Radii in pixels. A radius below 0 draws nothing.
template <class PIXEL> void CIRCLE(CANVAS<PIXEL> &canvas, NAT x, NAT y, REAL radius);
void FULLCIRCLE(TCANVAS &canvas, NAT x, NAT y, REAL radius);
// `angle` in radians turns the ellipse, from x towards y.
void ELLIPSE(TCANVAS &canvas, NAT x, NAT y, REAL radiusX, REAL radiusY, REAL angle = 0);
void FULLELLIPSE(TCANVAS &canvas, NAT x, NAT y, REAL radiusX, REAL radiusY, REAL angle = 0);
} // namespace morvane
