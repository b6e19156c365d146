#include "field3d/raster/raster.hpp"

#include "foundation/base/rounding.hpp"
#include "foundation/console/console.hpp"
#include "foundation/container/space.hpp"

#include <algorithm>
#include <cmath>

namespace morvane {
template <class VOXEL> void RASTER<VOXEL>::INIT(NAT sizeX, NAT sizeY, NAT sizeZ) {
    DONE();
    const NAT count = VOXEL_COUNT(sizeX, sizeY, sizeZ);
    if (count < 1 || !voxels.INIT(count)) return;
    SIZEX = sizeX;
    SIZEY = sizeY;
    SIZEZ = sizeZ;
    WINDOW();
}

template <class VOXEL> void RASTER<VOXEL>::DONE() {
    voxels.DONE();
    SIZEX = SIZEY = SIZEZ = 0;
    BACKGROUND = VOXEL{};
    VALUE = static_cast<VOXEL>(KIND::MAXIMUM);
    frame.RESET();
    fileName = UTF16CHARS7();
    WINDOW();
}

template <class VOXEL> void RASTER<VOXEL>::WINDOW() { window = {1, 1, 1, SIZEX, SIZEY, SIZEZ}; }

template <class VOXEL> void RASTER<VOXEL>::WINDOW(NAT x1, NAT y1, NAT z1, NAT x2, NAT y2, NAT z2) {
    if (EMPTY()) return WINDOW();
    window = {std::clamp<NAT>(x1, 1, SIZEX), std::clamp<NAT>(y1, 1, SIZEY),
              std::clamp<NAT>(z1, 1, SIZEZ), std::clamp<NAT>(x2, 1, SIZEX),
              std::clamp<NAT>(y2, 1, SIZEY), std::clamp<NAT>(z2, 1, SIZEZ)};
}

template <class VOXEL> NAT RASTER<VOXEL>::DIAGONAL() const {
    // Unsigned, so that the square sum of a size beyond every memory wraps instead of trapping.
    const auto square = [](NAT side) {
        return static_cast<std::uint64_t>(side) * static_cast<std::uint64_t>(side);
    };
    const std::uint64_t sum = square(SIZEX) + square(SIZEY) + square(SIZEZ);
    return ROUND(std::sqrt(static_cast<REAL>(sum)));
}

template <class VOXEL> VECTOR RASTER<VOXEL>::MIDPOINT() const {
    if (EMPTY()) return VNORM;
    return {static_cast<REAL>(SIZEX) * 0.5, static_cast<REAL>(SIZEY) * 0.5,
            static_cast<REAL>(SIZEZ) * 0.5};
}

template <class VOXEL> void RASTER<VOXEL>::__WRITE_ERROR(const UTF16 &text) {
    INIT();
    WRITELN(text);
}

template class RASTER<bool>;
template class RASTER<BYTE>;
template class RASTER<WORD>;
} // namespace morvane
