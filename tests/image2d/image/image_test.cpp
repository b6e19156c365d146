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
