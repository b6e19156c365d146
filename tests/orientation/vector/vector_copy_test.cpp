#include "orientation/vector/vector_copy.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "orientation/vector/vector_analysis.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
void FillWithPositions(T3D_VECTOR_ANALYSIS &field) {
    for (NAT z = 1; z <= field._GETSIZEZ(); ++z)
        for (NAT y = 1; y <= field._GETSIZEY(); ++y)
            for (NAT x = 1; x <= field._GETSIZEX(); ++x)
                field.PUT(x, y, z, VECTORNAT{x, y, z});
}
} // namespace

TEST_CASE("a copy of an empty field tells so") {
    CAPTURE console;
    const T3D_VECTOR_ANALYSIS source(VECTOR_FLOAT);
    T3D_VECTOR_ANALYSIS target(VECTOR_FLOAT);
    CHECK_FALSE(COPY(source, target));
    CHECK(console.TEXT() == "Error! Empty vectorfield!\n");
}

TEST_CASE("a copy keeps the kind of its target and takes size, frame and vectors") {
    T3D_VECTOR_ANALYSIS source(VECTOR_FLOAT, 2, 2, 2), target(VECTOR_INTEGER, 5, 5, 5);
    source.PUT(1, 2, 1, VECTOR{1.6, -2, 3});
    source._SETMOVE({1, 2, 3});
    CHECK(COPY(source, target));
    CHECK(target._GETID() == VECTOR_INTEGER);
    CHECK(target.SIZE() == VECTORNAT{2, 2, 2});
    CHECK(target.GETNAT(1, 2, 1) == VECTORNAT{2, -2, 3});
    CHECK(target.MOVE() == VECTOR{1, 2, 3});
}

TEST_CASE("a factor of zero is a plain copy") {
    T3D_VECTOR_ANALYSIS source(VECTOR_FLOAT, 2, 2, 2), target(VECTOR_FLOAT);
    source.PUT(2, 2, 2, VECTOR{1, 2, 3});
    CHECK(COPY(source, target, VZERO, 1));
    CHECK(target.GET(2, 2, 2) == VECTOR{1, 2, 3});
}

TEST_CASE("half the size has round(size / 2) voxels and blocks of two") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS source(VECTOR_FLOAT, 11, 2, 2), target(VECTOR_FLOAT);
    FillWithPositions(source);
    source._SETMATRIX({{{{3, 0, 0}, {0, 1, 0}, {0, 0, 1}}}});
    CHECK(COPY(source, target, {0.5, 0.5, 0.5}, 1));
    CHECK(target.SIZE() == VECTORNAT{6, 1, 1}); // 5.5 rounds to the even 6
    CHECK(target.GET(1, 1, 1) == VECTOR{1.5, 1.5, 1.5});
    CHECK(target.GET(2, 1, 1) == VECTOR{3.5, 1.5, 1.5});
    CHECK(target.GET(6, 1, 1) == VECTOR{5.5, 0.75, 0.75}); // half of it outside, which is zero
    CHECK(target.MATRIX()[0] == VECTOR{6, 0, 0});
    CHECK(console.CONTAINS("  New size: <11, 2, 2> -> <6, 1, 1>\n"));
}

TEST_CASE("a third of the size reads one voxel to each side") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS source(VECTOR_FLOAT, 9, 1, 1), target(VECTOR_FLOAT);
    FillWithPositions(source);
    CHECK(RESIZE(source, target, {3, 1, 1}, 0));
    CHECK(target.GET(1, 1, 1).x == 3);  // 0 + 1 + 2
    CHECK(target.GET(2, 1, 1).x == 12); // 3 + 4 + 5
    CHECK(target.GET(3, 1, 1).x == 21);
}

