#include "field3d/shape/slice.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/console/console.hpp"
#include "image2d/image/slice_size.hpp"

#include <algorithm>

namespace morvane {
void GETSLICE(const T3D_SCALAR_ANALYSIS &scalar, SLICE_PLANE plane, REAL position, TIMAGE &image) {
    if (!scalar.ISNOTEMPTY()) return WRITELN("Error! Empty scalarfield!");
    const COMPLEXNAT size = SLICE_SIZE(plane, scalar.SIZE());
    const NAT slice = scalar.COORD(position, SLICE_AXIS(plane));
    TIMAGE fresh(scalar.BITS() == 16 ? IMAGE_FULLGRAY : IMAGE_GRAY, size.x, size.y);
    image.TAKE(fresh);
    image.SETFRAME(SLICE_FRAME(plane, scalar.GETFRAME(), slice));
    for (NAT y = 1; y <= image.SIZEY(); ++y)
        for (NAT x = 1; x <= image.SIZEX(); ++x)
            image.PUT(x, y, scalar.GET(SLICE_POINT(plane, x, y, slice)));
}

void PUTSLICE(T3D_SCALAR_ANALYSIS &scalar, SLICE_PLANE plane, REAL position, const TIMAGE &image) {
    if (!scalar.ISNOTEMPTY()) return WRITELN("Error! Empty scalarfield!");
    const COMPLEXNAT size = SLICE_SIZE(plane, scalar.SIZE());
    if (!IS_SLICE_IMAGE(image, size)) return;
    const NAT slice = scalar.COORD(position, SLICE_AXIS(plane));
    for (NAT y = 1; y <= std::min(image.SIZEY(), size.y); ++y)
        for (NAT x = 1; x <= std::min(image.SIZEX(), size.x); ++x) {
            const VECTORNAT voxel = SLICE_POINT(plane, x, y, slice);
            scalar.PUT(voxel.x, voxel.y, voxel.z, image.GET(x, y));
        }
}
} // namespace morvane
