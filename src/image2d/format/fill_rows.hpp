#pragma once

#include "foundation/base/utf16.hpp"
#include "image2d/canvas/rgb.hpp"

#include <functional>

// What the readers of raster files have in common.
namespace morvane {
// The picture that a file's header promises and its bytes have been found to hold.
struct PICTURE {
    NAT width = 0, height = 0;
    NAT channels = 1;      // samples a pixel: 1 grey, 3 colour, 4 colour and alpha
    bool deep = false;     // 16-bit samples
    bool bottomUp = false; // the file's first row is the last one of the picture
    UTF16 title;           // what is read, up to the bracket: "  Grey with ("
};

// Fills `count` samples with the file's next row; false when the file fails.
using NEXT_ROW = std::function<bool(WORD *samples, NAT count)>;

// A canvas of the picture's size from the rows of a file, with a line of progress. A failure is
// told and leaves an empty canvas.
template <class RASTER>
bool FILL_ROWS(RASTER &raster, const UTF16 &name, const PICTURE &picture, const NEXT_ROW &next);

// One line on the console; always false.
bool TELL_BAD_SIZE(const UTF16 &width, const UTF16 &height); // "  Bad size (3x0). ..."
bool TELL_BAD_SIZE(NAT width, NAT height);
bool TELL_BAD_FILE_SIZE();               // the file is too short, or not as long as it must be
bool TELL_BAD_MAGIC(const UTF16 &magic); // at most 16 characters of it are shown

// width * height * bytes; NATMAX when that is out of range or an argument is below 1.
NAT BYTES_OF(NAT width, NAT height, NAT bytes);
// Whether a pixel kind has colour, for the words of a reader.
template <class RASTER>
inline constexpr bool IS_COLOUR =
    !std::is_same_v<RASTER, TGRAY> && !std::is_same_v<RASTER, TFULLGRAY>;
} // namespace morvane
