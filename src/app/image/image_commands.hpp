#pragma once

#include "script/engine/command_row.hpp"

// The commands of images, all under "image.", in the order of their registration: IMAGE_SET, the
// groups (image_filter_rows.hpp), IMAGE_VALUE_SET, then filters and analysis.
namespace morvane {
extern const COMMAND_SET IMAGE_SET;       // state, files, copying and combining
extern const COMMAND_SET IMAGE_VALUE_SET; // edits of the pixel values
} // namespace morvane
