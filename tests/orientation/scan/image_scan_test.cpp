#include "orientation/scan/image_scan.hpp"

#include "foundation/base/matrix3.hpp"
#include "orientation/scan/image_angle.hpp"
#include "orientation/scan/scan_images.hpp"
#include "support/capture.hpp"

#include <cmath>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
NAT Value(REAL x, REAL y, NAT maximum = 255, bool axial = false) {
    return SCAN_ANGLE_VALUE({x, y}, maximum, axial);
}
// Stripes of constant value along (dx, dy).
TIMAGE &Stripes(TIMAGE &image, NAT dx, NAT dy) {
    FILL_IMAGE(image, IMAGE_GRAY, {31, 31}, [=](NAT x, NAT y) {
        const NAT across = x * dy - y * dx + 400; // the same along a stripe
        return 1 + across * across % 211;
    });
    return image;
}
} // namespace

TEST_CASE("an angle runs from up over left to down") {
    CHECK(Value(0, -3) == 0);   // pi/2
    CHECK(Value(-3, -3) == 64); // 3/4 pi: 63.75
    CHECK(Value(-3, 0) == 128); // pi: 127.5, to the even one
    CHECK(Value(-3, 3) == 191); // 5/4 pi: 191.25
    CHECK(Value(0, 3) == 255);  // 3/2 pi
    CHECK(Value(-3, 0, 65535) == 32768);
    CHECK(Value(-3, 3, 65535) == 49151);
    CHECK(Value(0, 0) == 0);
}

TEST_CASE("unless angles are axial, a direction to the right is stored as an end of the range") {
    CHECK(Value(3, 3) == 255); // 7/4 pi
    CHECK(Value(1, 5) == 255);
    CHECK(Value(3, -3) == 0); // pi/4
    CHECK(Value(3, 0) == 0);
    CHECK(Value(3, 3, 255, true) == 64); // as (-3, -3)
    CHECK(Value(3, -3, 255, true) == 191);
    CHECK(Value(3, 0, 255, true) == 128);
    CHECK(Value(0, -3, 255, true) == 255); // as (0, 3)
    CHECK(Value(1000, 3000000, 255, true) == 1);
    CHECK(Value(0, 0, 255, true) == 0); // no axis
}

TEST_CASE("a stored angle gives the axis back, from x towards y") {
    for (NAT degrees = -89; degrees <= 90; ++degrees) {
        const REAL a = static_cast<REAL>(degrees) * PI / 180;
        const NAT value = SCAN_ANGLE_VALUE({std::cos(a), std::sin(a)}, 65535, true);
        const REAL back = SCAN_ANGLE(value, 65535) * 180 / PI;
        CHECK(std::abs(back - static_cast<REAL>(degrees)) < 0.003); // a step: 180 / 65535
    }
    CHECK(SCAN_ANGLE(255, 255) == PI / 2);
}

TEST_CASE("the looked-up angles are the computed ones") {
    for (const bool axial : {false, true}) {
        const ANGLE_VALUES angles(65535, axial, 5);
        for (NAT y = -14; y <= 14; ++y)
            for (NAT x = -14; x <= 14; ++x)
                for (const REAL part : {0.0, 0.5, -1e-9}) {
                    const COMPLEX v{static_cast<REAL>(x) + part, static_cast<REAL>(y)};
                    CHECK(angles.VALUE(v) == SCAN_ANGLE_VALUE(v, 65535, axial));
                }
    }
}

TEST_CASE("stripes give the angle of their axis") {
    TIMAGE image, target;
    SCAN_IMAGE(Stripes(image, 0, 1), target, 6); // columns
    CHECK(target.GET(15, 15) == 65535);
    SCAN_IMAGE(Stripes(image, 1, -1), target, 6); // from the lower left to the upper right
    CHECK(target.GET(15, 15) == 49151);
    SCAN_IMAGE(Stripes(image, 1, 1), target, 6); // from the upper left to the lower right
    CHECK(target.GET(15, 15) == 65535);
    image.diffusionAxial = true;
    SCAN_IMAGE(image, target, 6);
    CHECK(target.GET(15, 15) == 16384); // 45 degrees: 16383.75
}

TEST_CASE("rows of constant value are seen along the nearest direction, as none lies along x") {
    TIMAGE image, target;
    Stripes(image, 1, 0).diffusionAxial = true;
    SCAN_IMAGE(image, target, 5);
    // (5,1), stored as (-5,-1): a = pi - atan(1/5).
    CHECK(target.GET(15, 15) == ROUND((PI / 2 - std::atan(0.2)) / PI * 65535));
}

TEST_CASE("a pixel of value 0 stays 0, and its neighbours are scanned") {
    TIMAGE image, target;
    Stripes(image, 1, -1).PUT(15, 15, 0);
    SCAN_IMAGE(image, target, 6);
    CHECK(target.GET(15, 15) == 0);
    CHECK(target.GET(15, 16) != 0);
    CHECK(target.GET(24, 15) == 49151); // no line of it meets the zero
}

TEST_CASE("every kind of target gets the angle in its pixel range") {
    TIMAGE image, target;
    Stripes(image, 1, -1).PUT(15, 15, 0);
    SCAN_IMAGE(image, target, 6, IMAGE_GRAY);
    CHECK(target.GET(10, 15) == 191);
    SCAN_IMAGE(image, target, 6, IMAGE_RGB);
    CHECK(target.GETRGB(10, 15) == VECTORNAT{191, 191, 191});
    SCAN_IMAGE(image, target, 6, IMAGE_RGBA);
    CHECK(target.GETRGBA(10, 15) == HYPERNAT{191, 191, 191, 255});
    CHECK(target.GETRGBA(15, 15) == HZERONAT); // of a pixel 0, alpha too
    SCAN_IMAGE(image, target, 6, IMAGE_ZRGB);
    CHECK(target.GETRGB(10, 15) == VECTORNAT{191, 191, 191});
}

