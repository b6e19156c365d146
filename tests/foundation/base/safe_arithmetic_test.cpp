#include "foundation/base/safe_arithmetic.hpp"

#include <doctest/doctest.h>

using namespace morvane;
using doctest::Approx;

TEST_CASE("a division by zero gives zero") {
    CHECK(DIVIDE(5, 0) == 0);
    CHECK(DIVIDE(5, 2) == 2.5);
    CHECK(DIV(7, 0) == 0);
    CHECK(DIV(-7, 2) == -3);
    CHECK(DIV(NATMIN, -1) == NATMIN);
    CHECK(MOD(NAT{7}, NAT{0}) == 0);
    CHECK(MOD(NAT{-7}, NAT{2}) == -1);
    CHECK(MOD(NATMIN, NAT{-1}) == 0);
}

TEST_CASE("mod of reals is the truncated rest of the floor") {
    CHECK(MOD(7.5, 2.0) == 1);  // 7.5 - 3*2 = 1.5
    CHECK(MOD(-7.5, 2.0) == 0); // -7.5 + 4*2 = 0.5
    CHECK(MOD(-7.0, 4.0) == 1); // -7 + 2*4
    CHECK(MOD(7.9, 0.0) == 7);
}

TEST_CASE("LIMIT clamps, and low wins only for a value below it") {
    CHECK(LIMIT(5.0, 1.0, 3.0) == 3);
    CHECK(LIMIT(0.0, 1.0, 3.0) == 1);
    CHECK(LIMIT(2.0, 1.0, 3.0) == 2);
    CHECK(LIMIT(5.0, 9.0, 3.0) == 9);
    CHECK(LIMIT(10.0, 9.0, 3.0) == 3);
    CHECK(LIMIT(NAT{300}, 0, 255) == 255);
}

TEST_CASE("INTO includes both ends") {
    CHECK(INTO(1.0, 1.0, 2.0));
    CHECK(INTO(2.0, 1.0, 2.0));
    CHECK_FALSE(INTO(2.1, 1.0, 2.0));
    CHECK(INTO(NAT{3}, 3, 3));
    CHECK_FALSE(INTO(NAT{2}, 3, 3));
}

TEST_CASE("INTO of five tests an interval wrapped round inside a window") {
    // The window 0..100. The interval -20..10 sticks out below by 20 and comes in again at the top.
    CHECK(INTO(5, -20, 10, 0, 100));
    CHECK(INTO(85, -20, 10, 0, 100));
    CHECK_FALSE(INTO(50, -20, 10, 0, 100));
    // 90..130 sticks out above by 30 and comes in again at the bottom.
    CHECK(INTO(95, 90, 130, 0, 100));
    CHECK(INTO(30, 90, 130, 0, 100));
    CHECK_FALSE(INTO(31, 90, 130, 0, 100));
    // Both ends outside: the upper rule replaces the lower, but the inside counts as well.
    CHECK(INTO(50, -10, 110, 0, 100));
    CHECK_FALSE(INTO(150, -10, 110, 0, 100));
}

TEST_CASE("MINMAX maps linearly, clamps, and gives the mid-point of an empty range") {
    CHECK(MINMAX(5, 0, 10, 100, 200) == 150);
    CHECK(MINMAX(-5, 0, 10, 100, 200) == 100);
    CHECK(MINMAX(15, 0, 10, 100, 200) == 200);
    CHECK(MINMAX(7, 3, 3, 100, 200) == 150);
    CHECK(MINMAX(2, 0, 10, 10, 0) == 8);
    CHECK(MINMAX_NAT(2, 1, 3, 1, 2) == 2); // 1.5 rounds to even
    CHECK(MINMAX(VECTOR{5, 5, 5}, VZERO, {10, 10, 10}, VZERO, {1, 2, 4}) == VECTOR{0.5, 1, 2});
}

TEST_CASE("the logarithm of 0 is 0") {
    CHECK(LN(0) == 0);
    CHECK(LOG10(0) == 0);
}

TEST_CASE("the logarithm of a negative number is minus that of its absolute value") {
    CHECK(LN(-std::exp(2.0)) == Approx(-2));
    CHECK(LOG10(-100) == Approx(-2));
}

