#pragma once

#include "foundation/base/record_operators.hpp"

// 3x3 matrices of three rows. A vector is a row and stands left of the matrix (ROTATE).
namespace morvane {
constexpr MATRIX3 GM3(const VECTOR &a, const VECTOR &b, const VECTOR &c) { return {{a, b, c}}; }
// The product a·b.
MATRIX3 JOIN(const MATRIX3 &a, const MATRIX3 &b);
// The row vector v times m: component j is the sum of v[i]*m[i][j].
constexpr VECTOR ROTATE(const VECTOR &v, const MATRIX3 &m) {
    return {v.x * m[0].x + v.y * m[1].x + v.z * m[2].x, v.x * m[0].y + v.y * m[1].y + v.z * m[2].y,
            v.x * m[0].z + v.y * m[1].z + v.z * m[2].z};
}
MATRIX3 GETMUL(const MATRIX3 &m, REAL a, REAL b, REAL c); // the columns times a, b, c
MATRIX3 ADJUGATE(const MATRIX3 &m);
REAL DET(const MATRIX3 &m);
MATRIX3 TRANSPOSE(const MATRIX3 &m);
MATRIX3 INVERSE(const MATRIX3 &m); // the adjugate over the determinant; zero: M3ZERO
bool IFNEGATIVE(const MATRIX3 &m); // whether the sum of the nine elements is negative

// Element by element, with a real or a matrix; a zero divisor gives 0. JOIN is the matrix product.
constexpr MATRIX3 operator+(const MATRIX3 &a, const MATRIX3 &b) {
    return {{a[0] + b[0], a[1] + b[1], a[2] + b[2]}};
}
constexpr MATRIX3 operator-(const MATRIX3 &a, const MATRIX3 &b) {
    return {{a[0] - b[0], a[1] - b[1], a[2] - b[2]}};
}
constexpr MATRIX3 operator*(const MATRIX3 &a, const MATRIX3 &b) {
    return {{a[0] * b[0], a[1] * b[1], a[2] * b[2]}};
}
constexpr MATRIX3 operator/(const MATRIX3 &a, const MATRIX3 &b) {
    return {{a[0] / b[0], a[1] / b[1], a[2] / b[2]}};
}
constexpr MATRIX3 operator+(const MATRIX3 &a, REAL b) { return {{a[0] + b, a[1] + b, a[2] + b}}; }
constexpr MATRIX3 operator-(const MATRIX3 &a, REAL b) { return {{a[0] - b, a[1] - b, a[2] - b}}; }
constexpr MATRIX3 operator*(const MATRIX3 &a, REAL b) { return {{a[0] * b, a[1] * b, a[2] * b}}; }
constexpr MATRIX3 operator/(const MATRIX3 &a, REAL b) { return {{a[0] / b, a[1] / b, a[2] / b}}; }
constexpr MATRIX3 operator-(const MATRIX3 &a) { return {{-a[0], -a[1], -a[2]}}; }
} // namespace morvane
