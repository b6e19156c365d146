#include "image2d/image/image.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a new image is empty, of its kind and at the origin") {
    for (const BYTE kind : {IMAGE_GRAY, IMAGE_FULLGRAY, IMAGE_RGB, IMAGE_RGBA, IMAGE_ZRGB}) {
        const TIMAGE image(kind);
        CHECK(image.ID() == kind);
        CHECK(image.SIZEX() == 0);
        CHECK(image.SIZEY() == 0);
        CHECK(image.GETFRAME().MOVE() == VZERO);
    }
}

TEST_CASE("an image of an unknown kind has no canvas") {
    CHECK(TIMAGE(147).ID() == 0);
    CHECK(TIMAGE().ID() == 0);
}

TEST_CASE("INIT forgets the frame and DONE may come twice") {
    TIMAGE image(IMAGE_RGB);
    FRAME frame;
    frame.SETMOVE({1, 2, 3});
    image.SETFRAME(frame);
    image.INIT(IMAGE_GRAY);
    CHECK(image.GETFRAME().MOVE() == VZERO);
    image.DONE();
    image.DONE();
    CHECK(image.ID() == 0);
}

TEST_CASE("an image has zero pixels of its kind, and a read outside gives the background") {
    for (const BYTE kind : {IMAGE_GRAY, IMAGE_FULLGRAY, IMAGE_RGB, IMAGE_RGBA, IMAGE_ZRGB}) {
        TIMAGE image(kind, 3, 2);
        CHECK(image.SIZE() == COMPLEXNAT{3, 2});
        CHECK(image.GET(3, 2) == 0);
        image._SETBACKGROUND(10);
        CHECK(image._GETBACKGROUND() == 10);
        CHECK(image.GETRGB(0, 1) == VECTORNAT{10, 10, 10});
        CHECK(image.PIXELMAX() == (kind == IMAGE_FULLGRAY ? 65535 : 255));
    }
}

TEST_CASE("pixels are limited to the range of the kind") {
    TIMAGE gray(IMAGE_GRAY, 1, 1), full(IMAGE_FULLGRAY, 1, 1), rgb(IMAGE_RGB, 1, 1);
    gray.PUT(1, 1, 300);
    full.PUT(1, 1, 70000);
    rgb.PUTRGB(1, 1, {-4, 20, 300});
    CHECK(gray.GET(1, 1) == 255);
    CHECK(full.GET(1, 1) == 65535);
    CHECK(rgb.GETRGB(1, 1) == VECTORNAT{0, 20, 255});
    CHECK(rgb.GET(1, 1) == 137); // (0 + 20 + 255) / 2
    CHECK(rgb.GETALPHA(1, 1) == 255);
    gray.PUTRGB(1, 1, {10, 20, 31});
    CHECK(gray.GET(1, 1) == 20);
}

TEST_CASE("the pen writes on every kind") {
    TIMAGE rgba(IMAGE_RGBA, 2, 1), zrgb(IMAGE_ZRGB, 2, 1), full(IMAGE_FULLGRAY, 2, 1);
    rgba._SETRGBAVALUE({1, 2, 3, 4});
    rgba.PUT(2, 1);
    CHECK(rgba.GETRGBA(2, 1) == HYPERNAT{1, 2, 3, 4});
    zrgb._SETRGBVALUE({9, 8, 7});
    zrgb.PUT(1, 1);
    CHECK(zrgb.GETRGBA(1, 1) == HYPERNAT{9, 8, 7, 255});
    zrgb.PUTZRGB(1, 1, 5, {1, 1, 1, 9});
    zrgb.PUTZRGB(1, 1, 4, {2, 2, 2, 9});
    CHECK(zrgb.GETZ(1, 1) == 5);
    CHECK(zrgb.GETRGB(1, 1) == VECTORNAT{1, 1, 1});
    full.PUT(1, 1);
    CHECK(full.GET(1, 1) == 65535);
    full._SETVALUE(99999);
    CHECK(full._GETVALUE() == 65535);
}

TEST_CASE("positions on an axis count from both ends and from the middle") {
    const TIMAGE image(IMAGE_GRAY, 11, 4);
    CHECK(image.COORD(0.5, 1) == 6);
    CHECK(image.COORD(1, 1) == 1);
    CHECK(image.COORD(-1, 1) == 11);
    CHECK(image.COORD(100, 1) == 5);
    CHECK(image.COORD(COMPLEX{0, -0.25}) == COMPLEXNAT{6, 3}); // 3 * 0.75 + 1, to even from 3.25
}

TEST_CASE("a clone has kind, pixels, frame and name, and a taken image leaves nothing") {
    TIMAGE image(IMAGE_RGBA, 2, 2), copy(IMAGE_GRAY, 5, 5);
    image.PUTRGBA(1, 2, {1, 2, 3, 4});
    image._SETMOVE({7, 8, 9});
    image.NAME = "x.png";
    REQUIRE(copy.CLONE(image));
    CHECK(copy.ID() == IMAGE_RGBA);
    CHECK(copy.GETRGBA(1, 2) == HYPERNAT{1, 2, 3, 4});
    CHECK(copy._GETMOVE() == VECTOR{7, 8, 9});
    TIMAGE taker;
    taker.TAKE(copy);
    CHECK(taker.GETRGBA(1, 2) == HYPERNAT{1, 2, 3, 4});
    CHECK(copy.ID() == 0);
    CHECK(copy.SIZEX() == 0);
    taker.CLEANUP();
    CHECK(taker.ID() == IMAGE_RGBA);
    CHECK(taker.SIZEX() == 0);
}

TEST_CASE("an image without a canvas answers 0 and does nothing") {
    TIMAGE image;
    image.PUT(1, 1);
    image.PUTRGBA(1, 1, {1, 1, 1, 1});
    image._SETVALUE(5);
    image.RESIZE(3, 3);
    image._PLANES([](auto &) { FAIL("there is no plane"); });
    CHECK(image.GET(1, 1) == 0);
    CHECK(image.GETRGBA(1, 1) == HYPERNAT{0, 0, 0, 0});
    CHECK(image.PIXELMAX() == 0);
    CHECK(image.COORD(1, 1) == 0);
    TIMAGE other(IMAGE_GRAY, 2, 2);
    CHECK(other.CLONE(image));
    CHECK(other.ID() == 0);
}
