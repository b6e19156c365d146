#pragma once

#include "image2d/image/image.hpp"

// Files of an image. Loading gives the image the pixel kind `id`, the pixels and the name; its
// frame is reset and its settings stay. A failure is told and leaves an empty image of that kind;
// an id that is no pixel kind gives "Unknown imagefield!" and leaves the image as it is.
namespace morvane {
bool LOAD(TIMAGE &image, BYTE id, const UTF16 &name); // external codecs first, then the own ones
// The own readers alone. A kind that a reader doesn't know is a failure.
bool LOADPNM(TIMAGE &image, BYTE id, const UTF16 &name);
bool LOADBMP(TIMAGE &image, BYTE id, const UTF16 &name);
bool LOADIMGF(TIMAGE &image, BYTE id, const UTF16 &name); // 8 and 16 bits
bool LOADRGB(TIMAGE &image, BYTE id, const UTF16 &name);  // RGB and RGBA
// Behind `header` bytes, 2, 3 or 4 bytes a pixel by the size of the file; RGB and RGBA.
bool LOADRAW(TIMAGE &image, BYTE id, const UTF16 &name, NAT width, NAT height, NAT header);
bool SAVE(const TIMAGE &image, const UTF16 &name); // in the same order of codecs
} // namespace morvane
