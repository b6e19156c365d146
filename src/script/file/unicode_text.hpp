#pragma once

#include <cstdint>
#include <string>
#include <string_view>

// Text of other encodings as UTF-8, for files that come from elsewhere.
namespace morvane {
void APPEND_UTF8(std::string &text, std::uint32_t code); // one character up to 10FFFF

bool HAS_UNIT_MARK(std::string_view bytes); // begins with the mark of 16-bit units, in either order
// Text of 16-bit units behind its mark as UTF-8. Half of a pair becomes "?", an odd byte at the end
// is dropped.
std::string UTF8_OF_UNITS(std::string_view bytes);
} // namespace morvane
