#include "foundation/base/geometry.hpp"

#include <doctest/doctest.h>

using namespace morvane;
using doctest::Approx;

namespace {
bool Near(const VECTOR &a, const VECTOR &b) { return GETLENGTH(a - b) < 1e-14; }
} // namespace

TEST_CASE("GETLENGTH is Euclidean, and 0 when it has no finite value") {
    CHECK(GETLENGTH(COMPLEX{3, 4}) == 5);
    CHECK(GETLENGTH(VECTOR{2, 3, 6}) == 7);
    CHECK(GETLENGTH(HYPER{1, 1, 1, 1}) == 2);
    CHECK(GETLENGTH(VECTORNAT{2, 3, 6}) == 7);
    CHECK(GETLENGTH(VECTOR{1e200, 0, 0}) == 0);
    CHECK(GETLENGTH(VMAX) == 0);
}

TEST_CASE("SCALAR is the dot product") {
    CHECK(SCALAR(VECTOR{1, 2, 3}, VECTOR{4, 5, 6}) == 32);
    CHECK(SCALAR(VECTORNAT{1, 2, 3}, VECTORNAT{4, 5, 6}) == 32);
    CHECK(SCALAR(COMPLEX{1, 2}, COMPLEX{3, 4}) == 11);
    CHECK(SCALAR(HYPERNAT{1, 2, 3, 4}, HYPERNAT{1, 1, 1, 1}) == 10);
}

TEST_CASE("CROSS is the cross product") {
    CHECK(CROSS(VRIGHT, VUP) == VECTOR{0, 0, 1});
    CHECK(CROSS(VECTORNAT{1, 2, 3}, VECTORNAT{4, 5, 6}) == VECTORNAT{-3, 6, -3});
}

TEST_CASE("CROSS of three stands at right angles to them") {
    const HYPER a{1, 2, 3, 4}, b{2, 0, 1, 1}, c{0, 1, 5, 2};
    const HYPER d = CROSS(a, b, c);
    CHECK(SCALAR(a, d) == 0);
    CHECK(SCALAR(b, d) == 0);
    CHECK(SCALAR(c, d) == 0);
    CHECK(CROSS(HYPER{0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}) == HYPER{1, 0, 0, 0});
}

TEST_CASE("DET is the triple product, and of four the 4x4 determinant") {
    CHECK(DET(VECTOR{2, 0, 0}, VECTOR{0, 3, 0}, VECTOR{0, 0, 4}) == 24);
    CHECK(DET(HYPER{2, 0, 0, 0}, {0, 3, 0, 0}, {0, 0, 4, 0}, {0, 0, 0, 5}) == 120);
    CHECK(DET(HYPER{0, 1, 0, 0}, {1, 0, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}) == -1);
}

TEST_CASE("INV tells whether two vectors point against each other") {
    CHECK(INV(VRIGHT, VECTOR{-1, 0.5, 0}));
    CHECK_FALSE(INV(VRIGHT, VUP));
    CHECK_FALSE(INV(VRIGHT, VECTOR{-3, 0, 0})); // the sum is longer than the first
}

TEST_CASE("norms divide by the length, the smallest, the largest or a given real") {
    CHECK(NORM(VECTOR{3, 0, 4}) == VECTOR{0.6, 0, 0.8});
    CHECK(MINNORM(VECTOR{2, 4, 8}) == VECTOR{1, 2, 4});
    CHECK(MAXNORM(VECTOR{2, 4, 8}) == VECTOR{0.25, 0.5, 1});
    CHECK(RELATIVENORM(VECTOR{2, 4, 8}, 2) == VECTOR{1, 2, 4});
    CHECK(NORM(VECTORNAT{3, 0, 4}) == VECTOR{0.6, 0, 0.8});
    CHECK(NORM(VZERO) == VZERO);
    CHECK(MINNORM(VECTOR{0, 1, 2}) == VZERO);
    CHECK(MAXNORM(HYPER{-4, -2, -3, -8}) == HYPER{2, 1, 1.5, 4});
}

