#pragma once

#include "script/engine/command_row.hpp"

#include <span>

namespace morvane {
// The one straight run of the program: options, commands, one script, shutdown. The exit status:
// 1 when help was asked, or with the option status when the script failed; else 0.
int RUN_PROGRAM(int argc, const char *const *argv);

// Every set of commands, in registration order.
std::span<const COMMAND_SET *const> COMMAND_SETS();
} // namespace morvane
