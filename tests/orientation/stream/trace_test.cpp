#include "orientation/stream/trace.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "support/capture.hpp"

#include <cmath>
#include <doctest/doctest.h>
#include <limits>

using namespace morvane;

namespace {
// A field of one vector everywhere.
void Constant(T3D_VECTOR_ANALYSIS &field, const VECTORNAT &size, const VECTOR &value) {
    field.INIT(VECTOR_FLOAT, size.x, size.y, size.z);
    for (NAT i = 0; i < field._VOXELS(); ++i)
        field.FLOATS()[i] = value;
}

STREAM_SETTINGS Plain() {
    STREAM_SETTINGS settings;
    settings.angles = 0;
    return settings;
}
} // namespace

TEST_CASE("a point outside the box is stored before the test ends the line, so that a line ends "
          "just outside the field") {
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {5, 5, 5}, {2, 0, 0});
    STREAM_SETTINGS settings = Plain();
    settings.stopLength = 100;
    STREAM_TRACER tracer(field, nullptr, settings);
    CHECK(tracer.LOWER() == VECTOR{-0.5, -0.5, -0.5});
    CHECK(tracer.UPPER() == VECTOR{4.5, 4.5, 4.5});
    tracer.TRACE({2, 2, 2});
    REQUIRE(tracer.left.LENGTH() == 4); // 2, 3, 4 and 5, which lies outside
    CHECK(tracer.left.GET(1) == VECTOR{2, 2, 2});
    CHECK(tracer.left.GET(4) == VECTOR{5, 2, 2});
    REQUIRE(tracer.right.LENGTH() == 3); // 1, 0 and -1
    CHECK(tracer.right.GET(1) == VECTOR{1, 2, 2});
    CHECK(tracer.right.GET(3) == VECTOR{-1, 2, 2});
}

TEST_CASE("a step is the scale of each axis times the steps") {
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {9, 9, 9}, {0, 1, 0});
    field._SETMATRIX({{{{2, 0, 0}, {0, 3, 0}, {0, 0, 4}}}});
    STREAM_SETTINGS settings = Plain();
    settings.steps = 0.5;
    STREAM_TRACER tracer(field, nullptr, settings);
    CHECK(tracer.STEP() == VECTOR{1, 1.5, 2});
    tracer.TRACE({4, 6, 8});
    CHECK(tracer.left.GET(2) == VECTOR{4, 7.5, 8});
}

TEST_CASE("the length limit is the rounded diagonal, over the steps when they are not 1") {
    const T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 5, 4, 3); // diagonal sqrt(29) = 5.39
    STREAM_SETTINGS settings;
    CHECK(STREAM_TRACER(field, nullptr, settings).LENGTHLIMIT() == 5);
    settings.steps = 2;
    CHECK(STREAM_TRACER(field, nullptr, settings).LENGTHLIMIT() == 3); // 2.69
    settings.steps = 0.25;
    CHECK(STREAM_TRACER(field, nullptr, settings).LENGTHLIMIT() == 22); // 21.5 to even
}

TEST_CASE("a stop length of 10 with steps of 2 is 5 points") {
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {40, 3, 3}, {1, 0, 0});
    STREAM_SETTINGS settings = Plain();
    settings.steps = 2;
    settings.stopLength = 10;
    STREAM_TRACER tracer(field, nullptr, settings);
    CHECK(tracer.LENGTHLIMIT() == 5);
    tracer.TRACE({20, 1, 1});
    CHECK(tracer.left.LENGTH() == 5); // the seed and 4 steps
    CHECK(tracer.right.LENGTH() == 5);
}

TEST_CASE("with steps of exactly 1 a stop length counts as it is, not rounded") {
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {40, 3, 3}, {1, 0, 0});
    STREAM_SETTINGS settings = Plain();
    settings.stopLength = 4.4;
    STREAM_TRACER tracer(field, nullptr, settings);
    CHECK(tracer.LENGTHLIMIT() == 4.4);
    tracer.TRACE({20, 1, 1});
    CHECK(tracer.left.LENGTH() == 5); // 4.4 > 4 goes on once more
}

TEST_CASE("a zero field holds the seed alone") {
    const T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 3, 3, 3);
    for (const REAL angles : {0.0, 0.1}) {
        STREAM_SETTINGS settings;
        settings.angles = angles;
        STREAM_TRACER tracer(field, nullptr, settings);
        tracer.TRACE({-0.0, 1, -0.0});
        CHECK(tracer.left.LENGTH() == 1);
        CHECK(tracer.right.LENGTH() == 0);
    }
}

TEST_CASE("steps of 0 form no line") {
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {3, 3, 3}, {1, 0, 0});
    STREAM_SETTINGS settings = Plain();
    settings.PUTSTEPS(0);
    STREAM_TRACER tracer(field, nullptr, settings);
    tracer.TRACE({1, 1, 1});
    CHECK(tracer.POINTS() == 1);
}