TEST_CASE("the statistic of a block goes by the copy method") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS source(VECTOR_FLOAT, 4, 1, 1), target(VECTOR_FLOAT);
    const REAL values[] = {5, 1, 9, 3};
    for (NAT i = 0; i < 4; ++i)
        source.FLOATS()[i] = {values[i], -values[i], 0};
    const auto result = [&](NAT method) {
        CHECK(COPY(source, target, {0.25, 1, 1}, method));
        return target.GET(1, 1, 1);
    };
    CHECK(result(0) == VECTOR{18, -18, 0});
    CHECK(result(1) == VECTOR{4.5, -4.5, 0});
    CHECK(result(2).x == doctest::Approx(3.415650255319866)); // sqrt(35 / 3)
    CHECK(result(3) == VECTOR{1, -9, 0});
    CHECK(result(4) == VECTOR{1, -9, 0}); // sorted position 4 / 4
    CHECK(result(5) == VECTOR{3, -5, 0}); // sorted position 4 / 2
    CHECK(result(6) == VECTOR{5, -3, 0}); // sorted position 3
    CHECK(result(7) == VECTOR{9, -1, 0});
    CHECK(result(99) == result(2));
}

TEST_CASE("a block holds the voxels themselves, whatever stands beside it") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS source(VECTOR_FLOAT, 6, 1, 1), target(VECTOR_FLOAT);
    source.PUT(1, 1, 1, VECTOR{1e18, -1e18, 0});
    source.PUT(6, 1, 1, VECTOR{0, 0, 1e18});
    for (NAT method = 0; method <= 7; ++method) {
        CHECK(COPY(source, target, {0.5, 1, 1}, method));
        CHECK(target.GET(2, 1, 1) == VZERO);
    }
}

TEST_CASE("enlarging by blocks repeats each voxel") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS source(VECTOR_FLOAT, 2, 2, 2), target(VECTOR_FLOAT);
    FillWithPositions(source);
    CHECK(COPY(source, target, {2, 2, 2}, 0));
    CHECK(target.SIZE() == VECTORNAT{4, 4, 4});
    CHECK(target.GET(1, 1, 1) == VECTOR{1, 1, 1});
    CHECK(target.GET(2, 2, 2) == VECTOR{1, 1, 1});
    CHECK(target.GET(3, 4, 1) == VECTOR{2, 2, 1});
    CHECK(target.MATRIX()[1] == VECTOR{0, 0.5, 0});
}

TEST_CASE("enlarging by method 1 interpolates between voxels") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS source(VECTOR_FLOAT, 3, 3, 3), target(VECTOR_FLOAT);
    FillWithPositions(source);
    CHECK(COPY(source, target, {2, 2, 2}, 1));
    CHECK(target.GET(1, 1, 1) == VECTOR{1, 1, 1});
    CHECK(target.GET(2, 3, 4) == VECTOR{1.5, 2, 2.5});
    CHECK(target.GET(6, 1, 1) == VECTOR{1.5, 0.5, 0.5}); // fades behind the last voxel
}

TEST_CASE("an axis that grows is interpolated while another is reduced") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS source(VECTOR_FLOAT, 2, 4, 1), target(VECTOR_FLOAT);
    FillWithPositions(source);
    CHECK(COPY(source, target, {2, 0.5, 1}, 1));
    CHECK(target.SIZE() == VECTORNAT{4, 2, 1});
    CHECK(target.GET(2, 1, 1) == VECTOR{1.5, 1.5, 1});
    CHECK(target.GET(1, 2, 1) == VECTOR{1, 3.5, 1});
}

TEST_CASE("a factor that leaves no voxel reports the empty result") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS source(VECTOR_FLOAT, 2, 2, 2), target(VECTOR_FLOAT);
    CHECK_FALSE(COPY(source, target, {-1, 1, 1}, 1));
    CHECK(console.CONTAINS("Error! Empty vectorfield (result)!\n"));
    CHECK_FALSE(COPY(source, target, {1e300, 1e300, 1e300}, 1));
}

TEST_CASE("a substack keeps global positions") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS source(VECTOR_FLOAT, 5, 5, 5), target(VECTOR_FLOAT);
    FillWithPositions(source);
    source._SETMATRIX({{{{2, 0, 0}, {0, 2, 0}, {0, 0, 2}}}});
    source._SETMOVE({100, 0, 0});
    CHECK(SUBSTACK(source, target, {2, 3, 1}, {4, -1, 2}));
    CHECK(target.SIZE() == VECTORNAT{3, 3, 2});
    CHECK(target.GET(1, 1, 1) == VECTOR{2, 3, 1});
    CHECK(target.GET(3, 3, 2) == VECTOR{4, 5, 2});
    CHECK(target.MOVE() == VECTOR{102, 4, 0});
    CHECK(console.CONTAINS("  New substack:  () <2, 3, 1>–<4, 5, 2> -> <3, 3, 2>\n"));
}

