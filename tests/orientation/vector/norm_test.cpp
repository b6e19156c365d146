#include "orientation/vector/vector_analysis.hpp"

#include "support/capture.hpp"

#include <doctest/doctest.h>
#include <limits>

using namespace morvane;

namespace {
constexpr BYTE KINDS[] = {VECTOR_FLOAT, VECTOR_INTEGER, VECTOR_24BIT};

T3D_VECTOR_ANALYSIS &Single(T3D_VECTOR_ANALYSIS &field, const VECTOR &value) {
    field.PUT(1, 1, 1, value);
    return field;
}
} // namespace

TEST_CASE("NORM gives unit length in a float field") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 1, 1, 1);
    Single(field, {3, 0, -4}).NORM();
    CHECK(field.GET(1, 1, 1) == VECTOR{3.0 / 5, 0, -4.0 / 5});
}

TEST_CASE("NORM of a 24-bit field gives components up to 255") {
    T3D_VECTOR_ANALYSIS field(VECTOR_24BIT, 2, 1, 1);
    Single(field, {3, 0, 4}).NORM();
    CHECK(field.GET(1, 1, 1) == VECTOR{153, 0, 204}); // 255 * 3/5 and 255 * 4/5
    CHECK(field.GET(2, 1, 1) == VZERO);
    Single(field, {0, 9, 0}).NORM();
    CHECK(field.GET(1, 1, 1) == VECTOR{0, 255, 0});
}

TEST_CASE("NORM scales an integer field by 2^64, so that most components end at the limit") {
    T3D_VECTOR_ANALYSIS field(VECTOR_INTEGER, 3, 1, 1);
    field.PUT(1, 1, 1, VECTORNAT{3, 0, -4});
    field.PUT(2, 1, 1, VECTORNAT{1, 1000, 0});
    field.NORM();
    CHECK(field.GETNAT(1, 1, 1) == VECTORNAT{NATMAX, 0, NATMIN});
    CHECK(field.GETNAT(2, 1, 1).y == NATMAX);
    // 2^64 / sqrt(1000001), still below the limit
    CHECK(static_cast<REAL>(field.GETNAT(2, 1, 1).x) == doctest::Approx(1.8446734850e16));
    CHECK(field.GETNAT(3, 1, 1) == VZERONAT);
}

TEST_CASE("the zero vector stays zero in every member of the norm family") {
    for (const BYTE kind : KINDS) {
        T3D_VECTOR_ANALYSIS field(kind, 2, 2, 2);
        field.NORM();
        field.MINNORM();
        field.MAXNORM();
        field.NORM_RELATIVE();
        field.SETLENGTH(-3);
        field.SETLENGTH_RELATIVE(-3);
        CHECK(field.COUNT(VZERO) == 8);
    }
}

TEST_CASE("MINNORM and MAXNORM divide by the smallest and the largest component") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 1, 1, 1);
    Single(field, {2, 4, 8}).MINNORM();
    CHECK(field.GET(1, 1, 1) == VECTOR{1, 2, 4});
    Single(field, {2, 4, 8}).MAXNORM();
    CHECK(field.GET(1, 1, 1) == VECTOR{0.25, 0.5, 1});
    Single(field, {0, 4, 8}).MINNORM();
    CHECK(field.GET(1, 1, 1) == VZERO);
    Single(field, {-1, -4, 0}).MAXNORM();
    CHECK(field.GET(1, 1, 1) == VZERO);
}

TEST_CASE("NORM_RELATIVE divides by the longest vector of the field") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 1, 1);
    field.PUT(1, 1, 1, VECTOR{0, 3, 4});
    field.PUT(2, 1, 1, VECTOR{10, 0, 0});
    field.NORM_RELATIVE();
    CHECK(field.GET(1, 1, 1) == VECTOR{0, 0.3, 0.4});
    CHECK(field.GET(2, 1, 1) == VECTOR{1, 0, 0});
}

