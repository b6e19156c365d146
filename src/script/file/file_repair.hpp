#pragma once

#include "foundation/base/utf16.hpp"

#include <string>

namespace morvane {
// A text as other programs of the system read it: UTF-8 without a mark at its start, a line feed
// behind every line. Text of 16-bit units with a mark is converted, bytes that are no UTF-8 are
// taken as Latin-1, an end mark (26) behind the text goes away. The same bytes: nothing to repair.
std::string REPAIRED_TEXT(std::string_view bytes);
bool IS_TEXT(std::string_view bytes); // has no zero byte, or a mark of 16-bit units

// Repairs one file in its place: a text as above, a damaged gz stream by packing anew what it still
// gives. The old bytes are kept beside it with ".bak" behind the name (".bak2" and so on where that
// is taken). What needs no repair, or is neither, stays as it is; a line tells which. False:
// nothing was written.
bool REPAIR_FILE(const UTF16 &name);
bool REPAIR_FILES(const UTF16 &mask); // every file of the mask; false: not all needed or took it
} // namespace morvane