TEST_CASE("a crop by length finds the box and moves the offset") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 6, 6, 6);
    field.PUT(2, 3, 4, VECTOR{0, 2, 0});
    field.PUT(4, 3, 5, VECTOR{0, 0, 3});
    VECTORNAT a, b;
    REQUIRE(field.GETCROP({2, 3}, a, b));
    CHECK(a == VECTORNAT{2, 3, 4});
    CHECK(b == VECTORNAT{4, 3, 5});
    field.CROP({2, 3});
    CHECK(field.SIZE() == VECTORNAT{3, 1, 2});
    CHECK(field.GET(1, 1, 1) == VECTOR{0, 2, 0});
    CHECK(field.MOVE() == VECTOR{1, 2, 3});
    CHECK(console.CONTAINS("  New size: <2, 3, 4> .. <4, 3, 5> -> <3, 1, 2>\n"));
}

TEST_CASE("a crop that finds nothing leaves the field alone") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 3, 3, 3);
    field.CROP({1, 2});
    CHECK(field.SIZE() == VECTORNAT{3, 3, 3});
}

TEST_CASE("a crop by mask takes the box of the mask's values") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS source(VECTOR_FLOAT, 4, 4, 4), target(VECTOR_FLOAT);
    FillWithPositions(source);
    T3D_SCALAR_ANALYSIS mask(TAG_GRAY, 4, 4, 4);
    mask.PUT(2, 2, 2, 7);
    mask.PUT(3, 2, 2, 9);
    CHECK(CROP(source, target, mask, {7, 8}));
    CHECK(target.SIZE() == VECTORNAT{1, 1, 1});
    CHECK(target.GET(1, 1, 1) == VECTOR{2, 2, 2});
}

TEST_CASE("a moved block is written shifted and stays where it was") {
    T3D_VECTOR_ANALYSIS field(VECTOR_INTEGER, 5, 1, 1);
    FillWithPositions(field);
    MOVE(field, {1, 1, 1}, {3, 1, 1}, {1, 0, 0});
    CHECK(field.GETNAT(1, 1, 1).x == 1);
    CHECK(field.GETNAT(2, 1, 1).x == 1); // not what the first write put there
    CHECK(field.GETNAT(3, 1, 1).x == 2);
    CHECK(field.GETNAT(4, 1, 1).x == 3);
    CHECK(field.GETNAT(5, 1, 1).x == 5);
}

TEST_CASE("a move far outside writes nothing") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 3, 1, 1);
    FillWithPositions(field);
    MOVE(field, {1, 1, 1}, {3, 1, 1}, {NATMAX, 0, 0});
    MOVE(field, {1, 1, 1}, {3, 1, 1}, {NATMIN, 0, 0});
    CHECK(field.GET(1, 1, 1).x == 1);
    CHECK(field.GET(3, 1, 1).x == 3);
}

TEST_CASE("a made field is zero and has the size and the frame of the other") {
    T3D_SCALAR_ANALYSIS scalar(TAG_GRAY, 2, 3, 4);
    scalar._SETMOVE({5, 6, 7});
    T3D_VECTOR_ANALYSIS field(VECTOR_24BIT), other(VECTOR_FLOAT);
    CHECK(MAKE(scalar, field));
    CHECK(field.SIZE() == VECTORNAT{2, 3, 4});
    CHECK(field.MOVE() == VECTOR{5, 6, 7});
    CHECK(MAKE(field, other));
    CHECK(other.SIZE() == VECTORNAT{2, 3, 4});
    T3D_SCALAR_ANALYSIS back(TAG_GRAY);
    CHECK(MAKE(other, back));
    CHECK(back.SIZE() == VECTORNAT{2, 3, 4});
    CHECK(back.MOVE() == VECTOR{5, 6, 7});
}
