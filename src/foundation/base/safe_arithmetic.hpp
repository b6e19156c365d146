#pragma once

#include "foundation/base/records.hpp"

#include <cmath>
#include <concepts>

// Arithmetic that never faults: a division by zero gives zero, and so does whatever has no value.
namespace morvane {
// a / b, and 0 for b = 0.
constexpr REAL DIVIDE(REAL a, REAL b) { return b == 0 ? 0 : a / b; }
// a / b cut towards zero, and 0 for b = 0; the smallest NAT over -1 wraps to itself.
constexpr NAT DIV(NAT a, NAT b) {
    if (b == 0) return 0;
    return b == -1 ? static_cast<NAT>(0 - static_cast<std::uint64_t>(a)) : a / b;
}
// The rest of DIV, with the sign of a; 0 for b = 0.
constexpr NAT MOD(NAT a, NAT b) { return b == 0 || b == -1 ? 0 : a % b; }
// The truncated value of x - floor(x/y) * y; y = 0 gives trunc(x).
NAT MOD(REAL x, REAL y);

constexpr REAL SQR(REAL x) { return x * x; }
inline REAL SQRT(REAL x) { return std::sqrt(std::abs(x)); } // of the absolute value
inline REAL ABS(REAL x) { return std::abs(x); }

// Clamps to low..high; low wins only when the value lies below it.
constexpr REAL LIMIT(REAL value, REAL low, REAL high) {
    return value < low ? low : value > high ? high : value;
}
constexpr NAT LIMIT(std::integral auto value, std::integral auto low, std::integral auto high) {
    const NAT v = static_cast<NAT>(value), a = static_cast<NAT>(low), b = static_cast<NAT>(high);
    return v < a ? a : v > b ? b : v;
}
// low <= value <= high.
constexpr bool INTO(REAL value, REAL low, REAL high) { return low <= value && value <= high; }
constexpr bool INTO(std::integral auto value, std::integral auto low, std::integral auto high) {
    const NAT v = static_cast<NAT>(value);
    return static_cast<NAT>(low) <= v && v <= static_cast<NAT>(high);
}
// Whether the value lies in the interval a..b wrapped round inside the window c..d.
bool INTO(REAL value, REAL a, REAL b, REAL c, REAL d);

// The linear map of the value from a..b onto c..d, clamped to c..d; the mid-point of c and d when
// a = b. MINMAX_NAT rounds it.
REAL MINMAX(REAL value, REAL a, REAL b, REAL c, REAL d);
NAT MINMAX_NAT(REAL value, REAL a, REAL b, REAL c, REAL d);
VECTOR MINMAX(const VECTOR &value, const VECTOR &a, const VECTOR &b, const VECTOR &c,
              const VECTOR &d);

REAL LN(REAL x);             // 0 for 0; -ln(-x) for a negative x
REAL LOG(REAL base, REAL x); // LN(x) / LN(base); 0 when LN(base) is 0
REAL LOG2(REAL x);
REAL LOG10(REAL x);
REAL NORMLOG(REAL base, REAL x); // LOG; when that has no finite value x itself
// x to the power of y. 0 for x = 0, also for y = 0. A negative x has a value for every y, as LN
// has.
REAL POWER(REAL x, REAL y);
// Square and multiply; x = 0 gives 0 for every n, a negative n the reciprocal.
REAL POWERNAT(REAL x, NAT n);
// The power of whole numbers: POWERNAT, rounded and limited to the range of NAT.
NAT POWER_OF_NATS(NAT x, NAT n);
REAL SUBPOLY(REAL a, REAL x, NAT n); // a * x^n; a for n = 0; 0 when that has no finite value

REAL TAN(REAL x);              // 0 where the cosine is 0
REAL ARCSIN(REAL x);           // outside -1..1 of the fractional part
REAL ARCCOS(REAL x);           // PI/2 - ARCSIN
REAL ARCTAN2(REAL y, REAL x);  // radians, -PI..PI
REAL GETRAD(REAL degrees);     // radians
REAL COPYSIGN(REAL x, REAL s); // abs(x) for s >= 0, else -abs(x)
// base to the exponent that brings abs(value) into the range; 1 for value 0. The exponent counts up
// for values below the range. A base that cannot move the value gives 1 and exponent 0.
REAL GETSCALE(REAL value, const RANGE &range, REAL base, NAT &exponent);
} // namespace morvane