TEST_CASE("an image of one value has no axis") {
    TIMAGE image, target;
    FILL_IMAGE(image, IMAGE_GRAY, {15, 15}, [](NAT, NAT) { return 7; });
    for (BYTE method = 1; method <= 6; ++method) {
        image.diffusionMethod = method;
        SCAN_IMAGE(image, target, 4);
        CHECK(target._FULLGRAY()->GET(8, 8) == 0);
        CHECK(COUNT(*target._FULLGRAY(), 1, 65535) == 0);
    }
}

TEST_CASE("fullscan clears the pixels with a line of less than r samples") {
    TIMAGE image, full, open;
    SCAN_IMAGE(Stripes(image, 1, -2), open, 6);
    image.fullScan = true;
    SCAN_IMAGE(image, full, 6);
    CHECK(full.GET(15, 15) != 0);
    CHECK(full.GET(15, 15) == open.GET(15, 15));
    CHECK(full.GET(1, 15) == open.GET(1, 15)); // half of every line lies inside
    CHECK(full.GET(1, 15) != 0);
    CHECK(full.GET(1, 1) == 0); // the corner cuts a line to one sample
    CHECK(open.GET(1, 1) != 0);
}

TEST_CASE("the row of an image too small for the circle is left as it is") {
    TIMAGE image, target(IMAGE_GRAY, 31, 31);
    Stripes(image, 1, -1);
    target.PUT(3, 4, 9);
    for (const NAT r : {NAT{0}, NAT{-1}, NAT{16}, NAT{65536}, NATMAX})
        DIFFUSION(image, target, 4, r);
    DIFFUSION(image, target, 0, 3);
    DIFFUSION(image, target, 32, 3);
    CHECK(target.GET(3, 4) == 9);
    CAPTURE console;
    DIFFUSION(TIMAGE(IMAGE_GRAY), target, 1, 3);
    CHECK(console.TEXT() == "Error! Empty vectorfield!\n");
}

TEST_CASE("a scan of an image gives an empty target its size and frame and tells its threads") {
    TIMAGE image, target(IMAGE_FULLGRAY);
    FRAME frame;
    frame.SETMATRIX({{{{2, 0, 0}, {0, 3, 0}, {0, 0, 1}}}});
    frame.SETMOVE({4, 5, 6});
    Stripes(image, 1, -1).SETFRAME(frame);
    CAPTURE console;
    CHECK(DIFFUSION_IMAGE(image, target, 6, 2));
    CHECK(target.SIZE() == COMPLEXNAT{31, 31});
    CHECK(target._GETMOVE() == VECTOR{4, 5, 6});
    CHECK(target._GETMATRIX() == frame.MATRIX());
    CHECK(target.GETFRAME().INVERSEMATRIX() == frame.INVERSEMATRIX());
    CHECK(console.TEXT().rfind("Method: brenk2015b = mean the best vectors (around 5.00°), only "
                               "for 25.00 %\nWorking threads: 31\nParallel: 2\n",
                               0) == 0);
    CHECK(target.GET(15, 15) == 49151);
}

TEST_CASE("a target image with pixels is told and stays in use as it is") {
    TIMAGE image, target(IMAGE_GRAY, 10, 40);
    Stripes(image, 1, -1);
    target.PUT(5, 40, 77);
    CAPTURE console;
    CHECK(DIFFUSION_IMAGE(image, target, 6, 1));
    CHECK(console.TEXT().rfind("Attention, target image field seems not to be empty!\nMethod", 0) ==
          0);
    CHECK(target.SIZE() == COMPLEXNAT{10, 40});
    CHECK(target.GET(9, 15) == 191);
    CHECK(target.GET(5, 40) == 77); // no such row in the image
}

TEST_CASE("a wrong scan length of an image is told and changes no target") {
    TIMAGE image, target(IMAGE_FULLGRAY);
    Stripes(image, 1, -1);
    for (const NAT r : {NAT{0}, NAT{-3}, NAT{16}, NAT{65536}, NATMAX, NATMIN}) {
        CAPTURE console;
        CHECK_FALSE(DIFFUSION_IMAGE(image, target, r, 1));
        CHECK(console.TEXT() == "Wrong scan size (" + std::to_string(r) + ")!\n");
        CHECK_FALSE(target.ISNOTEMPTY());
    }
    CAPTURE console;
    CHECK_FALSE(DIFFUSION_IMAGE(TIMAGE(IMAGE_GRAY), target, 1, 1));
    CHECK(console.TEXT() == "Wrong scan size (1)!\n");
}

TEST_CASE("the thread limit changes no pixel of an angle image") {
    TIMAGE image, one(IMAGE_FULLGRAY), eight(IMAGE_FULLGRAY);
    NOISE noise(21, 1, 255, 4);
    FILL_IMAGE(image, IMAGE_GRAY, {90, 70}, [&](NAT x, NAT y) { return noise(x, y, 1); });
    CAPTURE console;
    CHECK(DIFFUSION_IMAGE(image, one, 5, 1));
    CHECK(DIFFUSION_IMAGE(image, eight, 5, 8));
    CHECK(DIFFERENT_PIXELS(one, eight) == 0);
}
