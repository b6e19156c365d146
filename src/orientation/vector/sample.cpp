#include "foundation/base/record_operators.hpp"
#include "orientation/vector/vector_sampler.hpp"

#include <array>
#include <cmath>

// Reads of a vector field between its voxels.
namespace morvane {
namespace {
constexpr NAT RADIUS = 4;
using WEIGHTS = std::array<REAL, 2 * RADIUS>;

// Lanczos kernel of radius 4 (Duchon 1979); x in voxels. Zero from |x| = 4 on, and exactly zero at
// other whole numbers, where the sine of a rounded multiple of pi is not.
REAL LANCZOS4(REAL x) {
    if (x == 0) return 1;
    if (std::abs(x) >= 4 || x == std::trunc(x)) return 0;
    const REAL a = PI * x;
    return 4 * std::sin(a) * std::sin(a / 4) / (a * a);
}

// The weights of the eight voxels whose middle gap holds the position; their sum is 1.
WEIGHTS WeightsOf(REAL fraction) {
    WEIGHTS weights{};
    REAL sum = 0;
    for (std::size_t i = 0; i < weights.size(); ++i) {
        weights[i] = LANCZOS4(fraction - (static_cast<REAL>(i) - (RADIUS - 1)));
        sum += weights[i];
    }
    for (REAL &weight : weights)
        weight /= sum;
    return weights;
}
} // namespace

VECTOR T3D_VECTOR_ANALYSIS::GET_TRILINEAR(const VECTOR &global) const {
    return VECTOR_SAMPLER(*this).TRILINEAR(global);
}

VECTOR T3D_VECTOR_ANALYSIS::_TRILINEAR(const VECTOR &local) const {
    return VECTOR_SAMPLER(*this).TRILINEAR_LOCAL(local);
}

VECTOR T3D_VECTOR_ANALYSIS::GET_TRILANCZOS(const VECTOR &global) const {
    return _TRILANCZOS(VECTOR_SAMPLER(*this).LOCAL(global));
}

VECTOR T3D_VECTOR_ANALYSIS::_TRILANCZOS(const VECTOR &local) const {
    const VECTOR size = TO_REAL(SIZE());
    const bool near = local.x > -RADIUS && local.y > -RADIUS && local.z > -RADIUS &&
                      local.x < size.x + RADIUS && local.y < size.y + RADIUS &&
                      local.z < size.z + RADIUS;
    if (!near) return VZERO; // no voxel within reach, or a position that is no number
    const VECTORNAT i = FLOOR(local);
    const VECTORNAT first{i.x - (RADIUS - 1), i.y - (RADIUS - 1), i.z - (RADIUS - 1)};
    const WEIGHTS weightX = WeightsOf(local.x - static_cast<REAL>(i.x));
    const WEIGHTS weightY = WeightsOf(local.y - static_cast<REAL>(i.y));
    const WEIGHTS weightZ = WeightsOf(local.z - static_cast<REAL>(i.z));
    VECTOR volume = VZERO;
    for (std::size_t z = 0; z < weightZ.size(); ++z) {
        VECTOR plane = VZERO;
        for (std::size_t y = 0; y < weightY.size(); ++y) {
            VECTOR row = VZERO;
            for (std::size_t x = 0; x < weightX.size(); ++x)
                row += GET(first.x + static_cast<NAT>(x), first.y + static_cast<NAT>(y),
                           first.z + static_cast<NAT>(z)) *
                       weightX[x];
            plane += row * weightY[y];
        }
        volume += plane * weightZ[z];
    }
    return volume;
}
} // namespace morvane
