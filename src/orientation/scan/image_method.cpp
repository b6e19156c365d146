#include "orientation/scan/image_method.hpp"

#include "image2d/image/image.hpp"
#include "orientation/scan/image_hemicircle.hpp"

namespace morvane {
namespace {
COMPLEX Flat(const VECTOR &v) { return {v.x, v.y}; }
} // namespace

SCAN_SETTINGS GETSETTINGS(const TIMAGE &image) {
    SCAN_SETTINGS settings;
    if (image.diffusionMethod >= 1 && image.diffusionMethod <= 6)
        settings.method = static_cast<SCAN_METHOD>(image.diffusionMethod);
    settings.subMethod = image.subMethod;
    settings.fullScan = image.fullScan;
    settings.angle = image.diffusionAngle;
    settings.max = image.diffusionMax;
    return settings;
}

SCAN_DIRECTIONS GETDIRECTIONS(NAT r) {
    TPOLYCOMPLEXNAT points;
    TPOLYCOMPLEX units;
    _GETHEMICIRCLE(points, units, r);
    SCAN_DIRECTIONS directions;
    directions.points.INIT();
    directions.vectors.INIT();
    for (const COMPLEXNAT &point : points.SPAN())
        directions.points.PUSH({point.x, point.y, 0});
    for (const COMPLEX &unit : units.SPAN())
        directions.vectors.PUSH({unit.x, unit.y, 0});
    return directions;
}

COMPLEX GETIMAGECOMPLEX_BRENK2013(const VOXEL_SCAN &scan) {
    return Flat(GETIMAGEVECTOR_BRENK2013(scan));
}
COMPLEX GETIMAGECOMPLEX_BRENK2014A(const VOXEL_SCAN &scan) {
    return Flat(GETIMAGEVECTOR_BRENK2014A(scan));
}
COMPLEX GETIMAGECOMPLEX_BRENK2014B(const VOXEL_SCAN &scan) {
    return Flat(GETIMAGEVECTOR_BRENK2014B(scan));
}
COMPLEX GETIMAGECOMPLEX_BRENK2015A(const VOXEL_SCAN &scan) {
    return Flat(GETIMAGEVECTOR_BRENK2015A(scan));
}
COMPLEX GETIMAGECOMPLEX_BRENK2015B(const VOXEL_SCAN &scan) {
    return Flat(GETIMAGEVECTOR_BRENK2015B(scan));
}
COMPLEX GETIMAGECOMPLEX_BRENK2019(const VOXEL_SCAN &scan) {
    return Flat(GETIMAGEVECTOR_BRENK2019(scan));
}
COMPLEX GETIMAGECOMPLEX(const VOXEL_SCAN &scan) { return Flat(GETIMAGEVECTOR(scan)); }
} // namespace morvane
