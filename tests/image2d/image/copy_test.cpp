#include "image2d/image/copy.hpp"
#include "support/capture.hpp"
#include "support/image_rows.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE(
    "a copy takes pixels and, when the target is empty, frame, pen, background and settings") {
    ROWS_IMAGE source(IMAGE_GRAY, {{1, 2}, {3, 4}});
    FRAME frame;
    frame.SETMOVE({5, 6, 7});
    source.SETFRAME(frame);
    source._SETVALUE(9);
    source._SETBACKGROUND(8);
    source.copyMethod = 7;
    source.diffusionAxial = true;
    TIMAGE target(IMAGE_GRAY);
    COPY(source, target);
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{1, 2}, {3, 4}});
    CHECK(target._GETMOVE() == VECTOR{5, 6, 7});
    CHECK(target._GETVALUE() == 9);
    CHECK(target._GETBACKGROUND() == 8);
    CHECK(target.copyMethod == 7);
    CHECK(target.diffusionAxial);
}

TEST_CASE("a copy into an image with pixels leaves it its own frame, pen and settings") {
    ROWS_IMAGE source(IMAGE_GRAY, {{1, 2}});
    FRAME frame;
    frame.SETMOVE({5, 6, 7});
    source.SETFRAME(frame);
    source._SETVALUE(9);
    ROWS_IMAGE target(IMAGE_GRAY, {{7}});
    target._SETVALUE(3);
    target._SETBACKGROUND(4);
    COPY(source, target);
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{1, 2}});
    CHECK(target._GETMOVE() == VZERO);
    CHECK(target._GETVALUE() == 3);
    CHECK(target._GETBACKGROUND() == 4);
}

TEST_CASE("a copy between kinds keeps the target's kind: colours by mean, values limited") {
    const ROWS_IMAGE full(IMAGE_FULLGRAY, {{7, 300}});
    TIMAGE gray(IMAGE_GRAY), rgb(IMAGE_RGB), back(IMAGE_FULLGRAY), rgba(IMAGE_RGBA);
    COPY(full, gray);
    CHECK(gray.ID() == IMAGE_GRAY);
    CHECK(ROWS_OF(gray) == NUMBER_ROWS{{7, 255}});
    COPY(gray, rgb);
    CHECK(COLOURS_OF(rgb) == COLOUR_ROWS_OF{{{7, 7, 7}, {255, 255, 255}}});
    rgb.PUTRGB(1, 1, {10, 20, 31});
    COPY(rgb, back);
    CHECK(ROWS_OF(back) == NUMBER_ROWS{{20, 255}}); // 61 / 3
    COPY(rgb, rgba);
    CHECK(rgba.GETRGBA(1, 1) == HYPERNAT{10, 20, 31, 255});
}

TEST_CASE("alpha and depth go with a copy") {
    TIMAGE source(IMAGE_ZRGB, 1, 1), target(IMAGE_ZRGB);
    source.PUTZRGB(1, 1, 500, {1, 2, 3, 40});
    COPY(source, target);
    CHECK(target.GETRGBA(1, 1) == HYPERNAT{1, 2, 3, 40});
    CHECK(target.GETZ(1, 1) == 500);
}

TEST_CASE("each copy method is a statistic of the cell") {
    // cells of 2x2: (1, 2, 3, 10) and (5, 5, 5, 5)
    const ROWS_IMAGE source(IMAGE_GRAY, {{1, 2, 5, 5}, {3, 10, 5, 5}});
    const auto first = [&](NAT method) {
        TIMAGE target(IMAGE_GRAY);
        COPY_SCALED(source, {0.5, 0.5}, method, target);
        REQUIRE(target.SIZE() == COMPLEXNAT{2, 1});
        return ROWS_OF(target)[0];
    };
    using ROW = std::vector<NAT>;
    CHECK(first(0) == ROW{16, 20});
    CHECK(first(1) == ROW{4, 5});
    CHECK(first(2) == ROW{4, 0}); // squares 9 + 4 + 1 + 36 = 50, 50 / 3, its root 4.08
    CHECK(first(3) == ROW{1, 5});
    CHECK(first(4) == ROW{1, 5}); // the lower of two neighbours
    CHECK(first(5) == ROW{2, 5});
    CHECK(first(6) == ROW{3, 5});
    CHECK(first(7) == ROW{10, 5});
    CHECK(first(8) == first(2));
}

