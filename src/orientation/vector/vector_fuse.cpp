#include "orientation/vector/vector_fuse.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "field3d/raster/slice_plane.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "image2d/image/image.hpp"
#include "orientation/vector/vector_analysis.hpp"

namespace morvane {
namespace {
NAT BestSlice(const T3D_SCALAR_ANALYSIS &rating, NAT x, NAT y) {
    NAT best = 1;
    for (NAT z = 2; z <= rating.SIZEZ(); ++z)
        if (rating.GET(x, y, z) > rating.GET(x, y, best)) best = z;
    return best;
}

UTF16 Shown(const VECTORNAT &size) {
    return "(" + GETSTRING(size.x) + "x" + GETSTRING(size.y) + "x" + GETSTRING(size.z) + ")";
}
} // namespace

void FUSE(const T3D_VECTOR_ANALYSIS &stack, const T3D_SCALAR_ANALYSIS &rating, TIMAGE &image) {
    if (!stack.ISNOTEMPTY()) return WRITELN("Error! Empty vectorfield!");
    if (!rating.ISNOTEMPTY()) return WRITELN("Error! Empty scalarfield!");
    if (stack.SIZE() != rating.SIZE())
        return WRITELN("Error! Vectorfield " + Shown(stack.SIZE()) + " and scalarfield " +
                       Shown(rating.SIZE()) + " differ!");
    TIMAGE fresh(IMAGE_RGB, stack.SIZEX(), stack.SIZEY());
    image.TAKE(fresh);
    image.SETFRAME(SLICE_FRAME(SLICE_PLANE::XY, stack.GETFRAME(), 1));
    for (NAT y = 1; y <= image.SIZEY(); ++y)
        for (NAT x = 1; x <= image.SIZEX(); ++x)
            image.PUTRGB(x, y, stack.GETNAT(x, y, BestSlice(rating, x, y)));
}
} // namespace morvane
