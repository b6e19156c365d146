#include "orientation/scan/scan_method.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/base/geometry.hpp"

#include <algorithm>
#include <numeric>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// Directions with given values: every line has r samples of its value, or none below 0. The
// statistic is the minimum.
struct FAKE_SCAN {
    SCAN_SETTINGS settings;
    SCAN_DIRECTIONS directions;
    SCAN_LISTS lists;
    std::vector<NAT> values;
    NAT r = 1;

    FAKE_SCAN(SCAN_METHOD method, const std::vector<VECTORNAT> &offsets, std::vector<NAT> numbers)
        : values(std::move(numbers)) {
        settings.method = method;
        settings.subMethod = 3;
        settings.angle = 5 * PI / 180;
        settings.max = 1;
        for (const VECTORNAT &offset : offsets) {
            directions.points.PUSH(offset);
            directions.vectors.PUSH(NORM(offset));
        }
    }
    VECTOR RESULT() {
        REQUIRE(lists.INIT(r));
        return GETIMAGEVECTOR({settings, directions, lists, {READ, this}, r});
    }
    // The same from the ties alone.
    bool RESULT_OF_TIES(VECTOR &result) {
        SCAN_TIES ties;
        std::vector<std::uint32_t> list;
        for (std::size_t k = 0; k < values.size(); ++k) {
            if (values[k] < 0) continue;
            ++ties.scanned;
            const REAL value = static_cast<REAL>(values[k]);
            if (value > ties.best) continue;
            if (value < ties.best) list.clear();
            ties.best = value;
            list.push_back(static_cast<std::uint32_t>(k));
        }
        ties.directions = list.data();
        ties.count = static_cast<NAT>(list.size());
        return GETIMAGEVECTOR_TIES(settings, directions, r, ties, result);
    }
    static NAT READ(const void *self, NAT direction, NAT *samples) {
        const FAKE_SCAN *scan = static_cast<const FAKE_SCAN *>(self);
        const NAT value = scan->values[static_cast<std::size_t>(direction)];
        if (value < 0) return 0;
        std::fill_n(samples, scan->r, value);
        return scan->r;
    }
};
const std::vector<VECTORNAT> AXES = {{2, 0, 0}, {0, 2, 0}, {0, 0, 2}, {-2, 0, 0}};
using enum SCAN_METHOD;
} // namespace

TEST_CASE("brenk2013 gives the single best direction the length of its value") {
    CHECK(FAKE_SCAN(BRENK2013, AXES, {5, 3, 4, 9}).RESULT() == VECTOR{0, 3, 0});
}

TEST_CASE("a tie gives the zero vector but keeps the best value, so a later lower value still "
          "wins") {
    CHECK(FAKE_SCAN(BRENK2013, AXES, {3, 3, 4, 9}).RESULT() == VZERO);
    CHECK(FAKE_SCAN(BRENK2013, AXES, {3, 3, 2, 9}).RESULT() == VECTOR{0, 0, 2});
}

TEST_CASE("without a direction long enough every method gives the zero vector") {
    for (const SCAN_METHOD method :
         {BRENK2013, BRENK2014A, BRENK2014B, BRENK2015A, BRENK2015B, BRENK2019})
        CHECK(FAKE_SCAN(method, AXES, {-1, -1, -1, -1}).RESULT() == VZERO);
}

TEST_CASE("a short direction zeroes the voxel in a full scan and is skipped otherwise") {
    for (const SCAN_METHOD method :
         {BRENK2013, BRENK2014A, BRENK2014B, BRENK2015A, BRENK2015B, BRENK2019}) {
        FAKE_SCAN scan(method, AXES, {1, 3, 4, -1});
        CHECK(scan.RESULT() != VZERO);
        scan.settings.fullScan = true;
        CHECK(scan.RESULT() == VZERO);
    }
}

TEST_CASE("brenk2014a means two best vectors that are near") {
    FAKE_SCAN near(BRENK2014A, {{10, 0, 0}, {10, 1, 0}, {0, 9, 0}}, {2, 2, 5});
    const VECTOR expected = (VECTOR{1, 0, 0} * 2.0 + NORM(VECTORNAT{10, 1, 0}) * 2.0) / 2;
    CHECK(near.RESULT() == expected);
    // Length 1 allows the distance 0.5; at right angles it is 1.41, of the negated one as well.
    CHECK(FAKE_SCAN(BRENK2014A, AXES, {3, 3, 5, 5}).RESULT() == VZERO);
    // The negated second direction is the first one.
    CHECK(FAKE_SCAN(BRENK2014A, AXES, {3, 4, 5, 3}).RESULT() == VECTOR{3, 0, 0});
}

TEST_CASE("the limit is r * 0.5 although unit vectors are compared, so from r 5 on every second "
          "vector joins") {
    FAKE_SCAN scan(BRENK2014A, AXES, {3, 3, 5, 5});
    scan.r = 5;
    CHECK(scan.RESULT() == VECTOR{1.5, 1.5, 0});
    FAKE_SCAN opposite(BRENK2014A, AXES, {3, 5, 5, 3});
    opposite.r = 5;
    CHECK(opposite.RESULT() == VZERO); // their mean
}

TEST_CASE("in brenk2014a a third direction of the best value cancels the vector") {
    FAKE_SCAN scan(BRENK2014A, AXES, {3, 3, 3, 5});
    scan.r = 5;
    CHECK(scan.RESULT() == VZERO);
}

