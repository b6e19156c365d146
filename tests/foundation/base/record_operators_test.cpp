#include "foundation/base/record_operators.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("+ - * / work component by component in all kinds") {
    CHECK(COMPLEX{1, 2} * COMPLEX{3, 4} == COMPLEX{3, 8});
    CHECK(HYPER{1, 2, 3, 4} * HYPER{2, 2, 2, 2} == HYPER{2, 4, 6, 8});
    CHECK(VECTOR{1, 2, 3} + VECTOR{1, 1, 1} == VECTOR{2, 3, 4});
    CHECK(VECTOR{1, 2, 3} - VECTOR{1, 1, 1} == VECTOR{0, 1, 2});
    CHECK(VECTOR{4, 9, 3} / VECTOR{2, 3, 4} == VECTOR{2, 3, 0.75});
    CHECK(VECTORNAT{1, 2, 3} * VECTORNAT{2, 3, 4} == VECTORNAT{2, 6, 12});
}

TEST_CASE("a zero divisor gives 0 for its component") {
    CHECK(VECTOR{1, 2, 3} / VECTOR{1, 0, 2} == VECTOR{1, 0, 1.5});
    CHECK(VECTOR{1, 2, 3} / 0 == VZERO);
    CHECK(VECTOR{1, 2, 3} / 0.0 == VZERO);
    CHECK(DIV(VECTORNAT{5, 7, 9}, VECTORNAT{2, 0, -2}) == VECTORNAT{2, 0, -4});
}

TEST_CASE("a real works on every component") {
    CHECK(VECTOR{1, 2, 3} + 1.5 == VECTOR{2.5, 3.5, 4.5});
    CHECK(VECTOR{1, 2, 3} - 1 == VECTOR{0, 1, 2});
    CHECK(2.0 * VECTOR{1, 2, 3} == VECTOR{2, 4, 6});
    CHECK(VECTOR{1, 2, 3} * 2 == VECTOR{2, 4, 6});
    CHECK(-VECTOR{1, -2, 3} == VECTOR{-1, 2, -3});
}

TEST_CASE("nat records with reals give the real record, with whole numbers the nat record") {
    CHECK(VECTORNAT{1, 2, 3} * 0.5 == VECTOR{0.5, 1, 1.5});
    CHECK(VECTORNAT{1, 2, 3} + VECTOR{0.5, 0, 0} == VECTOR{1.5, 2, 3});
    CHECK(VECTOR{3, 2, 1} - VECTORNAT{1, 1, 1} == VECTOR{2, 1, 0});
    CHECK(VECTORNAT{1, 2, 3} / VECTORNAT{2, 0, 2} == VECTOR{0.5, 0, 1.5});
    CHECK(VECTORNAT{1, 2, 3} / 2 == VECTOR{0.5, 1, 1.5});
    CHECK(VECTORNAT{1, 2, 3} * 2 == VECTORNAT{2, 4, 6});
    CHECK(VECTORNAT{1, 2, 3} - 1 == VECTORNAT{0, 1, 2});
}

TEST_CASE("nat records have DIV, MOD and SHR, and wrap round") {
    CHECK(DIV(COMPLEXNAT{7, -7}, 2) == COMPLEXNAT{3, -3});
    CHECK(MOD(HYPERNAT{7, -7, 8, 5}, HYPERNAT{4, 4, 4, 0}) == HYPERNAT{3, -3, 0, 0});
    CHECK(MOD(VECTORNAT{7, 8, 9}, 2) == VECTORNAT{1, 0, 1});
    CHECK(SHR(VECTORNAT{8, 9, 1}, 1) == VECTORNAT{4, 4, 0});
    CHECK(VMAXNAT + VNORMNAT == VMINNAT);
    CHECK(-VMINNAT == VMINNAT);
}

TEST_CASE("comparisons are lexicographic") {
    CHECK(VECTOR{1, 9, 9} < VECTOR{2, 0, 0});
    CHECK(VECTOR{1, 2, 9} < VECTOR{1, 3, 0});
    CHECK(VECTOR{1, 2, 3} < VECTOR{1, 2, 4});
    CHECK_FALSE(VECTOR{1, 2, 3} < VECTOR{1, 2, 3});
    CHECK(VECTOR{1, 2, 3} <= VECTOR{1, 2, 3});
    CHECK(HYPERNAT{1, 1, 1, 2} > HYPERNAT{1, 1, 1, 1});
    CHECK(COMPLEX{0, 5} >= COMPLEX{0, 4});
    CHECK(VECTOR{1, 2, 3} != VECTOR{1, 2, 4});
}

TEST_CASE("SQR, SQRT, POWER and ABS work component by component") {
    CHECK(SQR(VECTOR{1, -2, 3}) == VECTOR{1, 4, 9});
    CHECK(SQRT(VECTOR{4, -9, 0}) == VECTOR{2, 3, 0}); // the root of the absolute value
    CHECK(POWER(VECTOR{2, 3, 0}, 2.0) == VECTOR{4, 9, 0});
    CHECK(POWER(COMPLEX{2, 3}, COMPLEX{3, 2}) == COMPLEX{8, 9});
    CHECK(ABS(VECTOR{-1, 2, -3}) == VECTOR{1, 2, 3});
    CHECK(ABS(VECTORNAT{-1, 2, NATMIN}) == VECTORNAT{1, 2, NATMIN});
}

TEST_CASE("MIN, MAX, LIMIT and INTO work component by component") {
    CHECK(MIN(VECTORNAT{1, 5, 3}, VECTORNAT{4, 2, 3}) == VECTORNAT{1, 2, 3});
    CHECK(MAX(VECTORNAT{1, 5, 3}, VECTORNAT{4, 2, 3}) == VECTORNAT{4, 5, 3});
    CHECK(LIMIT(VECTOR{-1, 0.5, 2}, VZERO, VNORM) == VECTOR{0, 0.5, 1});
    CHECK(INTO(VECTORNAT{1, 2, 3}, VNORMNAT, VECTORNAT{3, 3, 3}));
    CHECK_FALSE(INTO(VECTORNAT{1, 2, 4}, VNORMNAT, VECTORNAT{3, 3, 3}));
}

TEST_CASE("the assignment forms change the record") {
    VECTOR v{1, 2, 3};
    v += VECTOR{1, 1, 1};
    v *= 2;
    v -= 1.0;
    v /= VECTOR{3, 5, 0};
    CHECK(v == VECTOR{1, 1, 0});
}

TEST_CASE("the constants are what their names say") {
    CHECK(VNORM == VECTOR{1, 1, 1});
    CHECK(CRIGHT == COMPLEX{1, 0});
    CHECK(CUP == COMPLEX{0, 1});
    CHECK(VMIN.x == -VMAX.z);
    CHECK(VMAXNAT.y == 9223372036854775807);
    CHECK(M3NORM[1] == VECTOR{0, 1, 0});
    CHECK(SM3NORM == SYMMATRIX3{{1, 1, 1}, {0, 0, 0}});
}
