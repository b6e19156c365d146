#pragma once

#include "script/engine/command_row.hpp"

// The commands of the workspaces as a whole, and those of tensor fields and meshes.
namespace morvane {
extern const COMMAND_SET PROGRAM_SET; // without namespace: all six lists
extern const COMMAND_SET TENSOR_SET;
extern const COMMAND_SET MESH_SET;
} // namespace morvane
