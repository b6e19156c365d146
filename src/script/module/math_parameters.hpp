#pragma once

#include "foundation/base/number_text.hpp"

#include <vector>

namespace morvane {
class TMACRO;

// How many numbers a text holds for the number readers, counted up to `most`.
NAT COUNT_NUMBERS(const UTF16 &text, NAT most);
// All parameters of the line in progress, in order.
std::vector<UTF16> ALL_PARAMETERS(TMACRO *engine);
// Results as one value of the language, parted by blanks. Those behind its longest text are left
// out, and told: a number cut in two would be read as another one.
UTF16 JOIN_RESULTS(const std::vector<UTF16> &results);
} // namespace morvane
