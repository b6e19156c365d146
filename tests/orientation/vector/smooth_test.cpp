#include "orientation/vector/vector_analysis.hpp"

#include "support/capture.hpp"

#include <cstring>
#include <doctest/doctest.h>

using namespace morvane;

namespace {
void Scramble(T3D_VECTOR_ANALYSIS &field) {
    NAT seed = 7;
    for (NAT i = 0; i < field._VOXELS(); ++i) {
        seed = seed * 48271 % 2147483647;
        const REAL a = static_cast<REAL>(seed) / 1e7;
        field.FLOATS()[i] = {a, 1 / a, -a};
    }
}

VECTOR Added(const VECTOR &a, const VECTOR &b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }

// The sum of the 26 neighbours, voxel by voxel.
VECTOR Around(const T3D_VECTOR_ANALYSIS &field, NAT x, NAT y, NAT z) {
    VECTOR sum;
    for (NAT dz = -1; dz <= 1; ++dz)
        for (NAT dy = -1; dy <= 1; ++dy)
            for (NAT dx = -1; dx <= 1; ++dx)
                if (dx != 0 || dy != 0 || dz != 0)
                    sum = Added(sum, field.GET(x + dx, y + dy, z + dz));
    return sum;
}
} // namespace

TEST_CASE("the three means of a single vector") {
    CAPTURE console;
    const auto single = [](T3D_VECTOR_ANALYSIS &field) {
        field.NEW(5, 5, 5);
        field.PUT(3, 3, 3, VECTOR{702, 0, -1404}); // 702 = 26 * 27
    };
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT);
    single(field);
    field.SMOOTH(1, 1);
    CHECK(field.GET(3, 3, 3) == VECTOR{26, 0, -52});
    CHECK(field.GET(2, 4, 3) == VECTOR{26, 0, -52});
    CHECK(field.GET(1, 3, 3) == VZERO);
    single(field);
    field.HARDSMOOTH(1, 1);
    CHECK(field.GET(3, 3, 3) == VZERO);
    CHECK(field.GET(4, 4, 4) == VECTOR{27, 0, -54});
    single(field);
    field.SOFTSMOOTH(1, 1);
    CHECK(field.GET(3, 3, 3) == VECTOR{351, 0, -702});
    CHECK(field.GET(3, 3, 4) == VECTOR{13.5, 0, -27});
}

TEST_CASE("voxels outside count as zero in a mean") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    for (NAT i = 0; i < 8; ++i)
        field.FLOATS()[i] = {27, 0, 0};
    field.SMOOTH(1, 1);
    CHECK(field.GET(1, 1, 1) == VECTOR{8, 0, 0});
}

TEST_CASE("a mean equals the plain sum over the neighbourhood") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS old(VECTOR_FLOAT, 5, 4, 6), field;
    Scramble(old);
    field.CLONE(old);
    field.HARDSMOOTH(1, 2);
    for (NAT z = 1; z <= 6; ++z)
        for (NAT y = 1; y <= 4; ++y)
            for (NAT x = 1; x <= 5; ++x) {
                const VECTOR sum = Around(old, x, y, z), v = field.GET(x, y, z);
                CHECK(v.x == doctest::Approx(sum.x / 26).epsilon(1e-14)); // 26 roundings
                CHECK(v.y == doctest::Approx(sum.y / 26).epsilon(1e-14));
            }
}

TEST_CASE("the thread limit changes no byte of a smoothed field") {
    CAPTURE console;
    for (int kind = 0; kind < 3; ++kind) {
        T3D_VECTOR_ANALYSIS first(VECTOR_FLOAT, 7, 6, 9), other;
        Scramble(first);
        other.CLONE(first);
        const auto run = [&](T3D_VECTOR_ANALYSIS &field, NAT limit) {
            if (kind == 0) field.SOFTSMOOTH(3, limit);
            if (kind == 1) field.SMOOTH(3, limit);
            if (kind == 2) field.HARDSMOOTH(3, limit);
        };
        run(first, 1);
        run(other, 8);
        CHECK(std::memcmp(first.FLOATS(), other.FLOATS(), 7 * 6 * 9 * sizeof(VECTOR)) == 0);
    }
}

TEST_CASE("a slice of a pass equals that slice of the whole pass") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 4, 5, 3);
    Scramble(field);
    TSPACEVECTOR target(4, 5, 3);
    field.SMOOTH(2, VECTOR_SMOOTHING::PLAIN, target);
    field.SMOOTH(1, 1);
    for (NAT y = 1; y <= 5; ++y)
        for (NAT x = 1; x <= 4; ++x)
            CHECK(target.GET(x, y, 2) == field.GET(x, y, 2));
    CHECK(target.GET(1, 1, 1) == VZERO);
}

TEST_CASE("an integer field is rounded after each pass") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_INTEGER, 3, 3, 3);
    field.PUT(2, 2, 2, VECTOR{40, 0, 0});
    field.SMOOTH(1, 1);
    CHECK(field.GETNAT(1, 1, 1) == VECTORNAT{1, 0, 0}); // 40 / 27
}

TEST_CASE("a count of zero passes changes nothing") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 3, 3, 3);
    field.PUT(2, 2, 2, VECTOR{40, 0, 0});
    field.SMOOTH(0, 1);
    CHECK(field.GET(2, 2, 2) == VECTOR{40, 0, 0});
}
