#pragma once

#include "foundation/base/records.hpp"
#include "foundation/container/poly_bool.hpp"
#include "foundation/container/poly_types.hpp"

#include <limits>
#include <string_view>

namespace morvane {
// An inclusive rectangle of pixels; empty when an end lies before its beginning.
struct PIXEL_AREA {
    NAT left = 1, top = 1, right = 0, bottom = 0;

    bool EMPTY() const { return right < left || bottom < top; }
    NAT WIDTH() const { return EMPTY() ? 0 : right - left + 1; }
    NAT HEIGHT() const { return EMPTY() ? 0 : bottom - top + 1; }
    bool HOLDS(NAT x, NAT y) const { return x >= left && x <= right && y >= top && y <= bottom; }
};

// A grey raster of 8 or 16 bits in one block: coordinates from 1, (1, 1) is the first pixel of the
// first row, x runs fastest. A read outside gives BACKGROUND, a write outside is dropped.
template <class PIXEL> class CANVAS {
public:
    using TYPE = PIXEL;
    static constexpr NAT MAXIMUM = std::numeric_limits<PIXEL>::max();

    NAT WIDTH = 0, HEIGHT = 0; // both 0 when the canvas is empty; set by INIT alone
    PIXEL BACKGROUND = 0;      // what GET gives outside
    PIXEL VALUE = std::numeric_limits<PIXEL>::max(); // the pen
    PIXEL_AREA window;                               // the drawing routines stay inside it
    NAT LINEWIDTH = 1;                               // a 1000th of the diagonal, at least 1
    COMPLEX CENTER{};                                // the middle, in pixel coordinates

    CANVAS() = default;
    CANVAS(NAT width, NAT height) { INIT(width, height); }
    CANVAS(const CANVAS &) = delete;
    CANVAS &operator=(const CANVAS &) = delete;
    CANVAS(CANVAS &&other) noexcept { SWAP(other); }
    CANVAS &operator=(CANVAS &&other) noexcept {
        SWAP(other);
        return *this;
    }
    ~CANVAS() { DONE(); }

    void INIT() { DONE(); } // an empty canvas with all defaults
    // Zero pixels, all defaults, window = whole canvas. A size below 1 gives an empty canvas, as
    // does a failed allocation, which prints its line.
    void INIT(NAT width, NAT height);
    void DONE();
    void SWAP(CANVAS &other) noexcept; // exchanges pixels and all settings
    void REPLACE(CANVAS &other); // takes its pixels and size, keeps pen, background and font; the
                                 // other is empty then
    bool CLONE(const CANVAS &other); // a copy with all settings; false when memory ran out

    bool EMPTY() const { return WIDTH == 0; }
    NAT COUNT() const { return WIDTH * HEIGHT; }
    PIXEL_AREA WHOLE() const { return {1, 1, WIDTH, HEIGHT}; }
    bool INSIDE(NAT x, NAT y) const { return x >= 1 && y >= 1 && x <= WIDTH && y <= HEIGHT; }

    PIXEL _GET(NAT x, NAT y) const { return DATA()[x - 1 + (y - 1) * WIDTH]; }
    void _PUT(NAT x, NAT y, PIXEL value) { DATA()[x - 1 + (y - 1) * WIDTH] = value; }
    PIXEL GET(NAT x, NAT y) const { return INSIDE(x, y) ? _GET(x, y) : BACKGROUND; }
    void PUT(NAT x, NAT y, PIXEL value) {
        if (INSIDE(x, y)) _PUT(x, y, value);
    }
    void PUT(NAT x, NAT y) { PUT(x, y, VALUE); }
    // The block for kernels and files: HEIGHT rows of WIDTH pixels; a row's first pixel.
    PIXEL *DATA() { return static_cast<PIXEL *>(block.DATA); }
    const PIXEL *DATA() const { return static_cast<const PIXEL *>(block.DATA); }
    PIXEL *ROW(NAT y) { return DATA() + (y - 1) * WIDTH; }
    const PIXEL *ROW(NAT y) const { return DATA() + (y - 1) * WIDTH; }

    void FILL(PIXEL value);                      // all pixels
    void WINDOW(NAT x1, NAT y1, NAT x2, NAT y2); // each value limited to the canvas
    void WINDOW() { window = WHOLE(); }
    PIXEL_AREA LIMITED(const PIXEL_AREA &area) const; // the area that WINDOW would set

    // The flags that stop a polygon scan from plotting a pixel twice; one a column, one a row.
    TPOLYBOOL SCANLEFT, SCANRIGHT;

    // Font n of 0 to 52: n mod 10 is the glyph set (0, 1, 2; others act as 0), 50 and more draw
    // with soft borders. Others are ignored.
    void SETFONT(NAT number);
    NAT GETFONT() const { return font; }

private:
    TPOLY block;
    NAT font = 0;
};

using TRAWCANVAS = CANVAS<BYTE>; // the storage and drawing of 8-bit rasters
using TCANVAS = CANVAS<BYTE>;    // the same with sub-pixel lines (draw.hpp)
using TGRAY = CANVAS<BYTE>;      // the same with files (image2d/format)
using TFULLCANVAS = CANVAS<WORD>;
using TFULLGRAY = CANVAS<WORD>;

// Values of the window, or of the whole canvas. On an empty canvas: MIN and MIN0 the largest pixel
// value, all others 0.
struct PIXEL_LIMITS {
    NAT min, max, min0; // min0: the smallest value above 0
};
template <class PIXEL> PIXEL_LIMITS GETLIMITS(const CANVAS<PIXEL> &canvas, const PIXEL_AREA &area);
template <class PIXEL> PIXEL_LIMITS GETLIMITS(const CANVAS<PIXEL> &canvas) {
    return GETLIMITS(canvas, canvas.WHOLE());
}
// Pixels in low..high, and the sum of their values.
template <class PIXEL>
NAT COUNT(const CANVAS<PIXEL> &canvas, NAT low, NAT high, const PIXEL_AREA &area);
template <class PIXEL> NAT COUNT(const CANVAS<PIXEL> &canvas, NAT low, NAT high) {
    return COUNT(canvas, low, high, canvas.WHOLE());
}
template <class PIXEL>
NAT SUM(const CANVAS<PIXEL> &canvas, NAT low, NAT high, const PIXEL_AREA &area);
template <class PIXEL> NAT SUM(const CANVAS<PIXEL> &canvas, NAT low, NAT high) {
    return SUM(canvas, low, high, canvas.WHOLE());
}
// Pixels a value, value v in bin v+1, MAXIMUM+1 bins; empty for an empty canvas.
template <class PIXEL> void HISTOGRAM(const CANVAS<PIXEL> &canvas, TPOLY_OF<NAT> &bins);
// The most frequent value, the smallest of equals; 0 for an empty canvas.
template <class PIXEL> NAT GETBACKGROUND(const CANVAS<PIXEL> &canvas);

// Mirrors and turns; 90 is clockwise. 90 and 270 exchange width and height and set the window to
// the whole; the pixels stay when memory runs out, which is told.
template <class PIXEL> void FLIPX(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area);
template <class PIXEL> void FLIPY(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area);
template <class PIXEL> void ROTATE90(CANVAS<PIXEL> &canvas);
template <class PIXEL> void ROTATE180(CANVAS<PIXEL> &canvas);
template <class PIXEL> void ROTATE270(CANVAS<PIXEL> &canvas);
// Copies the area of `other` to the same place of `canvas`, as far as both reach.
template <class PIXEL>
void INSERT(CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const CANVAS<PIXEL> &other);
// Copies all of `other` so that its first pixel lies at (x, y).
template <class PIXEL> void INSERT(CANVAS<PIXEL> &canvas, NAT x, NAT y, const CANVAS<PIXEL> &other);
} // namespace morvane
