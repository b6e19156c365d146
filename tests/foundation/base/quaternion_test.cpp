#include "foundation/base/geometry.hpp"
#include "foundation/base/matrix4.hpp"
#include "foundation/base/quaternion.hpp"

#include <doctest/doctest.h>

using namespace morvane;
using doctest::Approx;

namespace {
bool Near(const VECTOR &a, const VECTOR &b) { return GETLENGTH(a - b) < 1e-14; }
bool Near(const HYPER &a, const HYPER &b) { return GETLENGTH(a - b) < 1e-14; }
const VECTOR Z{0, 0, 1};
} // namespace

TEST_CASE("QUAT_GET does not normalise its axis") {
    CHECK(QUAT_GET(PI, {0, 0, 2}).w == Approx(2));
    CHECK(QUAT_GET(0, Z) == HYPER{1, 0, 0, 0});
}

TEST_CASE("angle and axis come back from a quaternion") {
    const HYPER q = QUAT_GET(1.2, {0.6, 0, 0.8});
    CHECK(QUAT_ANGLE(q) == Approx(1.2));
    CHECK(Near(QUAT_VECTOR(q), {0.6, 0, 0.8}));
    CHECK(QUAT_VECTOR({1, 0, 0, 0}) == VZERO);
}

TEST_CASE("a quaternion whose scalar part exceeds 1 has every component squared before use") {
    // (2, 1, 3, 0) becomes (4, 1, 9, 0); arccos(4) is that of the fractional part 0.
    CHECK(QUAT_ANGLE({2, 1, 3, 0}) == Approx(PI));
    CHECK(Near(QUAT_VECTOR({2, 1, 3, 0}), VECTOR{1, 9, 0} / std::sqrt(15)));
}

TEST_CASE("the Hamilton product of the units") {
    const HYPER i{0, 1, 0, 0}, j{0, 0, 1, 0}, k{0, 0, 0, 1};
    CHECK(QUAT_MUL(i, j) == k);
    CHECK(QUAT_MUL(j, k) == i);
    CHECK(QUAT_MUL(k, i) == j);
    CHECK(QUAT_MUL(i, i) == HYPER{-1, 0, 0, 0});
    CHECK(QUAT_JOIN(i, j) == -k);
    CHECK(CONJUGATE({1, 2, 3, 4}) == HYPER{1, -2, -3, -4});
}

TEST_CASE("a quarter turn about z brings x to y, by the quaternion and by its matrix") {
    const HYPER q = QUAT_GET(PI / 2, Z);
    CHECK(Near(TRANSFORM(VRIGHT, q), VUP));
    CHECK(Near(ROTATE(VRIGHT, QUAT_TO_MATRIX(q)), VUP));
    CHECK(Near(ROTATE(VRIGHT, ROTATE_VECTOR({0, 0, 7}, PI / 2)), VUP));
}

TEST_CASE("the matrix of any quaternion turns as the quaternion does") {
    const HYPER q = NORM(HYPER{0.3, -0.5, 0.7, 0.2});
    const VECTOR v{1, 2, 3};
    CHECK(Near(ROTATE(v, QUAT_TO_MATRIX(q)), TRANSFORM(v, q)));
    CHECK(Near(ROTATE(v, ROTATE_VECTOR(QUAT_VECTOR(q), QUAT_ANGLE(q))), TRANSFORM(v, q)));
}

TEST_CASE("every branch of MATRIX_TO_QUAT gives the quaternion back") {
    for (const HYPER &start : {HYPER{0.8, 0.1, 0.2, 0.3}, HYPER{0.1, 0.9, 0.2, 0.3},
                               HYPER{0.1, 0.2, 0.9, 0.3}, HYPER{0.1, 0.2, 0.3, 0.9}}) {
        const HYPER q = NORM(start);
        CHECK(Near(MATRIX_TO_QUAT(QUAT_TO_MATRIX(q)), q));
        CHECK(Near(MATRIX_TO_QUAT(GETMATRIX4(QUAT_TO_MATRIX(q))), q));
    }
}

TEST_CASE("MATRIX_TO_QUAT gives a scalar part that is not negative") {
    const HYPER q = NORM(HYPER{-0.1, 0.9, 0.2, 0.3});
    CHECK(Near(MATRIX_TO_QUAT(QUAT_TO_MATRIX(q)), -q));
}

TEST_CASE("a quaternion gives its angles about x, y and z") {
    CHECK(Near(QUAT_TO_ROTATE_XYZ(QUAT_GET(0.4, VRIGHT)), {0.4, 0, 0}));
    CHECK(Near(QUAT_TO_ROTATE_XYZ(QUAT_GET(0.4, VUP)), {0, 0.4, 0}));
    CHECK(Near(QUAT_TO_ROTATE_XYZ(QUAT_GET(-0.4, Z)), {0, 0, -0.4}));
    const REAL half = std::sqrt(0.5) * 1.001; // 2wy exceeds 1
    CHECK(QUAT_TO_ROTATE_XYZ({half, 0, half, 0}).y == PI / 2);
    CHECK(QUAT_TO_ROTATE_XYZ({half, 0, -half, 0}).y == -PI / 2);
}
