#pragma once

#include "script/engine/command_row.hpp"

#include <span>

// The built-in modules of the language, in registration order.
namespace morvane {
extern const COMMAND_SET CORE_SET;        // printing, waiting, sub programs
extern const COMMAND_SET RANDOM_SET;      // random numbers
extern const COMMAND_SET CLOCK_SET;       // time and date
extern const COMMAND_SET LIST_SET;        // lists of values
extern const COMMAND_SET MATH_SET;        // number format, lengths, angles
extern const COMMAND_SET STACK_SET;       // the calculator
extern const COMMAND_SET QUAT_SET;        // quaternions
extern const COMMAND_SET MATRIX_SET;      // matrices and eigen values
extern const COMMAND_SET IO_SET;          // name parts, sorting, the two name lists
extern const COMMAND_SET IO_FILES_SET;    // the file list
extern const COMMAND_SET IO_FILE_SET;     // files
extern const COMMAND_SET IO_DIRS_SET;     // the directory list
extern const COMMAND_SET IO_DIR_SET;      // directories
extern const COMMAND_SET IO_LISTS_SET;    // the name lists from the list in use
extern const COMMAND_SET BINARY_SET;      // binary files as text
extern const COMMAND_SET TEXT_SET;        // line filters over text files
extern const COMMAND_SET TXT_SET;         // the same under their other name
extern const COMMAND_SET BLOB_SET;        // files as bytes
extern const COMMAND_SET XML_SET;         // tags of a file
extern const COMMAND_SET TABLE_SET;       // text tables
extern const COMMAND_SET COLOR_MAP_SET;   // the colour map in use
extern const COMMAND_SET COLOR_ALPHA_SET; // its alpha
extern const COMMAND_SET COLOR_SET;       // its colours
extern const COMMAND_SET DUMP_SET;        // the engine's own tables

std::span<const COMMAND_SET *const> MODULE_SETS();
} // namespace morvane
