#include "orientation/stream/visited_mask.hpp"

#include "foundation/base/record_operators.hpp"

#include <algorithm>
#include <cmath>

namespace morvane {
namespace {
NAT Saturated(NAT a, NAT b) {
    NAT sum = 0;
    if (__builtin_add_overflow(a, b, &sum)) return b < 0 ? NATMIN : NATMAX;
    return sum;
}
} // namespace

void VISITED_MASK::PUT(const VECTORNAT &cell) {
    cells.PUT(cell, true);
    if (!cells.INTO(cell.x, cell.y, cell.z)) return;
    low = MIN(low, cell);
    high = MAX(high, cell);
}

void VISITED_MASK::LINE(const VECTORNAT &from, const VECTORNAT &to) {
    PUT(from);
    // A step that is longer than the field itself leaves it at once: nothing lies between.
    const VECTOR way = TO_REAL(to) - TO_REAL(from);
    const REAL reach = 4 * static_cast<REAL>(cells.NX + cells.NY + cells.NZ);
    if (!(std::abs(way.x) + std::abs(way.y) + std::abs(way.z) <= reach)) return;
    cells.LINE(from, to, true);
    const VECTORNAT size{cells.NX, cells.NY, cells.NZ};
    low = MIN(low, MAX(MIN(from, to), VNORMNAT));
    high = MAX(high, MIN(MAX(from, to), size));
}

bool VISITED_MASK::ANYNEAR(const VECTORNAT &cell, NAT k) const {
    // Deliberate: the cube of visited cells reaches from -k-1 to k-1, wider on the negative side.
    const VECTORNAT a{std::max(Saturated(cell.x, -k - 1), low.x),
                      std::max(Saturated(cell.y, -k - 1), low.y),
                      std::max(Saturated(cell.z, -k - 1), low.z)};
    const VECTORNAT b{std::min(Saturated(cell.x, k - 1), high.x),
                      std::min(Saturated(cell.y, k - 1), high.y),
                      std::min(Saturated(cell.z, k - 1), high.z)};
    for (NAT z = a.z; z <= b.z; ++z)
        for (NAT y = a.y; y <= b.y; ++y)
            for (NAT x = a.x; x <= b.x; ++x)
                if (cells.GET(x, y, z)) return true;
    return false;
}
} // namespace morvane
