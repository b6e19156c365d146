#pragma once

#include "foundation/base/utf16.hpp"

namespace morvane {
class TMACRO;

// The value of `a OP parameters` for every operator but ":=", from the evaluated parameters. The
// old value of the target is read by "!=" alone. Empty for a word that is no operator.
UTF16 ASSIGNMENT_RESULT(TMACRO &engine, const UTF16 &operation);
} // namespace morvane
