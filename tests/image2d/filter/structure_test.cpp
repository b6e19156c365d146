#include "image2d/filter/outliers.hpp"
#include "image2d/filter/shrink_grow.hpp"

#include <cstdint>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
template <class PIXEL> void Set(CANVAS<PIXEL> &canvas, const std::vector<int> &pixels) {
    for (std::size_t i = 0; i < pixels.size(); ++i)
        canvas.DATA()[i] = static_cast<PIXEL>(pixels[i]);
}
template <class PIXEL> std::vector<int> Pixels(const CANVAS<PIXEL> &canvas) {
    return {canvas.DATA(), canvas.DATA() + canvas.COUNT()};
}
template <class PIXEL> void FillNoise(CANVAS<PIXEL> &canvas, std::uint32_t seed, NAT values) {
    for (NAT i = 0; i < canvas.COUNT(); ++i) {
        seed = seed * 1664525 + 1013904223;
        canvas.DATA()[i] = static_cast<PIXEL>((seed >> 8) % static_cast<std::uint32_t>(values));
    }
}
} // namespace

TEST_CASE("an outlier becomes the median of its neighbourhood") {
    TGRAY canvas(3, 3);
    Set(canvas, {10, 11, 12, 13, 200, 15, 16, 17, 18});
    CHECK(REMOVE_OUTLIERS(canvas, canvas.WHOLE(), 1) == 1);
    // In order 10 11 12 13 15 16 17 18 200: median 15, quartiles 12 and 17.
    CHECK(canvas.GET(2, 2) == 15);
    CHECK(canvas.GET(1, 1) == 0);
    Set(canvas, {10, 11, 12, 13, 20, 15, 16, 17, 18});
    CHECK(REMOVE_OUTLIERS(canvas, canvas.WHOLE(), 1) == 0); // 15 + 5
    CHECK(canvas.GET(2, 2) == 20);
}

TEST_CASE("the pixels on the border of the area, which have no full neighbourhood, become 0.") {
    TGRAY canvas(4, 4);
    canvas.FILL(50);
    CHECK(REMOVE_OUTLIERS(canvas, canvas.WHOLE(), 3) == 0);
    CHECK(Pixels(canvas) == std::vector<int>{0, 0, 0, 0, 0, 50, 50, 0, 0, 50, 50, 0, 0, 0, 0, 0});
}

TEST_CASE("factor 0 replaces each interior pixel that differs from the median") {
    TGRAY canvas(3, 3);
    Set(canvas, {1, 1, 1, 1, 2, 1, 1, 1, 1});
    CHECK(REMOVE_OUTLIERS(canvas, canvas.WHOLE(), 0) == 1);
    CHECK(canvas.GET(2, 2) == 1);
}

TEST_CASE_TEMPLATE("removing outliers equals its plain twin", PIXEL, BYTE, WORD) {
    for (NAT width = 1; width <= 20; ++width)
        for (const NAT height : {NAT{1}, NAT{2}, NAT{3}, NAT{9}})
            for (const REAL factor : {0.0, 0.1, 1.0, 1.5, -1.0}) {
                CANVAS<PIXEL> one(width + 60, height), other;
                FillNoise(one, static_cast<std::uint32_t>(width), width % 2 ? 5 : 60000);
                other.CLONE(one);
                const PIXEL_AREA area =
                    width % 3 ? one.WHOLE() : PIXEL_AREA{2, 1, width + 59, height};
                CHECK(REMOVE_OUTLIERS(one, area, factor) ==
                      plain::REMOVE_OUTLIERS(other, area, factor));
                CHECK(Pixels(one) == Pixels(other));
            }
}

