#pragma once

#include "script/engine/command_row.hpp"

namespace morvane {
extern const COMMAND_SET SCALAR_SET; // the namespace "scalar."
} // namespace morvane
