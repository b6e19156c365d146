#include "foundation/base/eigen.hpp"
#include "foundation/base/geometry.hpp"
#include "foundation/base/matrix4.hpp"
#include "script/engine/constant_table.hpp"
#include "script/module/math_run.hpp"
#include "script/module/matrix_parts.hpp"
#include "script/module/matrix_values.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
constexpr REAL NEAR = 1e-12; // texts keep 16 decimals

bool Is(const std::string &text, const HYPER &expected) {
    return GETLENGTH(GETHYPER(text) - expected) < NEAR;
}
bool Is(const std::string &text, const MATRIX3 &expected) {
    const MATRIX3 found = GETMATRIX3(text);
    for (std::size_t i = 0; i < 3; ++i)
        if (!(GETLENGTH(found[i] - expected[i]) < NEAR)) return false;
    return true;
}
// A turn of 90° about z takes x to y and y to -x; the rows are where the axes go.
constexpr MATRIX3 QUARTER_Z{{{{0, 1, 0}, {-1, 0, 0}, {0, 0, 1}}}};
} // namespace

TEST_CASE("a matrix is read from rows, numbers or one text") {
    MATH_RUN run;
    const std::string nine = "(<1, 2, 3>;<4, 5, 6>;<7, 8, 9>)";
    CHECK(run.VALUE("matrix <1, 2, 3> <4, 5, 6> <7, 8, 9>") == nine);
    CHECK(run.VALUE("matrix 1 2 3 4 5 6 7 8 9") == nine);
    CHECK(run.VALUE("matrix (1, 2, 3; 4, 5, 6; 7, 8, 9)") == nine);
    CHECK(run.VALUE("matrix \"1 2 3 4 5 6 7 8 9\"") == nine);
    CHECK(run.RUN("m := matrix 1 2 3 4 5 6 7 8 9\nn := matrix m\nprint n\n") == nine + "\n");
    const std::string sixteen = "(<1, 2, 3, 4>;<5, 6, 7, 8>;<9, 10, 11, 12>;<13, 14, 15, 16>)";
    CHECK(run.VALUE("matrix <1, 2, 3, 4> <5, 6, 7, 8> <9, 10, 11, 12> <13, 14, 15, 16>") ==
          sixteen);
    CHECK(run.VALUE("matrix 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16") == sixteen);
    CHECK(run.VALUE("matrix (1,2,3,4;5,6,7,8;9,10,11,12;13,14,15,16)") == sixteen);
    CHECK(run.VALUE("matrix (1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;16)") == sixteen);
    CHECK(run.VALUE("matrix (1,2;3;4,5,6;7)") ==
          "(<1, 2, 0, 0>;<3, 0, 0, 0>;<4, 5, 6, 0>;<7, 0, 0, 0>)");
}

TEST_CASE("what is no matrix is told") {
    MATH_RUN run;
    for (const char *parameters :
         {"1", "1 2", "1 2 3 4 5", "word", "\"1 2 3 4 5 6 7 8\"", "\"1 2 3 4 5 6 7 8 9 10\""})
        CHECK(run.RUN("a := matrix.trace " + std::string(parameters) + "\n") ==
              "Error (a matrix is 3 or 4 vectors, 9 or 16 numbers or one text of them) in line 1 "
              "(test.macro)!\n");
    CHECK(run.RUN("a := matrix.trace\n") ==
          "Parameter error! Please use min. one parameter in line 1 (test.macro).\n");
    CHECK(run.RUN("a := matrix 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17\n") ==
          "Parameter error! Please use max. 16 parameters in line 1 (test.macro).\n");
}

TEST_CASE("matrix.vector and matrix.space write the rows and the numbers") {
    MATH_RUN run;
    CHECK(run.VALUE("matrix.vector 1 2 3 4 5 6 7 8 9") == "<1, 2, 3> <4, 5, 6> <7, 8, 9>");
    CHECK(run.VALUE("matrix.space <1, 2, 3> <4, 5, 6> <7, 8, 9>") == "1 2 3 4 5 6 7 8 9");
    CHECK(run.RUN("m := matrix.move <4, 5, 6>\na := matrix.vector m\nb := matrix.space m\n"
                  "c := matrix a\nd := matrix b\nprint a\nprint b\nprint c\nprint d\n") ==
          "<1, 0, 0, 0> <0, 1, 0, 0> <0, 0, 1, 0> <4, 5, 6, 1>\n"
          "1 0 0 0 0 1 0 0 0 0 1 0 4 5 6 1\n"
          "(<1, 0, 0, 0>;<0, 1, 0, 0>;<0, 0, 1, 0>;<4, 5, 6, 1>)\n"
          "(<1, 0, 0, 0>;<0, 1, 0, 0>;<0, 0, 1, 0>;<4, 5, 6, 1>)\n");
}

