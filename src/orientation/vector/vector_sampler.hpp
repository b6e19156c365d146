#pragma once

#include "foundation/base/rounding.hpp"
#include "orientation/vector/vector_analysis.hpp"

// Trilinear reads of a vector field that lies still while it is read: frame and sizes are copied
// once, so that a lookup is inline arithmetic. Gives the bits of GET_TRILINEAR.
namespace morvane {
class VECTOR_SAMPLER {
public:
    explicit VECTOR_SAMPLER(const T3D_VECTOR_ANALYSIS &source)
        : field(source), data(source.FLOATS()), inverse(source.GETFRAME().INVERSEMATRIX()),
          negativeOffset(source.GETFRAME().NEGATIVEMOVE()), rowStep(source._GETSIZEX()),
          sliceStep(source._GETSIZEX() * source._GETSIZEY()) {
        size = {static_cast<REAL>(source._GETSIZEX()), static_cast<REAL>(source._GETSIZEY()),
                static_cast<REAL>(source._GETSIZEZ())};
    }

    // The position in voxels of a global point, not rounded.
    VECTOR LOCAL(const VECTOR &global) const {
        const VECTOR d{global.x + negativeOffset.x, global.y + negativeOffset.y,
                       global.z + negativeOffset.z};
        const VECTOR &a = inverse[0], &b = inverse[1], &c = inverse[2];
        return {d.x * a.x + d.y * b.x + d.z * c.x + 1, d.x * a.y + d.y * b.y + d.z * c.y + 1,
                d.x * a.z + d.y * b.z + d.z * c.z + 1};
    }

    VECTOR TRILINEAR(const VECTOR &global) const { return TRILINEAR_LOCAL(LOCAL(global)); }

    VECTOR TRILINEAR_LOCAL(const VECTOR &local) const {
        const bool inside = data && local.x >= 1 && local.y >= 1 && local.z >= 1 &&
                            local.x < size.x && local.y < size.y && local.z < size.z;
        if (!inside) return Border(local);
        // All eight corners lie inside: no range tests.
        const NAT x = static_cast<NAT>(local.x), y = static_cast<NAT>(local.y),
                  z = static_cast<NAT>(local.z);
        const VECTOR f{local.x - static_cast<REAL>(x), local.y - static_cast<REAL>(y),
                       local.z - static_cast<REAL>(z)};
        const VECTOR *near = data + (x - 1) + rowStep * (y - 1) + sliceStep * (z - 1);
        const VECTOR *far = near + sliceStep;
        return Blend(
            Blend(Blend(near[0], near[1], f.x), Blend(near[rowStep], near[rowStep + 1], f.x), f.y),
            Blend(Blend(far[0], far[1], f.x), Blend(far[rowStep], far[rowStep + 1], f.x), f.y),
            f.z);
    }

private:
    static VECTOR Blend(const VECTOR &a, const VECTOR &b, REAL share) {
        const REAL rest = 1 - share;
        return {a.x * rest + b.x * share, a.y * rest + b.y * share, a.z * rest + b.z * share};
    }

    // Positions near or beyond a face, and the other stores: every corner is tested.
    VECTOR Border(const VECTOR &local) const {
        // Further out, and for a position that is no number, no corner lies inside.
        if (!(local.x > -1 && local.y > -1 && local.z > -1 && local.x < size.x + 1 &&
              local.y < size.y + 1 && local.z < size.z + 1))
            return VZERO;
        const VECTORNAT i = TRUNC(local);
        const VECTOR f = FRAC(local);
        const auto row = [&](NAT y, NAT z) {
            return Blend(field.GET(i.x, y, z), field.GET(i.x + 1, y, z), f.x);
        };
        return Blend(Blend(row(i.y, i.z), row(i.y + 1, i.z), f.y),
                     Blend(row(i.y, i.z + 1), row(i.y + 1, i.z + 1), f.y), f.z);
    }

    const T3D_VECTOR_ANALYSIS &field;
    const VECTOR *data;
    MATRIX3 inverse;
    VECTOR negativeOffset, size;
    NAT rowStep, sliceStep;
};
} // namespace morvane
