#include "foundation/base/eigen.hpp"
#include "foundation/base/matrix3.hpp"
#include "foundation/base/matrix4.hpp"
#include "foundation/base/quaternion.hpp"
#include "script/engine/macro.hpp"
#include "script/module/math_parameters.hpp"
#include "script/module/matrix_parts.hpp"
#include "script/module/matrix_values.hpp"
#include "script/module/use_all.hpp"

namespace morvane {
namespace {
constexpr NAT MOST_PARAMETERS = 16;

// The function of the matrix that all parameters together are.
template <UTF16 (*F)(const ANY_MATRIX &)> void OF_MATRIX_REF(TMACRO *engine) {
    if (engine->PARAMETERLENGTH() > MOST_PARAMETERS)
        return engine->MAX_PARAMETERERROR(MOST_PARAMETERS);
    ANY_MATRIX matrix;
    if (!GETMATRIX_MACRO(ALL_PARAMETERS(engine), matrix))
        return engine->ERROR("a matrix is 3 or 4 vectors, 9 or 16 numbers or one text of them");
    engine->COMMAND_RESULT = F(matrix);
}

// The same of a symmetric 3x3 matrix.
template <UTF16 (*F)(const SYMMATRIX3 &)> void OF_TENSOR_REF(TMACRO *engine) {
    SYMMATRIX3 matrix;
    if (!GETSYMMATRIX3_MACRO(ALL_PARAMETERS(engine), matrix))
        return engine->ERROR("a symmetric matrix is 2 or 3 vectors, 6 or 9 numbers or one text of "
                             "them");
    engine->COMMAND_RESULT = F(matrix);
}

template <MATRIX_FORM FORM> UTF16 Text(const ANY_MATRIX &matrix) {
    return MATRIX_TEXT(matrix, FORM);
}
UTF16 Trace(const ANY_MATRIX &matrix) {
    const MATRIX4 m = AS_MATRIX4(matrix);
    const bool isFour = std::holds_alternative<MATRIX4>(matrix);
    return GETSTRING(m[0].x + m[1].y + m[2].z + (isFour ? m[3].w : 0));
}
// A 3x3 matrix has a fourth row when it is taken as the part of an identity.
template <std::size_t ROW> UTF16 Row(const ANY_MATRIX &matrix) {
    if (ROW < 3 && std::holds_alternative<MATRIX3>(matrix))
        return GETSTRING(AS_MATRIX3(matrix)[ROW]);
    return GETSTRING(AS_MATRIX4(matrix)[ROW]);
}
UTF16 Transposed(const ANY_MATRIX &matrix) {
    return MATRIX_TEXT(
        std::visit([](const auto &m) -> ANY_MATRIX { return TRANSPOSE(m); }, matrix));
}
UTF16 Inverse(const ANY_MATRIX &matrix) {
    return MATRIX_TEXT(std::visit([](const auto &m) -> ANY_MATRIX { return INVERSE(m); }, matrix));
}
UTF16 RotationOf(const ANY_MATRIX &matrix) {
    return GETSTRING(ROTATION_ANGLES(SPLIT_MATRIX(AS_MATRIX4(matrix)).rotation));
}
UTF16 ScaleOf(const ANY_MATRIX &matrix) {
    return GETSTRING(SPLIT_MATRIX(AS_MATRIX4(matrix)).scale);
}
UTF16 MoveOf(const ANY_MATRIX &matrix) { return GETSTRING(SPLIT_MATRIX(AS_MATRIX4(matrix)).move); }

UTF16 Values(const SYMMATRIX3 &matrix) { return GETSTRING(EIGENVALUES2(matrix)); }
UTF16 Value1(const SYMMATRIX3 &matrix) { return GETSTRING(EIGENVALUES2(matrix).x); }
UTF16 Value2(const SYMMATRIX3 &matrix) { return GETSTRING(EIGENVALUES2(matrix).y); }
UTF16 Value3(const SYMMATRIX3 &matrix) { return GETSTRING(EIGENVALUES2(matrix).z); }
template <std::size_t ROW> UTF16 Vector(const SYMMATRIX3 &matrix) {
    return GETSTRING(EIGENVECTORS2(matrix)[ROW]);
}
UTF16 Anisotropy(const SYMMATRIX3 &matrix) { return GETSTRING(FRACTIONAL_ANISOTROPY(matrix)); }

// A vector given as one parameter or as three numbers; false after the report.
bool VectorParameter(TMACRO *engine, VECTOR &vector) {
    const NAT count = engine->PARAMETERLENGTH();
    if (count > 3) return engine->MAX_PARAMETERERROR(3), false;
    if (count == 2) return engine->ERROR("a vector is one parameter or three numbers"), false;
    vector = GETVECTOR(engine->GETPARAMETER(1));
    if (count == 3)
        vector = {vector.x, GETREAL(engine->GETPARAMETER(2)), GETREAL(engine->GETPARAMETER(3))};
    return true;
}

// One number alone scales all axes.
void MATRIX_SCALE_REF(TMACRO *engine) {
    VECTOR scale;
    if (!VectorParameter(engine, scale)) return;
    const bool isNumber =
        engine->PARAMETERLENGTH() == 1 && COUNT_NUMBERS(engine->GETPARAMETER(1), 2) < 2;
    engine->COMMAND_RESULT = MATRIX_TEXT(SCALE_MATRIX(isNumber ? VNORM * scale.x : scale));
}

void MATRIX_MOVE_REF(TMACRO *engine) {
    VECTOR move;
    if (VectorParameter(engine, move)) engine->COMMAND_RESULT = MATRIX_TEXT(MOVE_MATRIX(move));
}

// matrix.rotation q, angle axis, or the three angles.
void MATRIX_ROTATION_REF(TMACRO *engine) {
    MATRIX3 matrix;
    VECTOR angles;
    if (engine->PARAMETERLENGTH() == 2) {
        const REAL angle = GETREAL(engine->GETPARAMETER(1));
        matrix = ROTATE_VECTOR(GETVECTOR(engine->GETPARAMETER(2)), angle);
    } else if (!VectorParameter(engine, angles)) {
        return;
    } else if (engine->PARAMETERLENGTH() == 1 && COUNT_NUMBERS(engine->GETPARAMETER(1), 4) == 4) {
        matrix = QUAT_TO_MATRIX(GETHYPER(engine->GETPARAMETER(1)));
    } else {
        matrix = ROTATION_MATRIX(angles);
    }
    engine->COMMAND_RESULT = MATRIX_TEXT(matrix);
}

// The product, the first matrix acts first. 3x3 with 4x4 gives 4x4.
ANY_MATRIX Join(const ANY_MATRIX &a, const ANY_MATRIX &b) {
    const bool isThree = std::holds_alternative<MATRIX3>(a) && std::holds_alternative<MATRIX3>(b);
    if (isThree) return JOIN(AS_MATRIX3(a), AS_MATRIX3(b));
    return JOIN(AS_MATRIX4(a), AS_MATRIX4(b));
}

void MATRIX_JOIN_REF(TMACRO *engine) {
    std::vector<ANY_MATRIX> matrices;
    if (!GETMATRICES_MACRO(ALL_PARAMETERS(engine), matrices))
        return engine->ERROR("matrices to join are texts, or the vectors or numbers of two");
    ANY_MATRIX product = matrices.front();
    for (std::size_t i = 1; i < matrices.size(); ++i)
        product = Join(product, matrices[i]);
    engine->COMMAND_RESULT = MATRIX_TEXT(product);
}

// A vector is a point, whose fourth component is 1; four numbers are taken as they are.
UTF16 Transformed(const UTF16 &text, const ANY_MATRIX &matrix) {
    HYPER point = GETHYPER(text);
    const bool isHyper = COUNT_NUMBERS(text, 4) == 4;
    if (!isHyper) point.w = 1;
    const HYPER moved = TRANSFORM(AS_MATRIX4(matrix), point);
    return isHyper ? GETSTRING(moved) : GETSTRING(VECTOR{moved.x, moved.y, moved.z});
}

void MATRIX_TRANSFORM_REF(TMACRO *engine) {
    const std::vector<UTF16> parameters = ALL_PARAMETERS(engine);
    std::span<const UTF16> vectors;
    ANY_MATRIX matrix;
    if (!SPLIT_VECTORS(parameters, vectors, matrix))
        return engine->ERROR("vectors to transform stand before a matrix as text, one before "
                             "vectors or numbers");
    std::vector<UTF16> results;
    for (const UTF16 &vector : vectors)
        results.push_back(Transformed(vector, matrix));
    engine->COMMAND_RESULT = JOIN_RESULTS(results);
}

constexpr std::string_view MATRIX = "matrix: text ...";

constexpr COMMAND_ROW MATRIX_ROWS[] = {
    FUNCTION("matrix.trace", OF_MATRIX_REF<Trace>, AT_LEAST(1), MATRIX,
             "a := matrix.trace <1, 0, 0> <0, 2, 0> <0, 0, 3>", "sum of the diagonal"),
    FUNCTION("matrix.v1", OF_MATRIX_REF<Row<0>>, AT_LEAST(1), MATRIX,
             "a := matrix.v1 1 2 3 4 5 6 7 8 9", "first row"),
    FUNCTION("matrix.v2", OF_MATRIX_REF<Row<1>>, AT_LEAST(1), MATRIX,
             "a := matrix.v2 1 2 3 4 5 6 7 8 9", "second row"),
    FUNCTION("matrix.v3", OF_MATRIX_REF<Row<2>>, AT_LEAST(1), MATRIX,
             "a := matrix.v3 1 2 3 4 5 6 7 8 9", "third row"),
    FUNCTION("matrix.v4", OF_MATRIX_REF<Row<3>>, AT_LEAST(1), MATRIX,
             "a := matrix.v4 1 2 3 4 5 6 7 8 9", "fourth row, of a 3x3 matrix <0, 0, 0, 1>"),
    FUNCTION("matrix.rotation", MATRIX_ROTATION_REF, AT_LEAST(1),
             "angle: real [rad], axis: vector | angles: vector [rad] | quaternion: hyper",
             "a := matrix.rotation 90° <0, 0, 1>",
             "turn by an angle and axis, angles <x, y, z>, or a quaternion"),
    FUNCTION("matrix.rotation.get", OF_MATRIX_REF<RotationOf>, AT_LEAST(1), MATRIX,
             "a := matrix.rotation.get <0, 1, 0> <-1, 0, 0> <0, 0, 1>",
             "angles <x, y, z> in radians"),
    FUNCTION("matrix.scale", MATRIX_SCALE_REF, AT_LEAST(1),
             "scale: vector | factor: real | x: real, y: real, z: real",
             "a := matrix.scale <2, 3, 4>", "scale along the axes"),
    FUNCTION("matrix.scale.get", OF_MATRIX_REF<ScaleOf>, AT_LEAST(1), MATRIX,
             "a := matrix.scale.get <2, 0, 0> <0, 3, 0> <0, 0, 4>", "lengths of the rows"),
    FUNCTION("matrix.move", MATRIX_MOVE_REF, AT_LEAST(1),
             "move: vector | x: real, y: real, z: real", "a := matrix.move <10, 20, 30>",
             "4x4 matrix that moves points"),
    FUNCTION("matrix.move.get", OF_MATRIX_REF<MoveOf>, AT_LEAST(1), MATRIX,
             "a := matrix.move.get <1, 0, 0, 0> <0, 1, 0, 0> <0, 0, 1, 0> <10, 20, 30, 1>",
             "where the matrix moves <0, 0, 0>"),
    FUNCTION("matrix.transpose", OF_MATRIX_REF<Transposed>, AT_LEAST(1), MATRIX,
             "a := matrix.transpose 1 2 3 4 5 6 7 8 9", "rows turned to columns"),
    FUNCTION("matrix.inverse", OF_MATRIX_REF<Inverse>, AT_LEAST(1), MATRIX,
             "a := matrix.inverse <2, 0, 0> <0, 4, 0> <0, 0, 5>",
             "inverse; all zeros when there is none"),
    FUNCTION("matrix.join", MATRIX_JOIN_REF, AT_LEAST(2), "first: text, second: text ...",
             "a := matrix.join (1,0,0,0,1,0,0,0,1) (2,0,0,0,2,0,0,0,2)",
             "product; the first one acts first"),
    FUNCTION("matrix.transform", MATRIX_TRANSFORM_REF, AT_LEAST(2),
             "vector: hyper, matrix: text ...",
             "a := matrix.transform <1, 2, 3> (2,0,0,0,2,0,0,0,2)", "vectors times a matrix"),
    FUNCTION("matrix", OF_MATRIX_REF<Text<MATRIX_FORM::MATRIX>>, AT_LEAST(1), MATRIX,
             "a := matrix <1, 2, 3> <4, 5, 6> <7, 8, 9>", "one text (<..>;<..>;<..>)"),
    FUNCTION("matrix.vector", OF_MATRIX_REF<Text<MATRIX_FORM::VECTORS>>, AT_LEAST(1), MATRIX,
             "a := matrix.vector 1 2 3 4 5 6 7 8 9", "the rows as vectors parted by blanks"),
    FUNCTION("matrix.space", OF_MATRIX_REF<Text<MATRIX_FORM::NUMBERS>>, AT_LEAST(1), MATRIX,
             "a := matrix.space <1, 2, 3> <4, 5, 6> <7, 8, 9>", "the numbers parted by blanks"),
    FUNCTION("matrix.eigen", OF_TENSOR_REF<Values>, AT_LEAST(1), MATRIX,
             "a := matrix.eigen <1, 2, 3> <0, 0, 0>", "eigen values of a symmetric matrix"),
    FUNCTION("matrix.e1", OF_TENSOR_REF<Value1>, AT_LEAST(1), MATRIX,
             "a := matrix.e1 <1, 2, 3> <0, 0, 0>", "largest eigen value"),
    FUNCTION("matrix.e2", OF_TENSOR_REF<Value2>, AT_LEAST(1), MATRIX,
             "a := matrix.e2 <1, 2, 3> <0, 0, 0>", "middle eigen value"),
    FUNCTION("matrix.e3", OF_TENSOR_REF<Value3>, AT_LEAST(1), MATRIX,
             "a := matrix.e3 <1, 2, 3> <0, 0, 0>", "smallest eigen value"),
    FUNCTION("matrix.ev1", OF_TENSOR_REF<Vector<0>>, AT_LEAST(1), MATRIX,
             "a := matrix.ev1 <1, 2, 3> <0, 0, 0>", "eigen vector of the largest value"),
    FUNCTION("matrix.ev2", OF_TENSOR_REF<Vector<1>>, AT_LEAST(1), MATRIX,
             "a := matrix.ev2 <1, 2, 3> <0, 0, 0>", "eigen vector of the middle value"),
    FUNCTION("matrix.ev3", OF_TENSOR_REF<Vector<2>>, AT_LEAST(1), MATRIX,
             "a := matrix.ev3 <1, 2, 3> <0, 0, 0>", "eigen vector of the smallest value"),
    FUNCTION("matrix.fa", OF_TENSOR_REF<Anisotropy>, AT_LEAST(1), MATRIX,
             "a := matrix.fa <1, 2, 3> <0, 0, 0>", "fractional anisotropy, 0..1"),
};
static_assert(ROWS_ARE_SOUND(MATRIX_ROWS));
} // namespace

const COMMAND_SET MATRIX_SET{"", MATRIX_ROWS};
} // namespace morvane
