#pragma once

#include "foundation/base/utf16.hpp"

#include <span>

namespace morvane {
class TCLOUD;

// A line format: its extension, its writer and what it is called.
struct LINE_FORMAT {
    const char *extension;
    bool (*save)(TCLOUD &cloud, const UTF16 &name);
    const char *legend;
};
// All formats; the last row is the text format, which serves every other extension too.
std::span<const LINE_FORMAT> LINE_FORMATS();
const LINE_FORMAT &LINE_FORMAT_OF(const UTF16 &name); // by the extension, in any case
// Saves in the format that the extension names.
bool SAVE_LINES(TCLOUD &cloud, const UTF16 &name);
} // namespace morvane