TEST_CASE("quantiles of an odd count of values are values of the list") {
    std::vector<NAT> nine{90, 10, 80, 20, 70, 30, 60, 40, 50};
    CHECK(STATISTIC(nine, 4) == 30);
    CHECK(STATISTIC(nine, 5) == 50);
    CHECK(STATISTIC(nine, 6) == 70);
    std::vector<NAT> one{7}, two{7, 3};
    CHECK(STATISTIC(one, 2) == 0);
    CHECK(STATISTIC(two, 4) == 3);
    CHECK(STATISTIC(two, 6) == 3); // of two values every quantile is the lower
}

TEST_CASE("a sum that exceeds the range is limited") {
    const ROWS_IMAGE source(IMAGE_GRAY, {{200, 100}});
    TIMAGE target(IMAGE_GRAY);
    COPY_SCALED(source, {0.5, 1}, 0, target);
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{255}});
}

TEST_CASE("the last cell of a size that does not divide holds what is left") {
    const ROWS_IMAGE source(IMAGE_GRAY, {{10, 20, 30, 40, 50, 60, 70, 80, 90, 100, 110}});
    TIMAGE target(IMAGE_GRAY);
    COPY_SCALED(source, {0.5, 1}, 1, target);
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{15, 35, 55, 75, 95, 110}}); // round(5.5) is 6
    COPY_SCALED(source, {1.0 / 3, 1}, 7, target);
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{30, 60, 90, 110}}); // round(3.67) is 4
}

TEST_CASE("enlarging repeats pixels, by each axis' own factor, and the frame follows") {
    ROWS_IMAGE source(IMAGE_GRAY, {{1, 2}, {3, 4}});
    FRAME frame;
    frame.SETSCALE({2, 4, 1});
    source.SETFRAME(frame);
    TIMAGE target(IMAGE_GRAY);
    COPY_SCALED(source, {2, 0.5}, 3, target);
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{1, 1, 2, 2}});
    CHECK(target.GETFRAME().SCALE() == VECTOR{1, 8, 1});
    TIMAGE wide(IMAGE_GRAY);
    COPY_SCALED(source, {1.5, 1}, 1, wide);
    CHECK(ROWS_OF(wide) == NUMBER_ROWS{{1, 1, 2}, {3, 3, 4}});
}

TEST_CASE("a scaled copy has at least one pixel, of an empty image none") {
    const ROWS_IMAGE source(IMAGE_GRAY, {{1, 2}, {3, 6}});
    TIMAGE target(IMAGE_GRAY), nothing(IMAGE_GRAY), empty(IMAGE_GRAY);
    COPY_SCALED(source, {0.001, 0.001}, 1, target);
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{3}});
    COPY_SCALED(empty, {2, 2}, 1, nothing);
    CHECK_FALSE(nothing.ISNOTEMPTY());
    COPY_LABELS(empty, {2, 2}, nothing);
    CHECK_FALSE(nothing.ISNOTEMPTY());
}

TEST_CASE("a scale that no memory holds leaves the target as it was") {
    const CAPTURE console;
    const ROWS_IMAGE source(IMAGE_GRAY, {{1, 2}});
    ROWS_IMAGE target(IMAGE_GRAY, {{9}});
    COPY_SCALED(source, {1e15, 1e15}, 1, target);
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{9}});
}

TEST_CASE("labels are not averaged: the most frequent wins, the smallest of equals") {
    const ROWS_IMAGE source(IMAGE_GRAY, {{1, 9, 7, 2, 8, 4}, {9, 5, 2, 7, 6, 5}});
    TIMAGE target(IMAGE_GRAY);
    COPY_LABELS(source, {0.5, 0.5}, target);
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{9, 2, 4}});
}

