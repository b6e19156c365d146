#include "image2d/image/objects.hpp"
#include "support/capture.hpp"

#include <cmath>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// An image of the given values row by row.
struct SHOWN {
    CAPTURE console; // status lines
    TIMAGE image;
    SHOWN(BYTE kind, NAT width, const std::vector<NAT> &values)
        : image(kind, width, static_cast<NAT>(values.size()) / width) {
        for (std::size_t i = 0; i < values.size(); ++i)
            image.PUT(static_cast<NAT>(i) % width + 1, static_cast<NAT>(i) / width + 1, values[i]);
    }
};
} // namespace

TEST_CASE("mean and standard deviation are those of the selected values, with divisor n-1") {
    SHOWN shown(IMAGE_FULLGRAY, 4, {1, 2, 3, 1000});
    CHECK(OBJECT_STATISTIC(shown.image, 1, 3) == COMPLEX{2, 1});
    CHECK(OBJECT_STATISTIC(shown.image, 1000, 1000) == COMPLEX{1000, 0});
    CHECK(OBJECT_STATISTIC(shown.image, 5, 9) == CZERO);
    CHECK(shown.console.CONTAINS("Calculate statistic (1)"));
    CHECK(shown.console.CONTAINS("Calculate statistic (2)"));
}

TEST_CASE("quartiles are those of a sorted list of the values") {
    const std::vector<NAT> all = {900, 5, 7, 3, 9, 5, 11, 8, 2, 60000, 4, 6, 10};
    for (std::size_t count = 1; count <= all.size(); ++count) {
        const std::vector<NAT> values(all.begin(),
                                      all.begin() + static_cast<std::ptrdiff_t>(count));
        SHOWN shown(IMAGE_FULLGRAY, static_cast<NAT>(count), values);
        TPOLYNAT list(static_cast<NAT>(count));
        for (std::size_t i = 0; i < count; ++i)
            list.PUT(static_cast<NAT>(i) + 1, values[i]);
        const OBJECT_QUARTILES q = OBJECT_QUANTILE(shown.image, 0, 65535);
        CHECK(VECTORNAT{q.q1, q.median, q.q3} == list.QUANTILE());
        CHECK(q.min == list.MIN());
        CHECK(q.max == list.MAX());
    }
    SHOWN shown(IMAGE_GRAY, 5, {1, 2, 3, 4, 200});
    const OBJECT_QUARTILES q = OBJECT_QUANTILE(shown.image, 2, 10);
    CHECK(q.min == 2);
    CHECK(q.median == 3);
    CHECK(q.max == 4);
    CHECK(OBJECT_QUANTILE(shown.image, 50, 60).max == 0);
}

TEST_CASE("the bounding box has a middle and an inclusive size") {
    SHOWN shown(IMAGE_GRAY, 5,
                {0, 0, 0, 0, 0, //
                 0, 7, 0, 0, 0, //
                 0, 0, 0, 9, 0});
    CHECK(OBJECT_CENTER(shown.image, 1, 255) == COMPLEX{3, 2.5});
    CHECK(OBJECT_SIZE(shown.image, 1, 255) == COMPLEX{3, 2});
    CHECK(OBJECT_SIZE(shown.image, 9, 9) == COMPLEX{1, 1});
    CHECK(OBJECT_CENTER(shown.image, 100, 200) == CZERO);
    CHECK(OBJECT_SIZE(shown.image, 100, 200) == CZERO);
    CHECK(shown.console.CONTAINS("Calculate center"));
    CHECK(shown.console.CONTAINS("Calculate size"));
}

TEST_CASE("the centroid counts pixels alike, the centre of gravity by their value") {
    SHOWN shown(IMAGE_GRAY, 4, {10, 0, 0, 30, 0, 0, 0, 0});
    CHECK(OBJECT_CENTROID(shown.image, 1, 255) == COMPLEX{2.5, 1});
    CHECK(OBJECT_COG(shown.image, 1, 255) == COMPLEX{3.25, 1}); // (10 + 4*30) / 40
    CHECK(OBJECT_COG(shown.image, 0, 0) == CZERO);
    CHECK(OBJECT_CENTROID(shown.image, 0, 0) == COMPLEX{2.5, 10.0 / 6});
    CHECK(shown.console.CONTAINS("Calculate cog"));
}

