#pragma once

#include "foundation/base/records.hpp"

#include <string_view>

namespace morvane {
// CRC-32, reflected, polynomial 0xEDB88320. UPDATE goes on from a former result; 0 starts.
std::uint32_t CRC32UPDATE(std::uint32_t crc, const void *data, NAT length);
std::uint32_t CRC32(std::string_view bytes);
// Adler-32, modulus 65521. UPDATE goes on from a former result; 1 starts.
std::uint32_t ADLER32UPDATE(std::uint32_t adler, const void *data, NAT length);
std::uint32_t ADLER32(std::string_view bytes);
// The four bytes in reverse order.
constexpr std::uint32_t SWAP4(std::uint32_t word) {
    return word >> 24 | (word >> 8 & 0xFF00U) | (word << 8 & 0xFF0000U) | word << 24;
}
bool CHECK_ENDIAN(); // whether this machine stores the high byte first
// Half a byte: 1 the low one, 2 the high one, else 0.
constexpr BYTE GETNIBBLE(BYTE b, NAT i) {
    if (i == 1) return b & 0x0F;
    return i == 2 ? static_cast<BYTE>(b >> 4) : BYTE{0};
}
} // namespace morvane
