#include "foundation/base/matrix3.hpp"

#include "foundation/base/geometry.hpp"

namespace morvane {
MATRIX3 JOIN(const MATRIX3 &a, const MATRIX3 &b) {
    return GM3(ROTATE(a[0], b), ROTATE(a[1], b), ROTATE(a[2], b));
}

MATRIX3 GETMUL(const MATRIX3 &m, REAL a, REAL b, REAL c) {
    const VECTOR factors{a, b, c};
    return GM3(m[0] * factors, m[1] * factors, m[2] * factors);
}

MATRIX3 ADJUGATE(const MATRIX3 &m) {
    return TRANSPOSE(GM3(CROSS(m[1], m[2]), CROSS(m[2], m[0]), CROSS(m[0], m[1])));
}

REAL DET(const MATRIX3 &m) { return DET(m[0], m[1], m[2]); }

MATRIX3 TRANSPOSE(const MATRIX3 &m) {
    return GM3({m[0].x, m[1].x, m[2].x}, {m[0].y, m[1].y, m[2].y}, {m[0].z, m[1].z, m[2].z});
}

MATRIX3 INVERSE(const MATRIX3 &m) { return ADJUGATE(m) / DET(m); }

bool IFNEGATIVE(const MATRIX3 &m) {
    // Deliberate: a matrix is negative when the sum of its nine elements is, whatever its
    // determinant.
    const VECTOR sums = m[0] + m[1] + m[2];
    return sums.x + sums.y + sums.z < 0;
}
} // namespace morvane
