#include "foundation/base/checksum.hpp"

#include <array>
#include <bit>

namespace morvane {
namespace {
using CRC_TABLE = std::array<std::uint32_t, 256>;

CRC_TABLE MakeTable() {
    CRC_TABLE table{};
    for (std::uint32_t i = 0; i < table.size(); ++i) {
        std::uint32_t word = i;
        for (int bit = 0; bit < 8; ++bit)
            word = word & 1 ? word >> 1 ^ 0xEDB88320U : word >> 1;
        table[i] = word;
    }
    return table;
}

// Built on first use, under the guard of a local static.
const CRC_TABLE &Table() {
    static const CRC_TABLE table = MakeTable();
    return table;
}
} // namespace

std::uint32_t CRC32UPDATE(std::uint32_t crc, const void *data, NAT length) {
    const CRC_TABLE &table = Table();
    const BYTE *bytes = static_cast<const BYTE *>(data);
    crc = ~crc;
    for (NAT i = 0; i < length; ++i)
        crc = table[(crc ^ bytes[i]) & 0xFF] ^ crc >> 8;
    return ~crc;
}

std::uint32_t CRC32(std::string_view bytes) {
    return CRC32UPDATE(0, bytes.data(), static_cast<NAT>(bytes.size()));
}

std::uint32_t ADLER32UPDATE(std::uint32_t adler, const void *data, NAT length) {
    constexpr std::uint32_t MODULUS = 65521;
    constexpr NAT STRETCH = 3854; // short enough that the sums never overflow between reductions
    const BYTE *bytes = static_cast<const BYTE *>(data);
    std::uint32_t a = adler & 0xFFFF, b = adler >> 16;
    for (NAT i = 0; i < length;) {
        const NAT end = length - i < STRETCH ? length : i + STRETCH;
        for (; i < end; ++i) {
            a += bytes[i];
            b += a;
        }
        a %= MODULUS;
        b %= MODULUS;
    }
    return b << 16 | a;
}

std::uint32_t ADLER32(std::string_view bytes) {
    return ADLER32UPDATE(1, bytes.data(), static_cast<NAT>(bytes.size()));
}

bool CHECK_ENDIAN() { return std::endian::native == std::endian::big; }
} // namespace morvane
