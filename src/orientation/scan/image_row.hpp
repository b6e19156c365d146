#pragma once

#include "orientation/scan/image_angle.hpp"
#include "orientation/scan/image_plane.hpp"
#include "orientation/scan/scan_slice.hpp"

namespace morvane {
// One row of an image scan, with the sizes tested by the caller. Plan and plane are shared by all
// rows.
struct IMAGE_SCAN_ROW {
    const SCAN_PLAN &plan;
    const SCAN_PLANE &plane;
    SCAN_ROAD road = SCAN_ROAD::FAST;

    // wanted: whether a pixel is above 0; vectors: what the scan finds there, z 0, else zero. Both
    // get the image's width. False when memory runs out.
    [[nodiscard]] bool FIND(NAT y, SCAN_BUFFER<BYTE> &wanted, SCAN_BUFFER<VECTOR> &vectors) const;
    // The same as angles into the row of an image; it stays as it is when memory runs out.
    void RUN(NAT y, const ANGLE_VALUES &angles, TIMAGE &target) const;

private:
    [[nodiscard]] bool Scan(NAT y, const BYTE *wanted, VECTOR *vectors) const;
};
} // namespace morvane
