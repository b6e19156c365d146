#include "orientation/vector/vector_analysis.hpp"

#include "support/capture.hpp"

#include <doctest/doctest.h>
#include <limits>

using namespace morvane;

TEST_CASE("an angle is never above pi, so every vector is near the background and cleanup "
          "changes nothing") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 3, 1, 1);
    field.BACKGROUND = {1, 0, 0};
    field.PUT(1, 1, 1, VECTOR{-5, 0, 0}); // angle pi
    field.PUT(2, 1, 1, VECTOR{0, 2, 0});
    field.CLEANUP();
    CHECK(field.GET(1, 1, 1) == VECTOR{-5, 0, 0});
    CHECK(field.GET(2, 1, 1) == VECTOR{0, 2, 0});
    CHECK(field.GET(3, 1, 1) == VZERO);
}

TEST_CASE("cleanup leaves a vector that is no number as it is") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 1, 1, 1);
    field.BACKGROUND = {1, 0, 0};
    field.PUT(1, 1, 1, VECTOR{std::numeric_limits<REAL>::quiet_NaN(), 1, 0});
    field.CLEANUP();
    CHECK(field.GET(1, 1, 1).y == 1);
}

TEST_CASE("the background is the most frequent vector on the faces") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 3, 3, 3);
    for (NAT i = 0; i < 27; ++i)
        field.FLOATS()[i] = {static_cast<REAL>(i), 0, 0};
    field.PUT(1, 1, 1, VECTOR{0, 7, 0});
    field.PUT(3, 2, 2, VECTOR{0, 7, 0});
    field.GETBACKGROUND();
    CHECK(field.BACKGROUND == VECTOR{0, 7, 0});
}

TEST_CASE("of equally frequent vectors the lowest is the background") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 1, 1);
    field.PUT(1, 1, 1, VECTOR{3, 0, 0});
    field.PUT(2, 1, 1, VECTOR{-3, 0, 0});
    field.GETBACKGROUND();
    CHECK(field.BACKGROUND == VECTOR{-3, 0, 0});
}

TEST_CASE("the inside of a field does not count for its background") {
    T3D_VECTOR_ANALYSIS field(VECTOR_INTEGER, 7, 7, 7);
    for (NAT z = 2; z <= 6; ++z)
        for (NAT y = 2; y <= 6; ++y)
            for (NAT x = 2; x <= 6; ++x)
                field.PUT(x, y, z, VECTOR{9, 9, 9});
    field.GETBACKGROUND(); // 125 inside, 218 on the faces
    CHECK(field.BACKGROUND == VZERO);
    field.PUT(1, 1, 1, VECTOR{1, 1, 1});
    field.GETBACKGROUND();
    CHECK(field.BACKGROUND == VZERO);
}

TEST_CASE("an outlier becomes the median of its neighbourhood, component by component") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 3, 3, 3);
    for (NAT i = 0; i < 27; ++i)
        field.FLOATS()[i] = {1, static_cast<REAL>(i % 3), 4};
    field.PUT(2, 2, 2, VECTOR{100, 1, 4});
    CHECK(field.REMOVE_OUTLIERS(1.5) == 1);
    CHECK(field.GET(2, 2, 2) == VECTOR{1, 1, 4});
}

TEST_CASE("voxels on the faces are never outliers") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 3, 3, 3);
    field.PUT(1, 2, 2, VECTOR{100, 0, 0});
    CHECK(field.REMOVE_OUTLIERS(0) == 0);
    CHECK(field.GET(1, 2, 2) == VECTOR{100, 0, 0});
}
