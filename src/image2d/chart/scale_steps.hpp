#pragma once

#include "foundation/base/utf16.hpp"

#include <vector>

namespace morvane {
// The round steps of a scale: multiples of 1, 2 or 5 times a power of ten.
struct SCALE_STEPS {
    NAT digit = 1;            // 1, 2 or 5
    NAT exponent = 0;         // the step is digit * 10^exponent
    NAT first = 0, last = -1; // the multiples that lie in the range, in ascending order
    NAT minor = 5;            // small steps within a step
    NAT power = 0;            // the numbers are to be read times 10^power

    REAL STEP() const;
    REAL VALUE(NAT multiple) const { return static_cast<REAL>(multiple) * STEP(); }
    // The number at a multiple, all with as many decimals; FORMAT.DECIMAL chooses point or comma.
    UTF16 LABEL(NAT multiple) const;
    NAT LONGEST_LABEL() const; // letters
};
// Steps for a range (its ends in any order, finite and apart), nearest to `count` of them. Numbers
// of a million and more or below a thousandth share a power of ten.
SCALE_STEPS GETSTEPS(const RANGE &range, NAT count);
// A range whose ends are finite and far enough apart for steps, in the same order.
RANGE GETSOUNDRANGE(REAL min, REAL max);
} // namespace morvane
