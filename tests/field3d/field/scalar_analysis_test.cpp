#include "field3d/field/scalar_analysis.hpp"

#include "foundation/base/record_operators.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a facade without storage answers zeros and defaults and ignores writes") {
    T3D_SCALAR_ANALYSIS field;
    CHECK(field.ID() == 0);
    CHECK(field.BITS() == 0);
    CHECK(field.SIZE() == VZERONAT);
    CHECK(field.BACKGROUND() == 0);
    CHECK(field.VALUE() == 0);
    CHECK(field.SCALE() == VNORM);
    CHECK(field.MOVE() == VZERO);
    CHECK(field.GET(1, 1, 1) == 0);
    CHECK(field.MIN() == 0);
    CHECK(field.MIN0() == 1);
    CHECK(field.MAX() == 65535);
    CHECK(field.OBJECT_COUNT(0, 9) == 0);
    field.PUT(1, 1, 1, 5);
    field.PUTVALUE(3);
    field._SETMOVE({1, 2, 3});
    field.SETLOWER(1, 2);
    field.INVERT();
    TPOLYNAT bins;
    field.HISTOGRAM(bins);
    CHECK(bins.LENGTH == 0);
    CHECK(field.MOVE() == VZERO);
}

TEST_CASE("settings start at their defaults") {
    const T3D_SCALAR_ANALYSIS field(TAG_GRAY);
    CHECK(field.copyMethod == 1);
    CHECK(field.subMethod == 2);
    CHECK(field.diffusionMethod == 0);
    CHECK(field.connectionMethod == 0);
    CHECK(field.diffusionAngle == doctest::Approx(0.0872664626));
    CHECK(field.diffusionMax == 0.25);
    CHECK_FALSE(field.fullScan);
    CHECK(field.loadFilterOffset == 0);
    CHECK(field.loadFilterFactor == 0);
}

TEST_CASE("an unknown tag or a size below 1 is told and leaves no storage") {
    CAPTURE console;
    T3D_SCALAR_ANALYSIS field(TAG_GRAY, 2, 2, 2);
    field.INIT(148);
    CHECK(field.ID() == 0);
    field.INIT(TAG_GRAY, 2, 2, 2);
    field.INIT(TAG_GRAY, 2, 0, 2);
    CHECK(field.ID() == 0);
    CHECK(console.TEXT() == "Unknown imagefield!\nUnknown imagefield!\n");
}

TEST_CASE("PUT limits to the voxel range and rounds, one bit is set from 1 on") {
    T3D_SCALAR_ANALYSIS gray(TAG_GRAY, 2, 1, 1), mono(TAG_MONO, 2, 1, 1);
    const auto stored = [](T3D_SCALAR_ANALYSIS &field, auto value) {
        field.PUT(1, 1, 1, value);
        return field.GET(1, 1, 1);
    };
    CHECK(stored(gray, 300) == 255);
    CHECK(stored(gray, -1) == 0);
    CHECK(stored(gray, 2.5) == 2);
    CHECK(stored(gray, 3.5) == 4);
    CHECK(stored(gray, true) == 1);
    CHECK(stored(mono, 1) == 1);
    CHECK(stored(mono, 0.9) == 0);
    CHECK(stored(mono, 7) == 1);
    CHECK(stored(mono, -7) == 0);
    CHECK(stored(mono, true) == 1);
    gray.PUT(2, 1, 1);
    CHECK(gray.GET(2, 1, 1) == 255);
    gray.PUTBACKGROUND(9);
    gray.PUTZERO(2, 1, 1);
    CHECK(gray.GET(2, 1, 1) == 0);
    CHECK(gray.GET({3, 1, 1}) == 9);
}

TEST_CASE("background and value are limited, one bit takes anything above 0") {
    T3D_SCALAR_ANALYSIS full(TAG_FULLGRAY, 1, 1, 1), mono(TAG_MONO, 1, 1, 1);
    full.PUTBACKGROUND(70000);
    full.PUTVALUE(2.5);
    CHECK(full.BACKGROUND() == 65535);
    CHECK(full.VALUE() == 2);
    mono.PUTBACKGROUND(0.1);
    mono.PUTVALUE(0);
    CHECK(mono.BACKGROUND() == 1);
    CHECK(mono.VALUE() == 0);
}

