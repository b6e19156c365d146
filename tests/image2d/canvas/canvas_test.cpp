#include "image2d/canvas/canvas.hpp"

#include <doctest/doctest.h>

#include <vector>

using namespace morvane;

namespace {
template <class PIXEL> void Set(CANVAS<PIXEL> &canvas, const std::vector<int> &pixels) {
    for (std::size_t i = 0; i < pixels.size(); ++i)
        canvas.DATA()[i] = static_cast<PIXEL>(pixels[i]);
}
template <class PIXEL> std::vector<int> Pixels(const CANVAS<PIXEL> &canvas) {
    return {canvas.DATA(), canvas.DATA() + canvas.COUNT()};
}
} // namespace

TEST_CASE_TEMPLATE("a read outside a canvas gives its background and a write does nothing", PIXEL,
                   BYTE, WORD) {
    CANVAS<PIXEL> canvas(2, 2);
    CHECK(canvas.GET(0, 1) == 0);
    canvas.BACKGROUND = 7;
    canvas.PUT(0, 1, 9);
    canvas.PUT(3, 1, 9);
    canvas.PUT(1, 3, 9);
    CHECK(canvas.GET(0, 1) == 7);
    CHECK(canvas.GET(1, NATMAX) == 7);
    CHECK(Pixels(canvas) == std::vector<int>{0, 0, 0, 0});
}

TEST_CASE("a new canvas is black, its pen is white, and its window is the whole") {
    TGRAY gray(3, 2);
    TFULLGRAY full(3, 2);
    CHECK(gray.VALUE == 255);
    CHECK(full.VALUE == 65535);
    gray.PUT(2, 1);
    CHECK(Pixels(gray) == std::vector<int>{0, 255, 0, 0, 0, 0});
    CHECK(gray.window.right == 3);
    CHECK(gray.window.bottom == 2);
    CHECK(gray.CENTER.x == doctest::Approx(2));
    CHECK(gray.CENTER.y == doctest::Approx(1.5));
}

TEST_CASE("a canvas without a size is empty and all operations leave it so") {
    TGRAY canvas(0, 5);
    CHECK(canvas.EMPTY());
    CHECK(canvas.HEIGHT == 0);
    canvas.FILL(3);
    canvas.WINDOW(1, 1, 5, 5);
    ROTATE90(canvas);
    FLIPX(canvas, {1, 1, 5, 5});
    TPOLYNAT bins;
    HISTOGRAM(canvas, bins);
    CHECK(bins.LENGTH == 0);
    CHECK(COUNT(canvas, 0, 255) == 0);
    CHECK(GETLIMITS(canvas).min == 255);
    CHECK(GETLIMITS(canvas).max == 0);
}

TEST_CASE("a window beyond the canvas is limited to it") {
    TGRAY canvas(4, 3);
    canvas.WINDOW(-5, 2, 99, 99);
    CHECK(canvas.window.left == 1);
    CHECK(canvas.window.top == 2);
    CHECK(canvas.window.right == 4);
    CHECK(canvas.window.bottom == 3);
}

TEST_CASE_TEMPLATE("limits, counts, sums and the histogram look at all pixels", PIXEL, BYTE, WORD) {
    CANVAS<PIXEL> canvas(3, 2);
    Set(canvas, {0, 5, 9, 5, 0, 200});
    const PIXEL_LIMITS limits = GETLIMITS(canvas);
    CHECK(limits.min == 0);
    CHECK(limits.max == 200);
    CHECK(limits.min0 == 5);
    CHECK(COUNT(canvas, 5, 9) == 3);
    CHECK(SUM(canvas, 5, 9) == 19);
    CHECK(SUM(canvas, 9, 5) == 0);
    CHECK(COUNT(canvas, 0, 65535, {2, 1, 3, 1}) == 2);
    TPOLYNAT bins;
    HISTOGRAM(canvas, bins);
    CHECK(bins.LENGTH == CANVAS<PIXEL>::MAXIMUM + 1);
    CHECK(bins.GET(1) == 2);
    CHECK(bins.GET(6) == 2);
    CHECK(bins.GET(201) == 1);
    CHECK(GETBACKGROUND(canvas) == 0);
}

