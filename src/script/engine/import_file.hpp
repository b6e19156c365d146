#pragma once

#include "foundation/base/utf16.hpp"

#include <span>

// Where an imported file lies and which files led to it.
namespace morvane {
// The file as it is named from the working folder, else beside the file that names it; empty when
// there is none.
UTF16 IMPORT_PATH(const UTF16 &importer, const UTF16 &file);
// Whether the file is one of those that led to it, under whatever name.
bool IS_CIRCLE(std::span<const UTF16> chain, const UTF16 &file);
// "a > b > a" from the first place of the file in the chain on.
UTF16 CIRCLE_TEXT(std::span<const UTF16> chain, const UTF16 &file);
} // namespace morvane