TEST_CASE("objects of a colour image are chosen by half the sum of the components") {
    SHOWN shown(IMAGE_RGB, 2, {0, 0});
    shown.image.PUTRGB(2, 1, {100, 60, 41});
    CHECK(OBJECT_CENTROID(shown.image, 100, 100) == COMPLEX{2, 1});
    CHECK(OBJECT_STATISTIC(shown.image, 1, 400) == COMPLEX{100, 0});
    TPOLYNAT bins;
    HISTOGRAM(shown.image, bins);
    CHECK(bins.LENGTH == 383);
    CHECK(bins.GET(101) == 1);
    shown.image.PUTRGB(1, 1, {255, 255, 255});
    HISTOGRAM(shown.image, bins);
    CHECK(bins.GET(383) == 1);
}

TEST_CASE("extremes, counts and sums are taken of each plane") {
    SHOWN gray(IMAGE_GRAY, 3, {5, 9, 9});
    CHECK(MIN(gray.image).planes == 1);
    CHECK(MIN(gray.image).values[0] == 5);
    CHECK(MAX(gray.image).values[0] == 9);
    CHECK(COUNT(gray.image, 6, 9).values[0] == 2);
    CHECK(SUM(gray.image, 0, 9).values[0] == 23);
    CHECK(GETBACKGROUND(gray.image).values[0] == 9);
    SHOWN rgba(IMAGE_RGBA, 2, {0, 0});
    rgba.image.PUTRGBA(1, 1, {1, 2, 3, 4});
    CHECK(MAX(rgba.image).planes == 4);
    CHECK(MAX(rgba.image).values == std::array<NAT, 4>{1, 2, 3, 255});       // alpha of PUT
    CHECK(COUNT(rgba.image, 0, 0).values == std::array<NAT, 4>{1, 1, 1, 0}); // alpha of PUT: 255
    CHECK(MAX(TIMAGE(IMAGE_ZRGB, 2, 2)).planes == 3);
    CHECK(MIN(TIMAGE()).planes == 0);
    CHECK(MIN(TIMAGE(IMAGE_GRAY)).values[0] == 255);
}

TEST_CASE("profiles give sum, mean and standard deviation of columns and rows") {
    SHOWN shown(IMAGE_GRAY, 3,
                {1, 10, 0, //
                 3, 20, 0});
    const auto profile = [&](PROFILE_AXIS axis, PROFILE_VALUE value, NAT first, NAT last) {
        const TPOLYREAL list = PROFILE(shown.image, axis, value, first, last);
        return std::vector<REAL>(list.SPAN().begin(), list.SPAN().end());
    };
    using enum PROFILE_AXIS;
    CHECK(profile(COLUMNS, PROFILE_VALUE::SUM, 1, 3) == std::vector<REAL>{4, 30, 0});
    CHECK(profile(COLUMNS, PROFILE_VALUE::MEAN, 2, 2) == std::vector<REAL>{15});
    CHECK(profile(COLUMNS, PROFILE_VALUE::SD, 1, 2) ==
          std::vector<REAL>{std::sqrt(2.0), std::sqrt(50.0)});
    CHECK(profile(ROWS, PROFILE_VALUE::SUM, 1, 2) == std::vector<REAL>{11, 23});
    CHECK(profile(ROWS, PROFILE_VALUE::MEAN, -5, 99).size() == 2);
    CHECK(profile(ROWS, PROFILE_VALUE::MEAN, 3, 99).empty());
    const TPOLYREAL none = PROFILE(TIMAGE(IMAGE_GRAY), COLUMNS, PROFILE_VALUE::SD, 1, 9);
    CHECK(none.LENGTH == 0);
}
