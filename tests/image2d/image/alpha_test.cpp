#include "image2d/canvas/font.hpp"
#include "image2d/image/alpha.hpp"
#include "image2d/image/watermark.hpp"
#include "support/image_rows.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("alpha is set for all pixels or for those of a colour") {
    for (const BYTE kind : {IMAGE_RGBA, IMAGE_ZRGB}) {
        TIMAGE image(kind, 2, 1);
        image.PUTRGBA(1, 1, {1, 2, 3, 255});
        image.PUTRGBA(2, 1, {1, 2, 4, 255});
        SETRGB_ALPHA(image, {1, 2, 3}, 40);
        CHECK(image.GETALPHA(1, 1) == 40);
        CHECK(image.GETALPHA(2, 1) == 255);
        SETALPHA(image, 300);
        CHECK(image.GETALPHA(1, 1) == 255);
        CHECK(image.GETRGB(2, 1) == VECTORNAT{1, 2, 4});
    }
}

TEST_CASE("images without alpha stay") {
    ROWS_IMAGE image(IMAGE_RGB, COLOUR_ROWS_OF{{{1, 2, 3}}});
    SETALPHA(image, 0);
    SETRGB_ALPHA(image, {1, 2, 3}, 0);
    CHECK(image.GETRGBA(1, 1) == HYPERNAT{1, 2, 3, 255});
}

TEST_CASE("a watermark is written in the pen of every kind, its corner at the given place") {
    const GLYPH letter = GET_GLYPH(0, 'T');
    for (const BYTE kind : {IMAGE_GRAY, IMAGE_FULLGRAY, IMAGE_RGB, IMAGE_RGBA, IMAGE_ZRGB}) {
        TIMAGE image(kind, 12, 20);
        image._SETVALUE(200);
        WATERMARK(image, 3, 2, "T");
        for (std::size_t row = 0; row < 16; ++row)
            for (NAT column = 0; column < 8; ++column)
                if ((letter.rows[row] & (0x80 >> column)) != 0)
                    CHECK(image.GETRGB(3 + column, 2 + static_cast<NAT>(row)).x == 200);
        CHECK(image.GETRGB(1, 1).x == 0);
        WATERMARK(image, 100, 100, "T"); // outside: nothing
    }
    TIMAGE none;
    WATERMARK(none, 1, 1, "T");
    CHECK(none.ID() == 0);
}
