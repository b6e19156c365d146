#pragma once

#include "script/engine/command_row.hpp"

#include "foundation/base/utf16.hpp"

#include <string>
#include <vector>

// Reading a whole script without running a command of it.
namespace morvane {
// What a program gives its scripts: the command rows, and the names of the constants that it sets
// before a run.
struct CHECK_PROGRAM {
    std::span<const COMMAND_SET *const> sets;
    std::span<const std::string_view> constants;
};

struct CHECK_RESULT {
    bool read = false;                 // false: the file cannot be read, and nothing else is told
    std::vector<std::string> findings; // "file:line:column: text" in the order of the lines
};

// Reads the script with what it imports and tells what cannot run as it is written: unknown
// commands, wrong counts, open blocks, missing files, names that are taken. Prints nothing.
CHECK_RESULT CHECK_MACRO(const UTF16 &file, const CHECK_PROGRAM &program);
} // namespace morvane
