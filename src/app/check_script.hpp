#pragma once

#include "foundation/base/utf16.hpp"

namespace morvane {
// morvane --check FILE: reads the whole script without running a command and prints each finding
// as "file:line:column: text", one a line. 0 when there is none, else 2.
int CHECK_SCRIPT(const UTF16 &file);
} // namespace morvane
