#include "image2d/filter/distance.hpp"
#include "image2d/filter/window.hpp"

#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
template <class PIXEL> std::vector<int> Pixels(const CANVAS<PIXEL> &canvas) {
    return {canvas.DATA(), canvas.DATA() + canvas.COUNT()};
}
TCANVAS Noise(NAT width, NAT height, std::uint32_t seed) {
    TCANVAS mask(width, height);
    for (NAT i = 0; i < mask.COUNT(); ++i) {
        seed = seed * 1664525 + 1013904223;
        mask.DATA()[i] = seed >> 28 != 0;
    }
    return mask;
}
// The definition: the nearest pixel of 0 among all, and the frame of places outside.
NAT NearestZero(const TCANVAS &mask, NAT x, NAT y) {
    NAT nearest = NATMAX;
    for (NAT j = 0; j <= mask.HEIGHT + 1; ++j)
        for (NAT i = 0; i <= mask.WIDTH + 1; ++i)
            if (mask.GET(i, j) == 0)
                nearest = std::min(nearest, (i - x) * (i - x) + (j - y) * (j - y));
    return nearest;
}
} // namespace

TEST_CASE("each pixel gets its distance to the nearest point, rounded") {
    TGRAY canvas(5, 2);
    DISTANCE(canvas, std::array{COMPLEX{1, 1}, COMPLEX{5, 2}});
    // (2,2): 1.41; (3,1): 2 and 2.24; (4,1): 1.41; (3,2): 2 of the second.
    CHECK(Pixels(canvas) == std::vector<int>{0, 1, 2, 1, 1, 1, 1, 2, 1, 0});
    DISTANCE(canvas, std::array{COMPLEX{-400, 1}});
    CHECK(canvas.GET(1, 1) == 255); // limited
    DISTANCE(canvas, std::array{COMPLEX{1.5, 1}});
    CHECK(canvas.GET(3, 1) == 2); // 1.5, to even
    canvas.FILL(9);
    DISTANCE(canvas, {});
    CHECK(canvas.GET(1, 1) == 9);
}

TEST_CASE("squared distances to the outside of a mask are exact") {
    for (NAT width = 1; width <= 20; ++width)
        for (const NAT height : {NAT{1}, NAT{2}, NAT{7}, NAT{20}}) {
            const TCANVAS mask = Noise(width, height, static_cast<std::uint32_t>(width * height));
            const std::vector<NAT> squares = INNER_DISTANCES(mask);
            NAT wrong = 0;
            for (NAT y = 1; y <= height; ++y)
                for (NAT x = 1; x <= width; ++x)
                    wrong += squares[static_cast<std::size_t>(x - 1 + (y - 1) * width)] !=
                             NearestZero(mask, x, y);
            CHECK(wrong == 0);
        }
}

TEST_CASE("the largest circle of a disc comes first, and no two overlap") {
    TCANVAS mask(60, 40);
    for (NAT y = 1; y <= 40; ++y)
        for (NAT x = 1; x <= 60; ++x)
            mask.PUT(x, y,
                     (x - 20) * (x - 20) + (y - 20) * (y - 20) <= 15 * 15 ||
                         (x - 48) * (x - 48) + (y - 15) * (y - 15) <= 7 * 7 ||
                         (x >= 40 && y >= 31 && x <= 59 && y <= 39));
    const std::vector<MASK_CIRCLE> circles = INNER_CIRCLES(mask, 1000);
    REQUIRE(circles.size() > 2);
    CHECK(circles[0].x == 20);
    CHECK(circles[0].y == 20);
    CHECK(circles[0].radius == doctest::Approx(std::sqrt(15.0 * 15 + 1) - 0.5)); // to (35, 21)
    CHECK(circles[1].x == 48);
    CHECK(circles[1].y == 15);
    NAT overlaps = 0, rising = 0;
    for (std::size_t i = 0; i < circles.size(); ++i)
        for (std::size_t j = 0; j < i; ++j) {
            const REAL distance = std::hypot(static_cast<REAL>(circles[i].x - circles[j].x),
                                             static_cast<REAL>(circles[i].y - circles[j].y));
            overlaps += distance < circles[i].radius + circles[j].radius - 1e-9;
            rising += circles[i].radius > circles[j].radius;
        }
    CHECK(overlaps == 0);
    CHECK(rising == 0);
}

TEST_CASE("circles are at most of the given radius, single pixels have one of a half") {
    TCANVAS mask(3, 1);
    mask.FILL(1);
    const std::vector<MASK_CIRCLE> circles = INNER_CIRCLES(mask, 1000);
    REQUIRE(circles.size() == 3);
    CHECK(circles[0].x == 1);
    CHECK(circles[2].radius == 0.5);
    TCANVAS square(9, 9);
    square.FILL(1);
    const std::vector<MASK_CIRCLE> limited = INNER_CIRCLES(square, 1.5);
    CHECK(limited[0].radius == 1.5);
    CHECK(limited[0].x == 2);
    CHECK(limited.size() >= 9); // a 3x3 grid of them fits
    CHECK(INNER_CIRCLES(square, 0.4).empty());
    CHECK(INNER_CIRCLES(TCANVAS(), 5).empty());
    CHECK(INNER_CIRCLES(TCANVAS(4, 4), 5).empty());
}

TEST_CASE("a window falls to 0 at the border and keeps the middle") {
    TGRAY canvas(5, 3);
    canvas.FILL(200);
    WINDOW_COS(canvas); // weights 0, 1/2, 1, 1/2, 0
    CHECK(Pixels(canvas) == std::vector<int>{0, 0, 0, 0, 0, 0, 100, 200, 100, 0, 0, 0, 0, 0, 0});
    canvas.FILL(200);
    WINDOW_SIN(canvas); // 0, sin 45°, 1: 141.4
    CHECK(Pixels(canvas) == std::vector<int>{0, 0, 0, 0, 0, 0, 141, 200, 141, 0, 0, 0, 0, 0, 0});
    TFULLGRAY row(3, 1);
    row.FILL(60000);
    WINDOW_SIN(row); // an axis of one pixel stays
    CHECK(Pixels(row) == std::vector<int>{0, 60000, 0});
}

TEST_CASE("the angle around a point goes from the x axis to the y axis") {
    TGRAY canvas(3, 3);
    RADIAL(canvas, {2, 2}, 2 * PI);
    // In eighths of a turn: 5 6 7 / 4 - 0 / 3 2 1, times 255.
    CHECK(Pixels(canvas) == std::vector<int>{159, 191, 223, 128, 0, 0, 96, 64, 32});
    RADIAL(canvas, {2, 2}, PI);
    CHECK(Pixels(canvas) == std::vector<int>{64, 128, 191, 0, 0, 0, 191, 128, 64});
    RADIAL(canvas, {2, 2}, PI / 2);
    CHECK(Pixels(canvas) == std::vector<int>{128, 0, 128, 0, 0, 0, 128, 0, 128});
}
