#pragma once

#include "foundation/base/utf16.hpp"
#include "image2d/canvas/rgb.hpp"

// Image files through two libraries that are found at run time, or not: FreeImage and ImageMagick.
// Both are optional, neither is linked, and a failed search is silent. They are opened at the first
// question that needs them. Only the script's thread may call what stands here.
namespace morvane {
// The library was found and isn't switched off.
bool FREEIMAGE();
bool IMAGEMAGICK();
// Its name and version, such as "FreeImage 3.18.0"; empty without the library.
UTF16 FREEIMAGE_VERSION();
UTF16 IMAGEMAGICK_VERSION();
// Whether the library is used; it is in use at start. Enabling a missing one changes nothing.
void DISABLE_FREEIMAGE();
void ENABLE_FREEIMAGE();
void DISABLE_IMAGEMAGICK();
void ENABLE_IMAGEMAGICK();
// Off for the whole run: enabling it again changes nothing.
void FORBID_FREEIMAGE();
void FORBID_IMAGEMAGICK();
void RESET_LIBRARIES(); // as at start: both in use, none forbidden

// Reads a file into a canvas of any of the five kinds (TGRAY, TFULLGRAY, TRGB, TRGBA, TZRGB):
// FreeImage first, then ImageMagick, each if it is in use. False when neither read it: the canvas
// is empty then, and the caller goes on to its own readers. A library's own complaint is told.
// 16-bit files keep 16 bits on TFULLGRAY, 8-bit files their values 0..255; bytes are the high bytes
// of 16-bit files. Alpha is 255 where the file has none; the depth of TZRGB is 0.
template <class RASTER> bool EXTERNAL_LOAD(RASTER &canvas, const UTF16 &name);
// Writes a canvas in the format of the name's extension, in the same order. False when neither
// knows the format. True too when the file itself could not be written, which was told; the old
// file is as it was then. 16-bit pixels stay 16-bit where the format has them.
template <class RASTER> bool EXTERNAL_SAVE(const RASTER &canvas, const UTF16 &name);
} // namespace morvane
