#include "foundation/container/space.hpp"

#include "foundation/base/geometry.hpp"
#include "foundation/container/memory_block.hpp"

namespace morvane {
namespace {
VECTORNAT SHIFTED_LEFT(const VECTORNAT &v) { return v * NAT{65536}; }
} // namespace

// The step is in 1/65536, but a whole distance counts only 65535 of them.
// Deliberate: a fixed-point walk stops slightly short of its far end point.
FIXED_WALK::FIXED_WALK(VECTORNAT from, VECTORNAT to)
    : steps(ROUND(GETLENGTH(to - from))), position(SHIFTED_LEFT(from)), step{} {
    if (steps > 0) step = ROUND(TO_REAL(to - from) / static_cast<REAL>(steps) * 65535.0);
}

void FIXED_WALK::NEXT() { position = position + step; }

NAT VOXEL_COUNT(NAT nx, NAT ny, NAT nz) {
    if (nx < 1 || ny < 1 || nz < 1) return 0;
    const NAT slice = BLOCK_SIZE(nx, ny);
    return slice == NATMAX ? NATMAX : BLOCK_SIZE(slice, nz);
}

TSPACEBOOL &TSPACEBOOL::operator=(TSPACEBOOL &&other) noexcept {
    if (this == &other) return *this;
    TPOLYBOOL::operator=(std::move(other));
    NX = std::exchange(other.NX, 0);
    NY = std::exchange(other.NY, 0);
    NZ = std::exchange(other.NZ, 0);
    return *this;
}

void TSPACEBOOL::INIT() {
    TPOLYBOOL::INIT();
    KIND = 'U';
    NX = NY = NZ = 0;
}

void TSPACEBOOL::INIT(NAT nx, NAT ny, NAT nz) {
    TPOLYBOOL::INIT(VOXEL_COUNT(nx, ny, nz));
    KIND = 'U';
    const bool isFilled = LENGTH > 0;
    NX = isFilled ? nx : 0;
    NY = isFilled ? ny : 0;
    NZ = isFilled ? nz : 0;
}

void TSPACEBOOL::DONE() {
    TPOLYBOOL::DONE();
    NX = NY = NZ = 0;
}

void TSPACEBOOL::PUT(NAT x, NAT y, NAT z, bool value) {
    // Deliberate: the checked GET of the last voxel of a mask reads DEFAULT, _GET reads its bit.
    if (INTO(x, y, z)) _PUT(x, y, z, value);
}

void TSPACEBOOL::FILL(bool value) { TPOLYBOOL::FILL(value); }

void TSPACEBOOL::INVERT() {
    for (NAT i = 0; i < LENGTH; ++i)
        BYTES()[i] = static_cast<BYTE>(~BYTES()[i]);
    SORTED = false;
}

void TSPACEBOOL::LINE(const VECTORNAT &from, const VECTORNAT &to, bool value) {
    FIXED_WALK walk(from, to);
    PUT(from, value);
    for (NAT i = 0; i < walk.STEPS(); ++i) {
        walk.NEXT();
        PUT(walk.POINT(), value);
    }
}
} // namespace morvane
