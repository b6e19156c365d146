#pragma once

#include "foundation/base/records.hpp"

// Quaternions on HYPER: x is the scalar part w, and y, z, w are the axis part x, y, z. Angles are
// in radians.
namespace morvane {
HYPER QUAT_GET(REAL angle, const VECTOR &axis); // the axis is taken as it is, not normalised
// Both first replace every component by its square when the scalar part exceeds 1.
REAL QUAT_ANGLE(HYPER q);    // 2 * arccos(w)
VECTOR QUAT_VECTOR(HYPER q); // the axis part over sqrt(abs(1-w²))
HYPER CONJUGATE(const HYPER &q);
HYPER QUAT_MUL(const HYPER &a, const HYPER &b);  // the Hamilton product a·b
HYPER QUAT_JOIN(const HYPER &a, const HYPER &b); // the Hamilton product b·a
// v turned by q: the axis part of q·(0, v)·conjugate(q).
VECTOR TRANSFORM(const VECTOR &v, const HYPER &q);
MATRIX3 QUAT_TO_MATRIX(const HYPER &q); // for row vectors
HYPER MATRIX_TO_QUAT(const MATRIX3 &m); // with w >= 0
HYPER MATRIX_TO_QUAT(const MATRIX4 &m); // of the upper left 3x3 part
// The matrix, for row vectors, of a turn about an axis, which is normalised here.
MATRIX3 ROTATE_VECTOR(const VECTOR &axis, REAL angle);
VECTOR QUAT_TO_ROTATE_XYZ(const HYPER &q); // three angles, about x, y and z
} // namespace morvane
