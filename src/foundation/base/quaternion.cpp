#include "foundation/base/quaternion.hpp"

#include "foundation/base/geometry.hpp"
#include "foundation/base/matrix4.hpp"

namespace morvane {
namespace {
VECTOR Axis(const HYPER &q) { return {q.y, q.z, q.w}; }

HYPER Repaired(const HYPER &q) {
    // Deliberate: a quaternion whose scalar part exceeds 1 has every component squared before use.
    return q.x > 1 ? SQR(q) : q;
}
} // namespace

HYPER QUAT_GET(REAL angle, const VECTOR &axis) {
    const VECTOR part = axis * std::sin(angle / 2);
    return {std::cos(angle / 2), part.x, part.y, part.z};
}

REAL QUAT_ANGLE(HYPER q) { return 2 * ARCCOS(Repaired(q).x); }

VECTOR QUAT_VECTOR(HYPER q) {
    q = Repaired(q);
    return Axis(q) / SQRT(1 - q.x * q.x);
}

HYPER CONJUGATE(const HYPER &q) { return {q.x, -q.y, -q.z, -q.w}; }

HYPER QUAT_MUL(const HYPER &a, const HYPER &b) {
    return {a.x * b.x - a.y * b.y - a.z * b.z - a.w * b.w,
            a.x * b.y + a.y * b.x + a.z * b.w - a.w * b.z,
            a.x * b.z - a.y * b.w + a.z * b.x + a.w * b.y,
            a.x * b.w + a.y * b.z - a.z * b.y + a.w * b.x};
}

HYPER QUAT_JOIN(const HYPER &a, const HYPER &b) { return QUAT_MUL(b, a); }

VECTOR TRANSFORM(const VECTOR &v, const HYPER &q) {
    return Axis(QUAT_MUL(QUAT_MUL(q, {0, v.x, v.y, v.z}), CONJUGATE(q)));
}

MATRIX3 QUAT_TO_MATRIX(const HYPER &q) {
    const REAL w = q.x, x = q.y, y = q.z, z = q.w;
    const REAL ww = w * w, xx = x * x, yy = y * y, zz = z * z;
    return GM3({ww + xx - yy - zz, 2 * (w * z + x * y), 2 * (x * z - w * y)},
               {2 * (x * y - w * z), ww + yy - xx - zz, 2 * (w * x + y * z)},
               {2 * (w * y + x * z), 2 * (y * z - w * x), ww + zz - xx - yy});
}

HYPER MATRIX_TO_QUAT(const MATRIX3 &m) {
    const REAL xx = m[0].x, yy = m[1].y, zz = m[2].z;
    const REAL dx = m[1].z - m[2].y, dy = m[2].x - m[0].z, dz = m[0].y - m[1].x;
    const REAL sxy = m[1].x + m[0].y, sxz = m[2].x + m[0].z, syz = m[2].y + m[1].z;
    HYPER q;
    if (xx + yy + zz > 0) {
        const REAL s = 2 * SQRT(1 + (xx + yy + zz));
        q = HYPER{0, dx, dy, dz} / s;
        q.x = s / 4;
    } else if (xx > yy && xx > zz) {
        const REAL s = 2 * SQRT(1 + xx - yy - zz);
        q = HYPER{dx, 0, sxy, sxz} / s;
        q.y = s / 4;
    } else if (yy > zz) {
        const REAL s = 2 * SQRT(1 + yy - xx - zz);
        q = HYPER{dy, sxy, 0, syz} / s;
        q.z = s / 4;
    } else {
        const REAL s = 2 * SQRT(1 + zz - xx - yy);
        q = HYPER{dz, sxz, syz, 0} / s;
        q.w = s / 4;
    }
    return q.x < 0 ? -q : q;
}

HYPER MATRIX_TO_QUAT(const MATRIX4 &m) { return MATRIX_TO_QUAT(GETMATRIX3(m)); }

MATRIX3 ROTATE_VECTOR(const VECTOR &axis, REAL angle) {
    const auto [x, y, z] = NORM(axis);
    const REAL c = std::cos(angle), s = std::sin(angle), t = 1 - c;
    return GM3({t * x * x + c, t * x * y + s * z, t * x * z - s * y},
               {t * x * y - s * z, t * y * y + c, t * y * z + s * x},
               {t * x * z + s * y, t * y * z - s * x, t * z * z + c});
}

VECTOR QUAT_TO_ROTATE_XYZ(const HYPER &q) {
    const REAL w = q.x, x = q.y, y = q.z, z = q.w;
    const REAL u = 2 * (w * y - z * x);
    return {ARCTAN2(2 * (y * z + w * x), 1 - 2 * (x * x + y * y)),
            ABS(u) >= 1 ? COPYSIGN(PI / 2, u) : ARCSIN(u),
            ARCTAN2(2 * (x * y + w * z), 1 - 2 * (y * y + z * z))};
}
} // namespace morvane
