#pragma once

#include "foundation/base/record_operators.hpp"
#include "foundation/base/utf16.hpp"
#include "image2d/canvas/rgb.hpp"

// The own readers and writers of raster files. Every reader ends in an empty canvas and one line on
// the console when it fails. Every writer adds its extension to a name that has another one, writes
// beside the target and renames; a failure is told and leaves the old file as it was.
namespace morvane {
// By the extension of the name, in any case. An unknown one fails on loading; on saving the kind's
// own extension is added: pgm for grey, ppm for RGB, pam for the others.
template <ANY_OF<TGRAY, TFULLGRAY, TRGB, TRGBA, TZRGB> RASTER>
bool LOAD(RASTER &raster, const UTF16 &name);
template <ANY_OF<TGRAY, TFULLGRAY, TRGB, TRGBA, TZRGB> RASTER>
bool SAVE(const RASTER &raster, const UTF16 &name);
bool TELL_UNREAD(const UTF16 &name); // "  Couldn't read File (..." of LOAD; always false

// PBM, PGM and PPM, ascii and binary; through gzip when the name ends in ".gz". A 16-bit file on an
// 8-bit canvas loses its low bytes; all other values stay. Alpha becomes 255.
template <ANY_OF<TGRAY, TFULLGRAY, TRGB, TRGBA> RASTER>
bool LOADPNM(RASTER &raster, const UTF16 &name);
// Uncompressed bitmaps of 1, 4, 8 and 24 bits, bottom up.
template <ANY_OF<TGRAY, TFULLGRAY, TRGB, TRGBA> RASTER>
bool LOADBMP(RASTER &raster, const UTF16 &name);
// Uncompressed big-endian grey values of 8 or 16 bits behind the tag "IMGF".
template <ANY_OF<TGRAY, TFULLGRAY> RASTER> bool LOADIMGF(RASTER &raster, const UTF16 &name);
// 2, 3 or 4 bytes a pixel, by the size of the file: nibbles red, green, blue, alpha (the high one
// of a byte first), or bytes. LOADRGB takes the size from the file's header, LOADRAW skips `header`
// bytes.
template <ANY_OF<TRGB, TRGBA> RASTER> bool LOADRGB(RASTER &raster, const UTF16 &name);
template <ANY_OF<TRGB, TRGBA> RASTER>
bool LOADRAW(RASTER &raster, const UTF16 &name, NAT width, NAT height, NAT header);

// Through gzip when the name ends in ".gz".
bool SAVEPBM(const TRGB &raster, const UTF16 &name); // black at half brightness or below
template <ANY_OF<TGRAY, TFULLGRAY, TRGB> RASTER>     // RGB: the mean of the components
bool SAVEPGM(const RASTER &raster, const UTF16 &name);
bool SAVEPPM(const TRGB &raster, const UTF16 &name);
template <ANY_OF<TRGB, TRGBA, TZRGB> RASTER> bool SAVEPAM(const RASTER &raster, const UTF16 &name);

bool SAVEBMP(const TRGB &raster, const UTF16 &name);
bool SAVETGA(const TRGB &raster, const UTF16 &name);
template <ANY_OF<TGRAY, TFULLGRAY, TRGB> RASTER>
bool SAVETIF(const RASTER &raster, const UTF16 &name);
template <ANY_OF<TGRAY, TFULLGRAY, TRGB, TRGBA, TZRGB> RASTER>
bool SAVEPNG(const RASTER &raster, const UTF16 &name);
// 8 header bytes and red, green, blue, alpha of each pixel; alpha is 255 without one.
template <ANY_OF<TRGB, TRGBA, TZRGB> RASTER> bool SAVERGB(const RASTER &raster, const UTF16 &name);
} // namespace morvane
