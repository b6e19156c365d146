#pragma once

#include "image2d/image/image.hpp"

#include <array>

// What the pixels of a value range tell. Values are grey values (TIMAGE::GET), positions pixels
// from 1, bounds of ranges included. Without a selected pixel all answers are zero.
namespace morvane {
COMPLEX OBJECT_STATISTIC(const TIMAGE &image, NAT low, NAT high); // mean and SD, divisor n-1
// The quartiles of the values by the rules of a list of whole numbers (TPOLYNAT::QUANTILE).
struct OBJECT_QUARTILES {
    NAT min = 0, q1 = 0, median = 0, q3 = 0, max = 0;
};
OBJECT_QUARTILES OBJECT_QUANTILE(const TIMAGE &image, NAT low, NAT high);
COMPLEX OBJECT_CENTER(const TIMAGE &image, NAT low, NAT high);   // the middle of the bounding box
COMPLEX OBJECT_SIZE(const TIMAGE &image, NAT low, NAT high);     // of the box, both ends included
COMPLEX OBJECT_CENTROID(const TIMAGE &image, NAT low, NAT high); // the mean position
// The position weighted by value; zero too when all values are 0.
COMPLEX OBJECT_COG(const TIMAGE &image, NAT low, NAT high);

// A number of each plane: grey, or red, green, blue, or these and the alpha of RGBA.
struct PLANE_NUMBERS {
    std::array<NAT, 4> values{};
    NAT planes = 0; // 1, 3 or 4; 0 without a canvas
};
PLANE_NUMBERS MIN(const TIMAGE &image); // of an empty image the largest pixel value
PLANE_NUMBERS MAX(const TIMAGE &image);
PLANE_NUMBERS COUNT(const TIMAGE &image, NAT low, NAT high);
PLANE_NUMBERS SUM(const TIMAGE &image, NAT low, NAT high);
PLANE_NUMBERS GETBACKGROUND(const TIMAGE &image); // the most frequent value

// Pixels by grey value, value v in bin v+1: 256 bins of 8 bits, 65536 of 16, 383 of colours.
void HISTOGRAM(const TIMAGE &image, TPOLYNAT &bins);

// The grey values of single columns or rows.
enum class PROFILE_AXIS { COLUMNS, ROWS };
enum class PROFILE_VALUE { SUM, MEAN, SD };
// Of the columns or rows first..last (from 1, within the image), in order; empty when there are
// none.
TPOLYREAL PROFILE(const TIMAGE &image, PROFILE_AXIS axis, PROFILE_VALUE value, NAT first, NAT last);
} // namespace morvane
