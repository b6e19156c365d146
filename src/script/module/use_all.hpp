#pragma once

#include "script/engine/command_row.hpp"

#include <span>

// The built-in modules of the language, in registration order.
namespace morvane {
extern const COMMAND_SET CORE_SET;   // printing, waiting, sub programs
extern const COMMAND_SET RANDOM_SET; // random numbers
extern const COMMAND_SET CLOCK_SET;  // time and date

std::span<const COMMAND_SET *const> MODULE_SETS();
} // namespace morvane
