#include "field3d/raster/frame.hpp"

#include "foundation/base/record_operators.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// Voxels of 2 x 3 x 4 units, the first at <10, 0, 0>.
FRAME SCALED() {
    FRAME frame;
    frame.SETSCALE({2, 3, 4});
    frame.SETMOVE({10, 0, 0});
    return frame;
}
} // namespace

TEST_CASE("a new frame puts voxel <1,1,1> at the global origin") {
    const FRAME frame;
    CHECK(frame.L2G({1, 1, 1}) == VZERO);
    CHECK(frame.L2G({3, 2, 1}) == VECTOR{2, 1, 0});
    CHECK(frame.G2L_ROUND({2, 1, 0}) == VECTORNAT{3, 2, 1});
}

TEST_CASE("local and global points follow scale and offset") {
    CHECK(SCALED().L2G({2, 1, 1}) == VECTOR{12, 0, 0});
    CHECK(SCALED().G2L_ROUND({12, 0, 0}) == VECTORNAT{2, 1, 1});
}

TEST_CASE("the rows of the matrix are the steps of the local axes") {
    FRAME frame;
    frame.SETMATRIX({{{{0, 2, 0}, {0, 0, 3}, {5, 0, 0}}}});
    frame.SETMOVE({1, 1, 1});
    CHECK(frame.L2G({2, 1, 1}) == VECTOR{1, 3, 1});
    CHECK(frame.L2G({1, 2, 1}) == VECTOR{1, 1, 4});
    CHECK(frame.G2L_ROUND({6, 1, 1}) == VECTORNAT{1, 1, 2});
    CHECK(frame.SCALE() == VECTOR{2, 3, 5});
}

TEST_CASE("global to local rounds to nearest with ties to even and does not clamp") {
    const FRAME frame;
    CHECK(frame.G2L_ROUND({0.5, 1.5, -20}) == VECTORNAT{2, 2, -19});
}

TEST_CASE("a scale is stored by its absolute values, a factor keeps its sign") {
    FRAME frame;
    frame.SETSCALE({-2, 3, 4});
    CHECK(frame.MATRIX()[0] == VECTOR{2, 0, 0});
    frame.MULSCALE({-1, 1, 1});
    CHECK(frame.MATRIX()[0] == VECTOR{-2, 0, 0});
    CHECK(frame.SCALE() == VECTOR{2, 3, 4});
}

TEST_CASE("a zero vector as scale or factor leaves the matrix alone") {
    FRAME frame = SCALED();
    frame.SETSCALE(VZERO);
    frame.MULSCALE(VZERO);
    CHECK(frame.SCALE() == VECTOR{2, 3, 4});
}

TEST_CASE("norm gives rows of unit length, unflip positive elements, unrotate a diagonal") {
    FRAME frame;
    frame.SETMATRIX({{{{0, -4, 3}, {2, 0, 0}, {0, 0, 1}}}});
    FRAME norm = frame, unflip = frame, unrotate = frame;
    norm.NORMSCALE();
    CHECK(norm.MATRIX()[0] == VECTOR{0, -0.8, 0.6});
    unflip.UNFLIP();
    CHECK(unflip.MATRIX()[0] == VECTOR{0, 4, 3});
    unrotate.UNROTATE();
    CHECK(unrotate.MATRIX()[0] == VECTOR{5, 0, 0});
    CHECK(unrotate.MATRIX()[1] == VECTOR{0, 2, 0});
}

TEST_CASE("centre moves the field by half its size in global units") {
    FRAME frame = SCALED();
    frame.CENTER({10, 20, 30});
    CHECK(frame.MOVE() == VECTOR{-10, -30, -60});
    CHECK(frame.NEGATIVEMOVE() == VECTOR{10, 30, 60});
}

TEST_CASE("a matrix with a zero row is told and becomes the identity") {
    CAPTURE console;
    FRAME frame;
    frame.SETMATRIX_CHECKED({{{{1, 0, 0}, {0, 0, 0}, {0, 0, 1}}}});
    CHECK(console.TEXT() == "Error! Wrong matrix (<1, 0, 0>;<0, 0, 0>;<0, 0, 1>) -> "
                            "(<1,0,0>;<0,1,0>;<0,0,1>).\n");
    CHECK(frame.MATRIX()[1] == VECTOR{0, 1, 0});
}

TEST_CASE("a position counts from both ends of the axis, absolute or as a fraction") {
    CHECK(COORD(0.0, 11) == 6);
    CHECK(COORD(0.5, 11) == 6);
    CHECK(COORD(1.0, 11) == 1);
    CHECK(COORD(-1.0, 11) == 11);
    CHECK(COORD(-2.0, 11) == 10);
    CHECK(COORD(-0.5, 11) == 6);
    CHECK(COORD(0.1, 11) == 2);
    CHECK(COORD(-0.1, 11) == 10);
    CHECK(COORD(0.0, 4) == 3); // 1.5 rounds to the even 2
}

TEST_CASE("a position beyond the field lands in its middle, not on its edge") {
    CHECK(COORD(12.0, 11) == 5);
    CHECK(COORD(-12.0, 11) == 5);
    CHECK(COORD(0.5, 1) == 1);
    CHECK(COORD(2.0, 1) == 0);
    CHECK(COORD(1e300, 11) == 5);
}

TEST_CASE("the middle of a large axis is taken in single precision") {
    CHECK(COORD(0.0, 33554437) == 16777219); // 33554436 is a float, its half as well
    CHECK(COORD(0.0, 33554438) == 16777219); // 33554437 rounds to the float 33554436
}

TEST_CASE("the rule of positions works on each axis of a vector") {
    CHECK(COORD(VECTOR{0, 1, -1}, {11, 5, 3}) == VECTORNAT{6, 1, 3});
}
