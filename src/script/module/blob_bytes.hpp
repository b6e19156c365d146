#pragma once

#include "foundation/base/utf16.hpp"

// Files as bytes. Positions start at 1.
namespace morvane {
// The bytes that a text stands for: its UTF-8, or behind "hex:" two digits a byte, blanks between
// them ignored. False for digits that make no bytes.
[[nodiscard]] bool BYTES_OF(const UTF16 &text, std::string &bytes);

// False when the file cannot be read, which is told.
bool BLOB_COUNT(const UTF16 &file, std::string_view bytes, NAT &count); // one behind the other
bool BLOB_POS(const UTF16 &file, std::string_view bytes, NAT start, NAT &position); // 0: none
// As many bytes from a position on as exist, at most what a value of the language holds; other than
// ASCII becomes a blank. `hexadecimal`: two digits a byte.
bool BLOB_GET(const UTF16 &file, NAT position, NAT length, bool hexadecimal, UTF16 &text);

// Every occurrence replaced, the file written under `target`. When that cannot be done the result
// is saved with ".fail" behind the name, so that it isn't lost; false then too.
bool BLOB_REPLACE(const UTF16 &file, std::string_view find, std::string_view replacement,
                  const UTF16 &target);
} // namespace morvane
