#include "image2d/image/masks.hpp"
#include "image2d/image/stacking.hpp"
#include "support/capture.hpp"
#include "support/image_rows.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a selection keeps the values in its range, or writes one for them") {
    const ROWS_IMAGE source(IMAGE_GRAY, {{9, 10, 20, 21}});
    TIMAGE kept(IMAGE_GRAY), marked(IMAGE_GRAY), zero(IMAGE_GRAY);
    SELECT(source, {10, 20}, -1, kept);
    SELECT(source, {10, 20}, 255, marked);
    SELECT(source, {0, 9}, 0, zero);
    CHECK(ROWS_OF(kept) == NUMBER_ROWS{{0, 10, 20, 0}});
    CHECK(ROWS_OF(marked) == NUMBER_ROWS{{0, 255, 255, 0}});
    CHECK(ROWS_OF(zero) == NUMBER_ROWS{{0, 0, 0, 0}});
}

TEST_CASE("the grey value of a colour in a selection is half its sum") {
    const ROWS_IMAGE source(IMAGE_RGB, COLOUR_ROWS_OF{{{10, 20, 30}, {10, 20, 33}}});
    TIMAGE target(IMAGE_RGB);
    SELECT(source, {30, 30}, -1, target);
    CHECK(COLOURS_OF(target) == COLOUR_ROWS_OF{{{10, 20, 30}, {}}});
}

TEST_CASE("a mask lets pixels through where it has one of the values, 0 too") {
    const ROWS_IMAGE source(IMAGE_GRAY, {{11, 12, 13, 14}}), mask(IMAGE_GRAY, {{0, 1, 5, 2}});
    TPOLYNAT values, zero;
    values.INIT(2);
    values.PUT(1, 1);
    values.PUT(2, 5);
    zero.INIT(1);
    TIMAGE target(IMAGE_GRAY);
    MASK(source, mask, values, target);
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{0, 12, 13, 0}});
    MASK(source, mask, zero, target);
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{11, 0, 0, 0}});
}

TEST_CASE("a mask by sameness takes the value plus or minus its share") {
    const ROWS_IMAGE source(IMAGE_GRAY, {{1, 2, 3, 4}}), mask(IMAGE_GRAY, {{70, 71, 129, 130}});
    TIMAGE same(IMAGE_GRAY), different(IMAGE_GRAY);
    MASK_SAME(source, mask, {{100, 100, 100}, 0.29, false}, same);
    MASK_SAME(source, mask, {{100, 100, 100}, 0.29, true}, different);
    CHECK(ROWS_OF(same) == NUMBER_ROWS{{0, 2, 3, 0}});
    CHECK(ROWS_OF(different) == NUMBER_ROWS{{1, 0, 0, 4}});
}

TEST_CASE("all components of a coloured mask must be the same") {
    const ROWS_IMAGE source(IMAGE_GRAY, {{1, 2}}),
        mask(IMAGE_RGB, COLOUR_ROWS_OF{{{100, 50, 0}, {100, 80, 0}}});
    TIMAGE target(IMAGE_GRAY);
    MASK_SAME(source, mask, {{100, 52, 0}, 0.1, false}, target);
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{1, 0}});
}

TEST_CASE("extraction keeps exactly the colours that are asked for") {
    const VECTORNAT red{255, 0, 0}, nearly{254, 0, 0}, blue{0, 0, 255};
    const ROWS_IMAGE source(IMAGE_RGB, COLOUR_ROWS_OF{{red, nearly, blue}});
    TIMAGE target(IMAGE_RGB);
    const VECTORNAT colours[] = {blue, red};
    EXTRACT_COLOURS(source, colours, target);
    CHECK(COLOURS_OF(target) == COLOUR_ROWS_OF{{red, {}, blue}});
}

namespace {
// A picture with fine stripes in the columns `first` to `last`, flat elsewhere.
NUMBER_ROWS STRIPES(NAT first, NAT last, NAT flat) {
    NUMBER_ROWS rows(12, std::vector<NAT>(24, flat));
    for (auto &row : rows)
        for (NAT x = first; x <= last; ++x)
            row[static_cast<std::size_t>(x) - 1] = x % 2 != 0 ? 200 : 0;
    return rows;
}
} // namespace

TEST_CASE("a focus stack takes each part from the image that is sharp there") {
    const ROWS_IMAGE left(IMAGE_GRAY, STRIPES(1, 12, 100)), right(IMAGE_GRAY, STRIPES(13, 24, 100));
    const TIMAGE *const both[] = {&left, &right};
    TIMAGE target(IMAGE_GRAY);
    STACKING(both, target);
    for (NAT y = 1; y <= 12; ++y)
        for (NAT x = 1; x <= 24; ++x)
            CHECK(target.GET(x, y) == (x % 2 != 0 ? 200 : 0));
}

TEST_CASE("where all images of a stack are equally sharp the pixel is their mean") {
    const ROWS_IMAGE dark(IMAGE_GRAY, {{10, 10}, {10, 10}}),
        bright(IMAGE_GRAY, {{20, 20}, {20, 20}}), middle(IMAGE_GRAY, {{17, 17}, {17, 17}});
    const TIMAGE *const all[] = {&dark, &bright, &middle};
    TIMAGE target(IMAGE_GRAY);
    STACKING(all, target);
    CHECK(ROWS_OF(target) == NUMBER_ROWS{{16, 16}, {16, 16}}); // 47 / 3 = 15.67
}

TEST_CASE("equal images stacked are that image") {
    const ROWS_IMAGE image(IMAGE_RGB,
                           COLOUR_ROWS_OF{{{1, 2, 3}, {90, 0, 5}}, {{7, 8, 9}, {4, 4, 200}}});
    const TIMAGE *const both[] = {&image, &image};
    TIMAGE target(IMAGE_RGB), nothing(IMAGE_GRAY), empty(IMAGE_GRAY);
    STACKING(both, target);
    CHECK(COLOURS_OF(target) == COLOURS_OF(image));
    const TIMAGE *const empties[] = {&empty, &empty};
    STACKING(empties, nothing);
    CHECK_FALSE(nothing.ISNOTEMPTY());
}
