#pragma once

#include "foundation/base/utf16.hpp"

// Pieces of the command line and of the options file.
namespace morvane {
inline bool BEGINS_WITH(const UTF16 &text, char letter) {
    return text.GETCHAR(1) == UTF16CHAR{static_cast<BYTE>(letter), 0};
}
inline UTF16 TRIM(const UTF16 &text) { return KILLLAST(KILLFIRST(text, ' '), ' '); }
// A value in quotes without them; a doubled quote in it becomes one. Others stay as they are.
UTF16 UNQUOTE(UTF16 text);
} // namespace morvane
