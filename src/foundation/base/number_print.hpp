#pragma once

#include "foundation/base/records.hpp"

#include <string>

// Numbers as ASCII bytes, below the texts of number_text.hpp. Each appends to `out`.
namespace morvane {
// A whole value whose decimals would all be cut again (see CUTZEROTAIL in number_print.cpp).
inline bool PRINTS_WHOLE(REAL value) {
    return value < 1e14 && value > -1e13 && static_cast<REAL>(static_cast<NAT>(value)) == value;
}
// GETSTRING without regard to FORMAT: a decimal point, no E form.
void PRINT_PLAIN(std::string &out, REAL value);
void PRINT_PLAIN(std::string &out, REAL value, NAT decimals);

// GETSTRING, with regard to FORMAT.
void PRINT(std::string &out, REAL value);
void PRINT(std::string &out, REAL value, NAT decimals); // below 0: exponent form
void PRINT(std::string &out, NAT value);
// So many significant digits, at least 1, without zeros at their end, such as 1.23E8.
void PRINT_EXPONENT(std::string &out, REAL value, NAT digits);
// SCIENTIFICFORM of what stands in `out` from the position on.
void MAKE_SCIENTIFIC(std::string &out, std::size_t from);
// A separator before each third digit from the right.
void GROUP_DIGITS(std::string &out, std::size_t from);
} // namespace morvane
