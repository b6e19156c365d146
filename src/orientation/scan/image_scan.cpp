#include "orientation/scan/image_scan.hpp"

#include "foundation/console/console.hpp"
#include "foundation/thread/run_slices.hpp"
#include "orientation/scan/image_method.hpp"
#include "orientation/scan/image_row.hpp"
#include "orientation/scan/scan_messages.hpp"

#include <algorithm>

namespace morvane {
namespace {
void Row(const TIMAGE &source, TIMAGE &target, NAT y, NAT r, SCAN_ROAD road) {
    if (!source.ISNOTEMPTY()) return WRITELN("Error! Empty vectorfield!");
    if (r < 1 || r > 65535 || source.SIZEX() <= 2 * r || source.SIZEY() <= 2 * r) return;
    if (y < 1 || y > source.SIZEY()) return;
    const SCAN_PLANE plane(source);
    const SCAN_PLAN plan(GETSETTINGS(source), GETDIRECTIONS(r), r, source.SIZEX(),
                         road == SCAN_ROAD::FAST);
    const ANGLE_VALUES angles(target.PIXELMAX(), source.diffusionAxial, r);
    IMAGE_SCAN_ROW{plan, plane, road}.RUN(y, angles, target);
}

// False when memory runs out, which the image has told.
bool AssignTarget(const TIMAGE &source, TIMAGE &target) {
    if (target.ISNOTEMPTY()) {
        WRITELN("Attention, target image field seems not to be empty!");
        return true;
    }
    target.NEW(source.SIZEX(), source.SIZEY());
    target.SETFRAME(source.GETFRAME());
    return target.ISNOTEMPTY();
}
} // namespace

bool DIFFUSION_IMAGE(const TIMAGE &source, TIMAGE &target, NAT r, NAT threadLimit) {
    if (!IS_SCAN_LENGTH(r, std::min(source.SIZEX(), source.SIZEY()))) return false;
    if (!AssignTarget(source, target)) return false;
    const SCAN_PLANE plane(source);
    const SCAN_PLAN plan(GETSETTINGS(source), GETDIRECTIONS(r), r, source.SIZEX());
    const ANGLE_VALUES angles(target.PIXELMAX(), source.diffusionAxial, r);
    WRITE_SCAN_METHOD(plan.settings, r);
    const IMAGE_SCAN_ROW row{plan, plane};
    RUN_SLICES("  Calculate vectorfield", 1, source.SIZEY(), threadLimit,
               [&](NAT y) { row.RUN(y, angles, target); });
    return true;
}

void DIFFUSION(const TIMAGE &source, TIMAGE &target, NAT y, NAT r) {
    Row(source, target, y, r, SCAN_ROAD::FAST);
}

void plain::DIFFUSION(const TIMAGE &source, TIMAGE &target, NAT y, NAT r) {
    Row(source, target, y, r, SCAN_ROAD::PLAIN);
}
} // namespace morvane
