#include "field3d/raster/slice_plane.hpp"

#include "foundation/base/record_operators.hpp"

namespace morvane {
NAT SLICE_AXIS(SLICE_PLANE plane) {
    if (plane == SLICE_PLANE::YZ) return 1;
    return plane == SLICE_PLANE::XZ ? 2 : 3;
}

COMPLEXNAT SLICE_SIZE(SLICE_PLANE plane, const VECTORNAT &size) {
    return {plane == SLICE_PLANE::YZ ? size.y : size.x, plane == SLICE_PLANE::XY ? size.y : size.z};
}

VECTORNAT SLICE_POINT(SLICE_PLANE plane, NAT x, NAT y, NAT slice) {
    if (plane == SLICE_PLANE::XY) return {x, y, slice};
    return plane == SLICE_PLANE::XZ ? VECTORNAT{x, slice, y} : VECTORNAT{slice, x, y};
}

FRAME SLICE_FRAME(SLICE_PLANE plane, const FRAME &frame, NAT slice) {
    const MATRIX3 &rows = frame.MATRIX();
    const VECTOR first = plane == SLICE_PLANE::YZ ? rows[1] : rows[0];
    const VECTOR second = plane == SLICE_PLANE::XY ? rows[1] : rows[2];
    const VECTOR across = rows[static_cast<std::size_t>(SLICE_AXIS(plane) - 1)];
    FRAME result;
    result.SETMATRIX({{{first, second, across}}});
    result.SETMOVE(frame.L2G(TO_REAL(SLICE_POINT(plane, 1, 1, slice))));
    return result;
}
} // namespace morvane
