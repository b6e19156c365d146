#pragma once

#include "script/engine/command_row.hpp"

namespace morvane {
extern const COMMAND_SET LINE_SET; // the namespace "line."
} // namespace morvane
