#pragma once

#include "app/workspaces.hpp"
#include "foundation/console/console.hpp"
#include "script/engine/macro.hpp"

#include <new>
#include <vector>

// The images that a line names: the target before ":=", and operands behind the command.
namespace morvane {
// The largest number of images that one line joins.
inline constexpr NAT MOST_OPERANDS = 99;

// f(), which makes its results beside their targets: without memory for them, for the rows of a
// very wide image too, one line tells so and nothing changes.
template <class F> void WITH_MEMORY(F &&f) try { f(); } catch (const std::bad_alloc &) {
    WRITELN("  Out of memory! Image not changed.");
}

// Calls f(target) with the image that the line assigns to; the image is the result, so that no
// constant is stored. Nothing happens when the target is refused, which has been told.
template <class F> void WITH_TARGET(TMACRO *engine, F &&f) {
    TIMAGE *const target = IMAGES.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    WITH_MEMORY([&] { f(*target); });
    engine->COMMAND_RESULT_VAR = UTF16();
}

// The image named by a parameter; null after the report.
inline TIMAGE *OPERAND(TMACRO *engine, NAT index) {
    return IMAGES.ASSIGN_WITH(engine, engine->GETPARAMETER(index));
}

// All images of the line, between `least` and `most` of them; none after a report.
inline std::vector<const TIMAGE *> OPERANDS_OF_LINE(TMACRO *engine, NAT least, NAT most) {
    const NAT count = engine->PARAMETERLENGTH();
    std::vector<const TIMAGE *> operands;
    if (count < least) {
        engine->MIN_PARAMETERERROR(least);
    } else if (count > most) {
        engine->MAX_PARAMETERERROR(most);
    } else {
        for (NAT i = 1; i <= count; ++i) {
            const TIMAGE *const operand = OPERAND(engine, i);
            if (!operand) return {};
            operands.push_back(operand);
        }
    }
    return operands;
}

// A colour: <r, g, b>, or a grey value; components limited to -1..65536.
VECTORNAT GETCOLOUR(const UTF16 &text);
// The colours of all parameters from `first` on, as such or as points of the image (abs & rel).
std::vector<VECTORNAT> COLOURS_OF_LINE(TMACRO *engine, NAT first);
std::vector<VECTORNAT> COLOURS_AT_POINTS(TMACRO *engine, NAT first, const TIMAGE &image);
} // namespace morvane
