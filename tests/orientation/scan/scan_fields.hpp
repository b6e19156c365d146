#pragma once

#include "field3d/field/scalar_analysis.hpp"
#include "orientation/vector/vector_analysis.hpp"

#include <cstring>
#include <random>

// Small fields for the tests of the scan.
namespace morvane {
// Every voxel gets value(x, y, z).
template <class VALUE>
void FILL_FIELD(T3D_SCALAR_ANALYSIS &field, BYTE tag, const VECTORNAT &size, VALUE value) {
    field.INIT(tag, size.x, size.y, size.z);
    for (NAT z = 1; z <= size.z; ++z)
        for (NAT y = 1; y <= size.y; ++y)
            for (NAT x = 1; x <= size.x; ++x)
                field.PUT(x, y, z, NAT{value(x, y, z)});
}

// Whole numbers from low to high, the same for a seed; a share of `zeros` percent is 0.
class NOISE {
public:
    NOISE(unsigned seed, NAT lowest, NAT highest, NAT zeroShare = 0)
        : random(seed), low(lowest), high(highest), zeros(zeroShare) {}
    NAT operator()(NAT, NAT, NAT) {
        if (static_cast<NAT>(random() % 100) < zeros) return 0;
        return low + static_cast<NAT>(random()) % (high - low + 1);
    }

private:
    std::mt19937 random;
    NAT low, high, zeros;
};

inline bool SAME_BITS(const VECTOR &a, const VECTOR &b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}
inline NAT DIFFERENT_VECTORS(const T3D_VECTOR_ANALYSIS &a, const T3D_VECTOR_ANALYSIS &b) {
    NAT count = 0;
    for (NAT z = 1; z <= a.SIZEZ(); ++z)
        for (NAT y = 1; y <= a.SIZEY(); ++y)
            for (NAT x = 1; x <= a.SIZEX(); ++x)
                count += !SAME_BITS(a.GET(x, y, z), b.GET(x, y, z));
    return count;
}
} // namespace morvane
