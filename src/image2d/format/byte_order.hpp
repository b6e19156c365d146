#pragma once

#include "foundation/base/records.hpp"

#include <string>

// Numbers in the headers of files.
namespace morvane {
inline std::uint32_t LE2(const BYTE *bytes) {
    return static_cast<std::uint32_t>(bytes[0] | bytes[1] << 8);
}
inline std::uint32_t LE4(const BYTE *bytes) { return LE2(bytes) | LE2(bytes + 2) << 16; }
inline std::uint32_t BE4(const BYTE *bytes) {
    return static_cast<std::uint32_t>(bytes[0]) << 24 | static_cast<std::uint32_t>(bytes[1]) << 16 |
           static_cast<std::uint32_t>(bytes[2]) << 8 | bytes[3];
}

// The bytes of a number, appended; too large numbers lose their high bytes.
inline void PUT_LE(std::string &bytes, NAT value, int count) {
    for (int i = 0; i < count; ++i)
        bytes += static_cast<char>(value >> 8 * i & 0xFF);
}
inline void PUT_BE4(std::string &bytes, NAT value) {
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes += static_cast<char>(value >> shift & 0xFF);
}
} // namespace morvane
