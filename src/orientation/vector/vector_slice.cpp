#include "orientation/vector/vector_slice.hpp"

#include "foundation/base/rounding.hpp"
#include "foundation/console/console.hpp"
#include "image2d/image/slice_size.hpp"
#include "orientation/vector/vector_analysis.hpp"

#include <algorithm>

namespace morvane {
void GETSLICE(const T3D_VECTOR_ANALYSIS &field, SLICE_PLANE plane, REAL position, TIMAGE &image) {
    if (!field.ISNOTEMPTY()) return WRITELN("Error! Empty vectorfield!");
    const COMPLEXNAT size = SLICE_SIZE(plane, field.SIZE());
    const NAT slice = field.COORD(position, SLICE_AXIS(plane));
    TIMAGE fresh(IMAGE_RGB, size.x, size.y);
    image.TAKE(fresh);
    image.SETFRAME(SLICE_FRAME(plane, field.GETFRAME(), slice));
    for (NAT y = 1; y <= image.SIZEY(); ++y)
        for (NAT x = 1; x <= image.SIZEX(); ++x) {
            const VECTORNAT voxel = SLICE_POINT(plane, x, y, slice);
            image.PUTRGB(x, y, field.GETNAT(voxel.x, voxel.y, voxel.z));
        }
}

void PUTSLICE(T3D_VECTOR_ANALYSIS &field, SLICE_PLANE plane, REAL position, const TIMAGE &image) {
    if (!field.ISNOTEMPTY()) return WRITELN("Error! Empty vectorfield!");
    const COMPLEXNAT size = SLICE_SIZE(plane, field.SIZE());
    if (!IS_SLICE_IMAGE(image, size)) return;
    const NAT slice = field.COORD(position, SLICE_AXIS(plane));
    for (NAT y = 1; y <= std::min(image.SIZEY(), size.y); ++y)
        for (NAT x = 1; x <= std::min(image.SIZEX(), size.x); ++x) {
            const VECTORNAT voxel = SLICE_POINT(plane, x, y, slice);
            field.PUT(voxel.x, voxel.y, voxel.z, TO_REAL(image.GETRGB(x, y)));
        }
}
} // namespace morvane
