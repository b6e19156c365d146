#include "foundation/container/poly_types.hpp"

#include <cmath>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
TPOLYNAT LIST(std::initializer_list<NAT> values) {
    TPOLYNAT list;
    for (const NAT value : values)
        list.PUSH(value);
    return list;
}
} // namespace

TEST_CASE("SD of whole numbers ties for equal values in any order") {
    RANDOM_STREAM random(1, 2);
    TPOLYNAT list;
    for (NAT i = 0; i < 33; ++i)
        list.PUSH(random.BELOW(65536));
    const REAL sd = list.SD();
    for (NAT round = 0; round < 100; ++round) {
        list.MIX(random);
        CHECK(list.SD() == sd);
    }
}

TEST_CASE("NATSD from sums gives the bits of SD, also for values less a constant") {
    RANDOM_STREAM random(1, 3);
    for (NAT round = 0; round < 100; ++round) {
        TPOLYNAT list;
        NAT sum = 0, squares = 0, shiftedSum = 0, shiftedSquares = 0;
        for (NAT i = 0; i < 2 + round; ++i) {
            const NAT x = random.BELOW(65536), y = x - 30000;
            list.PUSH(x);
            sum += x;
            squares += x * x;
            shiftedSum += y;
            shiftedSquares += y * y;
        }
        CHECK(NATSD(list.LENGTH, sum, squares) == list.SD());
        CHECK(NATSD(list.LENGTH, shiftedSum, shiftedSquares) == list.SD());
    }
}

TEST_CASE("SD of whole numbers is exact where it has an exact value") {
    CHECK(LIST({2, 4, 4, 4, 5, 5, 7, 9}).SD() == std::sqrt(32.0 / 7));
    CHECK(LIST({7, 7, 7}).SD() == 0);
    CHECK(NATSD(1, 5, 25) == 0);
}

TEST_CASE("SD of whole numbers never overflows") {
    // Two values a and -a-1 apart by 2^64-1: SD is (2^64-1)/sqrt(2).
    const REAL expected = 18446744073709551615.0 / std::sqrt(2.0);
    CHECK(LIST({NATMAX, NATMIN}).SD() == doctest::Approx(expected).epsilon(1e-15));
    // Many of them: n/2 times the squared half distance over n-1.
    TPOLYNAT many;
    for (NAT i = 0; i < 1000; ++i) {
        many.PUSH(NATMAX);
        many.PUSH(NATMIN);
    }
    const REAL half = 18446744073709551615.0 / 2;
    CHECK(many.SD() == doctest::Approx(half * std::sqrt(2000.0 / 1999)).epsilon(1e-15));
}

TEST_CASE("SD with wide sums gives the bits of SD with narrow sums") {
    // Values times 2^40 need 256 bits; their SD is that of the small ones times 2^40.
    RANDOM_STREAM random(1, 4);
    TPOLYNAT narrow, wide;
    for (NAT i = 0; i < 77; ++i) {
        const NAT x = random.BELOW(1 << 20);
        narrow.PUSH(x);
        wide.PUSH(x << 40);
    }
    CHECK(wide.SD() == std::ldexp(narrow.SD(), 40));
}

TEST_CASE("the middle of two whole numbers rounds halves to even") {
    CHECK(NATMIDDLE(2, 3) == 2);
    CHECK(NATMIDDLE(3, 4) == 4);
    CHECK(NATMIDDLE(-3, -2) == -2);
    CHECK(NATMIDDLE(-2, -1) == -2);
    CHECK(NATMIDDLE(NATMAX, NATMAX) == NATMAX);
    CHECK(NATMIDDLE(NATMIN, NATMAX) == 0);
}

TEST_CASE("NATMEAN is the real quotient") {
    CHECK(NATMEAN(4, 10) == 2.5);
    CHECK(NATMEAN(0, 10) == 0);
}
