#include "field3d/raster/rgb.hpp"

#include <algorithm>

namespace morvane {
namespace {
BYTE ByteOf(NAT value) { return static_cast<BYTE>(std::clamp<NAT>(value, 0, 255)); }
} // namespace

void T3DRGB::INIT(NAT sizeX, NAT sizeY, NAT sizeZ) {
    DONE();
    red.INIT(sizeX, sizeY, sizeZ);
    if (!red.EMPTY()) green.INIT(sizeX, sizeY, sizeZ);
    if (!green.EMPTY()) blue.INIT(sizeX, sizeY, sizeZ);
    if (blue.EMPTY()) return DONE();
    window = red.window;
}

void T3DRGB::DONE() {
    red.DONE();
    green.DONE();
    blue.DONE();
    window = red.window;
    fileName = UTF16CHARS7();
    frame.RESET();
}

VECTORNAT T3DRGB::GET(NAT x, NAT y, NAT z) const {
    return {red.GET(x, y, z), green.GET(x, y, z), blue.GET(x, y, z)};
}

void T3DRGB::PUT(NAT x, NAT y, NAT z, const VECTORNAT &value) {
    red.PUT(x, y, z, ByteOf(value.x));
    green.PUT(x, y, z, ByteOf(value.y));
    blue.PUT(x, y, z, ByteOf(value.z));
}
} // namespace morvane
