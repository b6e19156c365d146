#pragma once

#include "image2d/canvas/rgb.hpp"
#include "image2d/chart/shape.hpp"

#include <span>

namespace morvane {
// A drawing that is kept as shapes and written as a raster or as SVG, with the same look. The
// picture has its left upper corner at (0, 0); a unit is a pixel. Drawing operations take world
// coordinates, see SCREEN; what lies outside the window is left out. Values without a place in the
// picture (NaN, infinite) are limited or left out, so that each written number is a plain one.
class T2DVECTOR {
public:
    HYPERNAT VALUE{0, 0, 0, 255};            // the pen
    HYPERNAT BACKGROUND{255, 255, 255, 255}; // of the whole picture
    REAL LINEWIDTH = 1;                      // picture units

    T2DVECTOR() = default;
    T2DVECTOR(NAT width, NAT height) { INIT(width, height); }
    T2DVECTOR(const T2DVECTOR &) = delete;
    T2DVECTOR &operator=(const T2DVECTOR &) = delete;

    void INIT(NAT width, NAT height); // all defaults; a size below 1 gives an empty picture
    void DONE();
    void CLEAR(); // no shapes; pen, window and world stay
    NAT WIDTH() const { return sizeX; }
    NAT HEIGHT() const { return sizeY; }
    const std::vector<SHAPE> &SHAPES() const { return shapes; }

    // The drawing area in picture units, limited to the picture; without arguments all of it. The
    // world becomes the picture's own coordinates.
    void WINDOW(REAL x1, REAL y1, REAL x2, REAL y2);
    void WINDOW();
    const PICTURE_AREA &GETWINDOW() const { return window; }
    // World coordinates: a lies on the window's left upper corner, b on its right lower one. An
    // axis whose ends are equal has all its points in the window's middle.
    void SCREEN(const COMPLEX &a, const COMPLEX &b);
    COMPLEX TOPICTURE(const COMPLEX &world) const;

    void LINE(REAL x1, REAL y1, REAL x2, REAL y2);
    // A vertical line, plain or blended: a quarter of the pen over what is there.
    void VLINE(REAL x, REAL y1, REAL y2);
    void VVLINE(REAL x, REAL y1, REAL y2);
    // A part of a filled polygon: between an edge and the column x, plain or blended. What a side
    // of the column has covered since SCAN_RESET is not covered again, so that edges may meet.
    void VLINE(REAL x1, REAL y1, REAL x2, REAL y2, REAL x);
    void VVLINE(REAL x1, REAL y1, REAL x2, REAL y2, REAL x);
    void SCAN_RESET();
    // `radius` of the corners in picture units; a bevel makes the upper edge lighter, the lower
    // darker.
    void RECTANGLE(REAL x1, REAL y1, REAL x2, REAL y2, REAL radius = 0, bool isBevelled = false);
    void FULLRECTANGLE(REAL x1, REAL y1, REAL x2, REAL y2, REAL radius = 0,
                       bool isBevelled = false);
    // A start, then pairs of a control point and an end: quadratic arcs.
    void CURVE(std::span<const COMPLEX> points);
    void POLYLINE(std::span<const COMPLEX> points);
    void POLYGON(std::span<const COMPLEX> points); // filled
    // Radii in picture units; angles in radians from the x axis, against the clock as seen.
    void CIRCLE(REAL x, REAL y, REAL radius);
    void FULLCIRCLE(REAL x, REAL y, REAL radius);
    void ELLIPSE(REAL x, REAL y, REAL radiusX, REAL radiusY, REAL angle = 0);
    void FULLELLIPSE(REAL x, REAL y, REAL radiusX, REAL radiusY, REAL angle = 0);
    void ARC(REAL x, REAL y, REAL radius, REAL from, REAL to);
    void SECTOR(REAL x, REAL y, REAL radius, REAL from, REAL to); // filled

    void SETFONT(NAT number); // as of the canvases; others than 0 to 52 are ignored
    NAT GETFONT() const { return font; }
    // (x, y) is the left upper corner of the first letter; `size` in em of 16 units. LEFT: turned
    // against the clock, running upwards from (x, y).
    void WRITE(REAL x, REAL y, const UTF16 &text, REAL size = 1);
    void WRITE_LEFT(REAL x, REAL y, const UTF16 &text, REAL size = 1);

    // The shapes drawn on the background; `raster` takes the picture's size. False, and an empty
    // raster, for an empty picture or without memory, which is told.
    bool RENDER(TRGBA &raster);
    // A pixel of the rendering, from 1; zero outside. Drawn anew after a drawing operation only.
    HYPERNAT GET(NAT x, NAT y);

    // Each adds its extension when the name has another one, and is false after a failure, which
    // is told. Formats without alpha show the picture on white.
    bool SAVEPBM(const UTF16 &name);
    bool SAVEPGM(const UTF16 &name);
    bool SAVEPPM(const UTF16 &name);
    bool SAVEPAM(const UTF16 &name);
    bool SAVEBMP(const UTF16 &name);
    bool SAVETGA(const UTF16 &name);
    bool SAVETIF(const UTF16 &name);
    bool SAVEPNG(const UTF16 &name);
    bool SAVESVG(const UTF16 &name);
    bool SAVESVGZ(const UTF16 &name);
    // By the extension; any other writes SVG, with ".svg" added.
    bool SAVE(const UTF16 &name);
    std::string GETSVG(); // the whole file

protected:
    // Completes the list before it is played; a derived drawing sets it.
    void (*prepare)(T2DVECTOR &drawing) = nullptr;
    std::vector<SHAPE> shapes;
    void CHANGED() { isRendered = false; } // GET renders anew
    void ADD(SHAPE &&shape);               // in picture units; without memory the shape is left out
    SHAPE MAKE(SHAPE_KIND kind) const;     // with pen, line width, font and window
    SHAPE MAKEFULL(SHAPE_KIND kind) const; // filled with the pen
    void ADDLINE(std::vector<COMPLEX> &&points, const SHAPE &look); // clipped, in picture units
    // A text by its anchor and baseline, in picture units.
    void ADDTEXT(const COMPLEX &place, const UTF16 &text, REAL size, TEXT_ANCHOR anchor,
                 bool isUpwards = false);

private:
    void AddEdge(const COMPLEX &a, const COMPLEX &b, REAL x, bool isBlended);
    void Write(REAL x, REAL y, const UTF16 &text, REAL size, bool isUpwards);
    std::vector<COMPLEX> Points(std::span<const COMPLEX> world) const;
    void Prepare();
    bool Flat(TRGB &image);

    NAT sizeX = 0, sizeY = 0, font = 0;
    PICTURE_AREA window;
    COMPLEX worldA, worldB;
    std::vector<RANGE> covered[2]; // rows covered since SCAN_RESET, left and right of the column
    TRGBA rendering;               // what GET reads; valid while isRendered
    bool isRendered = false;
};
} // namespace morvane