TEST_CASE("a stop angle of 0 leaves one step to each half") {
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {9, 3, 3}, {1, 0, 0});
    STREAM_SETTINGS settings = Plain();
    settings.PUTSTOPANGLE(0);
    STREAM_TRACER tracer(field, nullptr, settings);
    tracer.TRACE({4, 1, 1});
    CHECK(tracer.left.LENGTH() == 2);
    CHECK(tracer.right.LENGTH() == 1);
}

TEST_CASE("a vector with a flipped sign is not turned round, the stop angle ends the line there") {
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {9, 3, 3}, {1, 0, 0});
    for (NAT z = 1; z <= 3; ++z)
        for (NAT y = 1; y <= 3; ++y)
            for (NAT x = 6; x <= 9; ++x)
                field.PUT(x, y, z, VECTOR{-1, 0, 0});
    STREAM_TRACER tracer(field, nullptr, Plain());
    tracer.TRACE({2, 1, 1}); // voxel 3; voxel 6 points back
    REQUIRE(tracer.left.LENGTH() == 5);
    CHECK(tracer.left.GET(4) == VECTOR{5, 1, 1});
    CHECK(tracer.left.GET(5) == VECTOR{4, 1, 1}); // stored, then the line ends
}

TEST_CASE("with a segment angle only the bends and the end point are stored, and the length limit "
          "counts stored points") {
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {30, 3, 3}, {1, 0, 0});
    STREAM_SETTINGS settings;
    settings.stopLength = 3;
    STREAM_TRACER tracer(field, nullptr, settings);
    tracer.TRACE({10, 1, 1});
    REQUIRE(tracer.left.LENGTH() == 2);
    CHECK(tracer.left.GET(2) == VECTOR{30, 1, 1}); // 20 steps, not cut by the limit of 3
    REQUIRE(tracer.right.LENGTH() == 1);
    CHECK(tracer.right.GET(1) == VECTOR{-1, 1, 1});
    settings.angles = 0;
    STREAM_TRACER whole(field, nullptr, settings);
    whole.TRACE({10, 1, 1});
    CHECK(whole.left.LENGTH() == 3);
}

TEST_CASE("a bend is stored where the direction from the last stored point leaves it") {
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {12, 12, 3}, {1, 0, 0});
    for (NAT z = 1; z <= 3; ++z)
        for (NAT y = 1; y <= 12; ++y)
            for (NAT x = 6; x <= 12; ++x)
                field.PUT(x, y, z, VECTOR{0, 1, 0});
    STREAM_SETTINGS settings;
    settings.PUTSTOPANGLE(120);
    STREAM_TRACER tracer(field, nullptr, settings);
    tracer.TRACE({2, 2, 1});
    // To x = 5 straight on, then along y: the step to (5, 3) bends by 90 degrees.
    REQUIRE(tracer.left.LENGTH() >= 2);
    CHECK(tracer.left.GET(2) == VECTOR{5, 3, 1});
    CHECK(tracer.left.GET(tracer.left.LENGTH()) == VECTOR{5, 12, 1});
}

TEST_CASE("a stop contrast ends the line where the grey value jumps") {
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {12, 3, 3}, {1, 0, 0});
    T3D_SCALAR_ANALYSIS scalar(TAG_GRAY, 12, 3, 3);
    for (NAT z = 1; z <= 3; ++z)
        for (NAT y = 1; y <= 3; ++y)
            for (NAT x = 1; x <= 12; ++x)
                scalar.PUT(x, y, z, x < 7 ? 50 : 80);
    STREAM_SETTINGS settings = Plain();
    settings.stopContrast = 30;
    STREAM_TRACER weak(field, &scalar, settings);
    weak.TRACE({3, 1, 1});
    CHECK(weak.left.GET(weak.left.LENGTH()) == VECTOR{12, 1, 1}); // 30 is not above 30
    settings.stopContrast = 29;
    STREAM_TRACER tracer(field, &scalar, settings);
    tracer.TRACE({3, 1, 1}); // voxel 4
    // the value is read at the start of a step: from voxel 7 on it is 80
    CHECK(tracer.left.GET(tracer.left.LENGTH()) == VECTOR{7, 1, 1});
    settings.angles = 0.1;
    STREAM_TRACER bends(field, &scalar, settings);
    bends.TRACE({3, 1, 1});
    REQUIRE(bends.left.LENGTH() == 2);
    CHECK(bends.left.GET(2) == VECTOR{7, 1, 1});
}

