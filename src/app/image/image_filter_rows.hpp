#pragma once

#include "script/engine/command_row.hpp"

namespace morvane {
// Groups, filters and morphology, and analysis of the image in use; all under "image.".
extern const COMMAND_SET IMAGE_GROUP_SET, IMAGE_FILTER_SET, IMAGE_ANALYSIS_SET;
} // namespace morvane
