#pragma once

#include "foundation/base/record_operators.hpp"

// Symmetric 3x3 matrices: tensors. A MATRIX3 is assigned to one through GETSYMMATRIX3.
namespace morvane {
// The diagonal and the lower triangle of m; SM3ZERO when the upper triangle is not exactly equal.
SYMMATRIX3 GETSYMMATRIX3(const MATRIX3 &m);
// Both triangles filled.
MATRIX3 GETMATRIX3(const SYMMATRIX3 &m);

// Element by element, with a real or a matrix; a zero divisor gives 0.
constexpr SYMMATRIX3 operator+(const SYMMATRIX3 &a, const SYMMATRIX3 &b) {
    return {a.diagonal + b.diagonal, a.off + b.off};
}
constexpr SYMMATRIX3 operator-(const SYMMATRIX3 &a, const SYMMATRIX3 &b) {
    return {a.diagonal - b.diagonal, a.off - b.off};
}
constexpr SYMMATRIX3 operator*(const SYMMATRIX3 &a, const SYMMATRIX3 &b) {
    return {a.diagonal * b.diagonal, a.off * b.off};
}
constexpr SYMMATRIX3 operator/(const SYMMATRIX3 &a, const SYMMATRIX3 &b) {
    return {a.diagonal / b.diagonal, a.off / b.off};
}
constexpr SYMMATRIX3 operator+(const SYMMATRIX3 &a, REAL b) { return {a.diagonal + b, a.off + b}; }
constexpr SYMMATRIX3 operator-(const SYMMATRIX3 &a, REAL b) { return {a.diagonal - b, a.off - b}; }
constexpr SYMMATRIX3 operator*(const SYMMATRIX3 &a, REAL b) { return {a.diagonal * b, a.off * b}; }
constexpr SYMMATRIX3 operator/(const SYMMATRIX3 &a, REAL b) { return {a.diagonal / b, a.off / b}; }
} // namespace morvane