TEST_CASE("hostile fields and settings end without a hang") {
    CAPTURE console;
    const REAL nan = std::numeric_limits<REAL>::quiet_NaN();
    for (const REAL value : {nan, REALMAX, -REALMAX, 1e-320, 1e308})
        for (const REAL steps : {1e-300, 1e300, REALMAX, 1.0})
            for (const REAL angles : {0.0, 1.0}) {
                T3D_VECTOR_ANALYSIS field;
                Constant(field, {3, 3, 3}, {value, 0, value});
                STREAM_SETTINGS settings;
                settings.steps = steps;
                settings.angles = angles;
                settings.stopLength = 1e300;
                STREAM_TRACER tracer(field, nullptr, settings);
                tracer.TRACE({1, 1, 1});
                CHECK(tracer.left.LENGTH() >= 1);
                CHECK(tracer.POINTS() <= 4);
            }
}

TEST_CASE("tiny steps are bounded by the limit of points") {
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {3, 3, 3}, {1, 0, 0});
    STREAM_SETTINGS settings = Plain();
    settings.steps = 1e-300;
    STREAM_TRACER tracer(field, nullptr, settings);
    CHECK(tracer.LENGTHLIMIT() == static_cast<REAL>(STREAM_TRACER::MAXIMAL_POINTS));
    settings.angles = 1;
    STREAM_TRACER bends(field, nullptr, settings);
    bends.TRACE({0, 1, 1}); // around 0 even such a step is one
    CHECK(bends.POINTS() == 3);
}

TEST_CASE("a closed orbit of rare bends ends") {
    // Four vectors that turn by 90 degrees: a square of steps that comes back to its start.
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 4, 4, 2);
    for (NAT z = 1; z <= 2; ++z) {
        field.PUT(2, 2, z, VECTOR{1, 0, 0});
        field.PUT(3, 2, z, VECTOR{0, 1, 0});
        field.PUT(3, 3, z, VECTOR{-1, 0, 0});
        field.PUT(2, 3, z, VECTOR{0, -1, 0});
    }
    STREAM_SETTINGS settings;
    settings.PUTSTOPANGLE(180);
    settings.PUTANGLES(180);
    STREAM_TRACER tracer(field, nullptr, settings);
    tracer.TRACE({1, 1, 0});
    CHECK(tracer.POINTS() <= 3);
}

TEST_CASE("an angle limit decides as GETANGLE does") {
    NAT seed = 11;
    const auto next = [&] {
        seed = seed * 48271 % 2147483647;
        return static_cast<REAL>(seed) / 1073741823.5 - 1;
    };
    for (const REAL limit : {0.0, 1e-9, 1e-6, 1e-4, PI / 180, 1.0, PI / 2, 3.0, PI - 1e-9, PI}) {
        const ANGLE_LIMIT angle(limit);
        for (int i = 0; i < 3000; ++i) {
            VECTOR a{next(), next(), next()}, b{next(), next(), next()};
            if (i % 3 == 1) { // at about the limit, a in the plane of x and y
                const REAL turned = limit * (1 + 1e-15 * next());
                const REAL length = std::exp(20 * next());
                a = VECTOR{1, 0, 0} * length;
                b = VECTOR{std::cos(turned), std::sin(turned), 0};
            }
            if (i % 3 == 2) b = a * next() * 1e-150;
            CHECK(angle.ABOVE(a, b) == (limit > GETANGLE(a, b)));
            CHECK(angle.BELOW(a, b) == (limit < GETANGLE(a, b)));
        }
        CHECK(angle.ABOVE(VZERO, VRIGHT) == (limit > 0));
        CHECK_FALSE(angle.BELOW(VZERO, VRIGHT));
    }
}

TEST_CASE("settings keep what they are told, within their limits") {
    STREAM_SETTINGS settings;
    CHECK(settings.seeds == 1);
    CHECK(settings.snakes == 0);
    CHECK(settings.steps == 1);
    CHECK(settings.angles == PI / 180);
    CHECK(settings.stopAngle == PI / 2);
    CHECK(settings.stopLength == 0);
    CHECK(settings.stopContrast == 0);
    settings.PUTSEEDS(-3);
    settings.PUTSNAKES(-1);
    settings.PUTSTEPS(-0.5);
    settings.PUTANGLES(-10);
    settings.PUTSTOPANGLE(200);
    settings.PUTSTOPLENGTH(-7);
    settings.PUTSTOPCONTRAST(-7);
    CHECK(settings.seeds == 0);
    CHECK(settings.snakes == 0);
    CHECK(settings.steps == 1);
    CHECK(settings.angles == 0);
    CHECK(settings.stopAngle == PI);
    CHECK(settings.stopLength == 0);
    CHECK(settings.stopContrast == 0);
    settings.PUTSTEPS(0);
    CHECK(settings.steps == 0);
    settings.PUTSTEPS(std::numeric_limits<REAL>::quiet_NaN());
    CHECK(settings.steps == 1);
    settings.PUTSTOPANGLE(std::numeric_limits<REAL>::quiet_NaN());
    CHECK(settings.stopAngle == 0);
}
