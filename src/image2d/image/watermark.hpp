#pragma once

#include "image2d/image/image.hpp"

namespace morvane {
// Writes a text in the image's pen and font, the top left of its first letter at (x, y); on ZRGB in
// front of all that is there. What lies outside the image is left out.
void WATERMARK(TIMAGE &image, NAT x, NAT y, const UTF16 &text);
} // namespace morvane
