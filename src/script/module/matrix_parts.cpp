#include "script/module/matrix_parts.hpp"

#include "foundation/base/eigen.hpp"
#include "foundation/base/geometry.hpp"
#include "foundation/base/matrix4.hpp"
#include "foundation/base/quaternion.hpp"

namespace morvane {
MATRIX_PARTS SPLIT_MATRIX(const MATRIX4 &matrix) {
    const MATRIX3 rows = GETMATRIX3(matrix);
    VECTOR scale{GETLENGTH(rows[0]), GETLENGTH(rows[1]), GETLENGTH(rows[2])};
    if (DET(rows) < 0) scale.x = -scale.x;
    return {scale,
            {{rows[0] / scale.x, rows[1] / scale.y, rows[2] / scale.z}},
            {matrix[3].x, matrix[3].y, matrix[3].z}};
}

MATRIX3 SCALE_MATRIX(const VECTOR &scale) {
    return {{{{scale.x, 0, 0}, {0, scale.y, 0}, {0, 0, scale.z}}}};
}

MATRIX4 MOVE_MATRIX(const VECTOR &move) {
    MATRIX4 matrix = M4NORM;
    matrix[3] = {move.x, move.y, move.z, 1};
    return matrix;
}

MATRIX3 ROTATION_MATRIX(const VECTOR &angles) {
    MATRIX3 matrix = M3NORM;
    for (VECTOR &row : matrix.rows)
        row = ROTATEZ(ROTATEY(ROTATEX(row, angles.x), angles.y), angles.z);
    return matrix;
}

VECTOR ROTATION_ANGLES(const MATRIX3 &rotation) {
    constexpr REAL LOCKED = 1 - 1e-12; // sine of the y angle
    const HYPER q = MATRIX_TO_QUAT(rotation);
    const REAL sine = 2 * (q.x * q.z - q.w * q.y);
    if (ABS(sine) < LOCKED) return QUAT_TO_ROTATE_XYZ(q);
    return {2 * ARCTAN2(q.y, q.x), COPYSIGN(PI / 2, sine), 0};
}

REAL FRACTIONAL_ANISOTROPY(const SYMMATRIX3 &matrix) {
    const VECTOR e = EIGENVALUES2(matrix);
    const REAL mean = (e.x + e.y + e.z) / 3;
    return DIVIDE(std::sqrt(1.5) * GETLENGTH(e - mean), GETLENGTH(e));
}
} // namespace morvane
