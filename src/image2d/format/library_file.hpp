#pragma once

#include "foundation/base/number_text.hpp"
#include "foundation/base/utf16.hpp"

#include <string_view>

// Between the image libraries and the files of the system.
namespace morvane {
// "  Grey (FI) with (3x2)": what goes through PROGRESS while rows are moved.
UTF16 LIBRARY_TITLE(const char *kind, const char *path, NAT width, NAT height);
// All bytes of a file; empty when it cannot be read, silently.
std::string READ_LIBRARY_FILE(const UTF16 &name);
// A whole file at once, beside its name and then renamed. Always true: a failure was told, and
// another library would fail alike.
bool WRITE_LIBRARY_FILE(const UTF16 &name, std::string_view bytes);
// The extension of a name that the libraries may take, in lower case; empty for a format of the
// own readers alone (rgb, imgf and its like, anything with gz) and for what isn't letters and
// digits.
std::string LIBRARY_EXTENSION(const UTF16 &name);
// Files that only the own readers read right: PNM in ascii, or with another maximum than 255 or
// 65535, whose values the libraries scale; PNM and BMP files that are too short, whose missing rows
// they leave black.
bool IS_LEFT_TO_OWN(const UTF16 &name);
// A JPEG stream without its end marker, which ImageMagick fills up with grey.
bool IS_CUT_JPEG(std::string_view bytes);
} // namespace morvane