TEST_CASE("the frame is kept with its inverse") {
    T3D_SCALAR_ANALYSIS field(TAG_GRAY, 4, 4, 4);
    field._SETMATRIX({{{{2, 0, 0}, {0, 4, 0}, {0, 0, 8}}}});
    field._SETMOVE({1, 2, 3});
    CHECK(field.SCALE() == VECTOR{2, 4, 8});
    CHECK(field.GETFRAME().INVERSEMATRIX()[1] == VECTOR{0, 0.25, 0});
    CHECK(field.GETFRAME().NEGATIVEMOVE() == VECTOR{-1, -2, -3});
    CHECK(field.COORD(-1, 2) == 4);
    CHECK(field.COORD(VECTOR{1, 0.5, -2}) == VECTORNAT{1, 3, 3});
}

TEST_CASE("NEW keeps the width and loses everything else") {
    const CAPTURE console;
    T3D_SCALAR_ANALYSIS field(TAG_GRAY, 2, 2, 2);
    field._SETMOVE({1, 2, 3});
    field.subMethod = 5;
    field.LABELS_PUT(3, "bone");
    field.NEW(3, 3, 3);
    CHECK(field.ID() == TAG_GRAY);
    CHECK(field.SIZE() == VECTORNAT{3, 3, 3});
    CHECK(field.MOVE() == VZERO);
    CHECK(field.subMethod == 2);
    CHECK(field.LABELS_LENGTH() == 0);
    field.NEW(0, 3, 3);
    CHECK(field.ID() == TAG_GRAY);
    CHECK(field.SIZE() == VZERONAT);
    CHECK(console.TEXT().empty());
}

TEST_CASE("a clone of a 1-bit field in a facade of 16 bits has 1 bit") {
    T3D_SCALAR_ANALYSIS source(TAG_MONO, 3, 3, 3), clone(TAG_FULLGRAY, 2, 2, 2);
    source.PUT(3, 3, 3, true);
    source._SETMOVE({4, 5, 6});
    source.subMethod = 7;
    source.loadFilterOffset = 12;
    source.diffusionMax = 0.5;
    source.fullScan = true;
    clone.CLONE(&source);
    CHECK(clone.ID() == TAG_MONO);
    CHECK(clone.GET(3, 3, 3) == 1);
    CHECK(clone.GET(2, 3, 3) == 0);
    CHECK(clone.MOVE() == VECTOR{4, 5, 6});
    CHECK(clone.subMethod == 7);
    CHECK(clone.loadFilterOffset == 12);
    CHECK(clone.diffusionMax == 0.5);
    CHECK(clone.fullScan);
    source.PUT(2, 3, 3, true);
    CHECK(clone.GET(2, 3, 3) == 0);
}

TEST_CASE("a clone of nothing is an empty field of the own width") {
    T3D_SCALAR_ANALYSIS field(TAG_GRAY, 2, 2, 2);
    const T3D_SCALAR_ANALYSIS none;
    field.subMethod = 7;
    field.CLONE(nullptr);
    CHECK(field.ID() == TAG_GRAY);
    CHECK(field.SIZE() == VZERONAT);
    CHECK(field.subMethod == 2);
    field.CLONE(&none);
    CHECK(field.ID() == TAG_GRAY);
}

TEST_CASE("a borrowed field is shared, and DONE only forgets it") {
    T3D_SCALAR_ANALYSIS owner(TAG_GRAY, 2, 2, 2), guest;
    guest.BORROW(owner);
    guest.PUT(1, 1, 1, 5);
    CHECK(owner.GET(1, 1, 1) == 5);
    guest.DONE();
    CHECK(guest.ID() == 0);
    CHECK(owner.GET(1, 1, 1) == 5);
    guest.BORROW(owner);
    guest.INIT(TAG_MONO, 1, 1, 1);
    CHECK(owner.ID() == TAG_GRAY);
    CHECK(owner.GET(1, 1, 1) == 5);
}

