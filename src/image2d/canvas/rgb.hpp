#pragma once

#include "foundation/base/utf16chars7.hpp"
#include "image2d/canvas/canvas.hpp"

#include <array>

// Colour images are planar: each component is a canvas of its own, and a plain operation runs on
// each plane. Colours are records of 0..255.
namespace morvane {
// Red, green and blue.
class TRGB {
public:
    std::array<TGRAY, 3> planes;
    UTF16CHARS7 NAME; // the file that filled the image

    TRGB() = default;
    TRGB(NAT width, NAT height) { INIT(width, height); }

    void INIT() { DONE(); }
    void INIT(NAT width, NAT height); // all planes, or an empty image
    void DONE();
    bool CLONE(const TRGB &other); // false when memory ran out; the image is empty then

    NAT WIDTH() const { return planes[0].WIDTH; }
    NAT HEIGHT() const { return planes[0].HEIGHT; }
    bool EMPTY() const { return planes[0].EMPTY(); }
    TGRAY &RED() { return planes[0]; }
    TGRAY &GREEN() { return planes[1]; }
    TGRAY &BLUE() { return planes[2]; }
    const TGRAY &RED() const { return planes[0]; }
    const TGRAY &GREEN() const { return planes[1]; }
    const TGRAY &BLUE() const { return planes[2]; }

    VECTORNAT _GET(NAT x, NAT y) const {
        return {planes[0]._GET(x, y), planes[1]._GET(x, y), planes[2]._GET(x, y)};
    }
    VECTORNAT GET(NAT x, NAT y) const; // the planes' backgrounds outside
    VECTORNAT GETBGR(NAT x, NAT y) const;
    NAT GETFULLGRAY(NAT x, NAT y) const;             // r + g + b, 0..765
    NAT GETGRAY(NAT x, NAT y) const;                 // that sum shifted right by one
    void PUT(NAT x, NAT y, const VECTORNAT &colour); // each component limited to 0..255
    void PUT(NAT x, NAT y);                          // the pen
    void FILL(const VECTORNAT &colour);
    void GRAY(); // all planes become (r+g+b)/3

    void WINDOW();
    void WINDOW(NAT x1, NAT y1, NAT x2, NAT y2);
    void SETFONT(NAT number);
    NAT GETFONT() const { return planes[0].GETFONT(); }

    // The pen and the outside colour of all planes at once, limited to 0..255.
    VECTORNAT _READVALUE() const;
    void _WRITEVALUE(const VECTORNAT &colour);
    VECTORNAT _READBACKGROUND() const;
    void _WRITEBACKGROUND(const VECTORNAT &colour);
};

// Red, green, blue and alpha; 255 is opaque. New images are transparent black.
class TRGBA {
public:
    TRGB rgb;
    TGRAY alpha;

    TRGBA() = default;
    TRGBA(NAT width, NAT height) { INIT(width, height); }

    void INIT() { DONE(); }
    void INIT(NAT width, NAT height);
    void DONE();
    bool CLONE(const TRGBA &other);
    void CLEAR() { FILL({}); } // transparent black

    NAT WIDTH() const { return rgb.WIDTH(); }
    NAT HEIGHT() const { return rgb.HEIGHT(); }
    bool EMPTY() const { return rgb.EMPTY(); }

    HYPERNAT _GET(NAT x, NAT y) const;
    HYPERNAT GET(NAT x, NAT y) const;
    VECTORNAT GETRGB(NAT x, NAT y) const { return rgb.GET(x, y); }
    HYPERNAT GETBGRA(NAT x, NAT y) const;
    NAT GETFULLGRAY(NAT x, NAT y) const { return rgb.GETFULLGRAY(x, y); }
    NAT GETGRAY(NAT x, NAT y) const { return rgb.GETGRAY(x, y); }
    void PUT(NAT x, NAT y, const HYPERNAT &colour);
    void PUT(NAT x, NAT y) { PUT(x, y, _READVALUE()); }
    // The colour laid over the pixel by its alpha, in whole numbers.
    void PUTOVER(NAT x, NAT y, const HYPERNAT &colour);
    void PUTOVER(NAT x, NAT y) { PUTOVER(x, y, _READVALUE()); }
    void FILL(const HYPERNAT &colour);

    void WINDOW();
    void WINDOW(NAT x1, NAT y1, NAT x2, NAT y2);
    void SETFONT(NAT number);
    NAT GETFONT() const { return rgb.GETFONT(); }

    HYPERNAT _READVALUE() const;
    void _WRITEVALUE(const HYPERNAT &colour);
    HYPERNAT _READBACKGROUND() const;
    void _WRITEBACKGROUND(const HYPERNAT &colour);
};

// Colour with alpha and a 16-bit depth; of two points on one pixel the one with the larger depth
// is seen. New images are transparent black at depth 0.
class TZRGB {
public:
    TRGB rgb;
    TFULLCANVAS depth;
    TCANVAS alpha;

    TZRGB() = default;
    TZRGB(NAT width, NAT height) { INIT(width, height); }

    void INIT() { DONE(); }
    void INIT(NAT width, NAT height);
    void INIT(NAT width, NAT height, bool opaque);         // true: alpha starts at 255
    void INIT(NAT width, NAT height, REAL low, REAL high); // the range of depths that are given
    void DONE();
    bool CLONE(const TZRGB &other);

    NAT WIDTH() const { return rgb.WIDTH(); }
    NAT HEIGHT() const { return rgb.HEIGHT(); }
    bool EMPTY() const { return rgb.EMPTY(); }

    NAT _COMPUTE(REAL z) const; // low..high to 2..65535, limited
    HYPERNAT GET(NAT x, NAT y) const { return GETRGBA(x, y); }
    NAT GETZ(NAT x, NAT y) const { return depth.GET(x, y); }
    NAT GETALPHA(NAT x, NAT y) const { return alpha.GET(x, y); }
    VECTORNAT GETRGB(NAT x, NAT y) const { return rgb.GET(x, y); }
    VECTORNAT GETBGR(NAT x, NAT y) const { return rgb.GETBGR(x, y); }
    HYPERNAT GETRGBA(NAT x, NAT y) const;
    NAT GETGRAY(NAT x, NAT y) const { return rgb.GETGRAY(x, y); }

    // A cell of 2x2 pixels from (x, y) on, each where the stored depth is at most z (0..65535). The
    // pen's colour with alpha 255, a colour with alpha 255, or a colour with its alpha.
    void PUT(NAT x, NAT y, NAT z) { PUT(x, y, z, _READVALUE()); }
    void PUT(NAT x, NAT y, NAT z, const VECTORNAT &colour);
    void PUT(NAT x, NAT y, NAT z, const HYPERNAT &colour);
    void SUBDOT(NAT x, NAT y, NAT z, const HYPERNAT &colour) { PUT(x, y, z, colour); }
    // One pixel through the same test.
    void PUTPIXEL(NAT x, NAT y, NAT z, const HYPERNAT &colour);
    void LINE(NAT x1, NAT y1, NAT x2, NAT y2, NAT z); // the pen along a straight line

    HYPERNAT _READVALUE() const;
    void _WRITEVALUE(const HYPERNAT &colour);
    HYPERNAT _READBACKGROUND() const;
    void _WRITEBACKGROUND(const HYPERNAT &colour);
    void SETFONT(NAT number) { rgb.SETFONT(number); }
    NAT GETFONT() const { return rgb.GETFONT(); }

private:
    REAL low = 0, high = 65535;
    BYTE penAlpha = 255;
};
} // namespace morvane
