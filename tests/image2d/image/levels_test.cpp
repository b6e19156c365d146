#include "image2d/colour/colormap.hpp"
#include "image2d/image/levels.hpp"
#include "image2d/image/peaks.hpp"
#include "support/image_rows.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
template <class EDIT> NUMBER_ROWS EDITED(BYTE kind, const NUMBER_ROWS &rows, EDIT &&edit) {
    ROWS_IMAGE image(kind, rows);
    edit(image);
    return ROWS_OF(image);
}
// One row of n times each value.
NUMBER_ROWS TIMES(std::initializer_list<std::pair<NAT, NAT>> counts) {
    NUMBER_ROWS rows(1);
    for (const auto &[count, value] : counts)
        rows[0].insert(rows[0].end(), static_cast<std::size_t>(count), value);
    return rows;
}
} // namespace

TEST_CASE("an image is plain when all pixels are alike, an empty one is not") {
    CHECK(IFPLAIN(ROWS_IMAGE(IMAGE_GRAY, {{5, 5}})));
    CHECK_FALSE(IFPLAIN(ROWS_IMAGE(IMAGE_GRAY, {{5, 6}})));
    CHECK(IFPLAIN(ROWS_IMAGE(IMAGE_RGB, COLOUR_ROWS_OF{{{1, 2, 3}, {1, 2, 3}}})));
    CHECK_FALSE(IFPLAIN(ROWS_IMAGE(IMAGE_RGB, COLOUR_ROWS_OF{{{1, 2, 3}, {1, 2, 4}}})));
    CHECK_FALSE(IFPLAIN(TIMAGE(IMAGE_GRAY)));
    CHECK_FALSE(IFPLAIN(TIMAGE()));
}

TEST_CASE("the sign exchanges the halves of the range, of alpha too") {
    CHECK(EDITED(IMAGE_GRAY, {{0, 127, 128, 255}}, SETSIGN) == NUMBER_ROWS{{128, 255, 0, 127}});
    CHECK(EDITED(IMAGE_FULLGRAY, {{0, 32767, 32768, 65535}}, SETSIGN) ==
          NUMBER_ROWS{{32768, 65535, 0, 32767}});
    TIMAGE rgba(IMAGE_RGBA, 1, 1);
    rgba.PUTRGBA(1, 1, {0, 128, 1, 255});
    SETSIGN(rgba);
    CHECK(rgba.GETRGBA(1, 1) == HYPERNAT{128, 0, 129, 127});
}

TEST_CASE("the range begins at 0, and wrapped values are put in order first") {
    CHECK(EDITED(IMAGE_GRAY, {{10, 12, 200}}, SETRANGE) == NUMBER_ROWS{{0, 2, 190}});
    CHECK(EDITED(IMAGE_FULLGRAY, {{65535, 65534, 0, 3}}, SETRANGE) == NUMBER_ROWS{{1, 0, 2, 5}});
    // a bright and a dark part alone are no wrapped values
    CHECK(EDITED(IMAGE_FULLGRAY, {{65535, 0}}, SETRANGE) == NUMBER_ROWS{{65535, 0}});
    CHECK(EDITED(IMAGE_FULLGRAY, {{100, 20000, 50000, 60000}}, SETRANGE) ==
          NUMBER_ROWS{{0, 19900, 49900, 59900}});
    ROWS_IMAGE rgb(IMAGE_RGB, COLOUR_ROWS_OF{{{10, 20, 30}, {40, 5, 60}}});
    SETRANGE(rgb); // the smallest of all components, so that hues stay
    CHECK(COLOURS_OF(rgb) == COLOUR_ROWS_OF{{{5, 15, 25}, {35, 0, 55}}});
}

TEST_CASE("single spots at the ends join the values that more than three pixels have") {
    CHECK(EDITED(IMAGE_GRAY, TIMES({{3, 1}, {4, 50}, {1, 60}, {4, 70}, {2, 250}}), SETCROP) ==
          TIMES({{3, 50}, {4, 50}, {1, 60}, {4, 70}, {2, 70}}));
    CHECK(EDITED(IMAGE_GRAY, {{1, 2, 3}}, SETCROP) == NUMBER_ROWS{{1, 2, 3}});
}

TEST_CASE("values at or below, at or above and in a range are replaced") {
    const NUMBER_ROWS rows{{9, 10, 11, 20, 21}};
    CHECK(EDITED(IMAGE_GRAY, rows, [](TIMAGE &i) { SETLOWER(i, 10, 0); }) ==
          NUMBER_ROWS{{0, 0, 11, 20, 21}});
    CHECK(EDITED(IMAGE_GRAY, rows, [](TIMAGE &i) { SETHIGHER(i, 20, 255); }) ==
          NUMBER_ROWS{{9, 10, 11, 255, 255}});
    CHECK(EDITED(IMAGE_GRAY, rows, [](TIMAGE &i) {
              SETVALUE(i, COMPLEXNAT{10, 20}, 1);
          }) == NUMBER_ROWS{{9, 1, 1, 1, 21}});
}

