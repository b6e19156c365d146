#pragma once

#include "script/engine/command_row.hpp"

namespace morvane {
extern const COMMAND_SET VECTOR_SET; // the namespace "vector."
} // namespace morvane
