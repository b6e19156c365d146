#include "geometry/model/cloud_near.hpp"

#include "foundation/base/geometry.hpp"

#include <algorithm>
#include <bit>
#include <cmath>

namespace morvane {
namespace {
// Cells are a little larger than the reach, and at most 1e7 of them stand between zero and the
// farthest point: the rounding of a cell number never hides a point at the exact distance.
constexpr REAL MARGIN = 1 + 1e-5;
constexpr REAL SMALLEST_SHARE = 1e-7;
} // namespace

bool NEAR_POINTS(const HYPER &a, const HYPER &b, REAL distance) {
    const REAL x = a.x - b.x, y = a.y - b.y, z = a.z - b.z;
    return std::sqrt(x * x + y * y + z * z) <= distance;
}

bool NEAR_LINES(std::span<const HYPER> a, std::span<const HYPER> b, REAL distance) {
    if (a.empty() || a.size() != b.size()) return false;
    for (std::size_t i = 0; i < a.size(); ++i)
        if (!NEAR_POINTS(a[i], b[i], distance)) return false;
    return true;
}

REAL LARGEST_COORDINATE(std::span<const HYPER> points) {
    REAL largest = 0;
    for (const HYPER &point : points)
        for (const REAL part : {point.x, point.y, point.z})
            if (std::isfinite(part)) largest = std::max(largest, std::abs(part));
    return largest;
}

POINT_GRID::POINT_GRID(NAT count, REAL reach, REAL largest)
    : edge(std::max(reach > 0 ? reach * MARGIN : 0, largest * SMALLEST_SHARE)) {
    if (!(edge > 0)) edge = 1;
    NAT slots = 16;
    while (slots < count)
        slots *= 2;
    heads.INIT(slots);
    next.INIT(std::max<NAT>(count, 1));
    if (heads.LENGTH < 1) next.DONE();
}

VECTOR POINT_GRID::CELL(const VECTOR &place) const {
    return {std::floor(place.x / edge), std::floor(place.y / edge), std::floor(place.z / edge)};
}

NAT POINT_GRID::SLOT(const VECTOR &cell) const {
    std::uint64_t hash = 0x9E3779B97F4A7C15u;
    for (const REAL part : {cell.x, cell.y, cell.z}) {
        hash = (hash ^ std::bit_cast<std::uint64_t>(part + 0.0)) * 0xD6E8FEB86659FD93u;
        hash ^= hash >> 32;
    }
    return static_cast<NAT>(hash & static_cast<std::uint64_t>(heads.LENGTH - 1)) + 1;
}

void POINT_GRID::INSERT(NAT number, const VECTOR &place) {
    const VECTOR cell = CELL(place);
    if (!std::isfinite(cell.x) || !std::isfinite(cell.y) || !std::isfinite(cell.z)) return;
    const NAT slot = SLOT(cell);
    next._PUT(number, heads._GET(slot));
    heads._PUT(slot, number);
}
} // namespace morvane
