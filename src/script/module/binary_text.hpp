#pragma once

#include "foundation/base/utf16.hpp"

namespace morvane {
// How a value stands in a binary file.
struct BINARY_FORM {
    enum class KIND : BYTE { UNSIGNED, SIGNED, FLOATING, DIGITS } kind = KIND::UNSIGNED;
    NAT bytes = 1; // of one number
    NAT parts = 1; // numbers of one value, such as 3 of a colour
    bool isBigEndian = false;
};

// The form of a word such as "word", "signword", "single" or "rgb", upper and lower case alike;
// "big" in front of a word of more than one byte a number means big-endian. False: unknown.
[[nodiscard]] bool BINARY_FORM_OF(const UTF16 &word, BINARY_FORM &form);

// One value as text; reals with the digits that give the same value again.
void PUT_BINARY_VALUE(std::string &out, const BINARY_FORM &form, const char *bytes);

struct BINARY_REQUEST {
    UTF16 file, target;
    BINARY_FORM form;
    NAT header = 0;  // bytes left out at the start
    NAT columns = 1; // values of a line
};

// Writes the values of a file as text, those of a line parted by tabs. False, and nothing written,
// when the file cannot be read, is smaller than its header or the target cannot be written. Bytes
// at the end that are no whole value are left out. Each is told in one line.
bool BINARY_TO_TEXT(const BINARY_REQUEST &request);
} // namespace morvane