TEST_CASE("brenk2014b means all best vectors and turns those that point against the sum") {
    CHECK(FAKE_SCAN(BRENK2014B, AXES, {3, 3, 5, 5}).RESULT() == VECTOR{1.5, 1.5, 0});
    CHECK(FAKE_SCAN(BRENK2014B, AXES, {3, 5, 5, 3}).RESULT() == VECTOR{3, 0, 0});
}

TEST_CASE("brenk2014b counts the short directions in the share that may tie") {
    FAKE_SCAN scan(BRENK2014B, AXES, {-1, -1, -1, 3});
    scan.settings.max = 0.25; // 4 * 0.25 is not above 1
    CHECK(scan.RESULT() == VZERO);
    scan.settings.max = 0.26;
    CHECK(scan.RESULT() == VECTOR{-3, 0, 0});
}

TEST_CASE("the methods of 2015 need three directions that are long enough") {
    for (const SCAN_METHOD method : {BRENK2015A, BRENK2015B, BRENK2019}) {
        CHECK(FAKE_SCAN(method, AXES, {3, 4, -1, -1}).RESULT() == VZERO);
        CHECK(FAKE_SCAN(method, AXES, {3, 4, 5, -1}).RESULT() != VZERO);
    }
}

TEST_CASE("the methods of 2015 sum the best offsets inside the cone") {
    const std::vector<VECTORNAT> offsets = {{20, 0, 0}, {20, 1, 0}, {0, 9, 0}, {0, 0, 9}};
    CHECK(FAKE_SCAN(BRENK2015A, offsets, {3, 3, 5, 6}).RESULT() == VECTOR{40, 1, 0});
    CHECK(FAKE_SCAN(BRENK2015B, offsets, {3, 3, 5, 6}).RESULT() == VECTOR{40, 1, 0});
    CHECK(FAKE_SCAN(BRENK2019, offsets, {3, 3, 5, 6}).RESULT() == NORM(VECTOR{40, 1, 0}) * 3.0);
}

TEST_CASE("a direction inside the opposite cone is added when it is a best one, and ends the walk "
          "all the same") {
    // The heap sort leaves the ties in the order 1, 3, 2. The axis is (20, 1, 0).
    const std::vector<VECTORNAT> offsets = {{20, 0, 0}, {20, 1, 0}, {-20, 0, 0}, {0, 9, 0}};
    FAKE_SCAN scan(BRENK2015B, offsets, {3, 3, 3, 5});
    CHECK(scan.RESULT() == VECTOR{40, 0, 0});
    scan.settings.method = BRENK2019;
    CHECK(scan.RESULT() == VECTOR{3, 0, 0});
    scan.settings.method = BRENK2015A;
    CHECK(scan.RESULT() == VECTOR{60, 1, 0});
}

TEST_CASE("a first direction outside the cone gives the zero vector") {
    FAKE_SCAN scan(BRENK2015B, AXES, {3, 4, 5, 6});
    scan.settings.angle = -1;
    CHECK(scan.RESULT() == VZERO);
    scan.settings.angle = 4; // above pi: the opposite cone holds it, too, and ends the walk
    CHECK(scan.RESULT() == VZERO);
}

TEST_CASE("ties up to but not including all directions are accepted with a share of 1") {
    const std::vector<VECTORNAT> offsets = {{20, 0, 0}, {20, 1, 0}, {20, 0, 1}, {20, 1, 1}};
    for (const SCAN_METHOD method : {BRENK2014B, BRENK2015A, BRENK2015B, BRENK2019}) {
        CHECK(FAKE_SCAN(method, offsets, {3, 3, 3, 3}).RESULT() == VZERO);
        CHECK(FAKE_SCAN(method, offsets, {3, 3, 3, 4}).RESULT() != VZERO);
    }
}

TEST_CASE("a best value of 0 gives length 0 in the methods that carry the value") {
    for (const SCAN_METHOD method : {BRENK2013, BRENK2014A, BRENK2014B, BRENK2019})
        CHECK(FAKE_SCAN(method, AXES, {0, 3, 4, 5}).RESULT() == VZERO);
    for (const SCAN_METHOD method : {BRENK2015A, BRENK2015B})
        CHECK(FAKE_SCAN(method, AXES, {0, 3, 4, 5}).RESULT() == VECTOR{2, 0, 0});
}

TEST_CASE("the ties alone give the vector, or tell that the order of the sort decides") {
    const std::vector<VECTORNAT> offsets = {{20, 0, 0}, {20, 1, 0},  {-20, 0, 0},
                                            {0, 9, 0},  {-20, 1, 0}, {0, 0, 20}};
    NAT undecided = 0;
    for (NAT code = 0; code < 4096; ++code)
        for (const SCAN_METHOD method :
             {BRENK2013, BRENK2014A, BRENK2014B, BRENK2015A, BRENK2015B, BRENK2019}) {
            std::vector<NAT> values;
            for (NAT k = 0; k < 6; ++k)
                values.push_back((code >> (2 * k) & 3) - 1);
            FAKE_SCAN scan(method, offsets, values);
            VECTOR result;
            if (!scan.RESULT_OF_TIES(result)) {
                ++undecided;
                CHECK((method == BRENK2015B || method == BRENK2019));
                continue;
            }
            CHECK(result == scan.RESULT());
        }
    CHECK(undecided > 0);
    CHECK(undecided < 4096);
}

TEST_CASE("a method outside 1 to 6 acts as brenk2015b") {
    T3D_SCALAR_ANALYSIS field;
    CHECK(GETSETTINGS(field).method == BRENK2015B);
    field.diffusionMethod = 7;
    CHECK(GETSETTINGS(field).method == BRENK2015B);
    field.diffusionMethod = 6;
    CHECK(GETSETTINGS(field).method == BRENK2019);
}