TEST_CASE("GETANGLE of equal vectors is exactly 0, and of parallel ones never leaves 0..PI") {
    const VECTOR v{0.1, 0.7, 0.3};
    CHECK(GETANGLE(v, v) == 0);
    for (int i = 1; i < 100; ++i) {
        const VECTOR w = VECTOR{0.1, 0.7, 0.3} * (i / 7.0);
        CHECK(GETANGLE(w, w) == 0);
        CHECK(GETANGLE(v, w) < 1e-7); // an error in the last bit of the quotient is 2e-8 here
        CHECK(GETANGLE(v, -w) > PI - 1e-7);
    }
    CHECK(GETANGLE(v, -v) == Approx(PI));
    CHECK(GETANGLE(VRIGHT, VUP) == Approx(PI / 2));
    CHECK(GETANGLE(VRIGHT, VZERO) == 0);
    CHECK(GETANGLE(VECTORNAT{1, 0, 0}, VECTORNAT{0, 5, 0}) == Approx(PI / 2));
}

TEST_CASE("FULLANGLE is reflex when the third vector points away") {
    CHECK(FULLANGLE(VRIGHT, VUP, VUP) == Approx(PI / 2));
    CHECK(FULLANGLE(VRIGHT, VUP, VECTOR{-1, 0, 0}) == Approx(1.5 * PI));
}

TEST_CASE("polar coordinates") {
    CHECK(POLTOKART2(2, 0) == COMPLEX{2, 0});
    CHECK(Near(POLTOKART3(PI / 2, PI / 2), {0, 1, 0}));
    CHECK(Near(POLTOKART3(2, 0, 0), {0, 0, 2}));
}

TEST_CASE("rotations about an axis go from x to y, y to z and z to x") {
    CHECK(Near(ROTATEX({1, 1, 0}, PI / 2), {1, 0, 1}));
    CHECK(Near(ROTATEY({0, 1, 1}, PI / 2), {1, 1, 0}));
    CHECK(Near(ROTATEZ({1, 0, 1}, PI / 2), {0, 1, 1}));
}

TEST_CASE("a rotation by 0 gives the input exactly") {
    const VECTOR v{-0.1, 0.3, -0.7};
    CHECK(ROTATEX(v, 0) == v);
    CHECK(ROTATEY(v, 0) == v);
    CHECK(ROTATEZ(v, 0) == v);
}

TEST_CASE("distances from a line and from a plane") {
    CHECK(GETLENGTH_PL({5, 3, 4}, VZERO, {2, 0, 0}) == 5);
    CHECK(GETLENGTH_PL({5, 3, 4}, VZERO, VZERO) == 0);
    CHECK(GETLENGTH_PE({7, 8, -3}, {1, 1, 1}, VRIGHT, VUP) == 4);
    CHECK(GETLENGTH_PE({7, 8, 3}, VZERO, VRIGHT, {2, 0, 0}) == 0);
}

TEST_CASE("the foot of a point on a line") {
    CHECK(GETVECTOR_PL({3, 4, 0}, {1, 0, 0}, {2, 0, 0}) == VECTOR{3, 0, 0});
    CHECK(GETVECTOR_PL({3, 4, 0}, {1, 0, 0}, {1, 1, 0}) == VECTOR{4, 3, 0});
    CHECK(GETVECTOR_PL({3, 4, 0}, {1, 0, 0}, VZERONAT) == VZERO);
}

TEST_CASE("AREA of a triangle") { CHECK(AREA(GETTRI({0, 0, 0}, {3, 0, 0}, {0, 4, 0})) == 6); }

TEST_CASE("the corners of a cube come in their order") {
    const CUBE cube = GETCENTERCUBE({10, 20, 30}, {2, 4, 6});
    CHECK(cube.corners[0] == VECTOR{9, 22, 33});
    CHECK(cube.corners[1] == VECTOR{11, 22, 33});
    CHECK(cube.corners[2] == VECTOR{11, 18, 33});
    CHECK(cube.corners[3] == VECTOR{9, 18, 33});
    CHECK(cube.corners[4] == VECTOR{9, 22, 27});
    CHECK(cube.corners[7] == VECTOR{9, 18, 27});
}

TEST_CASE("a weak corner lies at the factor") {
    WEAK weak;
    weak.corners[1] = true;
    const CUBE cube = GETWEAKCUBE(VZERO, {2, 4, 6}, 0.5, weak);
    CHECK(cube.corners[0] == VECTOR{-1, 2, 3});
    CHECK(cube.corners[1] == VECTOR{0.5, 1, 1.5});
}
