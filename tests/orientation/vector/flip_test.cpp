#include "orientation/vector/vector_analysis.hpp"

#include "support/capture.hpp"

#include <cmath>
#include <doctest/doctest.h>

using namespace morvane;

namespace {
void Fill(T3D_VECTOR_ANALYSIS &field) {
    NAT n = 0;
    for (NAT z = 1; z <= field._GETSIZEZ(); ++z)
        for (NAT y = 1; y <= field._GETSIZEY(); ++y)
            for (NAT x = 1; x <= field._GETSIZEX(); ++x, ++n)
                field.PUT(x, y, z, VECTORNAT{n + 1, n + 2, n + 3});
}
} // namespace

TEST_CASE("a flip swaps the voxels of an axis and negates its component") {
    CAPTURE console;
    for (const BYTE kind : {VECTOR_FLOAT, VECTOR_INTEGER}) {
        T3D_VECTOR_ANALYSIS field(kind, 2, 2, 2);
        Fill(field);
        field.FLIPX();
        CHECK(field.GET(1, 1, 1) == VECTOR{-2, 3, 4});
        CHECK(field.GET(2, 1, 1) == VECTOR{-1, 2, 3});
        Fill(field);
        field.FLIPY();
        CHECK(field.GET(1, 1, 1) == VECTOR{3, -4, 5});
        Fill(field);
        field.FLIPZ();
        CHECK(field.GET(1, 1, 1) == VECTOR{5, 6, -7});
    }
}

TEST_CASE("a flip shows its label") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    CAPTURE console;
    field.FLIPX();
    field.FLIPY();
    field.FLIPZ();
    CHECK(console.CONTAINS("Flip x. 100 % ready"));
    CHECK(console.CONTAINS("Flip y. 100 % ready"));
    CHECK(console.CONTAINS("Flip z. 100 % ready"));
}

TEST_CASE("a flip applied twice restores a field of even size") {
    CAPTURE console;
    for (const BYTE kind : {VECTOR_FLOAT, VECTOR_INTEGER, VECTOR_24BIT}) {
        T3D_VECTOR_ANALYSIS field(kind, 4, 2, 2), old;
        Fill(field);
        old.CLONE(field);
        field.FLIPX();
        CHECK_FALSE(field.GET(1, 1, 1) == old.GET(1, 1, 1));
        field.FLIPX();
        for (NAT x = 1; x <= 4; ++x)
            for (NAT y = 1; y <= 2; ++y)
                CHECK(field.GET(x, y, 2) == old.GET(x, y, 2));
    }
}

TEST_CASE("the middle plane of an odd size is not touched by a flip and keeps its signs") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 3, 3, 3);
    Fill(field);
    const VECTOR middle = field.GET(2, 2, 2);
    field.FLIPX();
    field.FLIPY();
    field.FLIPZ();
    CHECK(field.GET(2, 2, 2) == middle);
}

TEST_CASE("a flip of a 24-bit field swaps the voxels but negates no component") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_24BIT, 2, 1, 1);
    Fill(field);
    field.FLIPX();
    CHECK(field.GET(1, 1, 1) == VECTOR{2, 3, 4});
    CHECK(field.GET(2, 1, 1) == VECTOR{1, 2, 3});
}

TEST_CASE("a flipped zero vector has no negative zero") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 1, 1);
    field.FLIPX();
    CHECK_FALSE(std::signbit(field.GET(1, 1, 1).x));
}
