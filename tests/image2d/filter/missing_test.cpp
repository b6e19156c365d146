#include "image2d/filter/fill_missing.hpp"

#include "foundation/base/random.hpp"
#include "image2d/filter/holes.hpp"

#include <cmath>
#include <cstdint>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// A mask from rows of text: 'x' is 1.
TCANVAS Mask(const std::vector<const char *> &rows) {
    TCANVAS mask(static_cast<NAT>(std::string_view(rows[0]).size()), static_cast<NAT>(rows.size()));
    for (std::size_t i = 0; i < static_cast<std::size_t>(mask.COUNT()); ++i) {
        const auto width = static_cast<std::size_t>(mask.WIDTH);
        mask.DATA()[i] = rows[i / width][i % width] == 'x';
    }
    return mask;
}
std::vector<int> Pixels(const TCANVAS &canvas) {
    return {canvas.DATA(), canvas.DATA() + canvas.COUNT()};
}
TCANVAS Disc(NAT size, NAT x, NAT y, REAL radius) {
    TCANVAS mask(size, size);
    for (NAT j = 1; j <= size; ++j)
        for (NAT i = 1; i <= size; ++i)
            mask.PUT(i, j,
                     std::hypot(static_cast<REAL>(i - x), static_cast<REAL>(j - y)) <= radius);
    return mask;
}
} // namespace

TEST_CASE("a hole is a region of missing pixels that does not reach the border") {
    TCANVAS mask = Mask({"x......", //
                         ".x.xx..", //
                         ".x..x.x", //
                         "..x....", //
                         "......."});
    CHECK(KEEP_HOLES(mask, {1, 100}, mask.WHOLE()) == 3);
    CHECK(Pixels(mask) == Pixels(Mask({".......", //
                                       ".x.xx..", //
                                       ".x..x..", //
                                       "..x....", //
                                       "......."})));
}

TEST_CASE("holes of other sizes are left out") {
    TCANVAS mask = Mask({".......", ".x.xx..", ".x..x..", "..x....", "......."});
    CHECK(KEEP_HOLES(mask, {2, 2}, mask.WHOLE()) == 1);
    CHECK(Pixels(mask) == Pixels(Mask({".......", ".x.....", ".x.....", ".......", "......."})));
}

TEST_CASE("a hole counts when all of it lies within the area") {
    TCANVAS mask = Mask({".......", ".x.xx..", ".x..x..", "..x....", "......."});
    CHECK(KEEP_HOLES(mask, {1, 100}, {1, 1, 4, 5}) == 2);
    CHECK(Pixels(mask) == Pixels(Mask({".......", ".x.....", ".x.....", "..x....", "......."})));
}

TEST_CASE_TEMPLATE("a plane with a hole is restored", PIXEL, BYTE, WORD) {
    CANVAS<PIXEL> plane(60, 60), holed;
    for (NAT y = 1; y <= 60; ++y)
        for (NAT x = 1; x <= 60; ++x)
            plane.PUT(x, y, static_cast<PIXEL>(2 * x + y + 30));
    TCANVAS mask = Disc(60, 30, 25, 20);
    mask.PUT(57, 57, 1);
    holed.CLONE(plane);
    for (NAT i = 0; i < mask.COUNT(); ++i)
        if (mask.DATA()[i]) holed.DATA()[i] = 0;
    MISSING_PIXELS missing(mask);
    missing.FILL(holed);
    CHECK(std::equal(plane.DATA(), plane.DATA() + plane.COUNT(), holed.DATA()));
}

TEST_CASE("a large hole is restored to the pixel too") {
    TFULLGRAY plane(700, 700);
    for (NAT y = 1; y <= 700; ++y)
        for (NAT x = 1; x <= 700; ++x)
            plane.PUT(x, y, static_cast<WORD>(60000 - 50 * x - 30 * y));
    TFULLGRAY holed;
    holed.CLONE(plane);
    const TCANVAS mask = Disc(700, 350, 350, 300);
    MISSING_PIXELS missing(mask);
    holed.FILL(0);
    for (NAT i = 0; i < mask.COUNT(); ++i)
        if (!mask.DATA()[i]) holed.DATA()[i] = plane.DATA()[i];
    missing.FILL(holed);
    CHECK(std::equal(plane.DATA(), plane.DATA() + plane.COUNT(), holed.DATA()));
}

TEST_CASE("pixels missing at random are filled in as few rounds as one large hole") {
    TGRAY canvas(500, 500);
    TCANVAS half(500, 500);
    RANDOM_STREAM random(1, 2);
    for (NAT i = 0; i < canvas.COUNT(); ++i) {
        canvas.DATA()[i] = static_cast<BYTE>(random.NEXT32());
        half.DATA()[i] = static_cast<BYTE>(random.NEXT32() % 2);
    }
    MISSING_PIXELS missing(half), hole(Disc(500, 250, 250, 240));
    missing.FILL(canvas);
    CHECK(missing.ROUNDS() < 50);
    for (NAT i = 0; i < canvas.COUNT(); ++i)
        canvas.DATA()[i] = static_cast<BYTE>(random.NEXT32());
    hole.FILL(canvas);
    CHECK(hole.ROUNDS() < 50);
}

TEST_CASE("missing pixels at the border go on as the known ones end") {
    TGRAY canvas(5, 1);
    canvas.PUT(3, 1, 70);
    canvas.PUT(4, 1, 90);
    MISSING_PIXELS missing(Mask({"xx..x"}));
    missing.FILL(canvas);
    CHECK(Pixels(canvas) == std::vector<int>{70, 70, 70, 90, 90});
}

TEST_CASE("each filled pixel is the mean of its neighbours") {
    // u = 50 + x^2 - y^2 is harmonic on the grid: (x+1)^2 + (x-1)^2 = 2x^2 + 2, and so for y.
    TFULLGRAY canvas(21, 21), holed;
    for (NAT y = -10; y <= 10; ++y)
        for (NAT x = -10; x <= 10; ++x)
            canvas.PUT(x + 11, y + 11, static_cast<WORD>(500 + x * x - y * y));
    holed.CLONE(canvas);
    const TCANVAS mask = Disc(21, 11, 11, 9);
    MISSING_PIXELS missing(mask);
    missing.FILL(holed);
    CHECK(std::equal(canvas.DATA(), canvas.DATA() + canvas.COUNT(), holed.DATA()));
}

TEST_CASE("an image without a known pixel stays, as does one without a missing pixel") {
    TGRAY canvas(3, 2);
    MISSING_PIXELS all(Mask({"xxx", "xxx"})), none(Mask({"...", "..."}));
    all.FILL(canvas);
    CHECK(GETLIMITS(canvas).max == 0);
    canvas.FILL(9);
    none.FILL(canvas);
    CHECK(GETLIMITS(canvas).min == 9);
    CHECK(all.COUNT() == 6);
    TCANVAS empty;
    CHECK(MISSING_PIXELS(empty).COUNT() == 0);
}
