#include "foundation/base/matrix4.hpp"

#include "foundation/base/geometry.hpp"

namespace morvane {
MATRIX4 JOIN(const MATRIX4 &a, const MATRIX4 &b) {
    return GM4(TRANSFORM(b, a[0]), TRANSFORM(b, a[1]), TRANSFORM(b, a[2]), TRANSFORM(b, a[3]));
}

HYPER TRANSFORM(const MATRIX4 &m, const HYPER &v) {
    return m[0] * v.x + m[1] * v.y + m[2] * v.z + m[3] * v.w;
}

MATRIX4 GETMUL(const MATRIX4 &m, REAL a, REAL b, REAL c, REAL d) {
    const HYPER factors{a, b, c, d};
    return GM4(m[0] * factors, m[1] * factors, m[2] * factors, m[3] * factors);
}

MATRIX4 ADJUGATE(const MATRIX4 &m) {
    return TRANSPOSE(GM4(CROSS(m[1], m[2], m[3]), -CROSS(m[0], m[2], m[3]), CROSS(m[0], m[1], m[3]),
                         -CROSS(m[0], m[1], m[2])));
}

REAL DET(const MATRIX4 &m) { return DET(m[0], m[1], m[2], m[3]); }

MATRIX4 TRANSPOSE(const MATRIX4 &m) {
    return GM4({m[0].x, m[1].x, m[2].x, m[3].x}, {m[0].y, m[1].y, m[2].y, m[3].y},
               {m[0].z, m[1].z, m[2].z, m[3].z}, {m[0].w, m[1].w, m[2].w, m[3].w});
}

MATRIX4 INVERSE(const MATRIX4 &m) { return ADJUGATE(m) / DET(m); }

MATRIX3 GETMATRIX3(const MATRIX4 &m) {
    return {{VECTOR{m[0].x, m[0].y, m[0].z}, VECTOR{m[1].x, m[1].y, m[1].z},
             VECTOR{m[2].x, m[2].y, m[2].z}}};
}

MATRIX4 GETMATRIX4(const MATRIX3 &m) {
    return GM4({m[0].x, m[0].y, m[0].z, 0}, {m[1].x, m[1].y, m[1].z, 0},
               {m[2].x, m[2].y, m[2].z, 0}, {0, 0, 0, 1});
}
} // namespace morvane
