#pragma once

#include "foundation/console/files.hpp"

#include <functional>
#include <initializer_list>

// What the writers of raster files have in common.
namespace morvane {
// The name, with the first of the extensions behind it unless it has one of them. `zipped`: each
// may have ".gz" behind it.
UTF16 WITH_EXTENSION(const UTF16 &name, std::initializer_list<std::string_view> extensions,
                     bool zipped = false);
// Opens the file, for packing when the name ends in ".gz". A failure is told.
bool OPEN_RASTER(FILE_WRITE &file, const UTF16 &name);
// Whether there are pixels, and not more than `longest` a side; when not, that is told.
bool IS_WRITABLE(NAT width, NAT height, NAT longest = NATMAX);
bool TELL_TOO_LARGE(NAT width, NAT height); // for the format; always false

// The rows of a raster file.
struct FLAT_ROWS {
    NAT count = 0, bytes = 0;                   // rows, and bytes of each
    std::function<void(NAT y, BYTE *row)> fill; // fills row y, counted from 1, in full
    bool bottomUp = false;                      // the last row comes first
};
// Writes all rows; false after a failure, which is told when the file is closed, or without memory.
bool WRITE_ROWS(FILE_WRITE &file, const FLAT_ROWS &rows);
} // namespace morvane