TEST_CASE("a colour counts as a whole among labels") {
    const VECTORNAT red{200, 0, 0}, mixed{200, 100, 0}, blue{0, 0, 99};
    const ROWS_IMAGE source(IMAGE_RGB, COLOUR_ROWS_OF{{mixed, blue}, {red, blue}});
    TIMAGE target(IMAGE_RGB);
    COPY_LABELS(source, {0.5, 0.5}, target);
    CHECK(COLOURS_OF(target) == COLOUR_ROWS_OF{{blue}});
}

TEST_CASE("a resized copy takes nearest pixels and its frame keeps the extent") {
    const ROWS_IMAGE source(IMAGE_GRAY, {{1, 2, 3, 4}});
    TIMAGE target(IMAGE_GRAY);
    COPY_RESIZED(source, {2, 1}, target); // positions round(4/3) and round(8/3)
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{1, 3}});
    CHECK(target.GETFRAME().SCALE() == VECTOR{2, 1, 1});
    COPY_RESIZED(source, {0, 4}, target);
    CHECK_FALSE(target.ISNOTEMPTY());
}

TEST_CASE("a subimage is limited to the image and its pixels keep their global places") {
    ROWS_IMAGE source(IMAGE_GRAY, {{1, 2, 3}, {4, 5, 6}});
    FRAME frame;
    frame.SETSCALE({2, 3, 1});
    frame.SETMOVE({10, 10, 0});
    source.SETFRAME(frame);
    TIMAGE target(IMAGE_GRAY), outside(IMAGE_GRAY);
    SUBIMAGE(source, {2, 2, 9, 9}, target);
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{5, 6}});
    CHECK(target._GETMOVE() == VECTOR{12, 13, 0});
    SUBIMAGE(source, {4, 1, 9, 9}, outside);
    CHECK_FALSE(outside.ISNOTEMPTY());
}

TEST_CASE("cropping cuts margins below the value and keeps pen and places") {
    ROWS_IMAGE image(IMAGE_GRAY, {{0, 0, 0, 0}, {0, 12, 3, 0}, {0, 5, 11, 9}, {9, 0, 0, 0}});
    image._SETVALUE(77);
    CROP(image, AREA_FROM(image, 10));
    CHECK(ROWS_OF(image) == NUMBER_ROWS{{12, 3}, {5, 11}});
    CHECK(image._GETMOVE() == VECTOR{1, 1, 0});
    CHECK(image._GETVALUE() == 77);
}

TEST_CASE("an image without a pixel of that value is not cropped") {
    ROWS_IMAGE image(IMAGE_GRAY, {{1, 2}});
    CROP(image, AREA_FROM(image, 3));
    CHECK(ROWS_OF(image) == NUMBER_ROWS{{1, 2}});
}

TEST_CASE("cropping to the foreground keeps a margin within the image") {
    const NUMBER_ROWS rows{{5, 5, 5, 5, 5}, {5, 5, 0, 5, 5}, {5, 5, 5, 5, 5}};
    ROWS_IMAGE image(IMAGE_GRAY, rows), wide(IMAGE_GRAY, rows), plain(IMAGE_GRAY, {{5, 5}});
    for (TIMAGE *each : {static_cast<TIMAGE *>(&image), static_cast<TIMAGE *>(&wide),
                         static_cast<TIMAGE *>(&plain)})
        each->_SETBACKGROUND(5);
    CROP_MARGIN(image, 0);
    CHECK(ROWS_OF(image) == NUMBER_ROWS{{0}});
    CROP_MARGIN(wide, 1);
    CHECK(ROWS_OF(wide) == NUMBER_ROWS{{5, 5, 5}, {5, 0, 5}, {5, 5, 5}});
    CHECK(wide._GETMOVE() == VECTOR{1, 0, 0});
    CROP_MARGIN(plain, 1); // uniform: it stays
    CHECK(plain.SIZE() == COMPLEXNAT{2, 1});
}

TEST_CASE("the foreground of a colour image differs in any component") {
    ROWS_IMAGE image(IMAGE_RGB, COLOUR_ROWS_OF{{{0, 0, 0}, {0, 0, 1}, {0, 0, 0}}});
    CROP_MARGIN(image, 0);
    CHECK(COLOURS_OF(image) == COLOUR_ROWS_OF{{{0, 0, 1}}});
}
