#include "geometry/model/cloud_edit.hpp"

#include <cmath>
#include <limits>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
void ADD_LINE(TCLOUD &cloud, std::initializer_list<HYPER> points) {
    for (const HYPER &point : points)
        cloud.NEWPOINT(point);
    cloud.NEWLINE(0);
}
} // namespace

TEST_CASE("lines with a t beyond a limit are erased") {
    TCLOUD cloud;
    ADD_LINE(cloud, {{0, 0, 0, 1}, {0, 0, 0, 5}});
    ADD_LINE(cloud, {{0, 0, 0, 2}, {0, 0, 0, 3}});
    TCLOUD other;
    other.REPLACE(cloud);
    CHECK(ERASE_T_MIN(cloud, 2) == 1); // 1 is below 2
    CHECK(cloud.GETLINE(1, 1).w == 2);
    CHECK(ERASE_T_MAX(other, 4) == 1); // 5 is above 4
    CHECK(other.GETLINE(1, 1).w == 2);
    CHECK(ERASE_T_MAX(other, 3) == 0);
}

TEST_CASE("lines with a length beyond a limit are erased") {
    TCLOUD cloud;
    ADD_LINE(cloud, {{0, 0, 0, 0}, {3, 4, 0, 90}, {3, 4, 2, 0}}); // length 7, whatever t is
    ADD_LINE(cloud, {{0, 0, 0, 0}, {1, 0, 0, 0}});
    ADD_LINE(cloud, {{5, 5, 5, 0}});
    CHECK(LINE_LENGTH(cloud.GETSPAN(1)) == 7);
    CHECK(ERASE_LENGTH_MIN(cloud, 1) == 1);
    CHECK(ERASE_LENGTH_MAX(cloud, 6.5) == 1);
    CHECK(cloud.GETLINELENGTH() == 1);
    CHECK(cloud.GETLINE(1, 2) == HYPER{1, 0, 0, 0});
}

TEST_CASE("DISCRETE rounds all four values, DISCRETE_3D leaves t") {
    TCLOUD cloud;
    ADD_LINE(cloud, {{1.2, 1.3, -0.8, 0.7}});
    TCLOUD other;
    other.REPLACE(cloud);
    DISCRETE(cloud, 0.5);
    CHECK(cloud.GETPOINT(1) == HYPER{1, 1.5, -1, 0.5});
    DISCRETE_3D(other, 0.5);
    CHECK(other.GETPOINT(1) == HYPER{1, 1.5, -1, 0.7});
    DISCRETE(other, 0);
    CHECK(other.GETPOINT(1) == HYPER{1, 1.5, -1, 0.7});
}

TEST_CASE(
    "DISCRETE keeps values beyond all digits of the step, and knows no step without a number") {
    const REAL infinity = std::numeric_limits<REAL>::infinity();
    TCLOUD cloud;
    ADD_LINE(cloud, {{1e20, -1e300, 0.7, 4503599627370497}});
    DISCRETE(cloud, 1);
    CHECK(cloud.GETPOINT(1) == HYPER{1e20, -1e300, 1, 4503599627370497});
    DISCRETE_3D(cloud, 1e-300);
    CHECK(cloud.GETPOINT(1) == HYPER{1e20, -1e300, 1, 4503599627370497});
    for (const REAL step : {infinity, std::numeric_limits<REAL>::quiet_NaN()}) {
        DISCRETE(cloud, step);
        DISCRETE_3D(cloud, step);
        CHECK(cloud.GETPOINT(1) == HYPER{1e20, -1e300, 1, 4503599627370497});
    }
    cloud.PUTPOINT(1, {infinity, -infinity, 2.6, 0});
    DISCRETE(cloud, 0.5);
    CHECK(cloud.GETPOINT(1) == HYPER{infinity, -infinity, 2.5, 0});
}

TEST_CASE("CENTER moves the middle of the bounding box to zero, and leaves t") {
    TCLOUD cloud;
    ADD_LINE(cloud, {{0, 0, 2, 7}, {4, 2, 2, 8}, {4, 2, 2, 9}});
    CENTER(cloud);
    CHECK(cloud.GETPOINT(1) == HYPER{-2, -1, 0, 7});
    CHECK(cloud.GETPOINT(3) == HYPER{2, 1, 0, 9});
}

TEST_CASE("CENTER_OBJECTS centres each object on its own") {
    TCLOUD cloud;
    ADD_LINE(cloud, {{0, 0, 0, 0}});
    ADD_LINE(cloud, {{2, 0, 0, 0}});
    cloud.NEWOBJECT("a");
    ADD_LINE(cloud, {{100, 5, 0, 0}});
    cloud.NEWOBJECT("b");
    CENTER_OBJECTS(cloud);
    CHECK(cloud.GETPOINT(1) == HYPER{-1, 0, 0, 0});
    CHECK(cloud.GETPOINT(2) == HYPER{1, 0, 0, 0});
    CHECK(cloud.GETPOINT(3) == HYPER{0, 0, 0, 0});
}

