#include "image2d/canvas/line_walk.hpp"

#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// One row of pixels per text, a digit a pixel.
void Fill(TGRAY &canvas, const std::vector<std::string> &rows) {
    canvas.INIT(static_cast<NAT>(rows[0].size()), static_cast<NAT>(rows.size()));
    for (NAT y = 1; y <= canvas.HEIGHT; ++y)
        for (NAT x = 1; x <= canvas.WIDTH; ++x)
            canvas.PUT(
                x, y,
                static_cast<BYTE>(
                    rows[static_cast<std::size_t>(y - 1)][static_cast<std::size_t>(x - 1)] - '0'));
}

std::vector<NAT> Line(const TGRAY &canvas, NAT x1, NAT y1, NAT x2, NAT y2) {
    TPOLYNAT line;
    GETLINE_W0(canvas, x1, y1, x2, y2, line);
    return {line.SPAN().begin(), line.SPAN().end()};
}
using LIST = std::vector<NAT>;
} // namespace

TEST_CASE("a step over pixels is 65535 and not 65536 parts of the way, so a walk stops slightly "
          "short of its far end") {
    const PIXEL_WALK walk = GETWALK({1, 1}, {5, 1});
    CHECK(walk.steps == 4);
    CHECK(walk.step == COMPLEXNAT{65535, 0});
    // After the first step to the right every pixel is read once more short of its number.
    TGRAY canvas;
    Fill(canvas, {"12345"});
    CHECK(Line(canvas, 1, 1, 5, 1) == LIST{1, 1, 2, 3, 4});
    CHECK(Line(canvas, 5, 1, 1, 1) == LIST{5, 4, 3, 2, 1}); // 4.00002 is still pixel 4
}

TEST_CASE("a line starts at its first end, else at its second, else at the first run") {
    TGRAY canvas;
    Fill(canvas, {"12030456"});
    CHECK(Line(canvas, 1, 1, 8, 1) == LIST{1, 1, 2}); // up to the first zero
    CHECK(Line(canvas, 3, 1, 8, 1) == LIST{6, 5, 4}); // the first end is zero
    Fill(canvas, {"00230400"});
    CHECK(Line(canvas, 1, 1, 8, 1) == LIST{2, 3}); // both ends are
    Fill(canvas, {"0000"});
    CHECK(Line(canvas, 1, 1, 4, 1).empty());
}

TEST_CASE("a line reads zero outside the canvas, whatever its background is") {
    TGRAY canvas;
    Fill(canvas, {"123"});
    canvas.BACKGROUND = 9;
    CHECK(Line(canvas, -2, 1, 6, 1) == LIST{1, 2, 3});
    CHECK(Line(canvas, -5, -5, -9, -5).empty());
}

TEST_CASE("a line without length holds nothing") {
    TGRAY canvas;
    Fill(canvas, {"123"});
    CHECK(Line(canvas, 2, 1, 2, 1).empty());
    canvas.INIT();
    CHECK(Line(canvas, 1, 1, 3, 1).empty());
}

TEST_CASE("a diagonal line has as many steps as its rounded length") {
    TGRAY canvas;
    Fill(canvas, {"1000", "0200", "0030", "0004"});
    // Length 4.24, so 4 steps of 3/4: 1, 1.75, 2.5, 3.25 and just below 4.
    CHECK(Line(canvas, 1, 1, 4, 4) == LIST{1, 1, 2, 3, 3});
}

TEST_CASE("a colour image gives the grey values of a line") {
    TRGB image(3, 1);
    image.PUT(1, 1, {10, 20, 30});
    image.PUT(2, 1, {255, 255, 255});
    TPOLYNAT line;
    GETLINE_W0(image, 2, 1, 1, 1, line);
    REQUIRE(line.LENGTH == 2);
    CHECK(line.GET(1) == 382); // 765 / 2
    CHECK(line.GET(2) == 30);
}

TEST_CASE("PUTLINE writes a value a step, limited to the pixel range") {
    TGRAY canvas(5, 1);
    TPOLYNAT line;
    line.INIT();
    for (const NAT value : {7, 300, -4})
        line.PUSH(value);
    PUTLINE(canvas, 5, 1, 1, 1, line); // a shorter list ends the line
    CHECK(Line(canvas, 5, 1, 1, 1) == LIST{7, 255});
    CHECK(canvas.GET(3, 1) == 0);
    TRGB image(5, 1);
    PUTLINE(image, 5, 1, -9, 1, line); // what lies outside is dropped
    CHECK(image.GET(4, 1) == VECTORNAT{255, 255, 255});
    TFULLGRAY full(5, 1);
    PUTLINE(full, 5, 1, 1, 1, line);
    CHECK(full.GET(4, 1) == 300);
}
