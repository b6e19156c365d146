#include "image2d/canvas/draw.hpp"

#include <doctest/doctest.h>

#include <vector>

using namespace morvane;

namespace {
template <class PIXEL> std::vector<int> Pixels(const CANVAS<PIXEL> &canvas) {
    return {canvas.DATA(), canvas.DATA() + canvas.COUNT()};
}
} // namespace

TEST_CASE("a point between pixels is shared among its four neighbours") {
    TGRAY canvas(3, 3);
    canvas.VALUE = 100;
    _POINT10(canvas, 12, 15); // 2 tenths right of column 1, 5 below row 1
    CHECK(canvas.GET(1, 1) == 40);
    CHECK(canvas.GET(2, 1) == 10);
    CHECK(canvas.GET(1, 2) == 40);
    CHECK(canvas.GET(2, 2) == 10);
    _POINT10(canvas, 30, 30);
    CHECK(canvas.GET(3, 3) == 100);
}

TEST_CASE("a point outside the window is left out") {
    TGRAY canvas(4, 4);
    canvas.WINDOW(2, 2, 3, 3);
    _POINT10(canvas, 10, 20);
    _POINT10(canvas, 40, 30);
    CHECK(COUNT(canvas, 1, 255) == 0);
    _POINT10(canvas, 25, 25);
    CHECK(COUNT(canvas, 1, 255) == 4);
}

TEST_CASE_TEMPLATE("rows and columns are drawn with both ends and cut at the window", PIXEL, BYTE,
                   WORD) {
    CANVAS<PIXEL> canvas(4, 3);
    canvas.VALUE = 1;
    _HLINE(canvas, 3, 1, 1); // up to, not including, 3
    _LINE(canvas, 2, 99, 2);
    _VLINE(canvas, 1, 3, 2);
    CHECK(Pixels(canvas) == std::vector<int>{1, 1, 0, 0, 1, 1, 1, 1, 1, 0, 0, 0});
    canvas.FILL(0);
    canvas.WINDOW(2, 2, 3, 2);
    FULLRECTANGLE(canvas, NATMIN, NATMIN, NATMAX, NATMAX);
    CHECK(Pixels(canvas) == std::vector<int>{0, 0, 0, 0, 0, 1, 1, 0, 0, 0, 0, 0});
}

TEST_CASE("a blended column moves a quarter of the way to the pen") {
    TGRAY canvas(1, 2);
    canvas.PUT(1, 2, 100);
    _VVLINE(canvas, 1, 1, 2);
    CHECK(canvas.GET(1, 1) == 63);  // 255 / 4
    CHECK(canvas.GET(1, 2) == 138); // (300 + 255) / 4
}

TEST_CASE("a straight line plots its points and a slanted one is smooth on 8 bits") {
    TGRAY canvas(5, 5);
    LINE(canvas, 2, 3, 4, 3);
    CHECK(canvas.GET(2, 3) == 255);
    CHECK(canvas.GET(4, 3) == 255);
    CHECK(COUNT(canvas, 1, 255) == 3);
    canvas.FILL(0);
    LINE(canvas, 1, 1, 1, 1);
    CHECK(COUNT(canvas, 1, 255) == 1);
    canvas.FILL(0);
    // Length 5, steps of (0.8, 0.6): in tenths (10,10) (18,16) (26,22) (34,28) (42,34) (50,40).
    LINE(canvas, 1, 1, 5, 4);
    CHECK(canvas.GET(1, 1) == 255);
    CHECK(canvas.GET(2, 1) == 81);  // of (18,16): 8 * 4 of 100
    CHECK(canvas.GET(2, 2) == 164); // of (18,16): 8 * 6 give 122, of (26,22): 4 * 8 give 42 more
    CHECK(canvas.GET(5, 4) == 255);
}

