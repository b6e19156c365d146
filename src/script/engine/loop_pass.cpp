#include "script/engine/loop_pass.hpp"

#include "foundation/base/rounding.hpp"

#include <algorithm>
#include <cmath>

namespace morvane::loops {
void Pass(TMACRO &engine, BLOCK_FRAME &frame, std::string_view kind, bool last) {
    engine._OPENBLOCK(kind);
    const NAT end = engine._RUNBLOCK(frame.line, true);
    if (last) frame.line = end;
}

void Skip(TMACRO &engine, BLOCK_FRAME &frame, std::string_view kind) {
    engine._OPENBLOCK(kind);
    frame.line = engine._RUNBLOCK(frame.line, false);
}

void PutCounters(TMACRO &engine, NAT length, CONSTANT_VALUE rest, CONSTANT_VALUE count,
                 CONSTANT_VALUE relative) {
    const TMACRO::LOOP_NAMES &names = engine.NAMES();
    engine.PUTCONSTANT_NEXTSCOPE(names.forLength, CONSTANT_VALUE(length));
    engine.PUTCONSTANT_NEXTSCOPE(names.forRest, std::move(rest));
    engine.PUTCONSTANT_NEXTSCOPE(names.forCount, std::move(count));
    engine.PUTCONSTANT_NEXTSCOPE(names.forRelative, std::move(relative));
}

NAT Whole(TMACRO &engine, NAT index) {
    return TRUNC(std::ceil(GETREAL(engine.GETPARAMETER_ERRORFREE(index))));
}

NAT CountBetween(NAT a, NAT b) {
    return Saturated(static_cast<WIDE>(std::max(a, b)) - std::min(a, b) + 1);
}

NAT Magnitude(NAT n) { return n == NATMIN ? NATMAX : std::abs(n); }

NAT Saturated(WIDE value) { return static_cast<NAT>(std::clamp<WIDE>(value, NATMIN, NATMAX)); }

REAL RangeRelative(NAT length, NAT count, NAT first) {
    return 1 / static_cast<REAL>(length) +
           std::abs(static_cast<REAL>(count) - static_cast<REAL>(first));
}

UTF16 Range(NAT a, NAT b) { return GETSTRING(a) + ".." + GETSTRING(b); }
} // namespace morvane::loops