TEST_CASE("a point between voxels gives the nearest voxel, nothing is interpolated") {
    T3D_SCALAR_ANALYSIS field(TAG_GRAY, 3, 1, 1);
    field.PUT(1, 1, 1, 10);
    field.PUT(2, 1, 1, 20);
    field.PUT(3, 1, 1, 30);
    field._SETMATRIX({{{{2, 0, 0}, {0, 1, 0}, {0, 0, 1}}}});
    field._SETMOVE({100, 0, 0});
    CHECK(field.GET_TRILINEAR({101.5, 0.2, 0}) == 20);
    CHECK(field.GET_TRILINEAR({100.5, 0, 0}) == 10);
    CHECK(field.GET_TRILINEAR({101, 0, 0}) == 20); // 1.5 rounds to the even 2
    CHECK(field.GET_TRILINEAR({90, 0, 0}) == 0);
    field.PUTBACKGROUND(4);
    CHECK(field.GET_TRILINEAR({90, 0, 0}) == 4);
}

TEST_CASE("a line holds the voxels behind each of its steps, zeros and background too") {
    T3D_SCALAR_ANALYSIS field(TAG_GRAY, 5, 1, 1);
    for (NAT x = 1; x <= 5; ++x)
        field.PUT(x, 1, 1, 10 * x);
    field.PUT(3, 1, 1, 0);
    field.PUTBACKGROUND(7);
    TPOLYNAT line;
    field.GETLINE(5, 1, 1, 1, 1, 1, line);
    REQUIRE(line.LENGTH == 4);
    CHECK(line.GET(1) == 40);
    CHECK(line.GET(2) == 0); // entry n/2 is the middle
    CHECK(line.GET(4) == 10);
    field.GETLINE(1, 1, 1, -3, 1, 1, line);
    CHECK(line.GET(4) == 7);
    field.GETLINE(2, 1, 1, 2, 1, 1, line);
    CHECK(line.LENGTH == 0);
}

TEST_CASE("value changes follow their limits") {
    T3D_SCALAR_ANALYSIS field(TAG_GRAY, 4, 1, 1);
    for (NAT x = 1; x <= 4; ++x)
        field.PUT(x, 1, 1, 10 * x);
    field.SETLOWER(10, 1);
    field.SETVALUE({20, 30}, 2);
    field.SETHIGHER(40, 999);
    CHECK(field.GET(1, 1, 1) == 1);
    CHECK(field.GET(2, 1, 1) == 2);
    CHECK(field.GET(3, 1, 1) == 2);
    CHECK(field.GET(4, 1, 1) == 255);
    CHECK(field.MIN() == 1);
    CHECK(field.MAX() == 255);
    CHECK(field.OBJECT_SUM(2, 2) == 4);
    field.WINDOW(2, 1, 1, 3, 1, 1);
    CHECK(field.OBJECT_COUNT(0, 255) == 2);
}

TEST_CASE("a 1-bit field counts nothing and knows its extremes without looking") {
    T3D_SCALAR_ANALYSIS field(TAG_MONO, 2, 2, 2);
    field.PUT(1, 1, 1, true);
    CHECK(field.OBJECT_COUNT(0, 1) == 0);
    CHECK(field.OBJECT_SUM(0, 1) == 0);
    CHECK(field.MIN() == 0);
    CHECK(field.MIN0() == 1);
    CHECK(field.MAX() == 1);
    field.INVERT();
    CHECK(field.GET(1, 1, 1) == 0);
    CHECK(field.GET(2, 2, 2) == 1);
}

TEST_CASE("a field costs its voxels") {
    const T3D_SCALAR_ANALYSIS field(TAG_FULLGRAY, 100, 100, 100);
    CHECK(field._DISPATCH([](const auto &raster) { return raster.BYTES(); }) == 2000000);
    CHECK(sizeof(T3D_SCALAR_ANALYSIS) < 4096);
}
