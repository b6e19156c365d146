#include "field3d/raster/raster.hpp"
#include "field3d/raster/rgb.hpp"

#include "foundation/base/record_operators.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("GET outside the field gives BACKGROUND, PUT outside changes nothing") {
    T3DGRAY field(2, 2, 2);
    field.BACKGROUND = 7;
    CHECK(field.GET(0, 1, 1) == 7);
    field.PUT(0, 1, 1, 9);
    field.PUT(3, 1, 1, 9);
    for (NAT i = 1; i <= 8; ++i)
        CHECK(field._GETINDEX(i) == 0);
}

TEST_CASE("x runs fastest, then y, then z") {
    T3DFULLGRAY field(3, 4, 5);
    field.PUT(2, 3, 4, 1234);
    CHECK(field.INDEX(2, 3, 4) == 2 + 2 * 3 + 3 * 12);
    CHECK(field.VOXELS()[1 + 2 * 3 + 3 * 12] == 1234);
    field.PUTINDEX(60, 9);
    CHECK(field.GET(3, 4, 5) == 9);
    field.PUTINDEX(61, 9);
    field.PUTINDEX(0, 9);
}

TEST_CASE_TEMPLATE("a new field has its defaults", RASTER_TYPE, T3DMONO, T3DGRAY, T3DFULLGRAY) {
    RASTER_TYPE field(2, 3, 4);
    CHECK(field.BACKGROUND == 0);
    CHECK(field.VALUE == RASTER_TYPE::KIND::MAXIMUM);
    CHECK(field.window.x2 == 2);
    CHECK(field.window.z1 == 1);
    CHECK(field.fileName.EMPTY());
    CHECK(field.frame.MATRIX()[2] == VECTOR{0, 0, 1});
    CHECK(field.DIAGONAL() == 5); // sqrt(29)
    CHECK(field.MIDPOINT() == VECTOR{1, 1.5, 2});
}

TEST_CASE_TEMPLATE("PUT without a value writes VALUE", RASTER_TYPE, T3DMONO, T3DGRAY, T3DFULLGRAY) {
    RASTER_TYPE field(1, 1, 2);
    field.PUT(1, 1, 2);
    CHECK(field.GET(1, 1, 1) == 0);
    CHECK(field.GET(1, 1, 2) == RASTER_TYPE::KIND::MAXIMUM);
}

TEST_CASE("eight voxels of one bit take two bytes") {
    const T3DMONO field(2, 2, 2);
    CHECK(field.BYTES() == 2);
}

TEST_CASE("voxel i of a 1-bit field is bit (i-1) mod 8 of byte (i-1)/8") {
    T3DMONO field(5, 3, 1);
    field.PUT(1, 1, 1, true);
    field.PUT(5, 2, 1, true); // voxel 10
    field.PUT(5, 3, 1, true); // the last voxel, 15
    CHECK(field.VOXELS()[0] == 0x01);
    CHECK(field.VOXELS()[1] == 0x42);
    CHECK(field.GET(5, 3, 1));
    field.PUT(5, 2, 1, false);
    CHECK(field.VOXELS()[1] == 0x40);
}

TEST_CASE("a size below 1 gives an empty field whose window holds nothing") {
    const T3DGRAY field(-2, -3, 4);
    CHECK(field.EMPTY());
    CHECK(field.SIZE() == VZERONAT);
    CHECK(field.window.x1 == 1);
    CHECK(field.window.x2 == 0);
    CHECK(field.DIAGONAL() == 0);
    CHECK(field.MIDPOINT() == VNORM);
}

TEST_CASE("a field beyond all memory is empty and told in one line") {
    CAPTURE console;
    const T3DFULLGRAY field(NAT{1} << 40, NAT{1} << 40, NAT{1} << 40);
    CHECK(field.EMPTY());
    CHECK(console.TEXT() == "  Wrong static allocation (Out of memory?)! Create empty field.\n");
}

TEST_CASE("each bound of a window is limited to the field") {
    T3DGRAY field(4, 5, 6);
    field.WINDOW(-3, 2, 3, 9, 4, 100);
    CHECK(field.window.x1 == 1);
    CHECK(field.window.y1 == 2);
    CHECK(field.window.x2 == 4);
    CHECK(field.window.z2 == 6);
    field.WINDOW();
    CHECK(field.window.y2 == 5);
}

TEST_CASE("a failed load empties the field and prints its line") {
    CAPTURE console;
    T3DGRAY field(2, 2, 2);
    field.fileName = "a.nii";
    field.__WRITE_ERROR("  Wrong header! Create empty field.");
    CHECK(field.EMPTY());
    CHECK(field.fileName.EMPTY());
    CHECK(console.TEXT() == "  Wrong header! Create empty field.\n");
}

TEST_CASE("INIT starts anew: voxels, frame, window and settings") {
    T3DGRAY field(2, 2, 2);
    field.PUT(1, 1, 1, 9);
    field.BACKGROUND = 3;
    field.frame.SETMOVE({1, 2, 3});
    field.WINDOW(2, 2, 2, 2, 2, 2);
    field.INIT(2, 2, 2);
    CHECK(field.GET(1, 1, 1) == 0);
    CHECK(field.BACKGROUND == 0);
    CHECK(field.frame.MOVE() == VZERO);
    CHECK(field.window.x1 == 1);
}

TEST_CASE("a colour field holds three limited channels") {
    T3DRGB field(2, 2, 2);
    field.PUT(1, 2, 1, {300, -4, 70});
    CHECK(field.GET(1, 2, 1) == VECTORNAT{255, 0, 70});
    CHECK(field.GET(3, 1, 1) == VZERONAT);
    field.PUT(3, 1, 1, {1, 1, 1});
    field.DONE();
    CHECK(field.EMPTY());
}
