#include "image2d/image/alpha.hpp"

#include "foundation/base/safe_arithmetic.hpp"

namespace morvane {
namespace {
TGRAY *AlphaOf(TIMAGE &image) {
    if (TRGBA *rgba = image._RGBA()) return &rgba->alpha;
    if (TZRGB *zrgb = image._ZRGB()) return &zrgb->alpha;
    return nullptr;
}

BYTE Limited(NAT alpha) { return static_cast<BYTE>(LIMIT(alpha, NAT{0}, TGRAY::MAXIMUM)); }
} // namespace

void SETALPHA(TIMAGE &image, NAT alpha) {
    if (TGRAY *plane = AlphaOf(image)) plane->FILL(Limited(alpha));
}

void SETRGB_ALPHA(TIMAGE &image, const VECTORNAT &colour, NAT alpha) {
    TGRAY *const plane = AlphaOf(image);
    if (!plane) return;
    const TRGB &rgb = *image._RGB();
    for (NAT y = 1; y <= plane->HEIGHT; ++y)
        for (NAT x = 1; x <= plane->WIDTH; ++x)
            if (rgb._GET(x, y) == colour) plane->_PUT(x, y, Limited(alpha));
}
} // namespace morvane
