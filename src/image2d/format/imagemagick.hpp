#pragma once

#include "foundation/base/utf16.hpp"
#include "image2d/canvas/rgb.hpp"

// Pictures read and written by ImageMagick, with the same results as in freeimage.hpp. The library
// never sees a file's name, only bytes and a format from the list below: its names may call coders
// ("msl:x"), lists ("@x") and parts ("x[0]").
namespace morvane {
bool LOADMAGICKBITMAP_GRAY(TGRAY &canvas, const UTF16 &name);
bool LOADMAGICKBITMAP_FULLGRAY(TFULLGRAY &canvas, const UTF16 &name); // 8-bit values stay 0..255
bool LOADMAGICKBITMAP_RGB(TRGB &canvas, const UTF16 &name);
bool LOADMAGICKBITMAP_RGBA(TRGBA &canvas, const UTF16 &name);
bool LOADMAGICKBITMAP_ZRGB(TZRGB &canvas, const UTF16 &name);

template <class RASTER> bool SAVEMAGICKBITMAP(const RASTER &canvas, const UTF16 &name);

// Whether an extension (lower case) names a format of pictures that ImageMagick may be asked for;
// false for its formats that print, show, fetch or run something.
bool IS_MAGICK_FORMAT(std::string_view extension);
} // namespace morvane
