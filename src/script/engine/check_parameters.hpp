#pragma once

#include "foundation/base/records.hpp"

#include <string_view>
#include <vector>

namespace morvane {
// One parameter of a row: "field: file", without the brackets of an optional one.
struct ROW_PARAMETER {
    std::string_view text;
    bool optional = false;
    bool IS_FILE() const; // its kind names a file
};

// The forms in which a row's parameters may be given, parted by " | " in its text.
std::vector<std::vector<ROW_PARAMETER>> PARAMETER_FORMS(std::string_view text);

// The smallest and the largest count of all forms; -1: as many as one likes.
struct PARAMETER_COUNT {
    NAT least = 0, most = 0;
};
PARAMETER_COUNT COUNT_OF(std::string_view text);

// Whether the parameter at this offset is a file in each form that has it.
bool IS_FILE_AT(const std::vector<std::vector<ROW_PARAMETER>> &forms, std::size_t offset);
} // namespace morvane