TEST_CASE("a colour is replaced where all its components are met; alpha stays") {
    TIMAGE image(IMAGE_RGBA, 2, 1);
    image.PUTRGBA(1, 1, {1, 2, 3, 200});
    image.PUTRGBA(2, 1, {1, 2, 4, 200});
    SETVALUE(image, VECTORNAT{1, 2, 3}, VECTORNAT{9, 9, 9});
    SETHIGHER(image, 100, 0);
    CHECK(image.GETRGBA(1, 1) == HYPERNAT{9, 9, 9, 200});
    CHECK(image.GETRGBA(2, 1) == HYPERNAT{1, 2, 4, 200});
}

TEST_CASE("levels are stretched to the full range or from range to range") {
    CHECK(EDITED(IMAGE_GRAY, {{10, 20, 30}}, [](TIMAGE &i) { ADJUST(i); }) ==
          NUMBER_ROWS{{0, 128, 255}}); // 127.5, ties to even
    CHECK(EDITED(IMAGE_GRAY, {{10, 20, 30}}, [](TIMAGE &i) {
              ADJUST_LINEAR(i, {15, 25}, {100, 200});
          }) == NUMBER_ROWS{{100, 150, 200}});
    CHECK(EDITED(IMAGE_GRAY, {{10, 20}}, [](TIMAGE &i) {
              ADJUST_LINEAR(i, {5, 5}, {0, 255});
          }) == NUMBER_ROWS{{10, 20}});
}

TEST_CASE("shares of the pixels are clipped at both ends") {
    // ten pixels: 10 % of them may be clipped at the low end, 20 % at the high end
    const NUMBER_ROWS rows = TIMES({{1, 0}, {3, 100}, {4, 150}, {2, 255}});
    CHECK(EDITED(IMAGE_GRAY, rows, [](TIMAGE &i) { ADJUST_PERCENTAGE(i, 0.1, 0.2); }) ==
          TIMES({{1, 0}, {3, 0}, {4, 255}, {2, 255}}));
    CHECK(EDITED(IMAGE_GRAY, rows, [](TIMAGE &i) { ADJUST_PERCENTAGE(i, 0.05, 0.1); }) == rows);
    // more than all: the bounds meet and nothing happens
    CHECK(EDITED(IMAGE_GRAY, rows, [](TIMAGE &i) { ADJUST_PERCENTAGE(i, 2, 2); }) == rows);
}

TEST_CASE("a weak stretch presses the clipped ends into a sixteenth of the range") {
    // outer bounds 0 and 200, inner bounds 100 and 150; the ends hold 15 of the 255 values
    const NUMBER_ROWS rows = TIMES({{1, 0}, {1, 50}, {3, 100}, {3, 150}, {1, 175}, {1, 200}});
    const SOFT_SHARES shares{.innerLow = 0.2, .innerHigh = 0.2, .outerLow = 0, .outerHigh = 0};
    const NUMBER_ROWS wanted = TIMES({{1, 0}, {1, 8}, {3, 15}, {3, 240}, {1, 248}, {1, 255}});
    CHECK(EDITED(IMAGE_GRAY, rows, [&](TIMAGE &i) { ADJUST_WEAK(i, shares); }) == wanted);
    const SOFT_SHARES swapped{.innerLow = 0, .innerHigh = 0, .outerLow = 0.2, .outerHigh = 0.2};
    CHECK(EDITED(IMAGE_GRAY, rows, [&](TIMAGE &i) { ADJUST_WEAK(i, swapped); }) == wanted);
}

TEST_CASE("outliers lie a quarter of the quartiles' distance outside them") {
    // quartiles 100 and 140: the range is 90 to 150
    const NUMBER_ROWS rows = TIMES({{1, 0}, {2, 100}, {2, 120}, {2, 140}, {1, 250}});
    CHECK(EDITED(IMAGE_GRAY, rows, [](TIMAGE &i) { ADJUST_OUTLIERS(i); }) ==
          TIMES({{1, 0}, {2, 42}, {2, 128}, {2, 212}, {1, 255}})); // 42.5, 127.5, 212.5
}

TEST_CASE("equalisation, threshold and inversion leave alpha alone where it would hide the image") {
    TIMAGE image(IMAGE_RGBA, 2, 1);
    image.PUTRGBA(1, 1, {10, 0, 0, 255});
    image.PUTRGBA(2, 1, {20, 0, 0, 255});
    EQUAL(image); // nothing below 10, half of the pixels below 20
    CHECK(image.GETRGBA(1, 1) == HYPERNAT{0, 0, 0, 255});
    CHECK(image.GETRGBA(2, 1) == HYPERNAT{128, 0, 0, 255});
    INVERT(image, 65535);
    CHECK(image.GETRGBA(2, 1) == HYPERNAT{127, 255, 255, 255});
    MONO(image, 128);
    CHECK(image.GETRGBA(1, 1) == HYPERNAT{255, 255, 255, 255});
    CHECK(image.GETRGBA(2, 1) == HYPERNAT{0, 255, 255, 255});
}

