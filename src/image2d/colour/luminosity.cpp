#include "image2d/colour/colormap.hpp"

#include <algorithm>
#include <cmath>

// Hue, saturation and lightness of a colour, and back, by sixths of the colour circle (Foley et
// al., Computer Graphics, 13.3.5).
namespace morvane {
namespace {
struct HSL {
    REAL hue, saturation, lightness; // all of 0..1
};

HSL GETHSL(const VECTOR &colour) {
    const REAL high = std::max({colour.x, colour.y, colour.z});
    const REAL low = std::min({colour.x, colour.y, colour.z});
    const REAL lightness = (high + low) / 2, spread = high - low;
    if (spread <= 0) return {0, 0, lightness};
    const REAL reach = lightness <= 0.5 ? high + low : 2 - high - low;
    REAL sixths = 4 + (colour.x - colour.y) / spread; // blue is the largest
    if (high == colour.x)
        sixths = (colour.y - colour.z) / spread;
    else if (high == colour.y)
        sixths = 2 + (colour.z - colour.x) / spread;
    if (sixths < 0) sixths += 6;
    return {sixths / 6, spread / reach, lightness};
}

REAL Component(REAL low, REAL high, REAL hue) {
    if (hue < 0) hue += 1;
    if (hue > 1) hue -= 1;
    if (hue < 1.0 / 6) return low + (high - low) * 6 * hue;
    if (hue < 0.5) return high;
    if (hue < 2.0 / 3) return low + (high - low) * (2.0 / 3 - hue) * 6;
    return low;
}

VECTOR GETCOLOUR(const HSL &hsl) {
    const REAL l = std::clamp(hsl.lightness, 0.0, 1.0);
    if (hsl.saturation <= 0) return {l, l, l};
    const REAL high = l <= 0.5 ? l * (1 + hsl.saturation) : l + hsl.saturation - l * hsl.saturation;
    const REAL low = 2 * l - high;
    return {Component(low, high, hsl.hue + 1.0 / 3), Component(low, high, hsl.hue),
            Component(low, high, hsl.hue - 1.0 / 3)};
}
} // namespace

REAL GETLIGHTNESS(const VECTOR &colour) { return GETHSL(colour).lightness; }

VECTOR PRESERVE_LUMINOSITY(const VECTOR &colour, REAL lightness) {
    HSL hsl = GETHSL(colour);
    hsl.lightness = lightness;
    return GETCOLOUR(hsl);
}

VECTOR INVERT_LUMINOSITY(REAL r, REAL g, REAL b) {
    const VECTOR colour{r, g, b};
    return PRESERVE_LUMINOSITY(colour, 1 - GETLIGHTNESS(colour));
}
} // namespace morvane
