#pragma once

#include "foundation/base/records.hpp"

#include <span>
#include <string_view>

namespace morvane {
// A key colour of a map: its place of 0..1 and its components of 0..255.
struct COLOUR_KEY {
    REAL position;
    BYTE red, green, blue, alpha;
};
struct COLORMAP_ROW {
    std::string_view name;    // as it is shown
    std::string_view builder; // in capitals, for building it by name
    std::span<const COLOUR_KEY> keys;
};
struct COLORMAP_FAMILY {
    std::string_view name;
    std::span<const COLORMAP_ROW> rows;
};
std::span<const COLORMAP_FAMILY> COLORMAP_FAMILIES();
} // namespace morvane
