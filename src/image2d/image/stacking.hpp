#pragma once

#include "image2d/image/result.hpp"

namespace morvane {
// A focus stack: each pixel from the image that is sharpest there. Sharpness is the modified
// Laplacian |2g - left - right| + |2g - up - down| of the grey values, summed over 5x5 pixels
// (Nayar and Nakagawa 1994). A 3x3 majority of the choices removes single pixels and frays of
// seams. Where images are equally sharp, as in flat parts, the pixel is their mean, rounded. Sizes
// as for COMBINE_PIXELS.
void STACKING(OPERANDS operands, TIMAGE &target);
} // namespace morvane
