#include "foundation/base/rounding.hpp"

#include <cfenv>

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("ROUND goes to nearest, ties to even") {
    CHECK(ROUND(0.5) == 0);
    CHECK(ROUND(1.5) == 2);
    CHECK(ROUND(2.5) == 2);
    CHECK(ROUND(-0.5) == 0);
    CHECK(ROUND(-1.5) == -2);
    CHECK(ROUND(0.49999999999999994) == 0);
    CHECK(ROUND(2.51) == 3);
    CHECK(ROUND(-2.51) == -3);
}

TEST_CASE("ROUND is right on both sides of its fast range") {
    CHECK(ROUND(2251799813685247.5) == 2251799813685248); // 2^51 - 0.5: even neighbour
    CHECK(ROUND(2251799813685248.5) == 2251799813685248);
    CHECK(ROUND(2251799813685249.5) == 2251799813685250);
    CHECK(ROUND(-2251799813685248.5) == -2251799813685248);
    CHECK(ROUND(9007199254740993.0) == 9007199254740992);
    CHECK(ROUND(4e18) == 4000000000000000000);
}

TEST_CASE("reals beyond the range of NAT are limited, and NaN is 0") {
    CHECK(ROUND(1e300) == NATMAX);
    CHECK(ROUND(-1e300) == NATMIN);
    CHECK(TRUNC(9.223372036854776e18) == NATMAX);
    CHECK(TRUNC(-9.223372036854776e18) == NATMIN);
    CHECK(FLOOR(-1e300) == NATMIN);
    CHECK(ROUND(REALMAX) == NATMAX);
    CHECK(ROUND(std::nan("")) == 0);
    CHECK(FLOOR(std::nan("")) == 0);
}

TEST_CASE("TRUNC goes towards zero, FLOOR towards minus infinity") {
    CHECK(TRUNC(2.9) == 2);
    CHECK(TRUNC(-2.9) == -2);
    CHECK(FLOOR(2.9) == 2);
    CHECK(FLOOR(-2.1) == -3);
    CHECK(FLOOR(-2.0) == -2);
}

TEST_CASE("FRAC is what TRUNC leaves") {
    CHECK(FRAC(2.75) == 0.75);
    CHECK(FRAC(-2.75) == -0.75);
    CHECK(FRAC(REALMAX) == 0);
}

TEST_CASE("records are rounded component by component") {
    CHECK(ROUND(VECTOR{0.5, 1.5, -2.6}) == VECTORNAT{0, 2, -3});
    CHECK(TRUNC(COMPLEX{1.9, -1.9}) == COMPLEXNAT{1, -1});
    CHECK(FLOOR(HYPER{1.9, -1.9, 0, 3}) == HYPERNAT{1, -2, 0, 3});
    CHECK(FRAC(VECTOR{1.5, -0.25, 2}) == VECTOR{0.5, -0.25, 0});
}
