#include "orientation/vector/vector_arithmetic.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "orientation/vector/vector_analysis.hpp"
#include "support/capture.hpp"

#include <cmath>
#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a constant is added to and multiplied with every vector") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 1, 1);
    field.PUT(1, 1, 1, VECTOR{1, 2, 3});
    ADD(field, {1, 1, 1});
    CHECK(field.GET(1, 1, 1) == VECTOR{2, 3, 4});
    CHECK(field.GET(2, 1, 1) == VECTOR{1, 1, 1});
    MUL(field, {2, -1, 0});
    CHECK(field.GET(1, 1, 1) == VECTOR{4, -3, 0});
}

TEST_CASE("a zero vector times a negative number is zero without a sign") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 1, 1, 1);
    MUL(field, {-1, -1, -1});
    CHECK_FALSE(std::signbit(field.GET(1, 1, 1).x));
}

TEST_CASE("two fields give their sum, difference and mean in a new field of the larger size") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS a(VECTOR_FLOAT, 2, 1, 1), b(VECTOR_FLOAT, 1, 3, 1);
    a.PUT(1, 1, 1, VECTOR{1, 2, 3});
    b.PUT(1, 1, 1, VECTOR{10, 20, 30});
    b.PUT(1, 3, 1, VECTOR{4, 4, 4});
    a._SETMOVE({9, 9, 9});
    T3D_VECTOR_ANALYSIS sum(VECTOR_FLOAT), difference(VECTOR_FLOAT), mean(VECTOR_FLOAT);
    CHECK(ADD(sum, a, b));
    CHECK(SUB(difference, a, b));
    CHECK(MEAN(mean, a, b));
    CHECK(sum.SIZE() == VECTORNAT{2, 3, 1});
    CHECK(sum.MOVE() == VECTOR{9, 9, 9});
    CHECK(sum.GET(1, 1, 1) == VECTOR{11, 22, 33});
    CHECK(sum.GET(1, 3, 1) == VECTOR{4, 4, 4});
    CHECK(difference.GET(1, 1, 1) == VECTOR{-9, -18, -27});
    CHECK(mean.GET(1, 1, 1) == VECTOR{5.5, 11, 16.5});
    CHECK(console.CONTAINS("  Summation. 100 % ready"));
    CHECK(console.CONTAINS("  Subtraction. 100 % ready"));
    CHECK(console.CONTAINS("  Averaging. 100 % ready"));
}

TEST_CASE("a target that is not empty is told and written as it stands") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS a(VECTOR_FLOAT, 2, 2, 2), target(VECTOR_FLOAT, 1, 1, 1);
    a.PUT(1, 1, 1, VECTOR{1, 2, 3});
    CHECK(ADD(target, a, a));
    CHECK(console.CONTAINS("Attention, target vector field seems not to be empty!\n"));
    CHECK(target.SIZE() == VECTORNAT{1, 1, 1});
    CHECK(target.GET(1, 1, 1) == VECTOR{2, 4, 6});
}

TEST_CASE("an empty operand tells so and leaves the target") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS a(VECTOR_FLOAT, 2, 2, 2), none(VECTOR_FLOAT), target(VECTOR_FLOAT);
    CHECK_FALSE(ADD(target, a, none));
    CHECK(console.TEXT() == "Error! Empty vectorfield!\n");
    CHECK_FALSE(target.ISNOTEMPTY());
}

TEST_CASE("a mask keeps the vectors at its values, 0 among them") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS source(VECTOR_FLOAT, 3, 1, 1), target(VECTOR_FLOAT), zero(VECTOR_FLOAT);
    for (NAT x = 1; x <= 3; ++x)
        source.PUT(x, 1, 1, VECTORNAT{x, x, x});
    T3D_SCALAR_ANALYSIS mask(TAG_GRAY, 3, 1, 1);
    mask.PUT(2, 1, 1, 5);
    TPOLYNAT values;
    values.PUSH(5);
    CHECK(MASK(target, source, mask, values));
    CHECK(target.GET(1, 1, 1) == VZERO);
    CHECK(target.GET(2, 1, 1) == VECTOR{2, 2, 2});
    CHECK(console.CONTAINS("  Masking. 100 % ready"));
    values.PUT(1, 0);
    CHECK(MASK(zero, source, mask, values));
    CHECK(zero.GET(1, 1, 1) == VECTOR{1, 1, 1});
    CHECK(zero.GET(2, 1, 1) == VZERO);
}
