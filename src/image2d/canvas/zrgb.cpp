#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "image2d/canvas/rgb.hpp"

#include <algorithm>
#include <cmath>

namespace morvane {
namespace {
constexpr NAT OPAQUE = 255;
// Depth 0 is the empty background and 1 is left for what is always behind.
constexpr NAT NEAREST_DEPTH = 65535, FARTHEST_DEPTH = 2;
constexpr NAT FARTHEST = NAT{1} << 40; // coordinates are limited to this
constexpr NAT MOST_STEPS = NAT{1} << 24;
} // namespace

void TZRGB::INIT(NAT width, NAT height) { INIT(width, height, false); }

void TZRGB::INIT(NAT width, NAT height, bool opaque) {
    DONE();
    rgb.INIT(width, height);
    if (rgb.EMPTY()) return;
    depth.INIT(width, height);
    alpha.INIT(width, height);
    if (depth.EMPTY() || alpha.EMPTY()) return DONE(); // no memory, which has been told
    if (opaque) alpha.FILL(static_cast<BYTE>(OPAQUE));
}

void TZRGB::INIT(NAT width, NAT height, REAL newLow, REAL newHigh) {
    INIT(width, height, false);
    low = newLow;
    high = newHigh;
}

void TZRGB::DONE() {
    rgb.DONE();
    depth.DONE();
    alpha.DONE();
    low = 0;
    high = static_cast<REAL>(NEAREST_DEPTH);
    penAlpha = static_cast<BYTE>(OPAQUE);
}

bool TZRGB::CLONE(const TZRGB &other) {
    low = other.low;
    high = other.high;
    penAlpha = other.penAlpha;
    if (rgb.CLONE(other.rgb) && depth.CLONE(other.depth) && alpha.CLONE(other.alpha)) return true;
    DONE();
    return false;
}

NAT TZRGB::_COMPUTE(REAL z) const {
    const REAL mapped =
        MINMAX(z, low, high, static_cast<REAL>(FARTHEST_DEPTH), static_cast<REAL>(NEAREST_DEPTH));
    return LIMIT(ROUND(mapped), FARTHEST_DEPTH, NEAREST_DEPTH);
}

HYPERNAT TZRGB::GETRGBA(NAT x, NAT y) const {
    const VECTORNAT colour = rgb.GET(x, y);
    return {colour.x, colour.y, colour.z, alpha.GET(x, y)};
}

void TZRGB::PUT(NAT x, NAT y, NAT z, const VECTORNAT &colour) {
    PUT(x, y, z, HYPERNAT{colour.x, colour.y, colour.z, OPAQUE});
}

void TZRGB::PUT(NAT x, NAT y, NAT z, const HYPERNAT &colour) {
    if (x < 0 || y < 0 || x > WIDTH() || y > HEIGHT()) return;
    PUTPIXEL(x, y, z, colour);
    PUTPIXEL(x + 1, y, z, colour);
    PUTPIXEL(x, y + 1, z, colour);
    PUTPIXEL(x + 1, y + 1, z, colour);
}

void TZRGB::PUTPIXEL(NAT x, NAT y, NAT z, const HYPERNAT &colour) {
    if (!depth.INSIDE(x, y) || depth._GET(x, y) > z) return;
    depth._PUT(x, y, static_cast<WORD>(LIMIT(z, NAT{0}, NEAREST_DEPTH)));
    rgb.PUT(x, y, {colour.x, colour.y, colour.z});
    alpha._PUT(x, y, static_cast<BYTE>(LIMIT(colour.w, NAT{0}, OPAQUE)));
}

void TZRGB::LINE(NAT x1, NAT y1, NAT x2, NAT y2, NAT z) {
    x1 = LIMIT(x1, -FARTHEST, FARTHEST), y1 = LIMIT(y1, -FARTHEST, FARTHEST);
    x2 = LIMIT(x2, -FARTHEST, FARTHEST), y2 = LIMIT(y2, -FARTHEST, FARTHEST);
    const REAL dx = static_cast<REAL>(x2 - x1), dy = static_cast<REAL>(y2 - y1);
    const NAT steps = std::min(ROUND(std::hypot(dx, dy)), MOST_STEPS);
    const REAL count = static_cast<REAL>(std::max<NAT>(steps, 1));
    const HYPERNAT pen = _READVALUE();
    for (NAT i = 0; i <= steps; ++i) {
        const REAL share = static_cast<REAL>(i) / count;
        PUTPIXEL(x1 + ROUND(dx * share), y1 + ROUND(dy * share), z, pen);
    }
}

HYPERNAT TZRGB::_READVALUE() const {
    const VECTORNAT colour = rgb._READVALUE();
    return {colour.x, colour.y, colour.z, penAlpha};
}

void TZRGB::_WRITEVALUE(const HYPERNAT &colour) {
    rgb._WRITEVALUE({colour.x, colour.y, colour.z});
    penAlpha = static_cast<BYTE>(LIMIT(colour.w, NAT{0}, OPAQUE));
}

HYPERNAT TZRGB::_READBACKGROUND() const {
    const VECTORNAT colour = rgb._READBACKGROUND();
    return {colour.x, colour.y, colour.z, alpha.BACKGROUND};
}

void TZRGB::_WRITEBACKGROUND(const HYPERNAT &colour) {
    rgb._WRITEBACKGROUND({colour.x, colour.y, colour.z});
    alpha.BACKGROUND = static_cast<BYTE>(LIMIT(colour.w, NAT{0}, OPAQUE));
}
} // namespace morvane
