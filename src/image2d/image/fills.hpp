#pragma once

#include "image2d/image/image.hpp"

// Filling pixels of an image. Missing pixels are those of grey value 0; of a colour kind those
// whose red, green and blue are 0.
namespace morvane {
void FILL(TIMAGE &image); // the pen to all pixels; the depth of ZRGB stays
// Random values of the whole pixel range; alpha becomes 255, the depth stays. The numbers are those
// of the next drawing command.
void FILL_RANDOM(TIMAGE &image);
void FILL_CUBE(TIMAGE &image, const COMPLEXNAT &a,
               const COMPLEXNAT &b); // the pen, corners included
// The pen to the holes with a size in the range, in pixels; a hole is a region of missing pixels (4
// neighbours) that does not reach the image's border. The count of holes.
NAT FILL_HOLE(TIMAGE &image, const COMPLEXNAT &sizes);
// Missing pixels by interpolation (MISSING_PIXELS), each plane by itself: all of them, or only the
// holes that lie wholly within the area. The count of pixels filled; none of ZRGB, and none without
// a pixel to go by.
NAT FILL_ZERO(TIMAGE &image);
NAT FILL_GAP(TIMAGE &image, const PIXEL_AREA &area);
} // namespace morvane