TEST_CASE("logarithms divide by the logarithm of their base") {
    CHECK(LOG(3, 81) == Approx(4));
    CHECK(LOG(1, 5) == 0);
    CHECK(LOG(0, 5) == 0);
    CHECK(LOG2(8) == Approx(3));
    CHECK(LOG10(1000) == Approx(3));
}

TEST_CASE("NORMLOG gives its second argument back when the logarithm has no value") {
    CHECK(NORMLOG(10, 100) == Approx(2));
    CHECK(NORMLOG(10, REALMAX) == REALMAX);
}

TEST_CASE("0 to the power of 0 is 0") {
    CHECK(POWER(0, 0) == 0);
    CHECK(POWERNAT(0, 0) == 0);
    CHECK(POWERNAT(0, -3) == 0);
}

TEST_CASE("POWER of whole exponents is exact and of others goes through the logarithm") {
    CHECK(POWER(5, 0) == 1);
    CHECK(POWER(-2, 3) == -8);
    CHECK(POWER(2, -2) == 0.25);
    CHECK(POWER(10, 15) == 1e15);
    CHECK(POWER(2, 0.5) == Approx(std::sqrt(2)));
    CHECK(POWER(-2, 0.5) == Approx(1 / std::sqrt(2))); // exp(-ln(2) * 0.5)
}

TEST_CASE("powers of whole numbers are limited to their range") {
    CHECK(POWER_OF_NATS(3, 4) == 81);
    CHECK(POWER_OF_NATS(10, 30) == NATMAX);
    CHECK(POWER_OF_NATS(-10, 31) == NATMIN);
    CHECK(POWER_OF_NATS(2, -1) == 0); // 0.5 rounds to even
    CHECK(POWERNAT(1.5, NATMIN) == 0);
}

TEST_CASE("SUBPOLY is a term of a polynomial and 0 when it has no value") {
    CHECK(SUBPOLY(3, 2, 4) == 48);
    CHECK(SUBPOLY(3, 2, 0) == 3);
    CHECK(SUBPOLY(3, 0, 0) == 3);
    CHECK(SUBPOLY(3, 1e200, 2) == 0);
}

TEST_CASE("ARCSIN takes the fractional part of an argument outside -1..1") {
    CHECK(ARCSIN(1) == Approx(PI / 2));
    CHECK(ARCSIN(1.5) == Approx(std::asin(0.5)));
    CHECK(ARCSIN(-2.5) == Approx(std::asin(-0.5)));
    CHECK(ARCCOS(2) == Approx(PI / 2));
    CHECK(ARCCOS(1) == 0);
}

TEST_CASE("trigonometry in radians") {
    CHECK(TAN(PI / 4) == Approx(1));
    CHECK(ARCTAN2(1, 1) == Approx(PI / 4));
    CHECK(GETRAD(180) == PI);
}

TEST_CASE("COPYSIGN takes the sign of its second argument") {
    CHECK(COPYSIGN(-3, 1) == 3);
    CHECK(COPYSIGN(-3, 0) == 3);
    CHECK(COPYSIGN(3, -1) == -3);
}

TEST_CASE("GETSCALE brings a value into the range by powers of the base") {
    NAT exponent = 7;
    CHECK(GETSCALE(0, {1, 10}, 10, exponent) == 1);
    CHECK(exponent == 0);
    CHECK(GETSCALE(5, {1, 10}, 10, exponent) == 1);
    CHECK(exponent == 0);
    CHECK(GETSCALE(0.005, {1, 10}, 10, exponent) == 1000); // 0.005 -> 5
    CHECK(exponent == 3);
    CHECK(GETSCALE(-700, {1, 10}, 10, exponent) == Approx(0.01));
    CHECK(exponent == -2);
}

TEST_CASE("GETSCALE ends with a base that cannot move the value") {
    NAT exponent = 0;
    CHECK(GETSCALE(0.5, {1, 10}, 1, exponent) == 1);
    CHECK(GETSCALE(0.5, {1, 10}, 0, exponent) == 1);
    CHECK(GETSCALE(5, {-2, -1}, 10, exponent) == 0); // nothing is below 0; 10^-325 is 0
}
