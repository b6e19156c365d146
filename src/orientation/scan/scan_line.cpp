#include "orientation/scan/scan_line.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/base/geometry.hpp"

#include <type_traits>

namespace morvane {
namespace {
// Reads one voxel at a 16.16 position. The shift is unsigned: a negative position becomes a huge
// one, outside the field.
template <class VOXEL> class WALKER {
public:
    explicit WALKER(const SCAN_VOLUME &volume)
        : voxels(static_cast<const VOXEL *>(volume.voxels)), size(volume.size) {}

    NAT GET(const VECTORNAT &position) const {
        const std::uint64_t x = Whole(position.x), y = Whole(position.y), z = Whole(position.z);
        if (x - 1 >= Unsigned(size.x) || y - 1 >= Unsigned(size.y) || z - 1 >= Unsigned(size.z))
            return 0;
        return voxels[x - 1 + (y - 1 + (z - 1) * Unsigned(size.y)) * Unsigned(size.x)];
    }

private:
    static std::uint64_t Unsigned(NAT value) { return static_cast<std::uint64_t>(value); }
    static std::uint64_t Whole(NAT value) { return Unsigned(value) >> 16; }
    const VOXEL *voxels;
    VECTORNAT size;
};

VECTORNAT Fixed(const VECTORNAT &p) { return p * NAT{65536}; }

// From the start on, up to the first zero.
template <class VOXEL>
NAT Run(const WALKER<VOXEL> &walker, VECTORNAT position, const LINE_WALK &walk, NAT *samples) {
    NAT count = 0;
    for (NAT i = 0; i <= walk.steps; ++i) {
        const NAT value = walker.GET(position);
        if (value == 0) break;
        samples[count++] = value;
        position += walk.step;
    }
    return count;
}

// The first run behind leading zeros.
template <class VOXEL>
NAT SkipAndRun(const WALKER<VOXEL> &walker, VECTORNAT position, const LINE_WALK &walk,
               NAT *samples) {
    NAT count = 0;
    for (NAT i = 0; i <= walk.steps; ++i) {
        const NAT value = walker.GET(position);
        if (value != 0)
            samples[count++] = value;
        else if (count > 0)
            break;
        position += walk.step;
    }
    return count;
}

template <class VOXEL>
NAT Line(const SCAN_VOLUME &volume, const VECTORNAT &p1, const VECTORNAT &p2, NAT *samples) {
    const LINE_WALK walk = GETWALK(p1, p2);
    if (walk.steps <= 0) return 0;
    const WALKER<VOXEL> walker(volume);
    const VECTORNAT start = Fixed(p1), end = Fixed(p2);
    if (walker.GET(start) != 0) return Run(walker, start, walk, samples);
    if (walker.GET(end) != 0) return Run(walker, end, {walk.steps, -walk.step}, samples);
    return SkipAndRun(walker, start, walk, samples);
}
} // namespace

LINE_WALK GETWALK(const VECTORNAT &from, const VECTORNAT &to) {
    const VECTORNAT way = to - from;
    const NAT steps = ROUND(GETLENGTH(way));
    if (steps <= 0) return {};
    // Deliberate: a step is 65535 and not 65536 parts of the way, so a walk stops slightly short of
    // its far end.
    const auto step = [steps](NAT distance) {
        return ROUND(static_cast<REAL>(distance) / static_cast<REAL>(steps) * 65535.0);
    };
    return {steps, {step(way.x), step(way.y), step(way.z)}};
}

NAT plain::GETLINE_W0(const SCAN_VOLUME &volume, const VECTORNAT &p1, const VECTORNAT &p2,
                      NAT *samples) {
    if (volume.bits == 8) return Line<BYTE>(volume, p1, p2, samples);
    if (volume.bits == 16) return Line<WORD>(volume, p1, p2, samples);
    return 0;
}

void GETLINE_W0(const T3D_SCALAR_ANALYSIS &scalar, NAT x1, NAT y1, NAT z1, NAT x2, NAT y2, NAT z2,
                TPOLYNAT &line) {
    const VECTORNAT p1{x1, y1, z1}, p2{x2, y2, z2};
    line.INIT();
    const LINE_WALK walk = GETWALK(p1, p2);
    if (walk.steps <= 0) return;
    line.NEWLENGTH(walk.steps + 1);
    if (line.LENGTH == 0) return; // out of memory, told by the list
    line.NEWLENGTH(plain::GETLINE_W0(GETVOLUME(scalar), p1, p2, line.ELEMENTS()));
}

SCAN_VOLUME GETVOLUME(const T3D_SCALAR_ANALYSIS &scalar) {
    return scalar._DISPATCH([](const auto &raster) -> SCAN_VOLUME {
        using VOXEL = typename std::remove_cvref_t<decltype(raster)>::TYPE;
        if constexpr (std::is_same_v<VOXEL, bool>)
            return {nullptr, 0, raster.SIZE()};
        else
            return {raster.VOXELS(), sizeof(VOXEL) * 8, raster.SIZE()};
    });
}
} // namespace morvane
