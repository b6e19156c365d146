#pragma once

#include "foundation/base/utf16.hpp"

#include <concepts>

// Text to number and number to text. Reading never fails: what cannot be read is 0.
namespace morvane {
// Process-wide settings of number reading and printing and of text order. Worker threads only read.
struct TFORMAT {
    bool SCIENTIFIC = false;                // numbers print in the compact E form
    bool DECIMAL = true;                    // point and ", "; false: comma and "; "
    bool DIGIT = false;                     // integers print with digits grouped by three
    std::int32_t LEADING = 0, TRAILING = 0; // stored only
    bool DEGREE = true;                     // stored only
    bool VECTOR = false;                    // line text files use brackets
    bool MATRIX = false;                    // stored only
    bool SORTING = true;                    // lists sort ascending
    bool ALIGN = true;                      // texts compare by characters only, not by length first

    void PUSH() const; // keeps a copy in the one slot
    void POP();        // takes it back
};
extern TFORMAT FORMAT;

inline constexpr std::string_view HEX = "0123456789ABCDEF", HEXSMALL = "0123456789abcdef";

// Cut one number from the front of a text and leave the rest. Expressions such as 2*3+4, "50%",
// "90°" and "π" are read.
REAL CUTREAL(UTF16 &text);
NAT CUTNAT(UTF16 &text); // an expression is rounded
REAL CUTREAL(std::string &text);
NAT CUTNAT(std::string &text);
REAL GETREAL(const UTF16 &text);
NAT GETNAT(const UTF16 &text);
BYTE GETBYTE(const UTF16 &text); // limited to 0..255
bool GETBOOLEAN(const UTF16 &text);
COMPLEX GETCOMPLEX(const UTF16 &text); // missing numbers are 0, in all records
VECTOR GETVECTOR(const UTF16 &text);
HYPER GETHYPER(const UTF16 &text);
SYMMATRIX3 GETSYMMATRIX3(const UTF16 &text);
MATRIX3 GETMATRIX3(const UTF16 &text);
MATRIX4 GETMATRIX4(const UTF16 &text); // 16 numbers, or four rows parted by ";"
COMPLEXNAT GETCOMPLEXNAT(const UTF16 &text);
VECTORNAT GETVECTORNAT(const UTF16 &text);
HYPERNAT GETHYPERNAT(const UTF16 &text);
// Strict parse of the whole text; code 0, or the 1-based position of the first bad character.
void VAL(const UTF16 &text, REAL &value, NAT &code);
void VAL(const UTF16 &text, NAT &value, NAT &code);

UTF16 GETSTRING(REAL value);
UTF16 GETSTRING(REAL value, NAT decimals);
UTF16 GETSTRING(std::same_as<bool> auto value) { return UTF16(value ? "true" : "false"); }
UTF16 GETSTRING_NAT(NAT value);
// Grouped: digits by three whatever FORMAT says; else by the same rules as a NAT.
UTF16 GETSTRING_UNSIGNED(std::uint64_t value, bool grouped);
// Any whole number.
UTF16 GETSTRING(std::integral auto value) requires(!std::same_as<decltype(value), bool>) {
    if constexpr (std::unsigned_integral<decltype(value)>)
        return GETSTRING_UNSIGNED(value, false);
    else
        return GETSTRING_NAT(static_cast<NAT>(value));
}
UTF16 GETSTRING(std::unsigned_integral auto value, std::same_as<bool> auto grouped) {
    return GETSTRING_UNSIGNED(value, grouped);
}
UTF16 GETSTRING(const COMPLEX &value);
UTF16 GETSTRING(const VECTOR &value);
UTF16 GETSTRING(const HYPER &value);
UTF16 GETSTRING(const COMPLEX &value, NAT decimals);
UTF16 GETSTRING(const VECTOR &value, NAT decimals);
UTF16 GETSTRING(const HYPER &value, NAT decimals);
UTF16 GETSTRING(const COMPLEXNAT &value);
UTF16 GETSTRING(const VECTORNAT &value);
UTF16 GETSTRING(const HYPERNAT &value);
UTF16 GETSTRING(const MATRIX3 &value); // (<..>;<..>;<..>)
UTF16 GETSTRING(const MATRIX4 &value);
UTF16 GETSTRING(const TIME &value);
UTF16 GETSHORT(REAL value); // decimals by magnitude
UTF16 GETSHORT(REAL value, NAT places);
UTF16 GETSHORT(const VECTOR &value); // trailing zero components left out
UTF16 GETSHORT(const VECTOR &value, NAT places);
UTF16 GETSHORT(const HYPER &value);
UTF16 GETSHORT(const HYPER &value, NAT places);
UTF16 GETSHORT(const HYPERNAT &value);
UTF16 GETHEX(NAT value);
UTF16 GETHEX(NAT value, NAT width);
UTF16 GETHEX(NAT value, NAT width, NAT maximalDigits);
UTF16 GETPREFIX(REAL value, NAT decimals, const UTF16 &unit); // 1234 B is 1.2 kB
UTF16 SCIENTIFICFORM(const UTF16 &text);
} // namespace morvane