TEST_CASE("matrix.trace is the sum of the diagonal") {
    MATH_RUN run;
    CHECK(run.VALUE("matrix.trace 1 2 3 4 5 6 7 8 9") == "15");
    CHECK(run.VALUE("matrix.trace 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16") == "34");
}

TEST_CASE("matrix.v1 to matrix.v4 are the rows") {
    MATH_RUN run;
    CHECK(run.VALUE("matrix.v1 1 2 3 4 5 6 7 8 9") == "<1, 2, 3>");
    CHECK(run.VALUE("matrix.v2 1 2 3 4 5 6 7 8 9") == "<4, 5, 6>");
    CHECK(run.VALUE("matrix.v3 1 2 3 4 5 6 7 8 9") == "<7, 8, 9>");
    CHECK(run.VALUE("matrix.v4 1 2 3 4 5 6 7 8 9") == "<0, 0, 0, 1>");
    CHECK(run.VALUE("matrix.v1 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16") == "<1, 2, 3, 4>");
    CHECK(run.VALUE("matrix.v4 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16") == "<13, 14, 15, 16>");
}

TEST_CASE("matrix.rotation reads an angle and axis, three angles or a quaternion") {
    MATH_RUN run;
    CHECK(Is(run.VALUE("matrix.rotation 90° <0, 0, 1>"), QUARTER_Z));
    CHECK(Is(run.VALUE("matrix.rotation 90° <0, 0, 5>"), QUARTER_Z)); // the axis is normalised
    CHECK(Is(run.VALUE("matrix.rotation <0, 0, 90°>"), QUARTER_Z));
    CHECK(Is(run.VALUE("matrix.rotation 0 0 90°"), QUARTER_Z));
    CHECK(
        Is(run.VALUE("matrix.rotation <0.7071067811865476, 0, 0, 0.7071067811865476>"), QUARTER_Z));
    // 90° about x takes y to z, about y it takes z to x.
    CHECK(Is(run.VALUE("matrix.rotation <90°, 0, 0>"),
             MATRIX3{{{{1, 0, 0}, {0, 0, 1}, {0, -1, 0}}}}));
    CHECK(Is(run.VALUE("matrix.rotation <0, 90°, 0>"),
             MATRIX3{{{{0, 0, -1}, {0, 1, 0}, {1, 0, 0}}}}));
    // First about x (y to z), then about z (x to y, y to -x).
    CHECK(Is(run.VALUE("matrix.rotation <90°, 0, 90°>"),
             MATRIX3{{{{0, 1, 0}, {0, 0, 1}, {1, 0, 0}}}}));
    CHECK(run.RUN("a := matrix.rotation 1 2 3 4\n") ==
          "Parameter error! Please use max. 3 parameters in line 1 (test.macro).\n");
}

TEST_CASE("matrix.rotation.get gives back the three angles") {
    MATH_RUN run;
    CHECK(Is(run.VALUE("matrix.rotation.get <0, 1, 0> <-1, 0, 0> <0, 0, 1>"),
             HYPER{0, 0, PI / 2, 0}));
    for (const VECTOR angles : {VECTOR{0.1, 0.2, 0.3}, VECTOR{-1, 1.5, 3}, VECTOR{2, -0.7, -2.5},
                                VECTOR{0, 0, 0}, VECTOR{3, 0, 0}})
        CHECK(GETLENGTH(ROTATION_ANGLES(ROTATION_MATRIX(angles)) - angles) < 1e-9);
}

TEST_CASE("at a y angle of 90° the x angle stands for both others") {
    for (const REAL sign : {1.0, -1.0})
        for (const REAL x : {0.0, 0.5, -2.0, 3.0})
            for (const REAL z : {0.0, 1.0, -0.75}) {
                const MATRIX3 turn = ROTATION_MATRIX({x, sign * PI / 2, z});
                const VECTOR angles = ROTATION_ANGLES(turn);
                CHECK(angles.y == doctest::Approx(sign * PI / 2));
                CHECK(angles.z == 0);
                const MATRIX3 again = ROTATION_MATRIX(angles) - turn;
                for (const VECTOR &row : again.rows)
                    CHECK(GETLENGTH(row) < 1e-6); // the root of 1e-12, where the lock begins
            }
}

