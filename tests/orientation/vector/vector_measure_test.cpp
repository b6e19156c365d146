#include "orientation/vector/vector_measure.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "geometry/model/cloud.hpp"
#include "orientation/vector/vector_analysis.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("components and length go rounded and limited into the scalar field") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    field._SETMOVE({1, 2, 3});
    field.PUT(1, 1, 1, VECTOR{300, -4, 2.5});
    field.PUT(2, 1, 1, VECTOR{0, 3, 4});
    T3D_SCALAR_ANALYSIS target(TAG_GRAY);
    CHECK(GET_X(field, target));
    CHECK(console.CONTAINS("  Assigned scalar field (2x2x2) updated.\n"));
    CHECK(target.GET(1, 1, 1) == 255);
    CHECK(target.MOVE() == VECTOR{1, 2, 3});
    CHECK(GET_Y(field, target));
    CHECK(target.GET(1, 1, 1) == 0);
    CHECK(target.GET(2, 1, 1) == 3);
    CHECK(GET_Z(field, target));
    CHECK(target.GET(1, 1, 1) == 2);
    CHECK(GET_LENGTH(field, target));
    CHECK(target.GET(2, 1, 1) == 5);
}

TEST_CASE("a scalar field of the right size keeps its storage") {
    CAPTURE console;
    const T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    T3D_SCALAR_ANALYSIS target(TAG_GRAY, 2, 2, 2);
    CHECK(GET_X(field, target));
    CHECK_FALSE(console.CONTAINS("Assigned"));
}

TEST_CASE("an empty vector field gives no measure") {
    CAPTURE console;
    const T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT);
    T3D_SCALAR_ANALYSIS target(TAG_GRAY, 2, 2, 2);
    TCLOUD cloud;
    CHECK_FALSE(GET_LENGTH(field, target));
    CHECK_FALSE(VECTOR_LINE(field, cloud));
    CHECK(console.TEXT() == "Error! Empty vectorfield!\nError! Empty vectorfield!\n");
}

TEST_CASE("angles are in degrees, 0 for a zero vector") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    field.PUT(1, 1, 1, VECTOR{-2, 0, 0});
    field.PUT(2, 1, 1, VECTOR{0, 7, 0});
    T3D_SCALAR_ANALYSIS target(TAG_FULLGRAY);
    CHECK(GET_ANGLE(field, {1, 0, 0}, target));
    CHECK(target.GET(1, 1, 1) == 180);
    CHECK(target.GET(2, 1, 1) == 90);
    CHECK(target.GET(1, 2, 1) == 0);
}

TEST_CASE("the full angle goes round, by the side of the normal") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 1, 1);
    field.PUT(1, 1, 1, VECTOR{0, 1, 0});
    field.PUT(2, 1, 1, VECTOR{0, -1, 0});
    T3D_SCALAR_ANALYSIS target(TAG_FULLGRAY);
    CHECK(GET_FULLANGLE(field, {1, 0, 0}, {0, 1, 0}, target));
    CHECK(target.GET(1, 1, 1) == 90);
    CHECK(target.GET(2, 1, 1) == 270);
}

TEST_CASE("the factor distance is 0 for a constant field and grows with its changes") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    CHECK(FACTOR_DISTANCE(field) == 0);
    for (NAT i = 0; i < 8; ++i)
        field.FLOATS()[i] = {2, 0, 0};
    CHECK(FACTOR_DISTANCE(field) == 0);
    for (NAT i = 0; i < 8; i += 2)
        field.FLOATS()[i] = {-2, 0, 0};
    // 4 of 12 pairs lie along x and differ by 4; the mean length is 2
    CHECK(FACTOR_DISTANCE(field) == doctest::Approx(4.0 / 12 * 4 / 2));
}

TEST_CASE("zero vectors have no distance to their neighbours") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 3, 1, 1);
    field.PUT(1, 1, 1, VECTOR{5, 0, 0});
    field.PUT(3, 1, 1, VECTOR{0, 5, 0});
    CHECK(FACTOR_DISTANCE(field) == 0);
}

TEST_CASE("each vector that is not zero becomes a line of two points") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 3, 2, 2);
    field._SETMATRIX({{{{2, 0, 0}, {0, 2, 0}, {0, 0, 2}}}});
    field._SETMOVE({10, 0, 0});
    field.PUT(2, 1, 1, VECTOR{1, 2, 3});
    field.PUT(3, 2, 2, VECTOR{0, 0, -1});
    TCLOUD cloud;
    CHECK(VECTOR_LINE(field, cloud));
    REQUIRE(cloud.GETOBJECTLENGTH() == 1);
    CHECK(cloud.GETNAME(1) == UTF16("Vectors"));
    REQUIRE(cloud.GETLINELENGTH() == 2);
    CHECK(cloud.GETLINE(1, 1) == HYPER{12, 0, 0, 0});
    CHECK(cloud.GETLINE(1, 2) == HYPER{13, 2, 3, 0});
    CHECK(cloud.GETLINE(2, 1) == HYPER{14, 2, 2, 0});
    CHECK(cloud.GETLINE(2, 2) == HYPER{14, 2, 1, 0});
    CHECK(cloud.GETALLMATERIAL(2) == 2);
    CHECK(cloud.offset == HYPER{10, 0, 0, 0});
    CHECK(cloud.scale == HYPER{2, 2, 2, 1});
    CHECK(cloud.dimension == HYPER{3, 2, 2, 1});
}

TEST_CASE("a field without vectors makes no object") {
    CAPTURE console;
    const T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    TCLOUD cloud;
    CHECK(VECTOR_LINE(field, cloud));
    CHECK(cloud.GETPOINTLENGTH() == 0);
    CHECK(cloud.GETOBJECTLENGTH() == 0);
}
