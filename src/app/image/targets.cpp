#include "app/image/targets.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/base/safe_arithmetic.hpp"

namespace morvane {
namespace {
// One step outside the values of all kinds: such a component matches no pixel and can be squared.
NAT GetComponent(NAT value) { return LIMIT(value, NAT{-1}, TFULLGRAY::MAXIMUM + 1); }
} // namespace

VECTORNAT GETCOLOUR(const UTF16 &text) {
    const bool isColour = POS(",", text) > 0 || POS(";", text) > 0;
    const NAT value = GETNAT(text);
    const VECTORNAT colour = isColour ? GETVECTORNAT(text) : VECTORNAT{value, value, value};
    return {GetComponent(colour.x), GetComponent(colour.y), GetComponent(colour.z)};
}

std::vector<VECTORNAT> COLOURS_OF_LINE(TMACRO *engine, NAT first) {
    std::vector<VECTORNAT> colours;
    for (NAT i = first; i <= engine->PARAMETERLENGTH(); ++i)
        colours.push_back(GETCOLOUR(engine->GETPARAMETER(i)));
    return colours;
}

std::vector<VECTORNAT> COLOURS_AT_POINTS(TMACRO *engine, NAT first, const TIMAGE &image) {
    std::vector<VECTORNAT> colours;
    for (NAT i = first; i <= engine->PARAMETERLENGTH(); ++i) {
        const COMPLEXNAT point = image.COORD(GETCOMPLEX(engine->GETPARAMETER(i)));
        colours.push_back(image.GETRGB(point.x, point.y));
    }
    return colours;
}
} // namespace morvane
