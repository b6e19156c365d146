#pragma once

#include "foundation/base/records.hpp"

#include <cmath>
#include <span>

// Statistics of whole numbers from exact sums.
namespace morvane {
__extension__ typedef __int128 INT128;
__extension__ typedef unsigned __int128 UINT128;

// The root of numerator / (n*(n-1)), the numerator being n*Sum(x^2) - Sum(x)^2 rounded once to a
// double; 0 for fewer than two values. `count` is below 2^63.
inline REAL NATSD_ROUNDED(NAT count, REAL numerator) {
    if (count < 2) return 0;
    const UINT128 pairs = static_cast<UINT128>(count) * static_cast<UINT128>(count - 1);
    return std::sqrt(numerator / static_cast<REAL>(pairs));
}
// The sample standard deviation sqrt((n*Sum(x^2) - Sum(x)^2) / (n*(n-1))) from exact sums. Code
// that forms the same sums gets the same bits as TPOLYNAT::SD, and so does code that sums x less a
// constant, because the numerator is the same number. n*sumOfSquares and sum^2 are below 2^127.
inline REAL NATSD(NAT count, NAT sum, NAT sumOfSquares) {
    const INT128 numerator =
        static_cast<INT128>(count) * sumOfSquares - static_cast<INT128>(sum) * sum;
    const NAT narrow = static_cast<NAT>(numerator); // the conversion of 64 bits is the fast one
    return NATSD_ROUNDED(count, narrow == numerator ? static_cast<REAL>(narrow)
                                                    : static_cast<REAL>(numerator));
}
// The same of a list. Values are taken less the smallest one; where n times the spread reaches
// 2^63 the sums are kept in 256 bits, so they never overflow.
REAL NATSD(std::span<const NAT> values);

// The real quotient of the exact sum; 0 for an empty list.
inline REAL NATMEAN(NAT count, NAT sum) {
    return count < 1 ? 0 : static_cast<REAL>(sum) / static_cast<REAL>(count);
}
REAL NATMEAN(std::span<const NAT> values);
// (a + b) / 2, rounded to nearest with halves to even; never overflows.
NAT NATMIDDLE(NAT a, NAT b);
} // namespace morvane
