#include "foundation/base/safe_arithmetic.hpp"

#include "foundation/base/rounding.hpp"

#include <algorithm>

namespace morvane {
NAT MOD(REAL x, REAL y) { return TRUNC(y == 0 ? x : x - std::floor(x / y) * y); }

bool INTO(REAL value, REAL a, REAL b, REAL c, REAL d) {
    bool wrapped = false;
    if (c > a) wrapped = INTO(value, d - (c - a), d);
    if (d < b) wrapped = INTO(value, c, c + (b - d));
    return wrapped || INTO(value, std::max(a, c), std::min(b, d));
}

REAL MINMAX(REAL value, REAL a, REAL b, REAL c, REAL d) {
    if (a == b) return (c + d) / 2;
    return LIMIT((value - a) * (d - c) / (b - a) + c, std::min(c, d), std::max(c, d));
}

NAT MINMAX_NAT(REAL value, REAL a, REAL b, REAL c, REAL d) {
    return ROUND(MINMAX(value, a, b, c, d));
}

VECTOR MINMAX(const VECTOR &value, const VECTOR &a, const VECTOR &b, const VECTOR &c,
              const VECTOR &d) {
    return {MINMAX(value.x, a.x, b.x, c.x, d.x), MINMAX(value.y, a.y, b.y, c.y, d.y),
            MINMAX(value.z, a.z, b.z, c.z, d.z)};
}

REAL LN(REAL x) {
    // Deliberate: the logarithm of 0 is 0.
    if (x == 0) return 0;
    // Deliberate: the logarithm of a negative number is minus that of its absolute value.
    return x < 0 ? -std::log(-x) : std::log(x);
}

REAL LOG(REAL base, REAL x) { return DIVIDE(LN(x), LN(base)); }
REAL LOG2(REAL x) { return LOG(2, x); }
REAL LOG10(REAL x) { return LOG(10, x); }

REAL NORMLOG(REAL base, REAL x) {
    const REAL result = LOG(base, x);
    return std::isfinite(result) ? result : x;
}

REAL POWER(REAL x, REAL y) {
    // Deliberate: 0 to the power of 0 is 0.
    if (x == 0) return 0;
    if (y == 0) return 1;
    if (std::abs(y) <= 9.22e18 && y == std::trunc(y)) return POWERNAT(x, static_cast<NAT>(y));
    return std::exp(LN(x) * y);
}

REAL POWERNAT(REAL x, NAT n) {
    if (x == 0) return 0;
    const bool negative = n < 0;
    std::uint64_t exponent = static_cast<std::uint64_t>(n);
    if (negative) exponent = 0 - exponent;
    REAL result = 1;
    for (REAL square = x; exponent > 0; exponent >>= 1, square *= square)
        if (exponent & 1) result *= square;
    return negative ? DIVIDE(1, result) : result;
}

NAT POWER_OF_NATS(NAT x, NAT n) { return ROUND(POWERNAT(static_cast<REAL>(x), n)); }

REAL SUBPOLY(REAL a, REAL x, NAT n) {
    if (n == 0) return a;
    const REAL result = a * POWERNAT(x, n);
    return std::isfinite(result) ? result : 0;
}

REAL TAN(REAL x) { return DIVIDE(std::sin(x), std::cos(x)); }

REAL ARCSIN(REAL x) { return std::asin(std::abs(x) > 1 ? FRAC(x) : x); }

REAL ARCCOS(REAL x) { return PI / 2 - ARCSIN(x); }
REAL ARCTAN2(REAL y, REAL x) { return std::atan2(y, x); }
REAL GETRAD(REAL degrees) { return degrees * (PI / 180); }
REAL COPYSIGN(REAL x, REAL s) { return s >= 0 ? std::abs(x) : -std::abs(x); }

REAL GETSCALE(REAL value, const RANGE &range, REAL base, NAT &exponent) {
    exponent = 0;
    REAL size = std::abs(value);
    if (value == 0 || !(base > 1) || !std::isfinite(size)) return 1;
    const auto step = [&size](REAL next) {
        const bool moved = next != size;
        size = next;
        return moved;
    };
    if (size < range.min) {
        while (size < range.min && step(size * base))
            ++exponent;
    } else {
        while (size > range.max && step(size / base))
            --exponent;
    }
    return exponent == 0 ? 1 : POWER(base, static_cast<REAL>(exponent));
}
} // namespace morvane
