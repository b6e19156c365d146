#pragma once

#include "foundation/base/utf16.hpp"
#include "image2d/canvas/rgb.hpp"

#include <span>

// Text in bitmap letters: cells of 8x16 pixels, three sets of glyphs. The tens of a font number
// choose a style: 0 plain, 10 bold, 20 italic, 30 underlined, 40 bold italic, 50 soft borders.
namespace morvane {
inline constexpr NAT GLYPH_WIDTH = 8, GLYPH_HEIGHT = 16;

// Codes in a row whose glyphs follow one another, and the byte at which the first one starts.
struct GLYPH_RUN {
    NAT low, high, offset;
};
std::span<const GLYPH_RUN> GLYPH_RUNS();     // ascending
std::span<const BYTE> GLYPH_SET(NAT number); // 16 bytes a glyph; other numbers are set 0
// The byte at which a code's glyph starts, in each of the sets; codes below 32, but not 0, and
// codes without a glyph have the replacement at 12.
NAT GLYPH_OFFSET(NAT code);

// The rows of a letter in a font, from the top; bit 7 is the leftmost pixel. `soft` are pixels
// that are only blended: a row without pixels between two with some, and with a font of 50 or more
// also at the letter's upper and lower border.
struct GLYPH {
    std::array<BYTE, GLYPH_HEIGHT> rows{}, soft{};
};
GLYPH GET_GLYPH(NAT font, NAT code);

// Letters in the pen's value with the top left of the first at (x, y); what lies outside the window
// is left out. LEFT: turned by 90 degrees against the clock, running upwards from (x, y); RIGHT:
// turned with the clock, running downwards.
enum class WRITE_DIRECTION : BYTE { ALONG, LEFT, RIGHT };
template <class PIXEL>
void WRITECHAR(CANVAS<PIXEL> &canvas, NAT x, NAT y, NAT code,
               WRITE_DIRECTION direction = WRITE_DIRECTION::ALONG);
template <class PIXEL>
void WRITE(CANVAS<PIXEL> &canvas, NAT x, NAT y, const UTF16 &text,
           WRITE_DIRECTION direction = WRITE_DIRECTION::ALONG);
// The same in that value; the pen is as before afterwards.
template <class PIXEL>
void WRITE(CANVAS<PIXEL> &canvas, NAT x, NAT y, const UTF16 &text, PIXEL value,
           WRITE_DIRECTION direction = WRITE_DIRECTION::ALONG);
void WRITE(TRGB &image, NAT x, NAT y, const UTF16 &text,
           WRITE_DIRECTION direction = WRITE_DIRECTION::ALONG);
// On all planes, alpha too, so that letters in an opaque pen are opaque.
void WRITE(TRGBA &image, NAT x, NAT y, const UTF16 &text,
           WRITE_DIRECTION direction = WRITE_DIRECTION::ALONG);
// At the depth z, where nothing nearer is seen.
void WRITE(TZRGB &image, NAT x, NAT y, NAT z, const UTF16 &text);
} // namespace morvane
