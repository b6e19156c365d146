#include "geometry/model/cloud_edit.hpp"
#include "geometry/model/cloud_near.hpp"

#include <chrono>
#include <cmath>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
void ADD_LINE(TCLOUD &cloud, std::initializer_list<HYPER> points) {
    for (const HYPER &point : points)
        cloud.NEWPOINT(point);
    cloud.NEWLINE(0);
}
// Short lines whose points lie on a coarse lattice with some noise, so that many are near.
void ADD_RANDOM_LINES(TCLOUD &cloud, NAT count, NAT range, RANDOM_STREAM &random) {
    for (NAT line = 0; line < count; ++line) {
        const REAL x = static_cast<REAL>(random.BELOW(range)) - static_cast<REAL>(range) / 2;
        const REAL y = static_cast<REAL>(random.BELOW(range));
        for (NAT i = 0; i < 2 + random.BELOW(2); ++i)
            cloud.NEWPOINT({x + static_cast<REAL>(i) + random.FRACTION() * 0.2,
                            y + random.FRACTION() * 0.2, random.FRACTION() * 0.2, 0});
        cloud.NEWLINE(line + 1);
    }
}
bool SAME(const TCLOUD &a, const TCLOUD &b) {
    if (a.GETLINELENGTH() != b.GETLINELENGTH()) return false;
    for (NAT line = 1; line <= a.GETLINELENGTH(); ++line)
        if (a.GETALLMATERIAL(line) != b.GETALLMATERIAL(line)) return false;
    return std::ranges::equal(a.SPAN(), b.SPAN());
}
} // namespace

TEST_CASE("exact duplicates have all four values of all points equal") {
    TCLOUD cloud;
    ADD_LINE(cloud, {{1, 2, 3, 4}, {5, 6, 7, 8}});
    ADD_LINE(cloud, {{1, 2, 3, 4}, {5, 6, 7, 8.5}});
    ADD_LINE(cloud, {{5, 6, 7, 8}, {1, 2, 3, 4}});
    ADD_LINE(cloud, {{1, 2, 3, 4}, {5, 6, 7, 8}});
    ADD_LINE(cloud, {{1, 2, 3, 4}});
    ADD_LINE(cloud, {{0, 0, 0, 0}});
    ADD_LINE(cloud, {{-0.0, 0, 0, 0}});
    CHECK(ERASE_DUPLICATES(cloud) == 2);
    CHECK(cloud.GETLINELENGTH() == 5);
    CHECK(cloud.GETALLLINEPOINTLENGTH(4) == 1);
}

TEST_CASE("a line near an erased earlier line is erased too") {
    TCLOUD cloud;
    ADD_LINE(cloud, {{0, 0, 0, 0}});
    ADD_LINE(cloud, {{0.9, 0, 0, 0}});
    ADD_LINE(cloud, {{1.8, 0, 0, 0}});
    TCLOUD other;
    other.REPLACE(cloud);
    CHECK(ERASE_DUPLICATES_NEAR(cloud, 1) == 2);
    CHECK(ERASE_DUPLICATES_BEGIN(other, 1) == 2);
}

TEST_CASE("near duplicates and near starts equal the plain rule") {
    RANDOM_STREAM random(1, 1);
    for (const REAL distance : {0.0, 0.05, 0.15, 0.3, 1.0, 50.0}) {
        TCLOUD lines;
        ADD_RANDOM_LINES(lines, 300, 12, random);
        ADD_LINE(lines, {{NAN, 0, 0, 0}});
        ADD_LINE(lines, {{1e300, -1e300, REALMAX, 0}});
        TCLOUD near, nearPlain, begin, beginPlain;
        for (TCLOUD *cloud : {&near, &nearPlain, &begin, &beginPlain})
            cloud->REPLACE(lines);
        for (NAT line = 1; line <= lines.GETLINELENGTH(); ++line) {
            if (lines.SEARCHLINE(line, distance) > 0) nearPlain.MARKALLLINE(line);
            if (lines.SEARCHBEGIN(line, distance) > 0) beginPlain.MARKALLLINE(line);
        }
        CHECK(ERASE_DUPLICATES_NEAR(near, distance) == nearPlain.ERASEMARKED());
        CHECK(ERASE_DUPLICATES_BEGIN(begin, distance) == beginPlain.ERASEMARKED());
        CHECK(near.GETLINELENGTH() == nearPlain.GETLINELENGTH());
        CHECK(begin.GETLINELENGTH() == beginPlain.GETLINELENGTH());
        CHECK(near.GETALLMATERIAL(near.GETLINELENGTH() / 2) ==
              nearPlain.GETALLMATERIAL(near.GETLINELENGTH() / 2));
    }
}

