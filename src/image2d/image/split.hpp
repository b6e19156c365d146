#pragma once

#include "image2d/image/result.hpp"

// Images of components or colours, and back. Targets of a split become grey images of 8 bits (16
// when the source has them), whatever their kind was; of SPLIT_COLOURS they take the source's kind.
// No target is the source.
namespace morvane {
using TARGETS = std::span<TIMAGE *const>;

// Three targets: red, green, blue; a fourth is alpha.
void SPLIT_RGB(const TIMAGE &source, TARGETS targets);

// A colour as a sum of one primary, one secondary colour and grey: grey is the smallest component,
// what two components share beyond it is yellow, cyan or purple, the rest red, green or blue.
struct RAINBOW {
    NAT red, green, blue, yellow, cyan, purple, gray;
};
constexpr RAINBOW GETRAINBOW(NAT r, NAT g, NAT b) {
    const auto least = [](NAT p, NAT q) { return p < q ? p : q; };
    const NAT gray = least(r, least(g, b));
    const NAT red = r - gray, green = g - gray, blue = b - gray;
    const NAT yellow = least(red, green), cyan = least(green, blue), purple = least(red, blue);
    return {red - yellow - purple,
            green - yellow - cyan,
            blue - cyan - purple,
            yellow,
            cyan,
            purple,
            gray};
}
// Seven targets in the order of RAINBOW. The components are shifted right by `bits` (0..15) first.
void SPLIT_RAINBOW(const TIMAGE &source, NAT bits, TARGETS targets);

// A target a colour: each pixel goes, as it is, to the target of the nearest colour (Euclidean; the
// first of equals), the others stay zero.
void SPLIT_COLOURS(const TIMAGE &source, std::span<const VECTORNAT> colours, TARGETS targets);

// A colour image of 2 (red, blue), 3 (red, green, blue) or 4 (with alpha) images; the target
// becomes 24 bits, with alpha 32. 16-bit values are shifted right by 8, colours taken by their
// mean.
void COMBINE(OPERANDS operands, TIMAGE &target);
} // namespace morvane
