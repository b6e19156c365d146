#pragma once

#include "script/module/text_lines.hpp"

// Files cut into several, and several gathered into one.
namespace morvane {
// A file is cut at every line that holds the text: BEFORE it, so that it begins a part; AT it, so
// that it stands in no part; AFTER it, so that it ends a part. A part without lines makes no file.
// The parts are named after `target`: name, "_", the number filled with "0" to the width of their
// count, extension. Without such a line the whole file is the one part, which is told. False, and
// nothing written, when a part would have the file's own name; false at the first part that cannot
// be written.
enum class PART_CUT : BYTE { BEFORE, AT, AFTER };
bool SPLIT_FILE(PART_CUT cut, const TEXT_REQUEST &request);
UTF16 PART_NAME(const UTF16 &name, NAT number, NAT count); // "data.txt", 3, 12: "data_03.txt"

// The lines with the text from a file, or from every file that fits a mask with "*" or "?" (not the
// target itself), in text order of the names. `append` puts them behind the target's own lines.
// False, and the target as it was, when a file cannot be read or the target cannot be written.
bool COLLECT_LINES(bool append, const TEXT_REQUEST &request);
} // namespace morvane
