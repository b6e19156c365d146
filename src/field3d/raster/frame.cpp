#include "field3d/raster/frame.hpp"

#include "foundation/base/geometry.hpp"
#include "foundation/base/matrix3.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/record_operators.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/console/console.hpp"

#include <cmath>

namespace morvane {
namespace {
constexpr VECTOR AXIS[] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
}

void FRAME::SETMATRIX(const MATRIX3 &value) {
    matrix = value;
    inverse = INVERSE(value);
}

void FRAME::SETMOVE(const VECTOR &value) {
    offset = value;
    negativeOffset = value * -1.0;
}

void FRAME::RESET() {
    SETMATRIX(M3NORM);
    SETMOVE(VZERO);
}

VECTOR FRAME::SCALE() const {
    return {GETLENGTH(matrix[0]), GETLENGTH(matrix[1]), GETLENGTH(matrix[2])};
}

VECTOR FRAME::L2G(const VECTOR &local) const {
    return offset + matrix[0] * (local.x - 1) + matrix[1] * (local.y - 1) +
           matrix[2] * (local.z - 1);
}

VECTOR FRAME::G2L(const VECTOR &global) const {
    const VECTOR d = global + negativeOffset;
    return inverse[0] * d.x + inverse[1] * d.y + inverse[2] * d.z + VNORM;
}

VECTORNAT FRAME::G2L_ROUND(const VECTOR &global) const {
    const VECTOR local = G2L(global);
    return {ROUND(local.x), ROUND(local.y), ROUND(local.z)};
}

void FRAME::CENTER(const VECTORNAT &size) {
    const VECTOR scale = SCALE();
    SETMOVE({static_cast<REAL>(size.x) * scale.x / -2, static_cast<REAL>(size.y) * scale.y / -2,
             static_cast<REAL>(size.z) * scale.z / -2});
}

void FRAME::SETSCALE(const VECTOR &scale) {
    if (scale == VZERO) return;
    SETMATRIX(
        {{AXIS[0] * std::abs(scale.x), AXIS[1] * std::abs(scale.y), AXIS[2] * std::abs(scale.z)}});
}

void FRAME::MULSCALE(const VECTOR &scale) {
    if (scale == VZERO) return;
    SETMATRIX({{matrix[0] * scale.x, matrix[1] * scale.y, matrix[2] * scale.z}});
}

void FRAME::NORMSCALE() { SETMATRIX({{NORM(matrix[0]), NORM(matrix[1]), NORM(matrix[2])}}); }

void FRAME::UNFLIP() { SETMATRIX({{ABS(matrix[0]), ABS(matrix[1]), ABS(matrix[2])}}); }

void FRAME::UNROTATE() {
    const VECTOR scale = SCALE();
    SETMATRIX({{AXIS[0] * scale.x, AXIS[1] * scale.y, AXIS[2] * scale.z}});
}

void FRAME::SETMATRIX_CHECKED(const MATRIX3 &value) {
    if (value[0] == VZERO || value[1] == VZERO || value[2] == VZERO) {
        WRITELN(UTF16("Error! Wrong matrix ") + GETSTRING(value) +
                UTF16(" -> (<1,0,0>;<0,1,0>;<0,0,1>)."));
        return SETMATRIX(M3NORM);
    }
    SETMATRIX(value);
}

NAT COORD(REAL position, NAT size) {
    const REAL last = static_cast<REAL>(size - 1);
    NAT result = 0;
    if (position == 0)
        // The middle is taken in single precision: scripts depend on where large axes round to.
        result = ROUND(static_cast<REAL>(static_cast<float>(last) * 0.5F)) + 1;
    else if (position >= 1)
        result = ROUND(position);
    else if (position > 0)
        result = ROUND(last * position) + 1;
    else if (position > -1)
        result = ROUND(last * (1 + position)) + 1;
    else if (position <= -1)
        result = ROUND(position + 1 + static_cast<REAL>(size));
    // Deliberate: a position beyond the field lands in its middle, not on its edge.
    return result >= 1 && result <= size ? result : size / 2;
}

VECTORNAT COORD(const VECTOR &position, const VECTORNAT &size) {
    return {COORD(position.x, size.x), COORD(position.y, size.y), COORD(position.z, size.z)};
}
} // namespace morvane
