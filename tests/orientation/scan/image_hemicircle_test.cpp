#include "orientation/scan/image_hemicircle.hpp"

#include "foundation/base/geometry.hpp"
#include "foundation/base/random.hpp"

#include <algorithm>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::vector<COMPLEXNAT> Points(NAT r) {
    TPOLYCOMPLEXNAT points;
    TPOLYCOMPLEX vectors;
    _GETHEMICIRCLE(points, vectors, r);
    REQUIRE(vectors.LENGTH == points.LENGTH);
    for (NAT i = 1; i <= points.LENGTH; ++i)
        CHECK(vectors.GET(i) == NORM(points.GET(i)));
    return {points.SPAN().begin(), points.SPAN().end()};
}
} // namespace

TEST_CASE("the half circle of an image scan has one direction of each axis, sorted by y") {
    // r 1: polar points at 1 and 2 radians round to (1,1) and (0,1); the last is never kept.
    CHECK(Points(1) == std::vector<COMPLEXNAT>{{1, 1}});
    // r 2: 0.5 to 2.5 radians give (2,1) (1,2) (0,2) (-1,2) (-2,1). The heap sort by y leaves the
    // three of y 2 in this order.
    CHECK(Points(2) == std::vector<COMPLEXNAT>{{2, 1}, {0, 2}, {-1, 2}, {1, 2}});
}

TEST_CASE("no direction of the half circle is double, and all but the last stand for themselves") {
    for (NAT r = 1; r <= 70; ++r) {
        const std::vector<COMPLEXNAT> points = Points(r);
        for (std::size_t i = 0; i < points.size(); ++i) {
            if (i > 0) CHECK(points[i - 1].y <= points[i].y);
            for (std::size_t j = i + 1; j < points.size(); ++j) {
                CHECK(points[i] != points[j]);
                CHECK(points[i] != -points[j]);
            }
        }
        CHECK(static_cast<NAT>(points.size()) <= ROUND(PI * static_cast<REAL>(r)) - 2);
    }
}

TEST_CASE("a radius below 1 has no directions") {
    CHECK(Points(0).empty());
    CHECK(Points(-4).empty());
}

TEST_CASE("a random choice of image directions has none twice and comes from all") {
    const std::vector<COMPLEXNAT> all = Points(8);
    RANDOM_STREAM random(1, 1);
    TPOLYCOMPLEXNAT points;
    TPOLYCOMPLEX vectors;
    _GETHEMICIRCLE(points, vectors, 8, 5, random);
    REQUIRE(points.LENGTH == 5);
    REQUIRE(vectors.LENGTH == 5);
    for (NAT i = 1; i <= 5; ++i) {
        CHECK(std::find(all.begin(), all.end(), points.GET(i)) != all.end());
        for (NAT j = i + 1; j <= 5; ++j)
            CHECK(points.GET(i) != points.GET(j));
    }
    _GETHEMICIRCLE(points, vectors, 8, static_cast<NAT>(all.size()), random);
    CHECK(std::vector<COMPLEXNAT>(points.SPAN().begin(), points.SPAN().end()) == all);
    _GETHEMICIRCLE(points, vectors, 8, 0, random);
    CHECK(points.LENGTH == static_cast<NAT>(all.size()));
}