TEST_CASE("inversion takes m on 16 bits only") {
    CHECK(EDITED(IMAGE_GRAY, {{10, 200}}, [](TIMAGE &i) { INVERT(i, 100); }) ==
          NUMBER_ROWS{{245, 55}});
    CHECK(EDITED(IMAGE_FULLGRAY, {{10, 2000}}, [](TIMAGE &i) { INVERT(i, 1000); }) ==
          NUMBER_ROWS{{990, 0}});
}

TEST_CASE("colours become grey by their mean; grey images stay") {
    ROWS_IMAGE rgb(IMAGE_RGB, COLOUR_ROWS_OF{{{10, 20, 33}}});
    GRAY(rgb);
    CHECK(rgb.GETRGB(1, 1) == VECTORNAT{21, 21, 21});
    CHECK(EDITED(IMAGE_GRAY, {{10, 20}}, GRAY) == NUMBER_ROWS{{10, 20}});
    CHECK(EDITED(IMAGE_GRAY, {{10, 20}}, HDRGRAY) == NUMBER_ROWS{{10, 20}});
}

TEST_CASE("grey values go through the colour map and the image becomes 24 bit") {
    CURRENTMAP().PUT(256, "WB");
    ROWS_IMAGE gray(IMAGE_GRAY, {{0, 255}}), full(IMAGE_FULLGRAY, {{0, 65535}}),
        rgb(IMAGE_RGB, COLOUR_ROWS_OF{{{0, 0, 0}, {255, 255, 255}}});
    for (TIMAGE *image : {static_cast<TIMAGE *>(&gray), static_cast<TIMAGE *>(&full),
                          static_cast<TIMAGE *>(&rgb)}) {
        COLORIZE(*image);
        CHECK(image->ID() == IMAGE_RGB);
        CHECK(COLOURS_OF(*image) == COLOUR_ROWS_OF{{{255, 255, 255}, {0, 0, 0}}});
    }
    CURRENTMAP().PUT(256, "BW");
}

TEST_CASE("the peak of a histogram moves to a value, and all others move with it") {
    const NUMBER_ROWS rows = TIMES({{2, 100}, {5, 150}, {2, 200}});
    const auto shift = [&](NAT target) {
        return EDITED(IMAGE_GRAY, rows, [&](TIMAGE &i) {
            SETPEAK(i, PEAK_CHANNEL::MEAN, {0, 255}, target);
        });
    };
    CHECK(shift(0) == TIMES({{2, 0}, {5, 0}, {2, 50}}));
    CHECK(shift(128) == TIMES({{2, 78}, {5, 128}, {2, 178}}));
    CHECK(shift(255) == TIMES({{2, 205}, {5, 255}, {2, 255}}));
    CHECK(EDITED(IMAGE_FULLGRAY, TIMES({{2, 10000}, {5, 15000}}), [](TIMAGE &i) {
              SETPEAK(i, PEAK_CHANNEL::MEAN, {0, 65535}, 32768);
          }) == TIMES({{2, 27768}, {5, 32768}}));
}

TEST_CASE("a local peak is looked for inside its range only") {
    const NUMBER_ROWS rows = TIMES({{9, 20}, {5, 150}, {2, 200}});
    const auto shift = [&](const COMPLEXNAT &range) {
        return EDITED(IMAGE_GRAY, rows,
                      [&](TIMAGE &i) { SETPEAK(i, PEAK_CHANNEL::MEAN, range, 160); });
    };
    CHECK(shift({100, 255}) == TIMES({{9, 30}, {5, 160}, {2, 210}}));
    CHECK(shift({50, 60}) == rows); // no pixel there
}

TEST_CASE("the peak of one channel moves all channels") {
    const COLOUR_ROWS_OF rows{{{10, 100, 200}, {10, 110, 210}, {50, 120, 200}}};
    ROWS_IMAGE image(IMAGE_RGB, rows), gray(IMAGE_GRAY, {{10, 20}});
    SETPEAK(image, PEAK_CHANNEL::RED, {0, 255}, 30);
    CHECK(COLOURS_OF(image) == COLOUR_ROWS_OF{{{30, 120, 220}, {30, 130, 230}, {70, 140, 220}}});
    SETPEAK(image, PEAK_CHANNEL::BLUE, {0, 255}, 200);
    CHECK(COLOURS_OF(image) == COLOUR_ROWS_OF{{{10, 100, 200}, {10, 110, 210}, {50, 120, 200}}});
    SETPEAK(gray, PEAK_CHANNEL::RED, {0, 255}, 200); // a grey image has no red
    CHECK(ROWS_OF(gray) == NUMBER_ROWS{{10, 20}});
}

TEST_CASE("a peak between two neighbouring bins of equal count is their middle") {
    TPOLYNAT bins;
    bins.INIT(256);
    bins.PUT(101, 5);
    bins.PUT(103, 5);
    CHECK(PEAK(bins, {0, 255}) == 101);
    CHECK(PEAK(bins, {0, 100}) == 100);
    CHECK(PEAK(bins, {110, 255}) == -1);
    bins.PUT(1, 50);
    CHECK(PEAK(bins, {0, 255}) == 0);
}
