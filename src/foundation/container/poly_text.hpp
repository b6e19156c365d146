#pragma once

#include "foundation/container/poly_types.hpp"

#include <memory>

namespace morvane {
// All numbers of a text, cut one by one with CUTREAL until it is empty; null without memory.
std::unique_ptr<TPOLYREAL> GETPOLYREAL(const UTF16 &text);
// Prints `bins` as a logarithmic bar chart of `columns` by `rows` characters, with a resolution of
// an eighth of a row. Each column shows the largest bin of its share.
void WRITE_HISTOGRAM(NAT columns, NAT rows, const TPOLYNAT &bins);
} // namespace morvane
