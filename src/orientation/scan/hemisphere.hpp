#pragma once

#include "foundation/base/rounding.hpp"
#include "foundation/container/poly_types.hpp"

#include <cmath>

namespace morvane {
class RANDOM_STREAM;

// The directions of a scan of length `radius`: offsets from the centre, one of each pair of
// opposites, sorted by z, and the same as unit vectors. Both lists are emptied first.
void _GETHEMISPHERE(TPOLYVECTORNAT &points, TPOLYVECTOR &vectors, NAT radius);
// A random choice of `count` of them, none twice; with `count` 0, or not below their number, all.
void _GETHEMISPHERE(TPOLYVECTORNAT &points, TPOLYVECTOR &vectors, NAT radius, NAT count,
                    RANDOM_STREAM &random);

// A polar point of the scan, before opposites are removed.
struct RING_POINT {
    NAT ring = 0, position = 0, population = 0; // from 0; points on this ring
    VECTOR polar;
    VECTORNAT offset; // rounded
};

// visit(RING_POINT) for every point, ring by ring from the pole down; close(ring) after each ring.
template <class VISIT, class CLOSE>
void FOR_EACH_RING_POINT(NAT radius, const VISIT &visit, const CLOSE &close) {
    const REAL r = static_cast<REAL>(radius);
    const NAT rings = ROUND(PI * r);
    for (NAT i = 0; i < rings; ++i) {
        const REAL rr = std::sin(static_cast<REAL>(i) / r) * r;
        // Deliberate: the population of a ring is computed from i but its angle from i + 1, so ring
        // 0 is empty.
        const NAT population = ROUND(PI * rr);
        const REAL theta = static_cast<REAL>(i + 1) / r;
        for (NAT j = 0; j < population; ++j) {
            const REAL phi = static_cast<REAL>(j + 1) / rr;
            const VECTOR polar{r * std::sin(theta) * std::cos(phi),
                               r * std::sin(theta) * std::sin(phi), r * std::cos(theta)};
            visit(RING_POINT{i, j, population, polar, ROUND(polar)});
        }
        close(i);
    }
}
} // namespace morvane
