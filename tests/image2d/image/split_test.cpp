#include "image2d/image/split.hpp"
#include "support/capture.hpp"
#include "support/image_rows.hpp"

#include <array>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// Targets of the default kind, as new names give them.
template <std::size_t N> struct TARGET_IMAGES {
    std::array<TIMAGE, N> images;
    std::array<TIMAGE *, N> pointers;
    TARGET_IMAGES() {
        for (std::size_t i = 0; i < N; ++i) {
            images[i].INIT(IMAGE_FULLGRAY);
            pointers[i] = &images[i];
        }
    }
};
} // namespace

TEST_CASE("a split by components gives grey images of 8 bits") {
    ROWS_IMAGE source(IMAGE_RGBA, COLOUR_ROWS_OF{{{1, 2, 3}, {4, 5, 6}}});
    source.PUTRGBA(2, 1, {4, 5, 6, 77});
    TARGET_IMAGES<4> targets;
    SPLIT_RGB(source, targets.pointers);
    const NUMBER_ROWS wanted[] = {{{1, 4}}, {{2, 5}}, {{3, 6}}, {{255, 77}}};
    for (std::size_t i = 0; i < 4; ++i) {
        CHECK(targets.images[i].ID() == IMAGE_GRAY);
        CHECK(ROWS_OF(targets.images[i]) == wanted[i]);
    }
}

TEST_CASE("a split of 16 bits keeps 16 bits") {
    const ROWS_IMAGE source(IMAGE_FULLGRAY, {{4000}});
    TARGET_IMAGES<3> targets;
    SPLIT_RGB(source, targets.pointers);
    CHECK(targets.images[2].ID() == IMAGE_FULLGRAY);
    CHECK(ROWS_OF(targets.images[2]) == NUMBER_ROWS{{4000}});
}

TEST_CASE("the rainbow shares of a colour add up to its components") {
    const RAINBOW orange = GETRAINBOW(200, 150, 50);
    CHECK(orange.gray == 50);
    CHECK(orange.yellow == 100);
    CHECK(orange.red == 50);
    CHECK(orange.green + orange.blue + orange.cyan + orange.purple == 0);
    for (NAT r = 0; r < 256; r += 51)
        for (NAT g = 0; g < 256; g += 51)
            for (NAT b = 0; b < 256; b += 51) {
                const RAINBOW s = GETRAINBOW(r, g, b);
                CHECK(s.red + s.yellow + s.purple + s.gray == r);
                CHECK(s.green + s.yellow + s.cyan + s.gray == g);
                CHECK(s.blue + s.cyan + s.purple + s.gray == b);
            }
}

TEST_CASE("a rainbow split drops the low bits first") {
    const ROWS_IMAGE source(IMAGE_RGB, COLOUR_ROWS_OF{{{203, 150, 51}}});
    TARGET_IMAGES<7> all, six;
    SPLIT_RAINBOW(source, 0, all.pointers);
    SPLIT_RAINBOW(source, 2, six.pointers); // 50, 37, 12
    const NAT wanted[] = {53, 0, 0, 99, 0, 0, 51}, shifted[] = {13, 0, 0, 25, 0, 0, 12};
    for (std::size_t i = 0; i < 7; ++i) {
        CHECK(all.images[i].GET(1, 1) == wanted[i]);
        CHECK(six.images[i].GET(1, 1) == shifted[i]);
    }
}

TEST_CASE("a split by colours gives each pixel to the nearest, the first of equals") {
    const VECTORNAT dark{10, 0, 0}, pink{250, 10, 0}, middle{130, 0, 0};
    const ROWS_IMAGE source(IMAGE_RGB, COLOUR_ROWS_OF{{dark, pink, middle}});
    TARGET_IMAGES<2> targets;
    const VECTORNAT colours[] = {{4, 0, 0}, {256, 0, 0}}; // middle is 126 from both
    SPLIT_COLOURS(source, colours, targets.pointers);
    CHECK(targets.images[0].ID() == IMAGE_RGB);
    CHECK(COLOURS_OF(targets.images[0]) == COLOUR_ROWS_OF{{dark, {}, middle}});
    CHECK(COLOURS_OF(targets.images[1]) == COLOUR_ROWS_OF{{{}, pink, {}}});
}

TEST_CASE("combining two, three or four images makes rb, rgb and rgba whatever the target was") {
    const ROWS_IMAGE a(IMAGE_GRAY, {{10}}), b(IMAGE_GRAY, {{20}}), c(IMAGE_GRAY, {{30}}),
        d(IMAGE_GRAY, {{40}});
    const TIMAGE *const all[] = {&a, &b, &c, &d};
    TIMAGE two(IMAGE_FULLGRAY), three(IMAGE_GRAY), four(IMAGE_RGB);
    COMBINE(OPERANDS(all).first(2), two);
    COMBINE(OPERANDS(all).first(3), three);
    COMBINE(all, four);
    CHECK(two.ID() == IMAGE_RGB);
    CHECK(two.GETRGB(1, 1) == VECTORNAT{10, 0, 20});
    CHECK(three.ID() == IMAGE_RGB);
    CHECK(three.GETRGB(1, 1) == VECTORNAT{10, 20, 30});
    CHECK(four.ID() == IMAGE_RGBA);
    CHECK(four.GETRGBA(1, 1) == HYPERNAT{10, 20, 30, 40});
}

TEST_CASE("combining divides 16 bits by 256 and takes colours by their mean") {
    const ROWS_IMAGE full(IMAGE_FULLGRAY, {{65535, 511}}),
        colour(IMAGE_RGB, COLOUR_ROWS_OF{{{3, 6, 10}, {0, 0, 2}}});
    const TIMAGE *const operands[] = {&full, &colour};
    TIMAGE target(IMAGE_GRAY);
    COMBINE(operands, target);
    CHECK(COLOURS_OF(target) == COLOUR_ROWS_OF{{{255, 0, 6}, {1, 0, 0}}});
}

TEST_CASE("a target may be an operand of its own result") {
    const ROWS_IMAGE a(IMAGE_GRAY, {{10}});
    ROWS_IMAGE b(IMAGE_GRAY, {{20}});
    const TIMAGE *const operands[] = {&b, &a};
    COMBINE(operands, b);
    CHECK(b.GETRGB(1, 1) == VECTORNAT{20, 0, 10});
}