TEST_CASE("a slanted line has steps of one pixel") {
    TGRAY canvas(5, 5);
    // Length sqrt(20) = 4.472, rounded 4 steps of (0.894, 0.447): in tenths (10,10) (19,14)
    // (28,19) (37,23) (46,28).
    LINE(canvas, 1, 1, 5, 3);
    CHECK(canvas.GET(1, 1) == 255);
    CHECK(canvas.GET(5, 2) == 30);  // of (46,28): 6 * 2 of 100
    CHECK(canvas.GET(5, 3) == 122); // of (46,28): 6 * 8 of 100
    CHECK(canvas.GET(4, 3) == 117); // of (37,23): 7 * 3 give 53, of (46,28): 4 * 8 give 64 more
}

TEST_CASE("a line on 16 bits is plain") {
    TFULLGRAY canvas(3, 3);
    LINE(canvas, 1, 1, 3, 3);
    for (NAT i = 1; i <= 3; ++i)
        CHECK(canvas.GET(i, i) == 65535);
    CHECK(COUNT(canvas, 1, 65535) == 3);
}

TEST_CASE("a circle is closed, has its radius and leaves its inside") {
    TFULLGRAY canvas(21, 21);
    CIRCLE(canvas, 11, 11, 8);
    CHECK(canvas.GET(19, 11) == 65535);
    CHECK(canvas.GET(3, 11) == 65535);
    CHECK(canvas.GET(11, 19) == 65535);
    CHECK(canvas.GET(11, 3) == 65535);
    CHECK(canvas.GET(11, 11) == 0);
    CHECK(COUNT(canvas, 1, 65535) >=
          44); // at least the pixels of a digital circle, 4 * 8 * sqrt(2)
}

TEST_CASE("a full circle covers the area of its radius") {
    TGRAY canvas(61, 61);
    FULLCIRCLE(canvas, 31, 31, 25);
    // The rows alone cover pi r^2 = 1963 pixels; the soft edge adds a ring of at most two pixels.
    const NAT full = COUNT(canvas, 255, 255), any = COUNT(canvas, 1, 255);
    CHECK(full >= 1900);
    CHECK(any <= 1963 + 2 * 158);
    CHECK(canvas.GET(31, 31) == 255);
    CHECK(canvas.GET(4, 4) == 0);
}

TEST_CASE("a turned ellipse lies along its angle") {
    TGRAY canvas(61, 61);
    FULLELLIPSE(canvas, 31, 31, 25, 5, 1.5707963267948966); // the long axis along y
    CHECK(canvas.GET(31, 10) == 255);
    CHECK(canvas.GET(10, 31) == 0);
    CHECK(canvas.GET(31, 52) == 255);
}

TEST_CASE("edges that meet plot no row twice") {
    TGRAY canvas(9, 9);
    _SCAN_RESET(canvas);
    // A triangle around column 5: left edge down to (1, 9), then a second edge over the same rows.
    _VVLINE(canvas, 5, 1, 1, 9, 5);
    _VVLINE(canvas, 5, 1, 1, 9, 5);
    CHECK(canvas.GET(5, 5) == 63);
    CHECK(canvas.GET(3, 5) == 63);
    CHECK(canvas.GET(2, 5) == 0);
    _SCAN_RESET(canvas);
    _VVLINE(canvas, 5, 1, 1, 9, 5);
    CHECK(canvas.GET(5, 5) == (3 * 63 + 255) / 4);
}

TEST_CASE("coordinates far outside draw nothing and end") {
    TGRAY canvas(4, 4);
    LINE(canvas, NATMIN, NATMIN, NATMIN, NATMAX);
    LINE(canvas, NATMAX, 7, NATMIN + 5, NATMAX);
    CIRCLE(canvas, NATMAX, NATMIN, 5);
    CIRCLE(canvas, 2, 2, -1);
    CHECK(COUNT(canvas, 1, 255) <= 16);
    TGRAY empty;
    LINE(empty, 1, 1, 3, 4);
    FULLCIRCLE(empty, 1, 1, 4);
    RECTANGLE(empty, 1, 1, 3, 3);
    CHECK(empty.EMPTY());
}
