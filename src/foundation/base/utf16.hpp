#pragma once

#include "foundation/base/records.hpp"
#include "foundation/base/string8.hpp"

#include <string>
#include <string_view>

namespace morvane {
// One code unit: low byte, then high byte. Characters above U+FFFF do not exist in the system.
struct UTF16CHAR {
    BYTE low = 0, high = 0;
    friend bool operator==(UTF16CHAR, UTF16CHAR) = default;
};

// The text of the system: two byte planes, the low and the high bytes of its code units, each a
// shared copy-on-write string, so that a copy costs two handles. Positions start at 1.
class UTF16 {
public:
    STRING8 LOWBYTES;  // the low byte of every unit
    STRING8 HIGHBYTES; // the high bytes; a plane that is too short holds 0 there

    UTF16() = default;
    UTF16(std::string_view utf8);   // decodes, as GETUTF16
    UTF16(const char *utf8);        // decodes, as GETUTF16
    UTF16(const std::string &utf8); // decodes, as GETUTF16
    UTF16(UTF16CHAR unit);
    UTF16(STRING8 low, STRING8 high);

    NAT LENGTH() const { return LOWBYTES.LENGTH(); }
    bool EMPTY() const { return LOWBYTES.LENGTH() == 0; }
    // A zero unit outside 1..LENGTH.
    UTF16CHAR GETCHAR(NAT index) const {
        if (index < 1 || index > LOWBYTES.LENGTH()) return {};
        const char *high = index <= HIGHBYTES.LENGTH() ? HIGHBYTES.DATA() : nullptr;
        return {static_cast<BYTE>(LOWBYTES.DATA()[index - 1]),
                high ? static_cast<BYTE>(high[index - 1]) : BYTE{0}};
    }
    void PUTCHAR(NAT index, UTF16CHAR unit); // nothing outside 1..LENGTH
    // Whether the unit at the index is this ASCII character.
    bool IS(NAT index, char ascii) const {
        return GETCHAR(index) == UTF16CHAR{static_cast<BYTE>(ascii), 0};
    }
    // Whether all high bytes are 0, so that the low plane alone is the text.
    bool PLAIN() const { return HIGHBYTES.ISZERO(); }
    UTF16 &operator+=(const UTF16 &other);
    UTF16 &operator+=(UTF16CHAR unit);
};

UTF16 operator+(const UTF16 &a, const UTF16 &b);
bool operator==(const UTF16 &a, const UTF16 &b); // both planes
bool operator<(const UTF16 &a, const UTF16 &b);  // text order, see FORMAT.ALIGN
bool operator>(const UTF16 &a, const UTF16 &b);
inline bool operator<=(const UTF16 &a, const UTF16 &b) { return !(a > b); }
inline bool operator>=(const UTF16 &a, const UTF16 &b) { return !(a < b); }

UTF16 GETUTF16(std::string_view utf8);  // decodes UTF-8; a broken sequence gives unit 0
std::string GETUTF8(const UTF16 &text); // encodes; unit 0 is dropped
std::string GETUTF8(UTF16CHAR unit);
UTF16CHAR GETUTF16CHAR(std::string_view utf8);  // the first character only
UTF16CHAR EXTRACTUTF16(std::string_view &utf8); // decodes the first character and removes it

// Searching and cutting. A position of 0 means "not found".
NAT POS(const UTF16 &needle, const UTF16 &text, NAT start = 1);
NAT INVPOS(const UTF16 &needle, const UTF16 &text);
NAT INVPOS(const UTF16 &needle, const UTF16 &text, NAT start);
UTF16 COPY(const UTF16 &text, NAT start, NAT count);      // as many units as exist
UTF16 COPYINSIDE(const UTF16 &text, NAT first, NAT last); // last below first: the whole text
void DELETE(UTF16 &text, NAT start, NAT count);
bool ISDIGIT(const UTF16 &text);          // any digit or "-"
bool ISDIGITWEAK(std::string_view bytes); // any digit or "-"
UTF16 LOWERCASE(const UTF16 &text);       // ASCII letters of the low plane only
UTF16 UPPERCASE(const UTF16 &text);
UTF16 FIRSTUPPERCASE(const UTF16 &text);
UTF16 FILLBEFORE(const UTF16 &text, NAT width, const UTF16 &filler);
UTF16 FILLUP(const UTF16 &text, NAT width, const UTF16 &filler);
UTF16 KILLFIRST(const UTF16 &text, char a);         // removes a at the start, as often as it stands
UTF16 KILLFIRST(const UTF16 &text, char a, char b); // either of the two
UTF16 KILLLAST(const UTF16 &text, char a);
UTF16 KILLLAST(const UTF16 &text, char a, char b);
UTF16 KILLSPACE(const UTF16 &text);
UTF16 KILLTAB(const UTF16 &text);
// Every occurrence, in one pass from left to right; the replacement is not searched again.
void REPLACE(UTF16 &text, const UTF16 &find, const UTF16 &replacement);
void REPLACE(UTF16 &text, char find, char replacement);
void REPLACE(std::string &bytes, std::string_view find, std::string_view replacement);
UTF16 GETREPLACE(const UTF16 &text, char find, char replacement);
UTF16 GETSPLIT(const UTF16 &text, const UTF16 &separator); // the head; text unchanged
UTF16 SPLIT(UTF16 &text, const UTF16 &separator);          // returns the head, leaves the tail
UTF16 SOFTSPLIT(UTF16 &text, const UTF16 &separator);      // honours quotes and ( < [ {
UTF16 SOFTSPLIT_RAW(UTF16 &text, const UTF16 &separator);  // without < and >
NAT SOFTPOS(const UTF16 &separator, const UTF16 &text, bool angleBrackets); // 0: none
UTF16 GETTAG(const UTF16 &text, const UTF16 &tag);
std::string ASCIICLEAN_HARD(std::string_view bytes); // below 32 or above 127 becomes a blank
} // namespace morvane
