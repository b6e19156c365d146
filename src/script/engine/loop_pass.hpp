#pragma once

#include "foundation/base/number_text.hpp"
#include "script/engine/macro.hpp"

#include <string_view>

// What the loop keywords share.
namespace morvane::loops {
__extension__ typedef __int128 WIDE; // holds every sum and product of two whole numbers
// A pass of the block; only the last one takes over its end line.
void Pass(TMACRO &engine, BLOCK_FRAME &frame, std::string_view kind, bool last);
// Passes over the block and takes its end line.
void Skip(TMACRO &engine, BLOCK_FRAME &frame, std::string_view kind);
// The counters of the next pass.
void PutCounters(TMACRO &engine, NAT length, CONSTANT_VALUE rest, CONSTANT_VALUE count,
                 CONSTANT_VALUE relative);

NAT Whole(TMACRO &engine, NAT index); // the parameter, limited and rounded up
NAT CountBetween(NAT a, NAT b);       // |b - a| + 1, at most the largest whole number
NAT Magnitude(NAT n);                 // |n|, at most the largest whole number
NAT Saturated(WIDE value);            // limited to the whole numbers
// Deliberate: for.relative of a range is 1 / length plus the distance from its start.
REAL RangeRelative(NAT length, NAT count, NAT first);
UTF16 Range(NAT a, NAT b); // "a..b", for the trace
} // namespace morvane::loops
