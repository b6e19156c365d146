#include "app/range_parameters.hpp"

#include "foundation/base/number_text.hpp"
#include "script/engine/macro.hpp"

#include <algorithm>
#include <bitset>

namespace morvane {
namespace {
// Cuts the low end from a range and leaves the high one; a single value is both.
UTF16 CutLow(UTF16 &text) {
    for (const char *separator : {"..", ",", ";"})
        if (POS(separator, text) > 0) return SPLIT(text, separator);
    return text;
}
} // namespace

COMPLEXNAT GETRANGE(const UTF16 &text) {
    UTF16 rest = text;
    const NAT low = GETNAT(CutLow(rest));
    const NAT high = GETNAT(rest);
    return {std::min(low, high), std::max(low, high)};
}

RANGE GETREALRANGE(const UTF16 &text) {
    UTF16 rest = text;
    const REAL low = GETREAL(CutLow(rest));
    const REAL high = GETREAL(rest);
    return {std::min(low, high), std::max(low, high)};
}

VECTOR GETFACTORS(const UTF16 &text) {
    if (POS(",", text) > 0 || POS(";", text) > 0) return GETVECTOR(text);
    const REAL factor = GETREAL(text);
    return {factor, factor, factor};
}

void GETVALUES(TMACRO *engine, NAT first, TPOLYNAT &values) {
    constexpr NAT HIGHEST = 65535;
    std::bitset<HIGHEST + 1> wanted;
    for (NAT i = first; i <= engine->PARAMETERLENGTH(); ++i) {
        const COMPLEXNAT range = GETRANGE(engine->GETPARAMETER(i));
        for (NAT value = std::max<NAT>(range.x, 0); value <= std::min(range.y, HIGHEST); ++value)
            wanted.set(static_cast<std::size_t>(value));
    }
    values.INIT(static_cast<NAT>(wanted.count()));
    NAT position = 0;
    for (NAT value = 0; value <= HIGHEST; ++value)
        if (wanted.test(static_cast<std::size_t>(value))) values.PUT(++position, value);
    values.SORTED = true;
}
} // namespace morvane
