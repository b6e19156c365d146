#pragma once

#include "foundation/base/utf16.hpp"

// What the commands that rewrite files have in common.
namespace morvane {
class FILE_WRITE;

// ASSIGNWRITE, or ASSIGNGZWRITE for a name that ends in gz.
[[nodiscard]] bool ASSIGNWRITE_BY_NAME(FILE_WRITE &file, const UTF16 &name);
// "  Text (what) not found in file (name)."
void TELLMISSING(std::string_view what, const UTF16 &name);
} // namespace morvane
