#pragma once

#include "foundation/base/utf16.hpp"
#include "image2d/canvas/rgb.hpp"

// Pictures read and written by FreeImage. False, with an empty canvas or the old file untouched,
// when the library isn't there, doesn't know the format or complains, which it does on the console.
namespace morvane {
bool LOADFREEIMAGE_GRAY(TGRAY &canvas, const UTF16 &name);
bool LOADFREEIMAGE_FULLGRAY(TFULLGRAY &canvas, const UTF16 &name); // 8-bit values stay 0..255
bool LOADFREEIMAGE_RGB(TRGB &canvas, const UTF16 &name);
bool LOADFREEIMAGE_RGBA(TRGBA &canvas, const UTF16 &name);
bool LOADFREEIMAGE_ZRGB(TZRGB &canvas, const UTF16 &name);

// In the format of the name's extension. True too when the file itself could not be written: that
// was told, and another library would fail alike.
template <class RASTER> bool SAVEFREEIMAGE(const RASTER &canvas, const UTF16 &name);
} // namespace morvane