TEST_CASE("a black canvas has the largest value as its smallest value above 0") {
    TFULLGRAY canvas(2, 2);
    CHECK(GETLIMITS(canvas).min0 == 65535);
    CHECK(GETLIMITS(canvas).min == 0);
}

TEST_CASE_TEMPLATE("mirrors and turns move every pixel", PIXEL, BYTE, WORD) {
    CANVAS<PIXEL> canvas(3, 2);
    Set(canvas, {1, 2, 3, 4, 5, 6});
    FLIPX(canvas, canvas.WHOLE());
    CHECK(Pixels(canvas) == std::vector<int>{3, 2, 1, 6, 5, 4});
    FLIPY(canvas, canvas.WHOLE());
    CHECK(Pixels(canvas) == std::vector<int>{6, 5, 4, 3, 2, 1});
    ROTATE180(canvas);
    CHECK(Pixels(canvas) == std::vector<int>{1, 2, 3, 4, 5, 6});
    ROTATE90(canvas); // clockwise
    CHECK(canvas.WIDTH == 2);
    CHECK(canvas.HEIGHT == 3);
    CHECK(Pixels(canvas) == std::vector<int>{4, 1, 5, 2, 6, 3});
    ROTATE270(canvas);
    CHECK(canvas.WIDTH == 3);
    CHECK(Pixels(canvas) == std::vector<int>{1, 2, 3, 4, 5, 6});
}

TEST_CASE("four turns of a canvas larger than a tile give it back") {
    TFULLGRAY canvas(131, 70);
    for (NAT i = 0; i < canvas.COUNT(); ++i)
        canvas.DATA()[i] = static_cast<WORD>(i * 7);
    const std::vector<int> before = Pixels(canvas);
    ROTATE90(canvas);
    CHECK(canvas.GET(70, 1) == 0); // the first pixel goes to the end of the first row
    CHECK(canvas.GET(70, 131) == 130 * 7);
    for (int i = 0; i < 3; ++i)
        ROTATE90(canvas);
    CHECK(Pixels(canvas) == before);
}

TEST_CASE("mirrors of an area leave the rest") {
    TGRAY canvas(3, 2);
    Set(canvas, {1, 2, 3, 4, 5, 6});
    FLIPX(canvas, {2, 1, 3, 1});
    CHECK(Pixels(canvas) == std::vector<int>{1, 3, 2, 4, 5, 6});
    FLIPY(canvas, {1, 1, 1, 9});
    CHECK(Pixels(canvas) == std::vector<int>{4, 3, 2, 1, 5, 6});
}

TEST_CASE("an inserted canvas is cut at the borders") {
    TGRAY canvas(3, 3), other(2, 2);
    Set(other, {1, 2, 3, 4});
    INSERT(canvas, 3, 3, other);
    INSERT(canvas, 0, 1, other);
    CHECK(Pixels(canvas) == std::vector<int>{2, 0, 0, 4, 0, 0, 0, 0, 1});
    INSERT(canvas, NATMIN, NATMAX, other);
    INSERT(canvas, PIXEL_AREA{1, 1, 2, 1}, other);
    CHECK(Pixels(canvas) == std::vector<int>{1, 2, 0, 4, 0, 0, 0, 0, 1});
}

TEST_CASE("a clone has the pixels and the settings") {
    TGRAY canvas(2, 1);
    Set(canvas, {8, 9});
    canvas.BACKGROUND = 3;
    canvas.VALUE = 4;
    canvas.SETFONT(12);
    TGRAY copy;
    REQUIRE(copy.CLONE(canvas));
    CHECK(Pixels(copy) == std::vector<int>{8, 9});
    CHECK(copy.BACKGROUND == 3);
    CHECK(copy.VALUE == 4);
    CHECK(copy.GETFONT() == 12);
}

TEST_CASE("a font number beyond 52 is ignored") {
    TGRAY canvas(1, 1);
    canvas.SETFONT(52);
    canvas.SETFONT(53);
    canvas.SETFONT(-1);
    CHECK(canvas.GETFONT() == 52);
}

TEST_CASE("a canvas larger than memory is empty") {
    TGRAY canvas;
    canvas.INIT(NATMAX, NATMAX);
    CHECK(canvas.EMPTY());
    CHECK(canvas.HEIGHT == 0);
}
