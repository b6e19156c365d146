#include "orientation/scan/image_row.hpp"

#include "foundation/base/record_operators.hpp"
#include "orientation/scan/image_method.hpp"
#include "orientation/scan/scan_block.hpp"

namespace morvane {
namespace {
// The lines of one pixel, read from the image's canvas.
struct PIXEL_SOURCE {
    const SCAN_PLAN *plan;
    const SCAN_PLANE *plane;
    COMPLEXNAT centre;
    static NAT READ(const void *self, NAT direction, NAT *samples) {
        const PIXEL_SOURCE *source = static_cast<const PIXEL_SOURCE *>(self);
        const VECTORNAT &point = source->plan->directions.points._GET(direction + 1);
        const COMPLEXNAT d{point.x, point.y};
        return source->plane->GETLINE_W0(source->centre + d, source->centre - d, samples);
    }
};
} // namespace

bool IMAGE_SCAN_ROW::Scan(NAT y, const BYTE *wanted, VECTOR *vectors) const {
    const NAT width = plane.SIZE().x;
    if (road == SCAN_ROAD::FAST && plan.FAST()) {
        SCAN_BLOCK block(plan, plane.VOLUME(), FASTEST_SCAN_KERNEL());
        if (block.INIT()) {
            block.SCAN({1, y, 1}, width, 1, wanted, vectors);
            return true;
        }
    }
    SCAN_LISTS lists;
    if (!lists.INIT(plan.r)) return false;
    for (NAT x = 1; x <= width; ++x) {
        if (!wanted[x - 1]) continue;
        const PIXEL_SOURCE source{&plan, &plane, {x, y}};
        const COMPLEX v = GETIMAGECOMPLEX(
            {plan.settings, plan.directions, lists, {PIXEL_SOURCE::READ, &source}, plan.r});
        vectors[x - 1] = {v.x, v.y, 0};
    }
    return true;
}

bool IMAGE_SCAN_ROW::FIND(NAT y, SCAN_BUFFER<BYTE> &wanted, SCAN_BUFFER<VECTOR> &vectors) const {
    const NAT width = plane.SIZE().x;
    if (!wanted.INIT(width) || !vectors.INIT(width)) return false;
    for (NAT x = 1; x <= width; ++x)
        wanted[x - 1] = plane.GET(x, y) >= 1;
    return Scan(y, wanted.DATA(), vectors.DATA());
}

void IMAGE_SCAN_ROW::RUN(NAT y, const ANGLE_VALUES &angles, TIMAGE &target) const {
    SCAN_BUFFER<BYTE> wanted;
    SCAN_BUFFER<VECTOR> vectors;
    if (!FIND(y, wanted, vectors)) return;
    for (NAT x = 1; x <= plane.SIZE().x; ++x) {
        const VECTOR &v = vectors[x - 1];
        if (wanted[x - 1])
            target.PUT(x, y, angles.VALUE({v.x, v.y}));
        else
            target.PUTRGBA(x, y, HZERONAT); // transparent where there is alpha
    }
}
} // namespace morvane
