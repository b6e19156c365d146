#include "orientation/scan/hemisphere.hpp"

#include "foundation/base/geometry.hpp"
#include "foundation/base/random.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
NAT RawCount(NAT radius) {
    NAT count = 0;
    FOR_EACH_RING_POINT(
        radius, [&](const RING_POINT &) { ++count; }, [](NAT) {});
    return count;
}
} // namespace

TEST_CASE("the scan has a fixed number of polar points and of directions for each radius") {
    const NAT radii[] = {2, 3, 4, 5, 8, 16, 32};
    const NAT raw[] = {24, 55, 102, 156, 402, 1605, 6432};
    const NAT final[] = {18, 43, 85, 138, 341, 1450, 5835};
    TPOLYVECTORNAT points;
    TPOLYVECTOR vectors;
    for (int i = 0; i < 7; ++i) {
        _GETHEMISPHERE(points, vectors, radii[i]);
        CHECK(RawCount(radii[i]) == raw[i]);
        CHECK(points.LENGTH == final[i]);
        CHECK(vectors.LENGTH == final[i]);
    }
}

TEST_CASE("a scan of length 16 walks 1450 directions") {
    TPOLYVECTORNAT points;
    TPOLYVECTOR vectors;
    _GETHEMISPHERE(points, vectors, 16);
    CHECK(points.LENGTH == 1450);
}

TEST_CASE("the directions of radius 1 stand in the order of the heap sort") {
    // Raw: (0,1,0) (-1,1,0) (-1,0,0), then (0,0,-1) three times; the last one is never kept, so
    // no direction along z is left. All have z 0: the sort exchanges 1 and 3, then 1 and 2.
    TPOLYVECTORNAT points;
    TPOLYVECTOR vectors;
    _GETHEMISPHERE(points, vectors, 1);
    REQUIRE(points.LENGTH == 3);
    CHECK(points.GET(1) == VECTORNAT{-1, 1, 0});
    CHECK(points.GET(2) == VECTORNAT{-1, 0, 0});
    CHECK(points.GET(3) == VECTORNAT{0, 1, 0});
}

TEST_CASE("the population of a ring is computed from i but its angle from i + 1, so ring 0 is "
          "empty") {
    NAT first = -1, rings = 0;
    FOR_EACH_RING_POINT(
        4,
        [&](const RING_POINT &point) {
            if (first >= 0) return;
            first = point.ring;
            // Ring 1 holds round(pi * 4 * sin(1/4)) = 3 points at theta 2/4.
            CHECK(point.population == 3);
            CHECK(point.polar.z == doctest::Approx(4 * 0.8775825618903728).epsilon(1e-12));
        },
        [&](NAT) { ++rings; });
    CHECK(first == 1);
    CHECK(rings == 13); // round(4 pi)
}

TEST_CASE("directions are sorted by z and none is there with its opposite") {
    TPOLYVECTORNAT points;
    TPOLYVECTOR vectors;
    _GETHEMISPHERE(points, vectors, 8);
    for (NAT i = 1; i <= points.LENGTH; ++i) {
        if (i > 1) CHECK(points.GET(i - 1).z <= points.GET(i).z);
        CHECK(vectors.GET(i) == NORM(points.GET(i)));
        for (NAT j = i + 1; j <= points.LENGTH; ++j)
            CHECK((points.GET(i) != points.GET(j) && points.GET(i) != -points.GET(j)));
    }
}

TEST_CASE("a random choice of directions takes none twice and is repeated by its numbers") {
    TPOLYVECTORNAT points, again, all;
    TPOLYVECTOR vectors;
    RANDOM_STREAM first(7, 1), second(7, 1);
    _GETHEMISPHERE(points, vectors, 4, 20, first);
    _GETHEMISPHERE(again, vectors, 4, 20, second);
    _GETHEMISPHERE(all, vectors, 4);
    REQUIRE(points.LENGTH == 20);
    for (NAT i = 1; i <= 20; ++i) {
        CHECK(points.GET(i) == again.GET(i));
        CHECK(all.SEARCH(points.GET(i)) > 0);
        for (NAT j = i + 1; j <= 20; ++j)
            CHECK(points.GET(i) != points.GET(j));
    }
}

TEST_CASE("a choice of at least as many directions as there are gives all of them in order") {
    TPOLYVECTORNAT points, all;
    TPOLYVECTOR vectors, units;
    RANDOM_STREAM random(7, 1);
    _GETHEMISPHERE(points, vectors, 3, 43, random);
    _GETHEMISPHERE(all, units, 3);
    REQUIRE(points.LENGTH == 43);
    for (NAT i = 1; i <= 43; ++i)
        CHECK(points.GET(i) == all.GET(i));
    CHECK(vectors.LENGTH == 43);
}
