#pragma once

#include "foundation/base/utf16.hpp"

#include <string_view>
#include <vector>

namespace morvane {
class TMACRO;

// The value of `a OP parameters` for every operator but ":=", from the evaluated parameters. The
// old value of the target is read by "!=" alone. Empty for a word that is no operator.
UTF16 ASSIGNMENT_RESULT(TMACRO &engine, const UTF16 &operation);
// Those operators; ":=" is not among them.
std::vector<std::string_view> ASSIGNMENT_OPERATORS();
} // namespace morvane