TEST_CASE("points exactly at the distance are near, wherever they stand") {
    for (const REAL base : {0.0, 1000.0, -123456.0}) {
        TCLOUD cloud;
        for (int i = 0; i < 50; ++i)
            ADD_LINE(cloud, {{base + 0.25 * i, 0, 0, 0}});
        CHECK(ERASE_DUPLICATES_BEGIN(cloud, 0.25) == 49);
    }
}

TEST_CASE("MEAN_DUPLICATES_NEAR averages a point with the later points near it") {
    TCLOUD cloud;
    ADD_LINE(cloud, {{0, 0, 0, 1}, {5, 0, 0, 0}, {1, 0, 0, 3}, {1.5, 0, 0, 9}});
    MEAN_DUPLICATES_NEAR(cloud, 1);
    CHECK(cloud.GETPOINT(1) == HYPER{0.5, 0, 0, 2});
    CHECK(cloud.GETPOINT(2) == HYPER{5, 0, 0, 0});
    CHECK(cloud.GETPOINT(3) == HYPER{0.5, 0, 0, 2});
    CHECK(cloud.GETPOINT(4) == HYPER{1.5, 0, 0, 9}); // near the third, but not near the first
}

TEST_CASE("MEAN_DUPLICATES_NEAR equals the plain rule to the bit") {
    RANDOM_STREAM random(1, 2);
    for (const REAL distance : {0.0, 0.1, 0.5, 2.0}) {
        TCLOUD cloud, plain;
        ADD_RANDOM_LINES(cloud, 200, 8, random);
        plain.REPLACE(cloud);
        TPOLYBOOL done(plain.LENGTH);
        for (NAT first = 1; first <= plain.LENGTH; ++first) {
            if (done.GET(first - 1)) continue;
            HYPER sum;
            TPOLYNAT group;
            for (NAT i = first; i <= plain.LENGTH; ++i) {
                if (done.GET(i - 1) || !NEAR_POINTS(cloud.GET(first), cloud.GET(i), distance))
                    continue;
                done.PUT(i - 1, true);
                sum = sum + cloud.GET(i);
                group.PUSH(i);
            }
            for (const NAT i : group.SPAN())
                if (group.LENGTH > 1) plain.PUTPOINT(i, sum / static_cast<REAL>(group.LENGTH));
        }
        MEAN_DUPLICATES_NEAR(cloud, distance);
        CHECK(SAME(cloud, plain));
    }
}

TEST_CASE("a hundred thousand lines are compared without comparing each with each") {
    RANDOM_STREAM random(1, 3);
    TCLOUD cloud;
    ADD_RANDOM_LINES(cloud, 100000, 1000, random);
    const auto start = std::chrono::steady_clock::now();
    const NAT erased = ERASE_DUPLICATES_NEAR(cloud, 0.1) + ERASE_DUPLICATES_BEGIN(cloud, 0.1) +
                       ERASE_DUPLICATES(cloud);
    MEAN_DUPLICATES_NEAR(cloud, 0.1);
    const auto time = std::chrono::steady_clock::now() - start;
    CHECK(erased > 0);
    CHECK(time < std::chrono::seconds(60)); // each with each is 5e9 pairs of lines, four times
}
