#pragma once

#include "image2d/image/result.hpp"

// Copies of images. The target keeps its pixel kind, so that a copy between kinds converts: a
// colour becomes its mean, a grey value three equal components, and all are limited to the range.
// The rules of IMAGE_RESULT hold for its properties; the target may be the source where nothing
// else is said.
namespace morvane {
void COPY(const TIMAGE &source, TIMAGE &target);

// Size times the factors, rounded, at least 1; a factor that is not above 0 acts as 1. With F = 1 /
// factor, new pixel i stands for the old ones floor((i-1)F)+1 to floor(iF), at least the first of
// them; their statistic is `method`: 0 sum, 1 mean, 2 sd, 3 min, 4 Q.25, 5 median, 6 Q.75, 7 max,
// others sd. Quantiles are values of the cell, the lower of two. Alpha is a mean, depth the
// largest.
void COPY_SCALED(const TIMAGE &source, const COMPLEX &factors, NAT method, TIMAGE &target);
// The same cells without averages: the most frequent value or colour, the smallest of equals.
void COPY_LABELS(const TIMAGE &source, const COMPLEX &factors, TIMAGE &target);
// RESIZE to that size; a size below 1 gives an empty image.
void COPY_RESIZED(const TIMAGE &source, const COMPLEXNAT &size, TIMAGE &target);

// The pixels of the area, limited to the source; none when it lies outside. Their global places
// stay.
void SUBIMAGE(const TIMAGE &source, const PIXEL_AREA &area, TIMAGE &target);
// The smallest area that holds all pixels with a grey value of at least `value`; empty for none.
PIXEL_AREA AREA_FROM(const TIMAGE &image, NAT value);
// The same of all pixels other than the background.
PIXEL_AREA AREA_OF_FOREGROUND(const TIMAGE &image);
// Cuts the image to that area; an empty one changes nothing.
void CROP(TIMAGE &image, const PIXEL_AREA &area);
// Cuts the image to its foreground and `margin` pixels around it.
void CROP_MARGIN(TIMAGE &image, NAT margin);

// The statistic of values by the numbers of COPY_SCALED; the list is reordered. Not empty.
REAL STATISTIC(std::span<NAT> values, NAT method);
} // namespace morvane