TEST_CASE("a shrink replaces pixels of the range that have more than n neighbours outside it") {
    TGRAY canvas(3, 3);
    canvas.BACKGROUND = 5;
    Set(canvas, {0, 0, 0, 0, 200, 200, 0, 200, 200});
    // Each of the four has 5 neighbours outside the range: the middle 5 zeros; the two beside the
    // corner 2 zeros and 3 outside the canvas, 15 / 5; the corner 5 outside, 25 / 5.
    CHECK(SHRINK(canvas, canvas.WHOLE(), {{128, 255}, 5, -1}) == 0);
    CHECK(SHRINK(canvas, canvas.WHOLE(), {{128, 255}, 4, -1}) == 4);
    CHECK(Pixels(canvas) == std::vector<int>{0, 0, 0, 0, 0, 3, 0, 3, 5});
    Set(canvas, {0, 0, 0, 0, 200, 200, 0, 200, 200});
    CHECK(SHRINK(canvas, canvas.WHOLE(), {{128, 255}, 4, 77}) == 4);
    CHECK(Pixels(canvas) == std::vector<int>{0, 0, 0, 0, 77, 77, 0, 77, 77});
}

TEST_CASE("a grow replaces pixels outside the range that have more than n neighbours in it") {
    TGRAY canvas(3, 3);
    Set(canvas, {0, 100, 0, 100, 0, 101, 0, 0, 0});
    CHECK(GROW(canvas, canvas.WHOLE(), {{100, 255}, 2, -1}) == 1);
    CHECK(canvas.GET(2, 2) == 100); // 301 / 3
    CHECK(GROW(canvas, canvas.WHOLE(), {{100, 255}, 1, 9}) == 5);
    CHECK(Pixels(canvas) == std::vector<int>{9, 100, 9, 100, 100, 101, 9, 9, 9});
}

TEST_CASE("n of 8 never fires, and n above 8 counts as 8") {
    TGRAY canvas(3, 3);
    canvas.PUT(2, 2, 255);
    CHECK(SHRINK(canvas, canvas.WHOLE(), {{255, 255}, 8, -1}) == 0);
    CHECK(SHRINK(canvas, canvas.WHOLE(), {{255, 255}, 99, -1}) == 0);
    CHECK(SHRINK(canvas, canvas.WHOLE(), {{255, 255}, 7, -1}) == 1);
    canvas.PUT(2, 2, 255);
    CHECK(SHRINK(canvas, canvas.WHOLE(), {{255, 255}, -3, -1}) == 1);
}

TEST_CASE("full passes go on until nothing changes") {
    TGRAY canvas(9, 9);
    canvas.FILL(255);
    CHECK(FULLSHRINK(canvas, canvas.WHOLE(), {{255, 255}, 2, 0}) == 81);
    CHECK(COUNT(canvas, 255, 255) == 0);
    canvas.PUT(5, 5, 255);
    CHECK(FULLGROW(canvas, canvas.WHOLE(), {{255, 255}, 0, 255}) == 80);
    // A value outside the range flickers for ever: the passes are bounded.
    TGRAY flicker(2, 1);
    CHECK(FULLGROW(flicker, flicker.WHOLE(), {{0, 0}, 8, 7}) == 0);
    TGRAY pair(2, 1);
    pair.BACKGROUND = 1;
    pair.FILL(5);
    CHECK(FULLSHRINK(pair, pair.WHOLE(), {{0, 9}, 0, 5}) == 0);
}

TEST_CASE_TEMPLATE("shrink and grow equal their plain twins", PIXEL, BYTE, WORD) {
    for (NAT width = 1; width <= 20; ++width)
        for (NAT height = 1; height <= 12; ++height) {
            CANVAS<PIXEL> one(width, height), other;
            FillNoise(one, static_cast<std::uint32_t>(width * height), 9);
            one.BACKGROUND = static_cast<PIXEL>(width % 9);
            other.CLONE(one);
            const STRUCTURE structure{{3, 6}, (width + height) % 9, width % 2 ? NAT{-1} : NAT{7}};
            const PIXEL_AREA area = height % 3 ? one.WHOLE() : PIXEL_AREA{2, 2, width, height - 1};
            CHECK(SHRINK(one, area, structure) == plain::SHRINK(other, area, structure));
            CHECK(Pixels(one) == Pixels(other));
            CHECK(GROW(one, area, structure) == plain::GROW(other, area, structure));
            CHECK(Pixels(one) == Pixels(other));
        }
}
