#pragma once

#include "image2d/canvas/rgb.hpp"

// Tone maps. Each makes a table of all pixel values and maps the area, or the whole canvas, through
// it; M is the largest pixel value. All products are rounded to nearest, ties to even, and limited.
namespace morvane {
// The range from the smallest to the largest value of the whole canvas is stretched to 0..M; a flat
// canvas stays.
template <class PIXEL> void ADJUST(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area);
void ADJUST256(TFULLCANVAS &canvas, const PIXEL_AREA &area); // to 0..255
// low..high to outLow..outHigh, each pair put in order; what lies outside goes to the ends.
template <class PIXEL>
void ADJUST_LINEAR(CANVAS<PIXEL> &canvas, NAT low, NAT high, NAT outLow, NAT outHigh);
// Histogram equalisation: a value becomes the share of the area's pixels below it, times M. Nothing
// happens with fewer than 2 pixels.
template <class PIXEL> void EQUAL(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area);
// Two values: 0 where the value, stretched from the area's smallest to largest to 0..M, is below
// the threshold, else M. A flat area stays.
template <class PIXEL> void MONO(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, NAT threshold);
void LIGHTER(TRAWCANVAS &canvas, const PIXEL_AREA &area); // 64 more
void DARKER(TRAWCANVAS &canvas, const PIXEL_AREA &area);  // 64 less
// A value v becomes table element v+1, limited; nothing happens with another length than M+1.
template <class PIXEL>
void SETRANGE(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const TPOLYNAT &table);
// Pixels at or below low, at or above high, or in low..high become the value, limited to 0..M.
template <class PIXEL>
void SETLOWER(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, NAT low, NAT value);
template <class PIXEL>
void SETHIGHER(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, NAT high, NAT value);
template <class PIXEL>
void SETVALUE(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, NAT low, NAT high, NAT value);
void INVERT(TRAWCANVAS &canvas, const PIXEL_AREA &area);         // 255 - v
void INVERT(TFULLCANVAS &canvas, const PIXEL_AREA &area, NAT m); // m - v, limited

// Lightness (HSL) replaced by 1 minus it, hue and saturation kept.
void INVERT_LUMIOSITY(TRGB &image);
// A local tone map to a grey image in all three planes: each pixel's sum of components against its
// surroundings, smoothed 16 times, stretched to 0..255.
void HDRGRAY(TRGB &image);
} // namespace morvane