TEST_CASE("matrix.scale is a diagonal and matrix.scale.get the lengths of the rows") {
    MATH_RUN run;
    CHECK(run.VALUE("matrix.scale <2, 3, 4>") == "(<2, 0, 0>;<0, 3, 0>;<0, 0, 4>)");
    CHECK(run.VALUE("matrix.scale 2 3 4") == "(<2, 0, 0>;<0, 3, 0>;<0, 0, 4>)");
    CHECK(run.VALUE("matrix.scale 2") == "(<2, 0, 0>;<0, 2, 0>;<0, 0, 2>)");
    CHECK(run.VALUE("matrix.scale.get <0, 3, 4> <0, -4, 3> <2, 0, 0>") == "<5, 5, 2>");
    // A mirrored matrix has a negative x scale.
    CHECK(run.VALUE("matrix.scale.get <-2, 0, 0> <0, 3, 0> <0, 0, 4>") == "<-2, 3, 4>");
    CHECK(run.RUN("a := matrix.scale 1 2\n") ==
          "Error (a vector is one parameter or three numbers) in line 1 (test.macro)!\n");
}

TEST_CASE("matrix.move is a 4x4 matrix with the move in its fourth row") {
    MATH_RUN run;
    CHECK(run.VALUE("matrix.move <7, 8, 9>") ==
          "(<1, 0, 0, 0>;<0, 1, 0, 0>;<0, 0, 1, 0>;<7, 8, 9, 1>)");
    CHECK(run.VALUE("matrix.move 7 8 9") ==
          "(<1, 0, 0, 0>;<0, 1, 0, 0>;<0, 0, 1, 0>;<7, 8, 9, 1>)");
    CHECK(run.RUN("m := matrix.move <7, 8, 9>\na := matrix.move.get m\nprint a\n") ==
          "<7, 8, 9>\n");
    CHECK(run.VALUE("matrix.move.get 1 2 3 4 5 6 7 8 9") == "<0, 0, 0>");
}

TEST_CASE("scale, rotation and move of a joined matrix can be told apart") {
    MATH_RUN run;
    CHECK(run.RUN("s := matrix.scale <2, 3, 4>\nr := matrix.rotation 90° <0, 0, 1>\n"
                  "t := matrix.move <7, 8, 9>\nm := matrix.join s r t\n"
                  "a := matrix.scale.get m\nb := matrix.rotation.get m\nc := matrix.move.get m\n"
                  "b #= 6 b\nprint a\nprint b\nprint c\n") ==
          "<2, 3, 4>\n<0, 0, 1.570796>\n<7, 8, 9>\n");
}

TEST_CASE("matrix.transpose turns rows to columns") {
    MATH_RUN run;
    CHECK(run.VALUE("matrix.transpose 1 2 3 4 5 6 7 8 9") == "(<1, 4, 7>;<2, 5, 8>;<3, 6, 9>)");
    CHECK(run.VALUE("matrix.transpose 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16") ==
          "(<1, 5, 9, 13>;<2, 6, 10, 14>;<3, 7, 11, 15>;<4, 8, 12, 16>)");
}

TEST_CASE("matrix.inverse undoes a matrix and is zero where it cannot") {
    MATH_RUN run;
    CHECK(run.VALUE("matrix.inverse <2, 0, 0> <0, 4, 0> <0, 0, 5>") ==
          "(<0.5, 0, 0>;<0, 0.25, 0>;<0, 0, 0.2>)");
    CHECK(run.VALUE("matrix.inverse 1 2 3 4 5 6 7 8 9") == "(<0, 0, 0>;<0, 0, 0>;<0, 0, 0>)");
    CHECK(run.RUN("m := matrix.move <7, 8, 9>\na := matrix.inverse m\nprint a\n") ==
          "(<1, 0, 0, 0>;<0, 1, 0, 0>;<0, 0, 1, 0>;<-7, -8, -9, 1>)\n");
}

TEST_CASE("matrix.join multiplies in order") {
    MATH_RUN run; // by hand: row 1 is 1*(row 1 of b) + 1*(row 2 of b)
    const std::string product = "(<1, 3, 0>;<0, 2, 0>;<0, 0, 1>)";
    CHECK(run.VALUE("matrix.join (1,1,0;0,1,0;0,0,1) (1,1,0;0,2,0;0,0,1)") == product);
    CHECK(run.VALUE("matrix.join <1, 1, 0> <0, 1, 0> <0, 0, 1> <1, 1, 0> <0, 2, 0> <0, 0, 1>") ==
          product);
    CHECK(run.VALUE("matrix.join 1 1 0 0 1 0 0 0 1 1 1 0 0 2 0 0 0 1") == product);
    CHECK(run.VALUE("matrix.join (1,1,0;0,2,0;0,0,1) (1,1,0;0,1,0;0,0,1)") ==
          "(<1, 2, 0>;<0, 2, 0>;<0, 0, 1>)");
    CHECK(run.VALUE("matrix.join (2,0,0;0,2,0;0,0,2) (3,0,0;0,3,0;0,0,3) (5,0,0;0,5,0;0,0,5)") ==
          "(<30, 0, 0>;<0, 30, 0>;<0, 0, 30>)");
    CHECK(run.RUN("a := matrix.join 1 2 3\n") ==
          "Error (matrices to join are texts, or the vectors or numbers of two) in line 1 "
          "(test.macro)!\n");
}

