#pragma once

#include "image2d/image/image.hpp"

// Edits by hue and tone of colour images in place; other images stay.
namespace morvane {
enum class HUE : BYTE { NONE, RED, GREEN, BLUE, YELLOW, CYAN, PURPLE };
// The largest share of the colour beyond its grey, as GETRAINBOW splits it; of a primary and a
// secondary share that are equal the primary. NONE for greys.
HUE GETHUE(const VECTORNAT &colour);

// Pixels of that hue whose sum of components is below the colour's become the colour, so that it is
// the darkest of them; or above, so that it is the brightest.
void SETMIN(TIMAGE &image, HUE hue, const VECTORNAT &colour);
void SETMAX(TIMAGE &image, HUE hue, const VECTORNAT &colour);

// Changes of red, green and blue from -100 to 100 for dark, middle and bright pixels. With the
// lightness l of 0..1 a pixel counts by (1-l)², 2l(1-l) and l², which add up to 1; a change of 100
// is half the range. Its lightness is put back afterwards, so that only the tint changes.
struct COLOUR_BALANCE {
    VECTOR shadows, midtones, highlights;
};
void SETBALANCE(TIMAGE &image, const COLOUR_BALANCE &balance);
} // namespace morvane
