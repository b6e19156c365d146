#pragma once

#include "foundation/base/records.hpp"

#include <bit>
#include <cmath>
#include <concepts>

// From reals to whole numbers. The real is limited to ±9.223372036854776e18 first, so nothing
// overflows; NaN gives 0. ROUND is the one rounding of the system: to nearest, ties to even.
namespace morvane {
inline constexpr REAL ROUND_LIMIT = 9.223372036854776e18; // 2^63

namespace rounding {
// A whole real as NAT; the upper limit itself is one too many and becomes the largest NAT.
constexpr NAT WHOLE(REAL value) {
    if (value >= ROUND_LIMIT) return NATMAX;
    if (value <= -ROUND_LIMIT) return NATMIN;
    return value == value ? static_cast<NAT>(value) : 0;
}
} // namespace rounding

// To nearest, ties to even. Adding 1.5 * 2^52 leaves the rounded number in the low mantissa bits,
// which is faster than a library call and the same on every processor.
inline NAT ROUND(REAL value) {
    constexpr REAL SHIFT = 6755399441055744.0;
    constexpr REAL SAFE = 2251799813685248.0; // 2^51
    if (value > -SAFE && value < SAFE)
        return std::bit_cast<NAT>(value + SHIFT) - std::bit_cast<NAT>(SHIFT);
    return rounding::WHOLE(std::nearbyint(value));
}
// Towards zero.
constexpr NAT TRUNC(REAL value) { return rounding::WHOLE(value); }
// Towards minus infinity.
constexpr NAT FLOOR(REAL value) {
    const NAT whole = rounding::WHOLE(value);
    return whole != NATMIN && static_cast<REAL>(whole) > value ? whole - 1 : whole;
}
// value - trunc(value), with the sign of the value; NaN and infinity give 0.
constexpr REAL FRAC(REAL value) {
    const bool fits = value > -ROUND_LIMIT && value < ROUND_LIMIT; // beyond all reals are whole
    return fits ? value - static_cast<REAL>(static_cast<NAT>(value)) : 0;
}

// Component by component.
inline COMPLEXNAT ROUND(const COMPLEX &v) { return {ROUND(v.x), ROUND(v.y)}; }
inline VECTORNAT ROUND(const VECTOR &v) { return {ROUND(v.x), ROUND(v.y), ROUND(v.z)}; }
inline HYPERNAT ROUND(const HYPER &v) { return {ROUND(v.x), ROUND(v.y), ROUND(v.z), ROUND(v.w)}; }
constexpr COMPLEXNAT TRUNC(const COMPLEX &v) { return {TRUNC(v.x), TRUNC(v.y)}; }
constexpr VECTORNAT TRUNC(const VECTOR &v) { return {TRUNC(v.x), TRUNC(v.y), TRUNC(v.z)}; }
constexpr HYPERNAT TRUNC(const HYPER &v) {
    return {TRUNC(v.x), TRUNC(v.y), TRUNC(v.z), TRUNC(v.w)};
}
constexpr COMPLEXNAT FLOOR(const COMPLEX &v) { return {FLOOR(v.x), FLOOR(v.y)}; }
constexpr VECTORNAT FLOOR(const VECTOR &v) { return {FLOOR(v.x), FLOOR(v.y), FLOOR(v.z)}; }
constexpr HYPERNAT FLOOR(const HYPER &v) {
    return {FLOOR(v.x), FLOOR(v.y), FLOOR(v.z), FLOOR(v.w)};
}
constexpr COMPLEX FRAC(const COMPLEX &v) { return {FRAC(v.x), FRAC(v.y)}; }
constexpr VECTOR FRAC(const VECTOR &v) { return {FRAC(v.x), FRAC(v.y), FRAC(v.z)}; }
constexpr HYPER FRAC(const HYPER &v) { return {FRAC(v.x), FRAC(v.y), FRAC(v.z), FRAC(v.w)}; }
} // namespace morvane
