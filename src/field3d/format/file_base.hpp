#pragma once

#include "foundation/base/utf16.hpp"

namespace morvane {
// The path without its extension; "nii.gz" counts as one.
UTF16 GETBASENAME(const UTF16 &path);
UTF16 GETEXTENSION(const UTF16 &path); // lower case; "nii.gz" counts as one
// The name with ".extension" behind it, unless it has it in any case of letters.
UTF16 WITHEXTENSION(const UTF16 &name, const char *extension);
} // namespace morvane
