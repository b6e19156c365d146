#include "app/image/targets.hpp"

#include "foundation/base/number_text.hpp"

namespace morvane {
VECTORNAT GETCOLOUR(const UTF16 &text) {
    if (POS(",", text) > 0 || POS(";", text) > 0) return GETVECTORNAT(text);
    const NAT value = GETNAT(text);
    return {value, value, value};
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
