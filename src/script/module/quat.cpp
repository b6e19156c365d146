#include "foundation/base/quaternion.hpp"

#include "foundation/base/number_text.hpp"
#include "script/engine/macro.hpp"
#include "script/module/math_parameters.hpp"
#include "script/module/matrix_values.hpp"
#include "script/module/use_all.hpp"

// Quaternions of the language: <w, x, y, z>, always written with all four components.
namespace morvane {
namespace {
HYPER Quaternion(TMACRO *engine, NAT index) { return GETHYPER(engine->GETPARAMETER(index)); }
HYPER First(TMACRO *engine) { return Quaternion(engine, 1); }

void MATRIX2QUAT_REF(TMACRO *engine) {
    ANY_MATRIX matrix;
    if (!GETMATRIX_MACRO(ALL_PARAMETERS(engine), matrix))
        return engine->ERROR("a matrix is 3 or 4 vectors, 9 or 16 numbers or one text of them");
    engine->COMMAND_RESULT = GETSTRING(MATRIX_TO_QUAT(AS_MATRIX3(matrix)));
}

void QUAT2MATRIX_REF(TMACRO *engine) {
    engine->COMMAND_RESULT = MATRIX_TEXT(QUAT_TO_MATRIX(First(engine)));
}

// quat angle axis: the axis is taken as it is, so it should have length 1.
void QUAT_REF(TMACRO *engine) {
    const REAL angle = GETREAL(engine->GETPARAMETER(1));
    engine->COMMAND_RESULT = GETSTRING(QUAT_GET(angle, GETVECTOR(engine->GETPARAMETER(2))));
}

void QUAT_VECTOR_REF(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(QUAT_VECTOR(First(engine)));
}
void QUAT_ANGLE_REF(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(QUAT_ANGLE(First(engine)));
}
void QUAT_CONJUGATE_REF(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(CONJUGATE(First(engine)));
}

// The products of all parameters in order.
template <HYPER (*F)(const HYPER &, const HYPER &)> void QUAT_FOLD_REF(TMACRO *engine) {
    HYPER product = First(engine);
    for (NAT i = 2; i <= engine->PARAMETERLENGTH(); ++i)
        product = F(product, Quaternion(engine, i));
    engine->COMMAND_RESULT = GETSTRING(product);
}

void QUAT_TRANSFORM_REF(TMACRO *engine) {
    const VECTOR vector = GETVECTOR(engine->GETPARAMETER(1));
    engine->COMMAND_RESULT = GETSTRING(TRANSFORM(vector, Quaternion(engine, 2)));
}

constexpr COMMAND_ROW QUAT_ROWS[] = {
    FUNCTION("matrix2quat", MATRIX2QUAT_REF, AT_LEAST(1), "matrix: text ...",
             "a := matrix2quat <0, 1, 0> <-1, 0, 0> <0, 0, 1>", "quaternion of a rotation matrix"),
    FUNCTION("quat2matrix", QUAT2MATRIX_REF, EXACTLY(1), "quaternion: hyper",
             "a := quat2matrix <1, 0, 0, 0>", "rotation matrix of a quaternion"),
    FUNCTION("quat", QUAT_REF, EXACTLY(2), "angle: real [rad], axis: vector",
             "a := quat 90° <0, 0, 1>", "quaternion of a turn about an axis of length 1"),
    FUNCTION("quat.vector", QUAT_VECTOR_REF, EXACTLY(1), "quaternion: hyper",
             "a := quat.vector <0.6, 0, 0, 0.8>", "axis of a quaternion"),
    FUNCTION("quat.angle", QUAT_ANGLE_REF, EXACTLY(1), "quaternion: hyper",
             "a := quat.angle <0.6, 0, 0, 0.8>", "angle of a quaternion in radians"),
    FUNCTION("quat.conjugate", QUAT_CONJUGATE_REF, EXACTLY(1), "quaternion: hyper",
             "a := quat.conjugate <0.6, 0, 0, 0.8>", "the turn back"),
    FUNCTION("quat.mul", QUAT_FOLD_REF<QUAT_MUL>, AT_LEAST(2), "first: hyper, second: hyper ...",
             "a := quat.mul <0, 1, 0, 0> <0, 0, 1, 0>", "product a b; the last one turns first"),
    FUNCTION("quat.join", QUAT_FOLD_REF<QUAT_JOIN>, AT_LEAST(2), "first: hyper, second: hyper ...",
             "a := quat.join <0, 1, 0, 0> <0, 0, 1, 0>", "product b a; the first one turns first"),
    FUNCTION("quat.transform", QUAT_TRANSFORM_REF, EXACTLY(2), "vector: vector, quaternion: hyper",
             "a := quat.transform <1, 0, 0> <0.6, 0, 0, 0.8>", "vector turned by a quaternion"),
};
static_assert(ROWS_ARE_SOUND(QUAT_ROWS));
} // namespace

const COMMAND_SET QUAT_SET{"", QUAT_ROWS};
} // namespace morvane