TEST_CASE("a 3x3 matrix joined with a 4x4 one is the 3x3 part of an identity") {
    MATH_RUN run;
    CHECK(run.RUN("s := matrix.scale 2\nt := matrix.move <1, 1, 1>\na := matrix.join s t\n"
                  "b := matrix.join t s\nprint a\nprint b\n") ==
          "(<2, 0, 0, 0>;<0, 2, 0, 0>;<0, 0, 2, 0>;<1, 1, 1, 1>)\n"
          "(<2, 0, 0, 0>;<0, 2, 0, 0>;<0, 0, 2, 0>;<2, 2, 2, 1>)\n");
}

TEST_CASE("matrix.transform multiplies row vectors with a matrix") {
    MATH_RUN run;
    const std::string matrix = "(0,1,0;-1,0,0;0,0,1)";
    CHECK(run.VALUE("matrix.transform <1, 2, 3> " + matrix) == "<-2, 1, 3>");
    CHECK(run.VALUE("matrix.transform <1, 2, 3> <0, 1, 0> <-1, 0, 0> <0, 0, 1>") == "<-2, 1, 3>");
    CHECK(run.VALUE("matrix.transform <1, 2, 3> 0 1 0 -1 0 0 0 0 1") == "<-2, 1, 3>");
    CHECK(run.VALUE("matrix.transform <1, 2, 3> <4, 5, 6> <1, 0, 0> " + matrix) ==
          "<-2, 1, 3> <-5, 4, 6> <0, 1, 0>");
    CHECK(run.RUN("a := matrix.transform <1, 2, 3> 5\n") ==
          "Error (vectors to transform stand before a matrix as text, one before vectors or "
          "numbers) in line 1 (test.macro)!\n");
}

TEST_CASE("a move acts on points and not on four numbers that end with 0") {
    MATH_RUN run;
    CHECK(run.RUN("m := matrix.move <10, 20, 30>\na := matrix.transform <1, 2, 3> m\n"
                  "b := matrix.transform <1, 2, 3, 0> m\nc := matrix.transform <1, 2, 3, 2> m\n"
                  "print a\nprint b\nprint c\n") ==
          "<11, 22, 33>\n<1, 2, 3, 0>\n<21, 42, 63, 2>\n");
}

TEST_CASE("eigen values come by size and eigen vectors with them") {
    MATH_RUN run; // <2, 1; 1, 2> has 3 along <1, 1> and 1 along <1, -1>
    const std::string matrix = " <2, 1, 0> <1, 2, 0> <0, 0, 7>";
    CHECK(Is(run.VALUE("matrix.eigen" + matrix), HYPER{7, 3, 1, 0}));
    CHECK(Is(run.VALUE("matrix.e1" + matrix), HYPER{7, 0, 0, 0}));
    CHECK(Is(run.VALUE("matrix.e2" + matrix), HYPER{3, 0, 0, 0}));
    CHECK(Is(run.VALUE("matrix.e3" + matrix), HYPER{1, 0, 0, 0}));
    const REAL half = std::sqrt(0.5);
    const VECTOR first = GETVECTOR(run.VALUE("matrix.ev1" + matrix));
    const VECTOR second = GETVECTOR(run.VALUE("matrix.ev2" + matrix));
    const VECTOR third = GETVECTOR(run.VALUE("matrix.ev3" + matrix));
    CHECK(ABS(SCALAR(first, VECTOR{0, 0, 1})) == doctest::Approx(1)); // the sign is open
    CHECK(ABS(SCALAR(second, VECTOR{half, half, 0})) == doctest::Approx(1));
    CHECK(ABS(SCALAR(third, VECTOR{half, -half, 0})) == doctest::Approx(1));
}

