#pragma once

#include "foundation/base/records.hpp"

#include <string_view>

// Numbers and expressions in bytes, below the reading of texts in number_text.hpp.
namespace morvane {
// [blanks][sign]digits[.digits][e[sign]digits], with digits on at least one side of the point. The
// code is 0 when all was read, else the 1-based position of the first bad character and value 0.
NAT PARSE_REAL(std::string_view text, REAL &value);
NAT PARSE_NAT(std::string_view text, NAT &value); // [blanks][sign]digits

// One number from the front of an expression; "i" stands for "e-". What cannot be read is 0.
REAL CUTTERM(std::string_view &rest);
// The value of an expression in which each "-" stands behind a "+" (see EVALUATE). "+" and "-"
// take everything to their right; "*", "/", "&", "|" and comparisons bind to the left, each
// intermediate value going through its printed form.
REAL CUTEXPRESSION(std::string_view expression);
// The value of a token that is no plain number: its signs are rewritten, then it is evaluated.
REAL EVALUATE(std::string_view token);
} // namespace morvane
