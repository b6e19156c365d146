#include "image2d/image/hues.hpp"

#include "foundation/base/record_operators.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "image2d/colour/colormap.hpp"
#include "image2d/image/split.hpp"

#include <utility>

namespace morvane {
namespace {
constexpr REAL WHITE = 255;
constexpr REAL LARGEST_CHANGE = 100; // which moves a component by half the range

NAT Sum(const VECTORNAT &colour) { return colour.x + colour.y + colour.z; }

// f(colour) gives the new colour of every pixel.
template <class F> void EachColour(TIMAGE &image, F &&f) {
    TRGB *const rgb = image._RGB();
    if (!rgb) return;
    for (NAT y = 1; y <= rgb->HEIGHT(); ++y)
        for (NAT x = 1; x <= rgb->WIDTH(); ++x)
            rgb->PUT(x, y, f(rgb->_GET(x, y)));
}

REAL Limited(REAL value) { return LIMIT(value, 0.0, 1.0); }

VECTOR LimitedChange(const VECTOR &change) {
    const auto limited = [](REAL v) { return LIMIT(v, -LARGEST_CHANGE, LARGEST_CHANGE); };
    return {limited(change.x), limited(change.y), limited(change.z)};
}

VECTORNAT Balanced(const VECTORNAT &old, const COLOUR_BALANCE &balance) {
    const VECTOR colour{static_cast<REAL>(old.x) / WHITE, static_cast<REAL>(old.y) / WHITE,
                        static_cast<REAL>(old.z) / WHITE};
    const REAL lightness = GETLIGHTNESS(colour), dark = 1 - lightness;
    const VECTOR change = balance.shadows * (dark * dark) +
                          balance.midtones * (2 * lightness * dark) +
                          balance.highlights * (lightness * lightness);
    if (change == VZERO) return old;
    const VECTOR moved = colour + change / (2 * LARGEST_CHANGE);
    const VECTOR tinted =
        PRESERVE_LUMINOSITY({Limited(moved.x), Limited(moved.y), Limited(moved.z)}, lightness);
    return ROUND(tinted * WHITE);
}
} // namespace

HUE GETHUE(const VECTORNAT &colour) {
    const RAINBOW share = GETRAINBOW(colour.x, colour.y, colour.z);
    const std::pair<HUE, NAT> shares[] = {{HUE::RED, share.red},   {HUE::GREEN, share.green},
                                          {HUE::BLUE, share.blue}, {HUE::YELLOW, share.yellow},
                                          {HUE::CYAN, share.cyan}, {HUE::PURPLE, share.purple}};
    std::pair<HUE, NAT> best{HUE::NONE, 0};
    for (const auto &entry : shares)
        if (entry.second > best.second) best = entry;
    return best.first;
}

void SETMIN(TIMAGE &image, HUE hue, const VECTORNAT &colour) {
    EachColour(image, [&](const VECTORNAT &old) {
        return GETHUE(old) == hue && Sum(old) < Sum(colour) ? colour : old;
    });
}

void SETMAX(TIMAGE &image, HUE hue, const VECTORNAT &colour) {
    EachColour(image, [&](const VECTORNAT &old) {
        return GETHUE(old) == hue && Sum(old) > Sum(colour) ? colour : old;
    });
}

void SETBALANCE(TIMAGE &image, const COLOUR_BALANCE &balance) {
    const COLOUR_BALANCE limited{LimitedChange(balance.shadows), LimitedChange(balance.midtones),
                                 LimitedChange(balance.highlights)};
    EachColour(image, [&](const VECTORNAT &old) { return Balanced(old, limited); });
}
} // namespace morvane
