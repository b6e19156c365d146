#pragma once

#include "image2d/filter/shrink_grow.hpp"
#include "image2d/filter/smooth.hpp"
#include "image2d/image/objects.hpp"

#include <span>

// Filters of a whole image, each plane by itself: grey, red, green, blue, and the alpha of RGBA;
// what is said of a plane stands at its canvas operation. Images of ZRGB have no filters.
namespace morvane {
// `times` passes, MOST_PASSES at most; none below 1.
void SOFTSMOOTH(TIMAGE &image, NAT times);
void SMOOTH(TIMAGE &image, NAT times);
void HARDSMOOTH(TIMAGE &image, NAT times);
void UNSHARPMASKING(TIMAGE &image, NAT times);
void CLEAN_NOISE(TIMAGE &image); // ADJUST, SMOOTH, and UNSHARPMASKING twice
void FILTER(TIMAGE &image, const KERNEL3 &kernel);

// Pixels changed, by plane.
PLANE_NUMBERS REMOVE_OUTLIERS(TIMAGE &image, REAL factor);
PLANE_NUMBERS SHRINK(TIMAGE &image, const STRUCTURE &structure);
PLANE_NUMBERS GROW(TIMAGE &image, const STRUCTURE &structure);
PLANE_NUMBERS FULLSHRINK(TIMAGE &image, const STRUCTURE &structure);
PLANE_NUMBERS FULLGROW(TIMAGE &image, const STRUCTURE &structure);

// On grey, or red, green and blue of all colour kinds; alpha and depth stay.
void WINDOW_SIN(TIMAGE &image);
void WINDOW_COS(TIMAGE &image);
void RADIAL(TIMAGE &image, const COMPLEX &point, REAL turn);
void DISTANCE(TIMAGE &image, std::span<const COMPLEX> points);

// Of all planes of every kind. The frame stays, as the place of the first pixel and the axes.
void FLIPX(TIMAGE &image);
void FLIPY(TIMAGE &image);
void ROTATE90(TIMAGE &image); // clockwise
void ROTATE180(TIMAGE &image);
void ROTATE270(TIMAGE &image);
} // namespace morvane