TEST_CASE("SETLENGTH gives each vector the length, without the scaling of NORM") {
    T3D_VECTOR_ANALYSIS field(VECTOR_INTEGER, 2, 1, 1);
    Single(field, {3, 0, 4}).SETLENGTH(10);
    CHECK(field.GETNAT(1, 1, 1) == VECTORNAT{6, 0, 8});
    CHECK(field.GETNAT(2, 1, 1) == VZERONAT);
}

TEST_CASE("SETLENGTH 2 on a zero vector gives a zero vector") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 1, 1, 1);
    field.SETLENGTH(2);
    CHECK(field.GET(1, 1, 1) == VZERO);
}

TEST_CASE("SETLENGTH_RELATIVE gives the longest vector the length") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 1, 1);
    field.PUT(1, 1, 1, VECTOR{4, 0, 0});
    field.PUT(2, 1, 1, VECTOR{0, 1, 0});
    field.SETLENGTH_RELATIVE(8);
    CHECK(field.GET(1, 1, 1) == VECTOR{8, 0, 0});
    CHECK(field.GET(2, 1, 1) == VECTOR{0, 2, 0});
}

TEST_CASE("ERASELENGTH_MIN keeps a vector of exactly the length") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 1, 1);
    field.PUT(1, 1, 1, VECTOR{0, 2, 0});
    field.PUT(2, 1, 1, VECTOR{0, 1.999, 0});
    field.ERASELENGTH_MIN(2);
    CHECK(field.GET(1, 1, 1) == VECTOR{0, 2, 0});
    CHECK(field.GET(2, 1, 1) == VZERO);
}

TEST_CASE("ERASELENGTH_MAX erases longer vectors only") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 1, 1);
    field.PUT(1, 1, 1, VECTOR{0, 2, 0});
    field.PUT(2, 1, 1, VECTOR{0, 2.001, 0});
    field.ERASELENGTH_MAX(2);
    CHECK(field.GET(1, 1, 1) == VECTOR{0, 2, 0});
    CHECK(field.GET(2, 1, 1) == VZERO);
}

TEST_CASE("erasing does not touch whole numbers above 2^53 that stay") {
    T3D_VECTOR_ANALYSIS field(VECTOR_INTEGER, 1, 1, 1);
    field.PUT(1, 1, 1, VECTORNAT{NATMAX - 1, 0, 0});
    field.ERASELENGTH_MIN(5);
    CHECK(field.GETNAT(1, 1, 1).x == NATMAX - 1);
}

TEST_CASE("DIRECTION turns every vector into the half space of (1,1,1)") {
    T3D_VECTOR_ANALYSIS field(VECTOR_INTEGER, 3, 1, 1);
    field.PUT(1, 1, 1, VECTORNAT{-5, 1, 0});
    field.PUT(2, 1, 1, VECTORNAT{5, -1, 0});
    field.PUT(3, 1, 1, VECTORNAT{NATMIN, 0, 0});
    field.DIRECTION();
    CHECK(field.GETNAT(1, 1, 1) == VECTORNAT{5, -1, 0});
    CHECK(field.GETNAT(2, 1, 1) == VECTORNAT{5, -1, 0});
}

TEST_CASE("INVERSE inverts the components of a float field and leaves the other kinds alone") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 1, 1, 1), whole(VECTOR_INTEGER, 1, 1, 1);
    Single(field, {2, 0, -4}).INVERSE();
    CHECK(field.GET(1, 1, 1) == VECTOR{0.5, 0, -0.25});
    Single(whole, {2, 0, -4}).INVERSE();
    CHECK(whole.GET(1, 1, 1) == VECTOR{2, 0, -4});
}

TEST_CASE("vectors that are no numbers or infinite have no direction") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 1, 1);
    field.PUT(1, 1, 1, VECTOR{std::numeric_limits<REAL>::quiet_NaN(), 0, 0});
    field.PUT(2, 1, 1, VECTOR{REALMAX, 0, 0});
    field.NORM();
    CHECK(field.COUNT(VZERO) == 2);
}
