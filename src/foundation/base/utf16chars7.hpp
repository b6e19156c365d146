#pragma once

#include "foundation/base/utf16.hpp"

#include <cstring>

namespace morvane {
// The fixed-size form of a UTF16 for records that are copied bytewise: two planes of at most 254
// units, each with its length and a closing zero. A longer text is cut to its first 254 units.
class UTF16CHARS7 {
public:
    static constexpr NAT CAPACITY = 254;

    UTF16CHARS7() { Clear(); }
    UTF16CHARS7(const UTF16 &text);
    UTF16CHARS7(std::string_view utf8) : UTF16CHARS7(GETUTF16(utf8)) {}
    UTF16CHARS7(const char *utf8) : UTF16CHARS7(GETUTF16(utf8)) {}
    UTF16CHARS7(const UTF16CHARS7 &other);
    UTF16CHARS7 &operator=(const UTF16CHARS7 &other);

    NAT LENGTH() const { return lowLength; }
    bool EMPTY() const { return lowLength == 0; }
    UTF16 GET() const;
    operator UTF16() const { return GET(); }
    // The low plane as it lies in memory, LENGTH bytes.
    const char *LOW() const { return low; }
    // The high plane as it lies in memory, LENGTH bytes.
    const char *HIGH() const { return high; }

    friend bool operator==(const UTF16CHARS7 &a, const UTF16CHARS7 &b);
    friend bool operator==(const UTF16CHARS7 &a, const UTF16 &b);
    friend bool operator==(const UTF16CHARS7 &a, const char *b) { return a == UTF16CHARS7(b); }
    friend bool operator<(const UTF16CHARS7 &a, const UTF16CHARS7 &b); // text order of UTF16

private:
    void Take(const UTF16CHARS7 &other);
    void Clear() {
        lowLength = highLength = 0;
        low[0] = high[0] = 0;
    }

    BYTE lowLength;
    BYTE highLength; // 0 when all high bytes are 0, else lowLength
    char low[255], high[255];
};

// Every occurrence, in one pass from left to right; the result is cut to 254 units.
void REPLACE(UTF16CHARS7 &text, const UTF16 &find, const UTF16 &replacement);
} // namespace morvane
