#pragma once

#include "image2d/image/image.hpp"

// Edits of the values of an image in place. Grey kinds, and red, green and blue of RGB and RGBA one
// by one; alpha stays but where it is named, and ZRGB is left alone. M is 255, or 65535 on 16 bits.
namespace morvane {
bool IFPLAIN(const TIMAGE &image); // all pixels alike in all layers; an empty image is not

// Exchanges the two halves of the range, of alpha too: signed values become unsigned ones.
void SETSIGN(TIMAGE &image);
// Subtracts the smallest value, of colours the smallest of all components. 16 bits that hold
// wrapped negative values go through SETSIGN first: at least two values stand in either half, and
// the gap across the middle of the range is more than 16 times the one across its ends.
void SETRANGE(TIMAGE &image);
// Values beyond the first and the last one that more than 3 pixels have become these.
void SETCROP(TIMAGE &image);
void SETLOWER(TIMAGE &image, NAT bound, NAT value);  // at or below the bound
void SETHIGHER(TIMAGE &image, NAT bound, NAT value); // at or above it
void SETVALUE(TIMAGE &image, const COMPLEXNAT &range, NAT value);
// Pixels of exactly that colour; on grey kinds of its mean.
void SETVALUE(TIMAGE &image, const VECTORNAT &colour, const VECTORNAT &newColour);

// ADJUST of every plane, of alpha too: the smallest to the largest value onto 0..M.
void ADJUST(TIMAGE &image);
// The range onto another one; nothing happens to a range of one value.
void ADJUST_LINEAR(TIMAGE &image, const COMPLEXNAT &from, const COMPLEXNAT &to);
// Onto 0..M, from the first value with more than the share `low` of the pixels at or below it to
// the last one with more than the share `high` at or above it.
void ADJUST_PERCENTAGE(TIMAGE &image, REAL low, REAL high);
// The same with soft ends: what lies between the inner and the outer bound is pressed into the
// lowest and the highest 16th of the range instead of being clipped. A pair in the wrong order is
// swapped.
struct SOFT_SHARES {
    REAL innerLow = 0, innerHigh = 0, outerLow = 0, outerHigh = 0;
};
void ADJUST_WEAK(TIMAGE &image, const SOFT_SHARES &shares);
// Onto 0..M, from a quarter of the quartiles' distance below the lower quartile to as much above
// the higher one, but not beyond the smallest and largest value.
void ADJUST_OUTLIERS(TIMAGE &image);

void EQUAL(TIMAGE &image);
void MONO(TIMAGE &image, NAT threshold); // of alpha too
void GRAY(TIMAGE &image);                // colour kinds: every component their mean
void HDRGRAY(TIMAGE &image);             // colour kinds
void INVERT(TIMAGE &image, NAT m);       // 255 - v, on 16 bits m - v
// Grey and colour images through the current colour map: 0..255, 0..65535, or the sum of 0..765.
// Grey images become RGB.
void COLORIZE(TIMAGE &image);
} // namespace morvane
