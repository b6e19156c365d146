#pragma once

#include "foundation/base/records.hpp"

#include <string_view>

// Who the program says it is.
namespace morvane {
inline constexpr std::string_view PROGRAM_NAME = "Morvane";
inline constexpr std::string_view MAKER = "The morvane developers";
inline constexpr std::string_view ADDRESS = "https://morvane.invalid";
inline constexpr NAT FIRST_YEAR = 2017;
} // namespace morvane
