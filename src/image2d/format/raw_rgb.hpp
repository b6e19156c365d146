#pragma once

#include "foundation/base/records.hpp"

// The header of an "rgb" file: the tag, then width and height, 16 bits each, low byte first.
namespace morvane {
inline constexpr char RGB_TAG[] = "RGB ";
inline constexpr NAT RGB_HEADER = 8;           // bytes
inline constexpr NAT RGB_LONGEST_SIDE = 65535; // pixels
} // namespace morvane
