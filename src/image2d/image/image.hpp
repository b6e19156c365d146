#pragma once

#include "field3d/raster/frame.hpp"
#include "foundation/base/random.hpp"
#include "image2d/canvas/rgb.hpp"

#include <variant>

namespace morvane {
// The pixel kinds of an image; any other tag byte means "no canvas".
inline constexpr BYTE IMAGE_GRAY = 145;     // 8 bits
inline constexpr BYTE IMAGE_FULLGRAY = 146; // 16 bits
inline constexpr BYTE IMAGE_RGB = 161;
inline constexpr BYTE IMAGE_RGBA = 162;
inline constexpr BYTE IMAGE_ZRGB = 165; // colour with alpha and a depth

// A 2-D image of a chosen pixel kind, placed in space by a frame. It looks at its kind once per
// operation; everything above it works through this class. Without a canvas it answers 0 and does
// nothing, as does an operation that a kind does not have. Coordinates start at 1.
class TIMAGE {
public:
    static constexpr BYTE TAG = 186;

    // Settings, stored as given; commands set them, a running operation only reads them.
    BYTE copyMethod = 1;                // binning: 0 sum, 1 mean, 2 sd, 3..7 min, quartiles, max
    BYTE subMethod = 2;                 // statistic of a scan line, by the same numbers
    BYTE diffusionMethod = 0;           // 1..6; others act as 5
    bool fullScan = false;              // a line that is too short makes its pixel zero
    REAL diffusionAngle = 5 * PI / 180; // radians
    REAL diffusionMax = 0.25;           // a share
    bool diffusionAxial = false;        // angle images hold every axis, see orientation/scan
    UTF16CHARS7 NAME;                   // the file last loaded

    TIMAGE() = default;
    explicit TIMAGE(BYTE tag) { INIT(tag); }
    TIMAGE(BYTE tag, NAT width, NAT height) { INIT(tag, width, height); }
    ~TIMAGE() { DONE(); }
    TIMAGE(const TIMAGE &) = delete;
    TIMAGE &operator=(const TIMAGE &) = delete;

    void INIT(BYTE tag); // an empty image of that kind with all defaults; of an unknown one without
                         // a canvas
    void INIT(BYTE tag, NAT width, NAT height); // zero pixels; empty without memory, which is told
    void NEW() { INIT(kind); }                  // INIT with the own kind
    void NEW(NAT width, NAT height) { INIT(kind, width, height); }
    bool CLONE(const TIMAGE &other);    // kind, size, pixels, frame and name; false without memory
    void TAKE(TIMAGE &other);           // the other's canvas and kind; it is empty then
    void RESIZE(NAT width, NAT height); // nearest neighbour
    void CLEANUP();                     // an empty image of the same kind, without a name
    void _PREDONE();                    // no canvas; the settings stay
    void DONE();                        // no canvas, no kind, defaults; INIT may follow

    BYTE ID() const { return kind; } // one of the pixel kinds, or 0
    bool ISGRAY() const { return kind == IMAGE_GRAY || kind == IMAGE_FULLGRAY; }
    bool ISCOLOUR() const { return kind != 0 && !ISGRAY(); }
    NAT SIZEX() const { return SIZE().x; }
    NAT SIZEY() const { return SIZE().y; }
    COMPLEXNAT SIZE() const;
    NAT _GETSIZEX() const { return SIZEX(); }
    NAT _GETSIZEY() const { return SIZEY(); }
    bool ISNOTEMPTY() const { return SIZEX() > 0; }
    NAT PIXELMAX() const; // 65535 on 16 bits, 255 on all others, 0 without a canvas

    const FRAME &GETFRAME() const { return frame; }
    void SETFRAME(const FRAME &value) { frame = value; }
    const MATRIX3 &_GETMATRIX() const { return frame.MATRIX(); }
    void _SETMATRIX(const MATRIX3 &value) { frame.SETMATRIX(value); }
    const VECTOR &_GETMOVE() const { return frame.MOVE(); }
    void _SETMOVE(const VECTOR &value) { frame.SETMOVE(value); }
    // The rule of positions on an axis (1 is x, 2 is y); see frame.hpp.
    NAT COORD(REAL position, NAT axis) const;
    COMPLEXNAT COORD(const COMPLEX &position) const;