TEST_CASE("a symmetric matrix is read as a matrix or as its diagonal and the part above") {
    MATH_RUN run;
    for (const char *form :
         {"<2, 1, 0> <1, 2, 0> <0, 0, 7>", "2 1 0 1 2 0 0 0 7", "(2,1,0;1,2,0;0,0,7)",
          "<2, 2, 7> <1, 0, 0>", "2 2 7 1 0 0", "(2,2,7,1,0,0)"})
        CHECK(Is(run.VALUE(std::string("matrix.eigen ") + form), HYPER{7, 3, 1, 0}));
    CHECK(run.RUN("a := matrix.fa 1\n") ==
          "Error (a symmetric matrix is 2 or 3 vectors, 6 or 9 numbers or one text of them) in "
          "line 1 (test.macro)!\n");
}

TEST_CASE("a matrix that is not symmetric has only zeros as eigen values") {
    MATH_RUN run;
    CHECK(run.VALUE("matrix.eigen 1 2 3 4 5 6 7 8 9") == "<0, 0, 0>");
    CHECK(run.VALUE("matrix.fa 1 2 3 4 5 6 7 8 9") == "0");
}

TEST_CASE("a negative largest eigen value turns all signs and no other one falls below 0") {
    MATH_RUN run;
    CHECK(run.VALUE("matrix.eigen <-3, -2, -1> <0, 0, 0>") == "<3, 2, 1>");
    CHECK(run.VALUE("matrix.eigen <3, -2, 1> <0, 0, 0>") == "<3, 0, 1>");
    CHECK(run.VALUE("matrix.ev2 <3, -2, 1> <0, 0, 0>") == "<0, 0, 0>");
}

TEST_CASE("the fractional anisotropy is 1 for a line and 0 for a sphere") {
    MATH_RUN run;
    CHECK(GETREAL(run.VALUE("matrix.fa <5, 0, 0> <0, 0, 0>")) == doctest::Approx(1));
    CHECK(run.VALUE("matrix.fa <4, 4, 4> <0, 0, 0>") == "0");
    CHECK(run.VALUE("matrix.fa <0, 0, 0> <0, 0, 0>") == "0");
    // Values 3, 2, 1: sqrt(1.5) * sqrt(2) / sqrt(14).
    CHECK(GETREAL(run.VALUE("matrix.fa <1, 2, 3> <0, 0, 0>")) ==
          doctest::Approx(std::sqrt(3 / 14.)));
    CHECK(GETREAL(run.VALUE("matrix.fa <1, 1, 0> <0, 0, 0>")) == doctest::Approx(std::sqrt(0.5)));
}

TEST_CASE("a matrix text always fits a value and keeps what digits it can") {
    MATRIX4 matrix;
    for (HYPER &row : matrix.rows)
        row = {-0.70710678118654757, -0.57735026918962573, -0.40824829046386307,
               -12345.678901234567};
    const UTF16 text = MATRIX_TEXT(matrix);
    CHECK(text.LENGTH() <= LONGEST_TEXT);
    ANY_MATRIX again;
    REQUIRE(GETMATRIX_MACRO(std::vector<UTF16>{text}, again));
    for (std::size_t i = 0; i < 4; ++i) // at least ten digits of each number stay
        CHECK(GETLENGTH(AS_MATRIX4(again)[i] - matrix[i]) < 1e-5);
    for (const REAL value :
         {-1.2345678901234567e300, -1.2345678901234567e-9, 123456789.123456789}) {
        for (HYPER &row : matrix.rows)
            row = {value, value, value, value};
        for (const auto form : {MATRIX_FORM::MATRIX, MATRIX_FORM::VECTORS, MATRIX_FORM::NUMBERS}) {
            CHECK(MATRIX_TEXT(matrix, form).LENGTH() <= LONGEST_TEXT);
            CHECK(MATRIX_TEXT(AS_MATRIX3(matrix), form).LENGTH() <= LONGEST_TEXT);
        }
    }
}

TEST_CASE("a matrix text with a decimal comma reads back") {
    MATH_RUN run;
    CHECK(
        run.RUN("math.decimal 0\nm := matrix <1,5; 2; 3> <4; 5; 6> <7; 8; 9>\nprint m\n"
                "a := matrix.trace m\nprint a\nt := matrix.move <0,5; 1; 2>\nprint t\n"
                "b := matrix.move.get t\nprint b\nc := matrix.space t\nd := matrix c\nprint d\n") ==
        "(<1,5; 2; 3>;<4; 5; 6>;<7; 8; 9>)\n15,5\n"
        "(<1; 0; 0; 0>;<0; 1; 0; 0>;<0; 0; 1; 0>;<0,5; 1; 2; 1>)\n<0,5; 1; 2>\n"
        "(<1; 0; 0; 0>;<0; 1; 0; 0>;<0; 0; 1; 0>;<0,5; 1; 2; 1>)\n");
}
