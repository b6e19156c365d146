#include "image2d/canvas/font.hpp"

#include <algorithm>

namespace morvane {
namespace {
constexpr NAT REPLACEMENT = 12; // byte of the glyph for codes without one
constexpr NAT SOFT_FONTS = 50;
constexpr NAT BOLD = 1, ITALIC = 2, UNDERLINED = 3, BOLD_ITALIC = 4; // tens of a font number
constexpr std::size_t UNDERLINE_ROW = 14;
// Letters are drawn for texts of at most this many units: more do not fit any raster.
constexpr NAT LONGEST_TEXT = 1 << 16;

BYTE Bold(BYTE row) { return static_cast<BYTE>(row | row >> 1); }
// The upper rows lean to the right by up to two pixels.
BYTE Leaning(BYTE row, std::size_t y) {
    return static_cast<BYTE>(row >> ((GLYPH_HEIGHT - 1 - y) / 6));
}

void Style(GLYPH &glyph, NAT style) {
    for (std::size_t y = 0; y < glyph.rows.size(); ++y) {
        BYTE &row = glyph.rows[y];
        if (style == BOLD || style == BOLD_ITALIC) row = Bold(row);
        if (style == ITALIC || style == BOLD_ITALIC) row = Leaning(row, y);
    }
    if (style == UNDERLINED) glyph.rows[UNDERLINE_ROW] = 255;
}

// Calls point(dx, dy, soft) for each pixel of a glyph, dx and dy from 0 in its own cell.
template <class POINT> void EachPixel(const GLYPH &glyph, const POINT &point) {
    for (NAT dy = 0; dy < GLYPH_HEIGHT; ++dy) {
        const auto row = static_cast<std::size_t>(dy);
        for (NAT dx = 0; dx < GLYPH_WIDTH; ++dx) {
            const int bit = 0x80 >> dx;
            if (glyph.rows[row] & bit)
                point(dx, dy, false);
            else if (glyph.soft[row] & bit)
                point(dx, dy, true);
        }
    }
}

struct PLACE {
    NAT x, y;
};
PLACE Turned(NAT x, NAT y, NAT dx, NAT dy, WRITE_DIRECTION direction) {
    switch (direction) {
    case WRITE_DIRECTION::LEFT: return {x + dy, y - dx};
    case WRITE_DIRECTION::RIGHT: return {x - dy, y + dx};
    default: return {x + dx, y + dy};
    }
}
PLACE Next(PLACE at, WRITE_DIRECTION direction) {
    switch (direction) {
    case WRITE_DIRECTION::LEFT: return {at.x, at.y - GLYPH_WIDTH};
    case WRITE_DIRECTION::RIGHT: return {at.x, at.y + GLYPH_WIDTH};
    default: return {at.x + GLYPH_WIDTH, at.y};
    }
}

NAT Code(const UTF16 &text, NAT index) {
    const UTF16CHAR unit = text.GETCHAR(index);
    return NAT{unit.low} + 256 * NAT{unit.high};
}

constexpr NAT FARTHEST = NAT{1} << 40;
bool IsNear(NAT x, NAT y) { return std::abs(x) < FARTHEST && std::abs(y) < FARTHEST; }
} // namespace

NAT GLYPH_OFFSET(NAT code) {
    const auto runs = GLYPH_RUNS();
    const auto run = std::lower_bound(runs.begin(), runs.end(), code,
                                      [](const GLYPH_RUN &a, NAT b) { return a.high < b; });
    if (run == runs.end() || code < run->low) return REPLACEMENT;
    return run->offset + (code - run->low) * GLYPH_HEIGHT;
}

GLYPH GET_GLYPH(NAT font, NAT code) {
    const std::span<const BYTE> set = GLYPH_SET(font % 10);
    GLYPH glyph;
    std::copy_n(set.begin() + GLYPH_OFFSET(code), GLYPH_HEIGHT, glyph.rows.begin());
    Style(glyph, font / 10);
    for (std::size_t y = 0; y < glyph.rows.size(); ++y) {
        const BYTE above = y > 0 ? glyph.rows[y - 1] : BYTE{0};
        const BYTE below = y + 1 < glyph.rows.size() ? glyph.rows[y + 1] : BYTE{0};
        const bool isBorder = font >= SOFT_FONTS || (above && below);
        if (glyph.rows[y] == 0 && isBorder) glyph.soft[y] = above | below;
    }
    return glyph;
}

template <class PIXEL>
void WRITECHAR(CANVAS<PIXEL> &canvas, NAT x, NAT y, NAT code, WRITE_DIRECTION direction) {
    if (canvas.EMPTY() || code == 0 || !IsNear(x, y)) return;
    EachPixel(GET_GLYPH(canvas.GETFONT(), code), [&](NAT dx, NAT dy, bool soft) {
        const PLACE at = Turned(x, y, dx, dy, direction);
        if (!canvas.window.HOLDS(at.x, at.y)) return;
        const NAT old = canvas._GET(at.x, at.y);
        canvas._PUT(at.x, at.y,
                    soft ? static_cast<PIXEL>((3 * old + canvas.VALUE) / 4) : canvas.VALUE);
    });
}

template <class PIXEL>
void WRITE(CANVAS<PIXEL> &canvas, NAT x, NAT y, const UTF16 &text, WRITE_DIRECTION direction) {
    if (!IsNear(x, y)) return;
    PLACE at{x, y};
    for (NAT i = 1; i <= std::min(text.LENGTH(), LONGEST_TEXT); ++i, at = Next(at, direction))
        WRITECHAR(canvas, at.x, at.y, Code(text, i), direction);
}

template <class PIXEL>
void WRITE(CANVAS<PIXEL> &canvas, NAT x, NAT y, const UTF16 &text, PIXEL value,
           WRITE_DIRECTION direction) {
    const PIXEL pen = canvas.VALUE;
    canvas.VALUE = value;
    WRITE(canvas, x, y, text, direction);
    canvas.VALUE = pen;
}

void WRITE(TRGB &image, NAT x, NAT y, const UTF16 &text, WRITE_DIRECTION direction) {
    for (TGRAY &plane : image.planes)
        WRITE(plane, x, y, text, direction);
}

void WRITE(TRGBA &image, NAT x, NAT y, const UTF16 &text, WRITE_DIRECTION direction) {
    WRITE(image.rgb, x, y, text, direction);
    WRITE(image.alpha, x, y, text, direction);
}

void WRITE(TZRGB &image, NAT x, NAT y, NAT z, const UTF16 &text) {
    if (!IsNear(x, y)) return;
    const HYPERNAT pen = image._READVALUE();
    for (NAT i = 1; i <= std::min(text.LENGTH(), LONGEST_TEXT); ++i) {
        const NAT left = x + (i - 1) * GLYPH_WIDTH;
        EachPixel(GET_GLYPH(image.GETFONT(), Code(text, i)), [&](NAT dx, NAT dy, bool soft) {
            if (!soft) image.PUTPIXEL(left + dx, y + dy, z, pen);
        });
    }
}

template void WRITECHAR(CANVAS<BYTE> &, NAT, NAT, NAT, WRITE_DIRECTION);
template void WRITECHAR(CANVAS<WORD> &, NAT, NAT, NAT, WRITE_DIRECTION);
template void WRITE(CANVAS<BYTE> &, NAT, NAT, const UTF16 &, WRITE_DIRECTION);
template void WRITE(CANVAS<WORD> &, NAT, NAT, const UTF16 &, WRITE_DIRECTION);
template void WRITE(CANVAS<BYTE> &, NAT, NAT, const UTF16 &, BYTE, WRITE_DIRECTION);
template void WRITE(CANVAS<WORD> &, NAT, NAT, const UTF16 &, WORD, WRITE_DIRECTION);
} // namespace morvane
