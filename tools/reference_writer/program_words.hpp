#pragma once

#include "reference.hpp"

namespace morvane {
// Fills version, maker, options, first words and the options' variables of a reference. The
// options of every program are read from the program's own listing, the rest from its table.
void READ_PROGRAM_WORDS(REFERENCE &reference);
} // namespace morvane
