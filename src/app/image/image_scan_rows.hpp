#pragma once

#include "script/engine/command_row.hpp"

namespace morvane {
extern const COMMAND_SET IMAGE_SCAN_SET; // the scan of directions in an image; "image."
} // namespace morvane
