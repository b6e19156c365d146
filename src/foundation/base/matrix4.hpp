#pragma once

#include "foundation/base/record_operators.hpp"

// 4x4 matrices of four rows. A vector is a row and stands left of the matrix (TRANSFORM).
namespace morvane {
constexpr MATRIX4 GM4(const HYPER &a, const HYPER &b, const HYPER &c, const HYPER &d) {
    return {{a, b, c, d}};
}
// The product a·b.
MATRIX4 JOIN(const MATRIX4 &a, const MATRIX4 &b);
// The row vector v times m.
HYPER TRANSFORM(const MATRIX4 &m, const HYPER &v);
MATRIX4 GETMUL(const MATRIX4 &m, REAL a, REAL b, REAL c, REAL d); // the columns times a, b, c, d
MATRIX4 ADJUGATE(const MATRIX4 &m);
REAL DET(const MATRIX4 &m);
MATRIX4 TRANSPOSE(const MATRIX4 &m);
MATRIX4 INVERSE(const MATRIX4 &m);    // the adjugate over the determinant; zero: M4ZERO
MATRIX3 GETMATRIX3(const MATRIX4 &m); // the upper left 3x3 part
MATRIX4 GETMATRIX4(const MATRIX3 &m); // the 3x3 part of an identity

// Element by element, with a real or a matrix; a zero divisor gives 0. JOIN is the matrix product.
constexpr MATRIX4 operator+(const MATRIX4 &a, const MATRIX4 &b) {
    return {{a[0] + b[0], a[1] + b[1], a[2] + b[2], a[3] + b[3]}};
}
constexpr MATRIX4 operator-(const MATRIX4 &a, const MATRIX4 &b) {
    return {{a[0] - b[0], a[1] - b[1], a[2] - b[2], a[3] - b[3]}};
}
constexpr MATRIX4 operator*(const MATRIX4 &a, const MATRIX4 &b) {
    return {{a[0] * b[0], a[1] * b[1], a[2] * b[2], a[3] * b[3]}};
}
constexpr MATRIX4 operator/(const MATRIX4 &a, const MATRIX4 &b) {
    return {{a[0] / b[0], a[1] / b[1], a[2] / b[2], a[3] / b[3]}};
}
constexpr MATRIX4 operator+(const MATRIX4 &a, REAL b) {
    return {{a[0] + b, a[1] + b, a[2] + b, a[3] + b}};
}
constexpr MATRIX4 operator-(const MATRIX4 &a, REAL b) {
    return {{a[0] - b, a[1] - b, a[2] - b, a[3] - b}};
}
constexpr MATRIX4 operator*(const MATRIX4 &a, REAL b) {
    return {{a[0] * b, a[1] * b, a[2] * b, a[3] * b}};
}
constexpr MATRIX4 operator/(const MATRIX4 &a, REAL b) {
    return {{a[0] / b, a[1] / b, a[2] / b, a[3] / b}};
}
} // namespace morvane