    // A pixel's grey value; on colour kinds half the sum of its components. Outside: of the
    // background.
    NAT GET(NAT x, NAT y) const;
    NAT GETGRAY(NAT x, NAT y) const { return GET(x, y); }
    // Components; grey kinds give their value three times, absent ones are 0 (alpha of RGB: 255).
    VECTORNAT GETRGB(NAT x, NAT y) const;
    HYPERNAT GETRGBA(NAT x, NAT y) const;
    NAT GETALPHA(NAT x, NAT y) const;
    NAT GETZ(NAT x, NAT y) const;
    // Values are limited to the pixel range. PUT of a number writes all components of a colour.
    void PUT(NAT x, NAT y); // the pen
    void PUT(NAT x, NAT y, NAT value);
    void PUTRGB(NAT x, NAT y, const VECTORNAT &colour); // on grey kinds the mean of the components
    void PUTRGBA(NAT x, NAT y, const HYPERNAT &colour);
    void PUTZRGB(NAT x, NAT y, NAT z, const HYPERNAT &colour); // through the depth on ZRGB

    // The pen and the outside value. On colour kinds the grey forms set all components.
    NAT _GETVALUE() const;
    void _SETVALUE(NAT value);
    VECTORNAT _GETRGBVALUE() const;
    void _SETRGBVALUE(const VECTORNAT &colour);
    HYPERNAT _GETRGBAVALUE() const;
    void _SETRGBAVALUE(const HYPERNAT &colour);
    NAT _GETBACKGROUND() const;
    void _SETBACKGROUND(NAT value);
    HYPERNAT _GETRGBABACKGROUND() const;
    void _SETRGBBACKGROUND(const VECTORNAT &colour);
    void _SETRGBABACKGROUND(const HYPERNAT &colour);

    // f(canvas) with the TGRAY, TFULLGRAY, TRGB, TRGBA or TZRGB in use; a default result without
    // one.
    template <class F> auto _DISPATCH(F &&f) const { return Dispatch(storage, f); }
    template <class F> auto _DISPATCH(F &&f) { return Dispatch(storage, f); }
    // f(plane) for each plane that a grey or colour filter works on: the canvas of a grey kind,
    // red, green and blue, and the alpha of RGBA. None of ZRGB.
    template <class F> void _PLANES(F &&f);
    // f(plane) for every plane of any kind, depth and alpha too: moves of whole images.
    template <class F> void _ALLPLANES(F &&f);
    TGRAY *_GRAY() { return std::get_if<TGRAY>(&storage); } // the canvas, null of another kind
    TFULLGRAY *_FULLGRAY() { return std::get_if<TFULLGRAY>(&storage); }
    TRGB *_RGB(); // the colour planes of the three colour kinds
    TRGBA *_RGBA() { return std::get_if<TRGBA>(&storage); }
    TZRGB *_ZRGB() { return std::get_if<TZRGB>(&storage); }
    const TGRAY *_GRAY() const { return std::get_if<TGRAY>(&storage); }
    const TFULLGRAY *_FULLGRAY() const { return std::get_if<TFULLGRAY>(&storage); }
    const TRGB *_RGB() const { return const_cast<TIMAGE *>(this)->_RGB(); }
    const TRGBA *_RGBA() const { return std::get_if<TRGBA>(&storage); }
    const TZRGB *_ZRGB() const { return std::get_if<TZRGB>(&storage); }

private:
    using STORAGE = std::variant<std::monostate, TGRAY, TFULLGRAY, TRGB, TRGBA, TZRGB>;
    template <class S, class F> static auto Dispatch(S &storage, F &f) {
        using RESULT = decltype(f(*std::get_if<TGRAY>(&storage)));
        switch (storage.index()) {
        case 1: return f(*std::get_if<TGRAY>(&storage));
        case 2: return f(*std::get_if<TFULLGRAY>(&storage));
        case 3: return f(*std::get_if<TRGB>(&storage));
        case 4: return f(*std::get_if<TRGBA>(&storage));
        case 5: return f(*std::get_if<TZRGB>(&storage));
        default: return RESULT();
        }
    }
    void Construct(BYTE tag);

    FRAME frame;
    BYTE kind = 0;
    STORAGE storage;
};

template <class F> void TIMAGE::_PLANES(F &&f) {
    if (TGRAY *gray = _GRAY()) f(*gray);
    if (TFULLGRAY *full = _FULLGRAY()) f(*full);
    if (_ZRGB()) return;
    if (TRGB *rgb = _RGB())
        for (TGRAY &plane : rgb->planes)
            f(plane);
    if (TRGBA *rgba = _RGBA()) f(rgba->alpha);
}

template <class F> void TIMAGE::_ALLPLANES(F &&f) {
    _PLANES(f);
    TZRGB *zrgb = _ZRGB();
    if (!zrgb) return;
    for (TGRAY &plane : zrgb->rgb.planes)
        f(plane);
    f(zrgb->depth);
    f(zrgb->alpha);
}
} // namespace morvane
