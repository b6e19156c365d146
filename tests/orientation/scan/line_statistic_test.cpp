#include "orientation/scan/line_statistic.hpp"

#include "foundation/container/poly_types.hpp"

#include <random>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
REAL Statistic(BYTE subMethod, std::vector<NAT> samples) {
    return LINE_STATISTIC(subMethod, samples.data(), static_cast<NAT>(samples.size()));
}
} // namespace

TEST_CASE("each number of a statistic gives its value") {
    const std::vector<NAT> line = {9, 1, 4, 2, 7}; // sorted 1 2 4 7 9
    CHECK(Statistic(0, line) == 23);
    CHECK(Statistic(1, line) == 4.6);
    CHECK(Statistic(2, line) == doctest::Approx(3.361547262794322).epsilon(1e-15));
    CHECK(Statistic(3, line) == 1);
    CHECK(Statistic(4, line) == 2); // position 5/4 + 1
    CHECK(Statistic(5, line) == 4);
    CHECK(Statistic(6, line) == 7); // position 5/4 * 3 + 1
    CHECK(Statistic(7, line) == 9);
}

TEST_CASE("a statistic outside the table acts as the standard deviation") {
    CHECK(Statistic(200, {3, 5, 9}) == Statistic(2, {3, 5, 9}));
    CHECK(Statistic(8, {3, 5, 9}) == Statistic(2, {3, 5, 9}));
}

TEST_CASE("the mean of a line is the real quotient") { CHECK(Statistic(1, {1, 2}) == 1.5); }

TEST_CASE("the quartiles of two samples read position 0, which is 0, and of three Q3 is the "
          "smallest") {
    CHECK(Statistic(4, {5, 6}) == 0);
    CHECK(Statistic(6, {5, 6}) == 0);
    CHECK(Statistic(6, {7, 5, 6}) == 5);
}

TEST_CASE("a line of one sample has the deviation 0") { CHECK(Statistic(2, {77}) == 0); }

TEST_CASE("every statistic has the bits of the member of TPOLYNAT") {
    std::mt19937 random(3);
    for (int run = 0; run < 300; ++run) {
        TPOLYNAT list;
        std::vector<NAT> line(1 + random() % 40);
        const NAT top = run % 2 ? 255 : 65535;
        for (NAT &value : line) {
            value = 1 + static_cast<NAT>(random()) % top;
            list.PUSH(value);
        }
        CHECK(Statistic(0, line) == static_cast<REAL>(list.SUM()));
        CHECK(Statistic(1, line) == list.MEAN());
        CHECK(Statistic(2, line) == list.SD());
        CHECK(Statistic(3, line) == static_cast<REAL>(list.MIN()));
        CHECK(Statistic(4, line) == static_cast<REAL>(list.Q1()));
        CHECK(Statistic(5, line) == static_cast<REAL>(list.MEDIAN()));
        CHECK(Statistic(6, line) == static_cast<REAL>(list.Q3()));
        CHECK(Statistic(7, line) == static_cast<REAL>(list.MAX()));
    }
}
