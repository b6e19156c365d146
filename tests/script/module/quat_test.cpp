#include "foundation/base/geometry.hpp"
#include "script/module/math_run.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
constexpr REAL NEAR = 1e-12; // texts keep 16 decimals

// Whether the value is these four numbers, within the digits of texts.
bool Is(const std::string &text, const HYPER &expected) {
    return GETLENGTH(GETHYPER(text) - expected) < NEAR;
}
const REAL HALF = std::sqrt(0.5); // cosine and sine of 45°
} // namespace

TEST_CASE("quat gives the quaternion of an angle and an axis") {
    MATH_RUN run;
    CHECK(Is(run.VALUE("quat 90° <0, 0, 1>"), {HALF, 0, 0, HALF}));
    CHECK(Is(run.VALUE("quat 180° <1, 0, 0>"), {0, 1, 0, 0}));
    CHECK(run.VALUE("quat 0 <1, 0, 0>") == "<1, 0, 0, 0>");
    // The axis is not normalised.
    CHECK(Is(run.VALUE("quat 180° <3, 0, 0>"), {0, 3, 0, 0}));
}

TEST_CASE("quat.angle and quat.vector give back what a quaternion was made of") {
    MATH_RUN run;
    CHECK(Is(run.VALUE("quat.angle <0.5, 0, 0.8660254037844386, 0>"), {2 * PI / 3, 0, 0, 0}));
    CHECK(Is(run.VALUE("quat.vector <0.5, 0, 0.8660254037844386, 0>"), {0, 1, 0, 0}));
    CHECK(run.VALUE("quat.vector <1, 0, 0, 0>") == "<0, 0, 0>");
    CHECK(run.VALUE("quat.angle <1, 0, 0, 0>") == "0");
}

TEST_CASE("quat.conjugate turns back") {
    MATH_RUN run;
    CHECK(run.VALUE("quat.conjugate <0.6, 0.8, -1, 2>") == "<0.6, -0.8, 1, -2>");
}

TEST_CASE("quat.mul is the product a b and quat.join the product b a") {
    MATH_RUN run; // i j = k, j i = -k
    CHECK(run.VALUE("quat.mul <0, 1, 0, 0> <0, 0, 1, 0>") == "<0, 0, 0, 1>");
    CHECK(run.VALUE("quat.join <0, 1, 0, 0> <0, 0, 1, 0>") == "<0, 0, 0, -1>");
    // i j k = -1; joined in order k (j i) = k (-k) = 1
    CHECK(run.VALUE("quat.mul <0, 1, 0, 0> <0, 0, 1, 0> <0, 0, 0, 1>") == "<-1, 0, 0, 0>");
    CHECK(run.VALUE("quat.join <0, 1, 0, 0> <0, 0, 1, 0> <0, 0, 0, 1>") == "<1, 0, 0, 0>");
    CHECK(run.RUN("a := quat.mul <1, 0, 0, 0>\n") ==
          "Parameter error! Please use min. 2 parameters in line 1 (test.macro).\n");
}

TEST_CASE("quat.transform turns a vector counterclockwise") {
    MATH_RUN run;
    CHECK(Is(run.VALUE("quat.transform <1, 0, 0> <0.7071067811865476, 0, 0, 0.7071067811865476>"),
             {0, 1, 0, 0}));
    CHECK(Is(run.VALUE("quat.transform <0, 1, 0> <0.7071067811865476, 0.7071067811865476, 0, 0>"),
             {0, 0, 1, 0}));
    CHECK(Is(run.VALUE("quat.transform <0, 0, 1> <0.7071067811865476, 0, 0.7071067811865476, 0>"),
             {1, 0, 0, 0}));
}

TEST_CASE("quat.join turns by the first quaternion first") {
    MATH_RUN run; // x to y by the turn about z, y to z by the turn about x
    CHECK(run.RUN("p := quat 90° <0, 0, 1>\nq := quat 90° <1, 0, 0>\nb := quat.join p q\n"
                  "c := quat.mul q p\nv := quat.transform <1, 0, 0> b\n"
                  "w := quat.transform <1, 0, 0> c\nv #= 6 v\nw #= 6 w\nprint v\nprint w\n") ==
          "<0, 0, 1>\n<0, 0, 1>\n");
}

TEST_CASE("quat2matrix and matrix2quat are the matrix for row vectors and back") {
    MATH_RUN run;
    CHECK(run.VALUE("quat2matrix <0, 0, 0, 1>") == "(<-1, 0, 0>;<0, -1, 0>;<0, 0, 1>)");
    CHECK(run.VALUE("quat2matrix <1, 0, 0, 0>") == "(<1, 0, 0>;<0, 1, 0>;<0, 0, 1>)");
    // 90° about z takes the x axis, the first row, to y.
    CHECK(Is(run.VALUE("matrix2quat <0, 1, 0> <-1, 0, 0> <0, 0, 1>"), {HALF, 0, 0, HALF}));
    CHECK(Is(run.VALUE("matrix2quat 0 1 0 -1 0 0 0 0 1"), {HALF, 0, 0, HALF}));
    CHECK(Is(run.VALUE("matrix2quat (0,1,0;-1,0,0;0,0,1)"), {HALF, 0, 0, HALF}));
    // The 3x3 part of a 4x4 matrix.
    CHECK(Is(run.VALUE("matrix2quat <0, 1, 0, 0> <-1, 0, 0, 0> <0, 0, 1, 0> <5, 6, 7, 1>"),
             {HALF, 0, 0, HALF}));
    CHECK(run.RUN("a := matrix2quat 1 2\n") ==
          "Error (a matrix is 3 or 4 vectors, 9 or 16 numbers or one text of them) in line 1 "
          "(test.macro)!\n");
}
