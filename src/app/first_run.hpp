#pragma once

#include "foundation/base/utf16.hpp"
#include "script/engine/command_row.hpp"

#include <span>

namespace morvane {
// What the head of the command reference says about this program.
struct PROGRAM_WORDS {
    UTF16 version; // "9.4.8"
    UTF16 address; // of the maker
    UTF16 maker;   // years and name
};

// The lines of the command reference: a fixed head, then usage and note of every row, in order.
UTF16 REFERENCE_LINE(const COMMAND_ROW &row);
// Writes the command reference "morvane.macro" into the current directory, a script that
// refreshes itself, and tells the user of the first run. An old file is replaced.
void FIRST_RUN(const PROGRAM_WORDS &words, std::span<const COMMAND_SET *const> sets);
} // namespace morvane
