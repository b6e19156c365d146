#pragma once

#include "image2d/image/image.hpp"

// Alpha of RGBA and ZRGB images in place, limited to 0..255; other images stay.
namespace morvane {
void SETALPHA(TIMAGE &image, NAT alpha);                              // of all pixels
void SETRGB_ALPHA(TIMAGE &image, const VECTORNAT &colour, NAT alpha); // of pixels of that colour
} // namespace morvane
