#pragma once

#include "foundation/base/utf16.hpp"

namespace morvane {
// A name as a shell writes it, without its escapes: the backslash before a blank, a bracket, a
// quote or another sign of the shell goes away. One before a letter, a digit, "/", "." or "_"
// stays: it parts a path.
UTF16 WITHOUT_SHELL_ESCAPES(const UTF16 &name);
} // namespace morvane
