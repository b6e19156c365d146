#include "orientation/scan/image_plane.hpp"

#include "image2d/canvas/line_walk.hpp"

namespace morvane {
SCAN_PLANE::SCAN_PLANE(const TIMAGE &image) : gray(image._GRAY()), full(image._FULLGRAY()) {
    if (gray != nullptr || full != nullptr || !image.ISNOTEMPTY()) return;
    copy.INIT(image.SIZEX(), image.SIZEY());
    for (NAT y = 1; y <= copy.HEIGHT; ++y)
        for (NAT x = 1; x <= copy.WIDTH; ++x)
            copy._PUT(x, y, static_cast<WORD>(image.GET(x, y)));
    full = &copy;
}

COMPLEXNAT SCAN_PLANE::SIZE() const {
    if (gray != nullptr) return {gray->WIDTH, gray->HEIGHT};
    if (full != nullptr) return {full->WIDTH, full->HEIGHT};
    return {};
}

NAT SCAN_PLANE::GET(NAT x, NAT y) const {
    if (gray != nullptr) return gray->INSIDE(x, y) ? gray->_GET(x, y) : 0;
    if (full != nullptr) return full->INSIDE(x, y) ? full->_GET(x, y) : 0;
    return 0;
}

SCAN_VOLUME SCAN_PLANE::VOLUME() const {
    const COMPLEXNAT size = SIZE();
    if (gray != nullptr) return {gray->DATA(), 8, {size.x, size.y, 1}};
    if (full != nullptr) return {full->DATA(), 16, {size.x, size.y, 1}};
    return {};
}

NAT SCAN_PLANE::GETLINE_W0(const COMPLEXNAT &p1, const COMPLEXNAT &p2, NAT *samples) const {
    if (gray != nullptr) return morvane::GETLINE_W0(*gray, p1, p2, samples);
    if (full != nullptr) return morvane::GETLINE_W0(*full, p1, p2, samples);
    return 0;
}
} // namespace morvane
