#include "orientation/scan/scan_method.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "orientation/scan/scan_line.hpp"

namespace morvane {
SCAN_SETTINGS GETSETTINGS(const T3D_SCALAR_ANALYSIS &scalar) {
    SCAN_SETTINGS settings;
    if (scalar.diffusionMethod >= 1 && scalar.diffusionMethod <= 6)
        settings.method = static_cast<SCAN_METHOD>(scalar.diffusionMethod);
    settings.subMethod = scalar.subMethod;
    settings.fullScan = scalar.fullScan != 0;
    settings.angle = scalar.diffusionAngle;
    settings.max = scalar.diffusionMax;
    return settings;
}

bool SCAN_LISTS::INIT(NAT r) {
    ranked.INIT();
    scanned.INIT();
    return line.INIT(SAMPLES_W0(r));
}

VECTOR GETIMAGEVECTOR(const VOXEL_SCAN &scan) {
    scan.lists.ranked.NEWLENGTH(0);
    scan.lists.scanned.NEWLENGTH(0);
    switch (scan.settings.method) {
    case SCAN_METHOD::BRENK2013: return GETIMAGEVECTOR_BRENK2013(scan);
    case SCAN_METHOD::BRENK2014A: return GETIMAGEVECTOR_BRENK2014A(scan);
    case SCAN_METHOD::BRENK2014B: return GETIMAGEVECTOR_BRENK2014B(scan);
    case SCAN_METHOD::BRENK2015A: return GETIMAGEVECTOR_BRENK2015A(scan);
    case SCAN_METHOD::BRENK2019: return GETIMAGEVECTOR_BRENK2019(scan);
    default: return GETIMAGEVECTOR_BRENK2015B(scan);
    }
}
} // namespace morvane
