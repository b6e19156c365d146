#pragma once

#include "foundation/container/poly_types.hpp"

#include <span>

namespace morvane {
// Least squares by the normal equations: coefficients[i] of x^i for i of 0..degree, so that
// `coefficients` has degree + 1 elements. False, and all coefficients zero, when the points do not
// fix the polynomial: too few different x, numbers too large or too close together, lists of
// different lengths.
bool POLYFIT(std::span<const REAL> x, std::span<const REAL> y, std::span<REAL> coefficients,
             NAT degree);
inline constexpr NAT LARGEST_DEGREE = 20; // of all fits

// Coefficients of 1, x, x^2 ...
class TPOLYNOM {
public:
    TPOLYREAL COEFFICIENTS;

    NAT DEGREE() const { return COEFFICIENTS.LENGTH - 1; } // -1: none
    REAL POLYNOM(REAL x) const;                            // 0 without coefficients
    // The polynomial of that degree nearest to the points; false, and zeros, as POLYFIT.
    bool MYGETPOLYNOM(const TPOLYCOMPLEX &points, NAT degree);
};

// y as a polynomial of x.
class TPOLYNOM2D {
public:
    bool GETPOLYNOM(const TPOLYCOMPLEX &points, NAT degree) {
        return fit.MYGETPOLYNOM(points, degree);
    }
    REAL POLYNOM(REAL x) const { return fit.POLYNOM(x); }
    REAL ERRORSUM(const TPOLYCOMPLEX &points) const; // of the squared distances in y
    // The degree of 0..limit with the smallest variance of the rest, errorsum / (n - degree - 1);
    // of degrees that differ by less than a 10000th of it, the smallest. Gives the degree, -1 when
    // there is no point.
    NAT FIT(const TPOLYCOMPLEX &points, NAT limit = 7);
    const TPOLYREAL &COEFFICIENTS() const { return fit.COEFFICIENTS; }

private:
    TPOLYNOM fit;
};

// A path in space: three polynomials of one argument. Points hold the argument in x and the place
// in y, z and w.
class TPOLYNOM4D {
public:
    bool GETPOLYNOM(const TPOLYHYPER &points, NAT degree); // false when one of them is not fixed
    VECTOR POLYNOM(REAL argument) const;

private:
    TPOLYNOM fits[3];
};
} // namespace morvane
