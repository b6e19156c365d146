#pragma once

#include "foundation/container/poly_types.hpp"

namespace morvane {
class RANDOM_STREAM;

// The directions of an image scan of length `radius`: offsets from the centre, one of each pair of
// opposites, sorted by y, and the same as unit vectors. Both lists are emptied first.
void _GETHEMICIRCLE(TPOLYCOMPLEXNAT &points, TPOLYCOMPLEX &vectors, NAT radius);
// A random choice of `count` of them, none twice; with `count` 0, or not below their number, all.
void _GETHEMICIRCLE(TPOLYCOMPLEXNAT &points, TPOLYCOMPLEX &vectors, NAT radius, NAT count,
                    RANDOM_STREAM &random);
} // namespace morvane
