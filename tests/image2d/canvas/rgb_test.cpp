#include "image2d/canvas/font.hpp"
#include "image2d/canvas/rgb.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("colours are limited to a byte and read back by plane") {
    TRGB image(2, 1);
    image.PUT(1, 1, {300, -5, 7});
    CHECK(image.GET(1, 1) == VECTORNAT{255, 0, 7});
    CHECK(image.GETBGR(1, 1) == VECTORNAT{7, 0, 255});
    CHECK(image.GETFULLGRAY(1, 1) == 262);
    CHECK(image.GETGRAY(1, 1) == 131);
    image._WRITEBACKGROUND({1, 2, 3});
    CHECK(image.GET(3, 1) == VECTORNAT{1, 2, 3});
    image._WRITEVALUE({9, 8, 7});
    image.PUT(2, 1);
    CHECK(image.GET(2, 1) == VECTORNAT{9, 8, 7});
    image.GRAY();
    CHECK(image.GET(1, 1) == VECTORNAT{87, 87, 87}); // 262 / 3
}

TEST_CASE("the grey of a colour pixel is half the sum of its components, so white reads as 382.") {
    TRGB image(1, 1);
    image.FILL({255, 255, 255});
    CHECK(image.GETGRAY(1, 1) == 382);
}

TEST_CASE("a colour over a transparent pixel is that colour, over an opaque one a blend") {
    TRGBA image(2, 1);
    image.PUT(1, 1, {10, 20, 30, 0});
    image.PUTOVER(1, 1, {200, 100, 50, 0}); // nothing over nothing: the colour stays
    CHECK(image.GET(1, 1) == HYPERNAT{10, 20, 30, 0});
    image.PUTOVER(1, 1, {200, 100, 50, 255});
    CHECK(image.GET(1, 1) == HYPERNAT{200, 100, 50, 255});
    image.PUT(2, 1, {0, 0, 100, 255});
    image.PUTOVER(2, 1, {100, 0, 0, 51}); // a fifth of it
    CHECK(image.GET(2, 1) == HYPERNAT{20, 0, 80, 255});
    image.PUT(2, 1, {100, 100, 100, 51});
    image.PUTOVER(2, 1, {200, 200, 200, 51});
    // alpha: (255*51 + 204*51) / 255 = 91; colour: (255*51*200 + 51*204*100) / (255*51 + 204*51)
    CHECK(image.GET(2, 1) == HYPERNAT{156, 156, 156, 91});
}

TEST_CASE("of two depths on a pixel the larger is seen, and an equal one overwrites") {
    TZRGB image(3, 3);
    image.PUT(1, 1, 100, VECTORNAT{1, 1, 1});
    CHECK(image.GETZ(1, 1) == 100);
    CHECK(image.GETZ(2, 2) == 100); // a cell of 2x2 pixels
    CHECK(image.GETALPHA(2, 1) == 255);
    image.PUT(1, 1, 99, VECTORNAT{2, 2, 2});
    CHECK(image.GETRGB(1, 1) == VECTORNAT{1, 1, 1});
    image.PUT(1, 1, 100, HYPERNAT{3, 3, 3, 7});
    CHECK(image.GETRGBA(1, 2) == HYPERNAT{3, 3, 3, 7});
    CHECK(image.GETZ(3, 3) == 0);
    image.PUT(3, 3, 5, VECTORNAT{4, 4, 4}); // only one of the four lies inside
    CHECK(image.GETRGB(3, 3) == VECTORNAT{4, 4, 4});
}

TEST_CASE("depths are mapped from their range to 2..65535") {
    TZRGB image;
    image.INIT(1, 1, -1.0, 1.0);
    CHECK(image._COMPUTE(-1) == 2);
    CHECK(image._COMPUTE(1) == 65535);
    CHECK(image._COMPUTE(-5) == 2);
    CHECK(image._COMPUTE(0) == 32768); // 2 + 65533/2, to even
}

TEST_CASE("an image without memory has no plane") {
    TRGBA image;
    image.INIT(NATMAX, 3);
    CHECK(image.EMPTY());
    CHECK(image.alpha.EMPTY());
}

TEST_CASE("letters lie in their cells and stay in the window") {
    TGRAY canvas(20, 18);
    WRITE(canvas, 2, 2, "I.");
    CHECK(COUNT(canvas, 255, 255) > 10);
    CHECK(COUNT(canvas, 1, 255, {1, 1, 20, 1}) == 0);
    CHECK(COUNT(canvas, 1, 255, {1, 1, 1, 18}) == 0);
    CHECK(COUNT(canvas, 1, 255, {18, 1, 20, 18}) == 0);
    const NAT ink = COUNT(canvas, 255, 255);
    TGRAY turned(18, 20);
    WRITE(turned, 2, 19, "I.", WRITE_DIRECTION::LEFT);
    CHECK(COUNT(turned, 255, 255) == ink);
    ROTATE90(turned); // upright again
    bool isSame = true;
    for (NAT y = 1; y <= 18; ++y)
        for (NAT x = 1; x <= 20; ++x)
            isSame = isSame && turned.GET(x, y) == canvas.GET(x, y);
    CHECK(isSame);
    WRITE(canvas, NATMAX, NATMIN, "far outside");
    WRITE(canvas, -1000, 5, "left of it");
    CHECK(COUNT(canvas, 255, 255) == ink);
}

TEST_CASE("codes below 32 and unknown codes have the replacement glyph, letters their own") {
    CHECK(GLYPH_OFFSET(5) == 12);
    CHECK(GLYPH_OFFSET(32) == 12);
    CHECK(GLYPH_OFFSET(33) == 28);
    CHECK(GLYPH_OFFSET(126) == (126 - 32) * 16 + 12);
    CHECK(GLYPH_OFFSET(0x4e00) == 12);
    for (const NAT code : {NAT{931}, NAT{1046}, NAT{1488}, NAT{8800}, NAT{228}}) {
        CHECK(GLYPH_OFFSET(code) > 12);
        for (const NAT font : {NAT{0}, NAT{1}, NAT{2}}) {
            NAT ink = 0;
            for (const BYTE row : GET_GLYPH(font, code).rows)
                ink += row != 0;
            CHECK(ink > 3);
        }
    }
}

TEST_CASE("every run of glyphs lies within its set and follows the one before") {
    NAT last = 0, end = 12;
    for (const GLYPH_RUN &run : GLYPH_RUNS()) {
        CHECK(run.low > last);
        CHECK(run.offset == end);
        last = run.high;
        end = run.offset + 16 * (run.high - run.low + 1);
    }
    for (const NAT number : {NAT{0}, NAT{1}, NAT{2}})
        CHECK(static_cast<NAT>(GLYPH_SET(number).size()) == end);
}

TEST_CASE("soft borders blend the rows above and below a letter") {
    const GLYPH plain = GET_GLYPH(0, 'i'), soft = GET_GLYPH(50, 'i');
    CHECK(plain.rows == soft.rows);
    NAT plainRows = 0, softRows = 0;
    for (std::size_t y = 0; y < 16; ++y) {
        plainRows += plain.soft[y] != 0;
        softRows += soft.soft[y] != 0;
    }
    CHECK(plainRows == 1); // between the dot and the stem
    CHECK(softRows == 3);
}
