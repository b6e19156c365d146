#include "foundation/base/byte_scan.hpp"
#include "foundation/base/number_print.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"

#include <charconv>
#include <cmath>

// Numbers to text. The printing itself stands in number_print.cpp, records in record_to_text.cpp.
namespace morvane {
TFORMAT FORMAT;

namespace {
TFORMAT savedFormat;

UTF16 Ascii(std::string_view bytes) {
    return {STRING8(bytes), STRING8::FILLED(static_cast<NAT>(bytes.size()), 0)};
}

// The plain digits; most printed numbers are whole, so they take no way round a string.
UTF16 Digits(NAT value) {
    std::array<char, 24> buffer;
    char *const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    return Ascii({buffer.data(), static_cast<std::size_t>(end - buffer.data())});
}
} // namespace

void TFORMAT::PUSH() const { savedFormat = *this; }
void TFORMAT::POP() { *this = savedFormat; }

UTF16 GETSTRING(REAL value) {
    if (PRINTS_WHOLE(value) && !FORMAT.SCIENTIFIC) return Digits(static_cast<NAT>(value));
    std::string text;
    PRINT(text, value);
    return Ascii(text);
}

UTF16 GETSTRING(REAL value, NAT decimals) {
    std::string text;
    PRINT(text, value, decimals);
    return Ascii(text);
}

UTF16 GETSTRING_NAT(NAT value) {
    if (!FORMAT.SCIENTIFIC && !FORMAT.DIGIT) return Digits(value);
    std::string text;
    PRINT(text, value);
    return Ascii(text);
}

UTF16 GETSTRING_UNSIGNED(std::uint64_t value, bool grouped) {
    std::string text = std::to_string(value);
    if (FORMAT.SCIENTIFIC && !grouped)
        MAKE_SCIENTIFIC(text, 0);
    else if (FORMAT.DIGIT || grouped)
        GROUP_DIGITS(text, 0);
    return Ascii(text);
}

namespace {
// Powers of ten from 10^first down to 10^last; the place of the first that the size reaches, or
// their number.
NAT DecadeOf(REAL size, NAT first, NAT last) {
    constexpr std::array<REAL, 18> DECADES{1e8,  1e7,  1e6,  1e5,  1e4,  1e3,  1e2,  10,   1,
                                           1e-1, 1e-2, 1e-3, 1e-4, 1e-5, 1e-6, 1e-7, 1e-8, 1e-9};
    NAT place = 0;
    while (place <= first - last && size < DECADES[static_cast<std::size_t>(8 - first + place)])
        ++place;
    return place;
}
} // namespace

UTF16 GETSHORT(REAL value) {
    if (value == 0) return UTF16("0");
    return GETSTRING(value, DecadeOf(std::abs(value), 5, -5));
}

UTF16 GETSHORT(REAL value, NAT places) {
    if (places <= 0) return GETSTRING(value);
    const NAT n = std::min<NAT>(places, 1000);
    const REAL size = std::abs(value);
    const NAT decade = DecadeOf(size, 8, -9);
    const NAT decimals = decade == 18 ? 11 : n - 9 + decade;
    std::string text;
    if (decimals < 0)
        PRINT_EXPONENT(text, size, n);
    else
        PRINT(text, size, decimals);
    if (value < 0 && text != "0") text.insert(0, 1, '-');
    return Ascii(text);
}

namespace {
// The hexadecimal digits of the absolute value, padded with "0" up to the width.
UTF16 Hexadecimal(NAT value, NAT width) {
    const bool negative = value < 0;
    std::uint64_t rest = static_cast<std::uint64_t>(value);
    if (negative) rest = 0 - rest;
    std::string digits;
    for (; rest > 0; rest >>= 4)
        digits.insert(0, 1, HEX[rest & 15]);
    if (digits.empty()) digits += '0';
    const UTF16 padded = FILLBEFORE(Ascii(digits), width - (negative ? 1 : 0), UTF16("0"));
    return negative ? UTF16("-") + padded : padded;
}
} // namespace

UTF16 GETHEX(NAT value) { return Hexadecimal(value, 0); }
UTF16 GETHEX(NAT value, NAT width) { return Hexadecimal(value, std::max<NAT>(width, 0)); }

UTF16 GETHEX(NAT value, NAT width, NAT maximalDigits) {
    if (maximalDigits < 16) {
        const NAT above = NAT{1} << 4 * std::max<NAT>(maximalDigits, 0);
        value = LIMIT(value, 1 - above, above - 1);
    }
    return GETHEX(value, width);
}

UTF16 GETPREFIX(REAL value, NAT decimals, const UTF16 &unit) {
    struct PREFIX {
        REAL factor;
        const char *text;
    };
    constexpr std::array<PREFIX, 6> PREFIXES{
        {{1e18, " E"}, {1e15, " P"}, {1e12, " T"}, {1e9, " G"}, {1e6, " M"}, {1e3, " k"}}};
    for (const PREFIX &prefix : PREFIXES)
        if (value >= prefix.factor)
            return GETSTRING(value / prefix.factor, decimals) + prefix.text + unit;
    return UTF16(std::to_string(ROUND(value))) + " " + unit;
}

UTF16 SCIENTIFICFORM(const UTF16 &text) {
    if (text.EMPTY() || !text.PLAIN()) return text;
    std::string form(text.LOWBYTES.VIEW());
    MAKE_SCIENTIFIC(form, 0);
    return Ascii(form);
}
} // namespace morvane
