#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "image2d/canvas/rgb.hpp"

namespace morvane {
namespace {
constexpr NAT OPAQUE = 255;

BYTE Component(NAT value) { return static_cast<BYTE>(LIMIT(value, NAT{0}, OPAQUE)); }
VECTORNAT Colour(const HYPERNAT &colour) { return {colour.x, colour.y, colour.z}; }
} // namespace

void TRGBA::INIT(NAT width, NAT height) {
    DONE();
    rgb.INIT(width, height);
    if (rgb.EMPTY()) return;
    alpha.INIT(width, height);
    if (alpha.EMPTY()) DONE(); // no memory, which has been told
}

void TRGBA::DONE() {
    rgb.DONE();
    alpha.DONE();
}

bool TRGBA::CLONE(const TRGBA &other) {
    if (rgb.CLONE(other.rgb) && alpha.CLONE(other.alpha)) return true;
    DONE();
    return false;
}

HYPERNAT TRGBA::_GET(NAT x, NAT y) const {
    const VECTORNAT colour = rgb._GET(x, y);
    return {colour.x, colour.y, colour.z, alpha._GET(x, y)};
}

HYPERNAT TRGBA::GET(NAT x, NAT y) const {
    const VECTORNAT colour = rgb.GET(x, y);
    return {colour.x, colour.y, colour.z, alpha.GET(x, y)};
}

HYPERNAT TRGBA::GETBGRA(NAT x, NAT y) const {
    const VECTORNAT colour = rgb.GETBGR(x, y);
    return {colour.x, colour.y, colour.z, alpha.GET(x, y)};
}

void TRGBA::PUT(NAT x, NAT y, const HYPERNAT &colour) {
    rgb.PUT(x, y, Colour(colour));
    alpha.PUT(x, y, Component(colour.w));
}

// Alpha compositing (Porter and Duff 1984, "over") in whole numbers: `total` is 255 times the new
// alpha; where nothing is to be seen the colour stays.
void TRGBA::PUTOVER(NAT x, NAT y, const HYPERNAT &colour) {
    if (!alpha.INSIDE(x, y)) return;
    const HYPERNAT below = _GET(x, y);
    const NAT above = LIMIT(colour.w, NAT{0}, OPAQUE);
    const NAT total = OPAQUE * above + (OPAQUE - above) * below.w;
    alpha._PUT(x, y, Component(total / OPAQUE));
    if (total == 0) return;
    const auto mix = [&](NAT a, NAT b) {
        const NAT sum = OPAQUE * above * LIMIT(a, NAT{0}, OPAQUE) + below.w * (OPAQUE - above) * b;
        return ROUND(static_cast<REAL>(sum) / static_cast<REAL>(total));
    };
    rgb.PUT(x, y, {mix(colour.x, below.x), mix(colour.y, below.y), mix(colour.z, below.z)});
}

void TRGBA::FILL(const HYPERNAT &colour) {
    rgb.FILL(Colour(colour));
    alpha.FILL(Component(colour.w));
}

void TRGBA::WINDOW() {
    rgb.WINDOW();
    alpha.WINDOW();
}

void TRGBA::WINDOW(NAT x1, NAT y1, NAT x2, NAT y2) {
    rgb.WINDOW(x1, y1, x2, y2);
    alpha.WINDOW(x1, y1, x2, y2);
}

void TRGBA::SETFONT(NAT number) {
    rgb.SETFONT(number);
    alpha.SETFONT(number);
}

HYPERNAT TRGBA::_READVALUE() const {
    const VECTORNAT colour = rgb._READVALUE();
    return {colour.x, colour.y, colour.z, alpha.VALUE};
}

void TRGBA::_WRITEVALUE(const HYPERNAT &colour) {
    rgb._WRITEVALUE(Colour(colour));
    alpha.VALUE = Component(colour.w);
}

HYPERNAT TRGBA::_READBACKGROUND() const {
    const VECTORNAT colour = rgb._READBACKGROUND();
    return {colour.x, colour.y, colour.z, alpha.BACKGROUND};
}

void TRGBA::_WRITEBACKGROUND(const HYPERNAT &colour) {
    rgb._WRITEBACKGROUND(Colour(colour));
    alpha.BACKGROUND = Component(colour.w);
}
} // namespace morvane
