#include "image2d/canvas/rgb.hpp"

#include "foundation/base/safe_arithmetic.hpp"

namespace morvane {
namespace {
BYTE Component(NAT value) { return static_cast<BYTE>(LIMIT(value, NAT{0}, TGRAY::MAXIMUM)); }
} // namespace

void TRGB::INIT(NAT width, NAT height) {
    DONE();
    for (TGRAY &plane : planes) {
        plane.INIT(width, height);
        if (plane.EMPTY()) return DONE(); // no memory, which has been told, or no size
    }
}

void TRGB::DONE() {
    for (TGRAY &plane : planes)
        plane.DONE();
    NAME = UTF16CHARS7();
}

bool TRGB::CLONE(const TRGB &other) {
    for (std::size_t i = 0; i < planes.size(); ++i)
        if (!planes[i].CLONE(other.planes[i])) {
            DONE();
            return false;
        }
    NAME = other.NAME;
    return true;
}

VECTORNAT TRGB::GET(NAT x, NAT y) const {
    return {planes[0].GET(x, y), planes[1].GET(x, y), planes[2].GET(x, y)};
}

VECTORNAT TRGB::GETBGR(NAT x, NAT y) const {
    return {planes[2].GET(x, y), planes[1].GET(x, y), planes[0].GET(x, y)};
}

NAT TRGB::GETFULLGRAY(NAT x, NAT y) const {
    const VECTORNAT colour = GET(x, y);
    return colour.x + colour.y + colour.z;
}

// Deliberate: the grey of a colour pixel is half the sum of its components, so white reads as 382.
NAT TRGB::GETGRAY(NAT x, NAT y) const { return GETFULLGRAY(x, y) >> 1; }

void TRGB::PUT(NAT x, NAT y, const VECTORNAT &colour) {
    planes[0].PUT(x, y, Component(colour.x));
    planes[1].PUT(x, y, Component(colour.y));
    planes[2].PUT(x, y, Component(colour.z));
}

void TRGB::PUT(NAT x, NAT y) {
    for (TGRAY &plane : planes)
        plane.PUT(x, y);
}

void TRGB::FILL(const VECTORNAT &colour) {
    planes[0].FILL(Component(colour.x));
    planes[1].FILL(Component(colour.y));
    planes[2].FILL(Component(colour.z));
}

void TRGB::GRAY() {
    BYTE *red = planes[0].DATA(), *green = planes[1].DATA(), *blue = planes[2].DATA();
    const NAT count = planes[0].COUNT();
    for (NAT i = 0; i < count; ++i)
        red[i] = green[i] = blue[i] = static_cast<BYTE>((red[i] + green[i] + blue[i]) / 3);
}

void TRGB::WINDOW() {
    for (TGRAY &plane : planes)
        plane.WINDOW();
}

void TRGB::WINDOW(NAT x1, NAT y1, NAT x2, NAT y2) {
    for (TGRAY &plane : planes)
        plane.WINDOW(x1, y1, x2, y2);
}

void TRGB::SETFONT(NAT number) {
    for (TGRAY &plane : planes)
        plane.SETFONT(number);
}

VECTORNAT TRGB::_READVALUE() const { return {planes[0].VALUE, planes[1].VALUE, planes[2].VALUE}; }

void TRGB::_WRITEVALUE(const VECTORNAT &colour) {
    planes[0].VALUE = Component(colour.x);
    planes[1].VALUE = Component(colour.y);
    planes[2].VALUE = Component(colour.z);
}

VECTORNAT TRGB::_READBACKGROUND() const {
    return {planes[0].BACKGROUND, planes[1].BACKGROUND, planes[2].BACKGROUND};
}

void TRGB::_WRITEBACKGROUND(const VECTORNAT &colour) {
    planes[0].BACKGROUND = Component(colour.x);
    planes[1].BACKGROUND = Component(colour.y);
    planes[2].BACKGROUND = Component(colour.z);
}
} // namespace morvane
