#include "geometry/mapping/line_draw.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "geometry/model/cloud.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// Voxels above 0 of a field.
NAT DRAWN(const T3D_SCALAR_ANALYSIS &field) { return field.OBJECT_COUNT(1, 65535); }

// A cloud of one line through points given in voxels of an identity frame.
void LINE_THROUGH(TCLOUD &cloud, std::initializer_list<HYPER> voxels) {
    for (const HYPER &p : voxels)
        cloud.NEWPOINT({p.x - 1, p.y - 1, p.z - 1, p.w});
    cloud.NEWLINE(1);
    cloud.NEWOBJECT("object");
}
} // namespace

TEST_CASE("points are drawn at their voxels in the field's frame") {
    T3D_SCALAR_ANALYSIS field(150, 5, 5, 5);
    FRAME frame;
    frame.SETSCALE({2, 2, 2});
    frame.SETMOVE({100, 0, 0});
    field.SETFRAME(frame);
    TCLOUD cloud;
    cloud.NEWPOINT({104, 2, 0, 7}); // voxel (3, 2, 1)
    cloud.NEWLINE(1);
    DRAW_POINTS(cloud, field, DRAW_GREY::T, false);
    CHECK(field.GET(3, 2, 1) == 7);
    CHECK(DRAWN(field) == 1);
}

TEST_CASE("the grey value is the field's value, its product with t, or t, limited to the range") {
    TCLOUD cloud;
    LINE_THROUGH(cloud, {{1, 1, 1, 3}, {2, 1, 1, 300}, {3, 1, 1, -5}});
    T3D_SCALAR_ANALYSIS field(150, 3, 1, 1);
    field.PUTVALUE(20);
    DRAW_POINTS(cloud, field, DRAW_GREY::VALUE, false);
    CHECK(field.GET(1, 1, 1) == 20);
    DRAW_POINTS(cloud, field, DRAW_GREY::VALUE_T, false);
    CHECK(field.GET(1, 1, 1) == 60);
    DRAW_POINTS(cloud, field, DRAW_GREY::T, false);
    CHECK(field.GET(1, 1, 1) == 3);
    CHECK(field.GET(2, 1, 1) == 255);
    CHECK(field.GET(3, 1, 1) == 0);
}

TEST_CASE("a solid point covers 27 voxels, fewer at the border") {
    TCLOUD cloud;
    LINE_THROUGH(cloud, {{3, 3, 3, 1}});
    T3D_SCALAR_ANALYSIS field(150, 5, 5, 5);
    DRAW_POINTS(cloud, field, DRAW_GREY::VALUE, true);
    CHECK(DRAWN(field) == 27);
    TCLOUD corner;
    LINE_THROUGH(corner, {{1, 1, 1, 1}});
    T3D_SCALAR_ANALYSIS other(150, 5, 5, 5);
    DRAW_POINTS(corner, other, DRAW_GREY::VALUE, true);
    CHECK(DRAWN(other) == 8);
}

TEST_CASE("a ball of radius 1 has 7 voxels and its shell the 6 around the middle") {
    TCLOUD cloud;
    LINE_THROUGH(cloud, {{4, 4, 4, 1}});
    T3D_SCALAR_ANALYSIS solid(150, 7, 7, 7), shell(150, 7, 7, 7);
    DRAW_SPHERES(cloud, solid, DRAW_GREY::VALUE, 1, true);
    DRAW_SPHERES(cloud, shell, DRAW_GREY::VALUE, 1, false);
    CHECK(DRAWN(solid) == 7);
    CHECK(DRAWN(shell) == 6);
    CHECK(shell.GET(4, 4, 4) == 0);
}

TEST_CASE("a cube of radius 2 has 125 voxels and 98 on its faces") {
    TCLOUD cloud;
    LINE_THROUGH(cloud, {{4, 4, 4, 1}});
    T3D_SCALAR_ANALYSIS solid(150, 7, 7, 7), faces(150, 7, 7, 7);
    DRAW_CUBES(cloud, solid, DRAW_GREY::VALUE, 2, true);
    DRAW_CUBES(cloud, faces, DRAW_GREY::VALUE, 2, false);
    CHECK(DRAWN(solid) == 125);
    CHECK(DRAWN(faces) == 125 - 27);
}

TEST_CASE("a segment is drawn without gaps and t changes evenly along it") {
    TCLOUD cloud;
    LINE_THROUGH(cloud, {{1, 1, 1, 10}, {5, 3, 1, 50}});
    T3D_SCALAR_ANALYSIS field(150, 6, 6, 1);
    DRAW_LINES(cloud, field, DRAW_GREY::T, false, false);
    CHECK(DRAWN(field) == 5); // one voxel a column
    CHECK(field.GET(1, 1, 1) == 10);
    CHECK(field.GET(3, 2, 1) == 30);
    CHECK(field.GET(5, 3, 1) == 50);
}

TEST_CASE("a line of one point is drawn only where points are wanted") {
    TCLOUD cloud;
    LINE_THROUGH(cloud, {{2, 2, 1, 1}});
    T3D_SCALAR_ANALYSIS field(150, 3, 3, 1);
    DRAW_LINES(cloud, field, DRAW_GREY::VALUE, false, false);
    CHECK(DRAWN(field) == 0);
    DRAW_LINES(cloud, field, DRAW_GREY::VALUE, true, false);
    CHECK(DRAWN(field) == 1);
}

TEST_CASE("a segment that leaves the field far away is cut and ends in time") {
    TCLOUD cloud;
    LINE_THROUGH(cloud, {{-1e15, 2, 1, 1}, {1e15, 2, 1, 1}});
    T3D_SCALAR_ANALYSIS field(150, 9, 3, 1);
    DRAW_LINES(cloud, field, DRAW_GREY::VALUE, true, false);
    CHECK(DRAWN(field) == 9);
    TCLOUD beside;
    LINE_THROUGH(beside, {{-1e15, 900, 1, 1}, {1e15, 900, 1, 1}});
    T3D_SCALAR_ANALYSIS other(150, 9, 3, 1);
    DRAW_LINES(beside, other, DRAW_GREY::VALUE, true, false);
    CHECK(DRAWN(other) == 0);
}

TEST_CASE("radii beyond the field, below zero and without a number are harmless") {
    TCLOUD cloud;
    LINE_THROUGH(cloud, {{2, 2, 2, 1}});
    for (REAL radius : {1e300, -1.0, std::numeric_limits<REAL>::quiet_NaN()}) {
        T3D_SCALAR_ANALYSIS field(150, 3, 3, 3);
        DRAW_SPHERES(cloud, field, DRAW_GREY::VALUE, radius, true);
        DRAW_CUBES(cloud, field, DRAW_GREY::VALUE, radius, true);
        CHECK(DRAWN(field) == (radius > 0 ? 27 : 0));
    }
}

TEST_CASE("an empty field and an empty cloud are left alone") {
    TCLOUD cloud;
    LINE_THROUGH(cloud, {{1, 1, 1, 1}});
    T3D_SCALAR_ANALYSIS empty(150);
    DRAW_LINES(cloud, empty, DRAW_GREY::VALUE, true, true);
    CHECK(!empty.ISNOTEMPTY());
    T3D_SCALAR_ANALYSIS field(149, 2, 2, 2);
    TCLOUD nothing;
    DRAW_POINTS(nothing, field, DRAW_GREY::VALUE, true);
    CHECK(field.GET(1, 1, 1) == 0);
    DRAW_POINTS(cloud, field, DRAW_GREY::VALUE, false);
    CHECK(field.GET(1, 1, 1) == 1);
}