TEST_CASE("t takes the running number or the length from the start of the line") {
    TCLOUD cloud;
    ADD_LINE(cloud, {{0, 0, 0, 0}, {3, 4, 0, 0}, {3, 4, 1, 0}});
    ADD_LINE(cloud, {{9, 9, 9, 0}});
    NUMBER_T(cloud);
    CHECK(cloud.GETPOINT(1).w == 1);
    CHECK(cloud.GETPOINT(4).w == 4);
    LENGTH_T(cloud);
    CHECK(cloud.GETPOINT(1).w == 0);
    CHECK(cloud.GETPOINT(2).w == 5);
    CHECK(cloud.GETPOINT(3).w == 6);
    CHECK(cloud.GETPOINT(4).w == 0);
}

TEST_CASE("t takes the distance to the nearest other point") {
    TCLOUD cloud;
    ADD_LINE(cloud, {{0, 0, 0, 0}, {3, 4, 0, 0}});
    ADD_LINE(cloud, {{3, 4, 1, 0}, {NAN, 0, 0, 6}});
    DISTANCE_T(cloud);
    CHECK(cloud.GETPOINT(1).w == 5);
    CHECK(cloud.GETPOINT(2).w == 1);
    CHECK(cloud.GETPOINT(3).w == 1);
    CHECK(cloud.GETPOINT(4).w == 0); // no place
    TCLOUD alone;
    ADD_LINE(alone, {{1, 2, 3, 4}});
    DISTANCE_T(alone);
    CHECK(alone.GETPOINT(1).w == 0);
}

TEST_CASE("the nearest distance of many points equals the plain rule") {
    RANDOM_STREAM random(1, 1);
    TCLOUD cloud;
    for (NAT i = 0; i < 400; ++i) // many equal coordinates and some equal points
        cloud.NEWPOINT({static_cast<REAL>(random.BELOW(12)), static_cast<REAL>(random.BELOW(9)),
                        random.FRACTION() < 0.5 ? 0 : random.FRACTION(), 0});
    DISTANCE_T(cloud);
    for (NAT i = 1; i <= cloud.LENGTH; ++i) {
        REAL best = REALMAX;
        for (NAT j = 1; j <= cloud.LENGTH; ++j) {
            const HYPER a = cloud.GET(i), b = cloud.GET(j);
            const REAL x = a.x - b.x, y = a.y - b.y, z = a.z - b.z;
            if (i != j) best = std::min(best, x * x + y * y + z * z);
        }
        CHECK(cloud.GET(i).w == std::sqrt(best));
    }
}

TEST_CASE("t of a line becomes a statistic of its values") {
    TCLOUD cloud;
    ADD_LINE(cloud, {{0, 0, 0, 1}, {0, 0, 0, 2}, {0, 0, 0, 6}});
    const auto result = [&cloud](void (*statistic)(TCLOUD &)) {
        TCLOUD copy;
        copy.REPLACE(cloud);
        statistic(copy);
        CHECK(copy.GETPOINT(1).w == copy.GETPOINT(3).w);
        return copy.GETPOINT(2).w;
    };
    CHECK(result(MEAN_T) == 3);
    CHECK(result(MIN_T) == 1);
    CHECK(result(MEDIAN_T) == 2);
    CHECK(result(MAX_T) == 6);
    CHECK(result(SD_T) == doctest::Approx(std::sqrt(7.0))); // (4 + 1 + 9) / 2
}

TEST_CASE("lines of two points are changed as vectors, others stay") {
    const auto change = [](auto act) {
        TCLOUD cloud;
        ADD_LINE(cloud, {{1, 1, 1, 5}, {4, 5, 1, 6}}); // the vector <3, 4, 0>
        ADD_LINE(cloud, {{0, 0, 0, 0}, {0, 0, 10, 0}});
        ADD_LINE(cloud, {{0, 0, 0, 0}, {7, 0, 0, 0}, {8, 0, 0, 0}});
        act(cloud);
        CHECK(cloud.GETLINE(3, 2) == HYPER{7, 0, 0, 0});
        return std::pair(cloud.GETLINE(1, 1), cloud.GETLINE(1, 2));
    };
    const HYPER start{1, 1, 1, 5};
    CHECK(change(VECTOR_NORM).second == HYPER{1.6, 1.8, 1, 6});
    CHECK(change([](TCLOUD &c) { VECTOR_NORMSCALE(c, 10); }).second == HYPER{7, 9, 1, 6});
    CHECK(change([](TCLOUD &c) { VECTOR_SCALE(c, 2); }).second == HYPER{7, 9, 1, 6});
    CHECK(change(VECTOR_MINSCALE).second == HYPER{1.6, 1.8, 1, 6});  // the shortest is 5 long
    CHECK(change(VECTOR_MAXSCALE).second.x == doctest::Approx(1.3)); // the longest is 10 long
    CHECK(change(VECTOR_NEGATE) == std::pair(start, HYPER{-2, -3, 1, 6}));
    CHECK(change(VECTOR_INVERT) == std::pair(HYPER{4, 5, 1, 6}, start));
}

TEST_CASE("a zero vector keeps its length in every scaling") {
    TCLOUD cloud;
    ADD_LINE(cloud, {{1, 1, 1, 0}, {1, 1, 1, 0}});
    VECTOR_NORM(cloud);
    VECTOR_MINSCALE(cloud);
    VECTOR_MAXSCALE(cloud);
    CHECK(cloud.GETLINE(1, 2) == HYPER{1, 1, 1, 0});
}
