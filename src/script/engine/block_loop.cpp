#include "script/engine/blocks.hpp"

#include "foundation/base/rounding.hpp"
#include "script/engine/loop_pass.hpp"

#include <cmath>

namespace morvane {
using namespace loops;
using COLOUR = TMACRO::TRACE_COLOUR;

namespace {
void ForCount(TMACRO &engine, BLOCK_FRAME &frame) {
    const NAT n = Whole(engine, 1), length = Magnitude(n);
    engine._TRACE("for", COLOUR::PROCEDURE, GETSTRING(n));
    if (n == 0) return Skip(engine, frame, "for.ignore");
    for (NAT i = 1; i <= length && !engine.stop; ++i) {
        const NAT count = n > 0 ? i : -i;
        PutCounters(engine, length, CONSTANT_VALUE(length - i), CONSTANT_VALUE(count),
                    CONSTANT_VALUE(static_cast<REAL>(count) / static_cast<REAL>(n)));
        Pass(engine, frame, "for", i == length);
        if (i == NATMAX) return;
    }
}

// Deliberate: for.rest of a range is its length minus the counter, below zero too.
void ForRange(TMACRO &engine, BLOCK_FRAME &frame) {
    const NAT a = Whole(engine, 1), b = Whole(engine, 2), length = CountBetween(a, b);
    engine._TRACE("for", COLOUR::PROCEDURE, Range(a, b));
    for (NAT count = a; !engine.stop; count += a <= b ? 1 : -1) {
        PutCounters(engine, length, CONSTANT_VALUE(Saturated(static_cast<WIDE>(length) - count)),
                    CONSTANT_VALUE(count), CONSTANT_VALUE(RangeRelative(length, count, a)));
        Pass(engine, frame, "for", count == b);
        if (count == b) return;
    }
}

void ForStep(TMACRO &engine, BLOCK_FRAME &frame) {
    const REAL a = GETREAL(engine.GETPARAMETER(1)), s = GETREAL(engine.GETPARAMETER(2));
    const REAL b = GETREAL(engine.GETPARAMETER(3)), step = b < a ? -std::abs(s) : std::abs(s);
    engine._TRACE("for", COLOUR::PROCEDURE,
                  GETSTRING(a) + "..(" + GETSTRING(s) + ").." + GETSTRING(b));
    if (s == 0) return Skip(engine, frame, "for.ignore");
    const NAT length = TRUNC((std::abs(b - a) + 1) / std::abs(s));
    const auto inside = [&](REAL value) { return step > 0 ? value <= b : value >= b; };
    for (REAL count = a; inside(count) && !engine.stop; count += step) {
        PutCounters(engine, length, UTF16(), CONSTANT_VALUE(count), UTF16());
        Pass(engine, frame, "for", !inside(count + step));
    }
}

// Every number of the evaluated line is 1 or more; without one the script stops.
bool AllTrue(TMACRO &engine) {
    if (engine.PARAMETERLENGTH() < 1) return engine.MIN_PARAMETERERROR(1), false;
    for (NAT i = 1; i <= engine.PARAMETERLENGTH(); ++i)
        if (!(GETREAL(engine.GETPARAMETER(i)) >= 1)) return false;
    return true;
}

void PutCondition(TMACRO &engine, const char *value) {
    engine.PUTCONSTANT_NEXTSCOPE(engine.NAMES().condition, UTF16(value));
}
} // namespace

void RUN_FOR(TMACRO &engine, BLOCK_FRAME &frame) {
    engine._EVALUATE(*frame.part);
    switch (engine.PARAMETERLENGTH()) {
    case 1: return ForCount(engine, frame);
    case 2: return ForRange(engine, frame);
    case 3: return ForStep(engine, frame);
    default: return engine.MIN_PARAMETERERROR(1);
    }
}

void RUN_WHILE(TMACRO &engine, BLOCK_FRAME &frame) {
    engine._TRACE("while", COLOUR::PROCEDURE, {});
    const LINE_PART &head = *frame.part;
    engine._EVALUATE(head);
    while (AllTrue(engine) && !engine.stop) {
        PutCondition(engine, "1");
        Pass(engine, frame, "while", false);
        if (engine.stop) return;
        engine._EVALUATE(head);
    }
    if (engine.stop) return;
    PutCondition(engine, "0");
    Skip(engine, frame, "while.ignore");
}

// Deliberate: until is evaluated when its block has been left.
void RUN_REPEAT(TMACRO &engine, BLOCK_FRAME &frame) {
    engine._TRACE("repeat", COLOUR::PROCEDURE, {});
    do {
        PutCondition(engine, "1");
        Pass(engine, frame, "repeat", false);
        if (engine.stop) return;
        engine._GETPARAMETER_WITH_CONSTANTS(engine.COMMAND_RESULT);
    } while (!AllTrue(engine) && !engine.stop);
    if (engine.stop) return;
    PutCondition(engine, "0");
    Skip(engine, frame, "repeat.ignore");
}
} // namespace morvane
