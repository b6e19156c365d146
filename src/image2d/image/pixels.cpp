#include "foundation/base/safe_arithmetic.hpp"
#include "image2d/image/image.hpp"

// Single pixels, the pen and the background of an image.
namespace morvane {
namespace {
constexpr NAT OPAQUE = 255;

template <class PIXEL> PIXEL Limited(NAT value) {
    return static_cast<PIXEL>(LIMIT(value, NAT{0}, CANVAS<PIXEL>::MAXIMUM));
}
VECTORNAT Alike(NAT value) { return {value, value, value}; }
VECTORNAT Colour(const HYPERNAT &colour) { return {colour.x, colour.y, colour.z}; }
NAT Mean(const VECTORNAT &colour) { return (colour.x + colour.y + colour.z) / 3; }
HYPERNAT WithAlpha(const VECTORNAT &colour, NAT alpha) {
    return {colour.x, colour.y, colour.z, alpha};
}
} // namespace

NAT TIMAGE::GET(NAT x, NAT y) const {
    if (const TGRAY *gray = _GRAY()) return gray->GET(x, y);
    if (const TFULLGRAY *full = _FULLGRAY()) return full->GET(x, y);
    if (const TRGB *rgb = _RGB()) return rgb->GETGRAY(x, y);
    return 0;
}

VECTORNAT TIMAGE::GETRGB(NAT x, NAT y) const {
    if (const TRGB *rgb = _RGB()) return rgb->GET(x, y);
    return Alike(GET(x, y));
}

NAT TIMAGE::GETALPHA(NAT x, NAT y) const {
    if (const TRGBA *rgba = _RGBA()) return rgba->alpha.GET(x, y);
    if (const TZRGB *zrgb = _ZRGB()) return zrgb->GETALPHA(x, y);
    return kind == IMAGE_RGB ? OPAQUE : 0;
}

HYPERNAT TIMAGE::GETRGBA(NAT x, NAT y) const { return WithAlpha(GETRGB(x, y), GETALPHA(x, y)); }

NAT TIMAGE::GETZ(NAT x, NAT y) const {
    const TZRGB *zrgb = _ZRGB();
    return zrgb ? zrgb->GETZ(x, y) : 0;
}

void TIMAGE::PUT(NAT x, NAT y) {
    if (TGRAY *gray = _GRAY()) return gray->PUT(x, y);
    if (TFULLGRAY *full = _FULLGRAY()) return full->PUT(x, y);
    PUTRGBA(x, y, _GETRGBAVALUE());
}

void TIMAGE::PUT(NAT x, NAT y, NAT value) {
    if (TGRAY *gray = _GRAY()) return gray->PUT(x, y, Limited<BYTE>(value));
    if (TFULLGRAY *full = _FULLGRAY()) return full->PUT(x, y, Limited<WORD>(value));
    if (ISCOLOUR()) PUTRGB(x, y, Alike(value));
}

void TIMAGE::PUTRGB(NAT x, NAT y, const VECTORNAT &colour) {
    if (TRGB *rgb = std::get_if<TRGB>(&storage)) return rgb->PUT(x, y, colour);
    if (ISCOLOUR()) return PUTRGBA(x, y, WithAlpha(colour, OPAQUE));
    PUT(x, y, Mean(colour));
}

void TIMAGE::PUTRGBA(NAT x, NAT y, const HYPERNAT &colour) {
    if (TRGBA *rgba = _RGBA()) return rgba->PUT(x, y, colour);
    if (TZRGB *zrgb = _ZRGB()) {
        zrgb->rgb.PUT(x, y, Colour(colour));
        return zrgb->alpha.PUT(x, y, Limited<BYTE>(colour.w));
    }
    PUTRGB(x, y, Colour(colour));
}

void TIMAGE::PUTZRGB(NAT x, NAT y, NAT z, const HYPERNAT &colour) {
    if (TZRGB *zrgb = _ZRGB()) return zrgb->PUTPIXEL(x, y, z, colour);
    PUTRGBA(x, y, colour);
}

HYPERNAT TIMAGE::_GETRGBAVALUE() const {
    if (const TGRAY *gray = _GRAY()) return WithAlpha(Alike(gray->VALUE), 0);
    if (const TFULLGRAY *full = _FULLGRAY()) return WithAlpha(Alike(full->VALUE), 0);
    if (const TRGBA *rgba = _RGBA()) return rgba->_READVALUE();
    if (const TZRGB *zrgb = _ZRGB()) return zrgb->_READVALUE();
    if (const TRGB *rgb = _RGB()) return WithAlpha(rgb->_READVALUE(), OPAQUE);
    return {};
}

void TIMAGE::_SETRGBAVALUE(const HYPERNAT &colour) {
    if (TGRAY *gray = _GRAY()) gray->VALUE = Limited<BYTE>(Mean(Colour(colour)));
    if (TFULLGRAY *full = _FULLGRAY()) full->VALUE = Limited<WORD>(Mean(Colour(colour)));
    if (TRGBA *rgba = _RGBA()) return rgba->_WRITEVALUE(colour);
    if (TZRGB *zrgb = _ZRGB()) return zrgb->_WRITEVALUE(colour);
    if (TRGB *rgb = _RGB()) rgb->_WRITEVALUE(Colour(colour));
}

VECTORNAT TIMAGE::_GETRGBVALUE() const { return Colour(_GETRGBAVALUE()); }
void TIMAGE::_SETRGBVALUE(const VECTORNAT &colour) { _SETRGBAVALUE(WithAlpha(colour, OPAQUE)); }
NAT TIMAGE::_GETVALUE() const { return Mean(_GETRGBVALUE()); }
void TIMAGE::_SETVALUE(NAT value) {
    const NAT limited = LIMIT(value, NAT{0}, PIXELMAX());
    _SETRGBVALUE(Alike(limited));
}

HYPERNAT TIMAGE::_GETRGBABACKGROUND() const {
    if (const TGRAY *gray = _GRAY()) return WithAlpha(Alike(gray->BACKGROUND), 0);
    if (const TFULLGRAY *full = _FULLGRAY()) return WithAlpha(Alike(full->BACKGROUND), 0);
    if (const TRGBA *rgba = _RGBA()) return rgba->_READBACKGROUND();
    if (const TZRGB *zrgb = _ZRGB()) return zrgb->_READBACKGROUND();
    if (const TRGB *rgb = _RGB()) return WithAlpha(rgb->_READBACKGROUND(), OPAQUE);
    return {};
}

void TIMAGE::_SETRGBABACKGROUND(const HYPERNAT &colour) {
    if (TGRAY *gray = _GRAY()) gray->BACKGROUND = Limited<BYTE>(Mean(Colour(colour)));
    if (TFULLGRAY *full = _FULLGRAY()) full->BACKGROUND = Limited<WORD>(Mean(Colour(colour)));
    if (TRGBA *rgba = _RGBA()) return rgba->_WRITEBACKGROUND(colour);
    if (TZRGB *zrgb = _ZRGB()) return zrgb->_WRITEBACKGROUND(colour);
    if (TRGB *rgb = _RGB()) rgb->_WRITEBACKGROUND(Colour(colour));
}

void TIMAGE::_SETRGBBACKGROUND(const VECTORNAT &colour) {
    _SETRGBABACKGROUND(WithAlpha(colour, OPAQUE));
}
NAT TIMAGE::_GETBACKGROUND() const { return Mean(Colour(_GETRGBABACKGROUND())); }
void TIMAGE::_SETBACKGROUND(NAT value) {
    _SETRGBBACKGROUND(Alike(LIMIT(value, NAT{0}, PIXELMAX())));
}
} // namespace morvane
