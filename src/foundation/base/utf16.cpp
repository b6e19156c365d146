#include "foundation/base/utf16.hpp"

#include "foundation/base/byte_scan.hpp"
#include "foundation/base/number_text.hpp"

#include <array>

namespace morvane {
namespace {
constexpr NAT SHORT = 512; // up to here a plain high plane is shared and costs nothing

// Zero bytes behind the plane until it has the length.
void Pad(STRING8 &plane, NAT length) {
    static constexpr std::array<char, 256> ZEROS{};
    for (NAT missing = length - plane.LENGTH(); missing > 0; missing = length - plane.LENGTH()) {
        const NAT before = plane.LENGTH();
        plane.APPEND(SUBVIEW({ZEROS.data(), ZEROS.size()}, 0, missing));
        if (plane.LENGTH() <= before) return; // memory ran out
    }
}

// The order of two texts of ASCII or Latin-1; a missing unit counts as 0.
int ComparePlain(std::string_view a, std::string_view b) {
    const std::size_t common = std::min(a.size(), b.size());
    const int order = common == 0 ? 0 : std::memcmp(a.data(), b.data(), common);
    if (order != 0) return order;
    if (!IS_ZERO(a.substr(common))) return 1;
    return IS_ZERO(b.substr(common)) ? 0 : -1;
}

int Compare(const UTF16 &a, const UTF16 &b) {
    if (!FORMAT.ALIGN && a.LENGTH() != b.LENGTH()) return a.LENGTH() < b.LENGTH() ? -1 : 1;
    if (a.PLAIN() && b.PLAIN()) return ComparePlain(a.LOWBYTES.VIEW(), b.LOWBYTES.VIEW());
    const NAT length = std::max(a.LENGTH(), b.LENGTH());
    for (NAT i = 1; i <= length; ++i) {
        const UTF16CHAR x = a.GETCHAR(i), y = b.GETCHAR(i);
        if (x.high != y.high) return x.high < y.high ? -1 : 1;
        if (x.low != y.low) return x.low < y.low ? -1 : 1;
    }
    return 0;
}

UTF16CHAR Unit(std::uint32_t code) {
    return {static_cast<BYTE>(code), static_cast<BYTE>(code >> 8)};
}

// Bytes of a character by its first byte.
std::size_t SequenceLength(BYTE lead) {
    if (lead < 0xC0 || lead == 0xFF) return 1;
    if (lead < 0xE0) return 2;
    if (lead < 0xF0) return 3;
    if (lead < 0xF8) return 4;
    if (lead < 0xFC) return 5;
    return lead < 0xFE ? 6 : 7;
}

void Encode(std::string &utf8, BYTE low, BYTE high) {
    const unsigned code = high * 256U + low;
    const auto put = [&utf8](unsigned byte) { utf8 += static_cast<char>(byte); };
    if (code == 0) return;
    if (code < 0x80) return put(code);
    if (code < 0x800) {
        put(0xC0 | code >> 6);
    } else {
        put(0xE0 | code >> 12);
        put(0x80 | (code >> 6 & 0x3F));
    }
    put(0x80 | (code & 0x3F));
}
} // namespace

UTF16CHAR EXTRACTUTF16(std::string_view &utf8) {
    if (utf8.empty()) return {};
    const auto byte = [&utf8](std::size_t i) { return static_cast<BYTE>(utf8[i]); };
    const BYTE lead = byte(0);
    const std::size_t length = SequenceLength(lead);
    UTF16CHAR unit;
    if (length <= utf8.size()) {
        if (lead < 0x80) unit = Unit(lead);
        if (length == 2) unit = Unit((lead & 0x1FU) << 6 | (byte(1) & 0x3FU));
        if (length == 3)
            unit = Unit((lead & 0x0FU) << 12 | (byte(1) & 0x3FU) << 6 | (byte(2) & 0x3FU));
    }
    utf8.remove_prefix(std::min(length, utf8.size()));
    return unit;
}

UTF16CHAR GETUTF16CHAR(std::string_view utf8) { return EXTRACTUTF16(utf8); }

UTF16::UTF16(std::string_view utf8) {
    if (IS_ASCII(utf8)) {
        LOWBYTES = STRING8(utf8);
        HIGHBYTES = STRING8::FILLED(LOWBYTES.LENGTH(), 0);
        return;
    }
    std::string low, high;
    while (!utf8.empty()) {
        const UTF16CHAR unit = EXTRACTUTF16(utf8);
        low += static_cast<char>(unit.low);
        high += static_cast<char>(unit.high);
    }
    LOWBYTES = STRING8(low);
    HIGHBYTES = IS_ZERO(high) ? STRING8::FILLED(LOWBYTES.LENGTH(), 0) : STRING8(high);
}

UTF16::UTF16(const char *utf8) : UTF16(std::string_view(utf8)) {}
UTF16::UTF16(const std::string &utf8) : UTF16(std::string_view(utf8)) {}
UTF16::UTF16(UTF16CHAR unit)
    : LOWBYTES(STRING8::FILLED(1, static_cast<char>(unit.low))),
      HIGHBYTES(STRING8::FILLED(1, static_cast<char>(unit.high))) {}
UTF16::UTF16(STRING8 low, STRING8 high) : LOWBYTES(std::move(low)), HIGHBYTES(std::move(high)) {}

UTF16 GETUTF16(std::string_view utf8) { return UTF16(utf8); }

std::string GETUTF8(const UTF16 &text) {
    const std::string_view low = text.LOWBYTES.VIEW();
    std::string utf8;
    utf8.reserve(low.size());
    if (text.PLAIN() && IS_ASCII(low) && low.find('\0') == low.npos) return utf8 += low;
    for (NAT i = 1; i <= text.LENGTH(); ++i) {
        const UTF16CHAR unit = text.GETCHAR(i);
        Encode(utf8, unit.low, unit.high);
    }
    return utf8;
}

std::string GETUTF8(UTF16CHAR unit) {
    std::string utf8;
    Encode(utf8, unit.low, unit.high);
    return utf8;
}

void UTF16::PUTCHAR(NAT index, UTF16CHAR unit) {
    if (index < 1 || index > LENGTH()) return;
    char *low = LOWBYTES.UNIQUE();
    if (!low) return;
    low[index - 1] = static_cast<char>(unit.low);
    if (GETCHAR(index).high == unit.high) return; // a shared zero plane stays shared
    Pad(HIGHBYTES, LENGTH());
    char *high = HIGHBYTES.UNIQUE();
    if (high && index <= HIGHBYTES.LENGTH()) high[index - 1] = static_cast<char>(unit.high);
}

UTF16 &UTF16::operator+=(const UTF16 &other) {
    if (EMPTY()) return *this = UTF16(other);
    if (&other == this) return *this += UTF16(other);
    const NAT length = LENGTH(), total = length + other.LENGTH();
    const bool plain = total <= SHORT && PLAIN() && other.PLAIN();
    LOWBYTES.APPEND(other.LOWBYTES.VIEW());
    if (plain) {
        HIGHBYTES = STRING8::FILLED(total, 0);
    } else {
        Pad(HIGHBYTES, length);
        HIGHBYTES.APPEND(SUBVIEW(other.HIGHBYTES.VIEW(), 0, other.LENGTH()));
        Pad(HIGHBYTES, total);
    }
    return *this;
}

UTF16 &UTF16::operator+=(UTF16CHAR unit) { return *this += UTF16(unit); }

UTF16 operator+(const UTF16 &a, const UTF16 &b) {
    UTF16 sum = a;
    return sum += b;
}

bool operator==(const UTF16 &a, const UTF16 &b) {
    return a.LOWBYTES == b.LOWBYTES && a.HIGHBYTES == b.HIGHBYTES;
}
bool operator<(const UTF16 &a, const UTF16 &b) { return Compare(a, b) < 0; }
bool operator>(const UTF16 &a, const UTF16 &b) { return Compare(a, b) > 0; }
} // namespace morvane
