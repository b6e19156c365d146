#include "orientation/scan/scan.hpp"

#include "foundation/base/geometry.hpp"
#include "orientation/scan/scan_fields.hpp"
#include "support/capture.hpp"

#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
void ScanAll(const T3D_SCALAR_ANALYSIS &scalar, T3D_VECTOR_ANALYSIS &field, NAT r) {
    field.INIT(VECTOR_FLOAT, scalar.SIZEX(), scalar.SIZEY(), scalar.SIZEZ());
    for (NAT z = 1; z <= scalar.SIZEZ(); ++z)
        DIFFUSION(scalar, field, z, r);
}
} // namespace

TEST_CASE("a voxel of value 0 gets the zero vector and its neighbours are unaffected") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {11, 11, 11}, [](NAT x, NAT y, NAT z) {
        return x == 6 && y == 6 && z == 6 ? 0 : 50 + x * y % 7 + z;
    });
    T3D_VECTOR_ANALYSIS field;
    ScanAll(scalar, field, 3);
    CHECK(field.GET(6, 6, 6) == VZERO);
    CHECK(field.GET(5, 6, 6) != VZERO);
    CHECK(field.GET(7, 6, 6) != VZERO);
}

TEST_CASE("a volume with a single grey value gives the zero vector in the methods 1 to 5") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {9, 9, 9}, [](NAT, NAT, NAT) { return 80; });
    T3D_VECTOR_ANALYSIS field;
    for (BYTE method = 1; method <= 5; ++method) {
        scalar.diffusionMethod = method;
        ScanAll(scalar, field, 2);
        CHECK(field.COUNT(VZERO) == 9 * 9 * 9);
    }
}

TEST_CASE("a ridge along y gives vectors along y") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_FULLGRAY, {21, 21, 21},
               [](NAT x, NAT, NAT z) { return 1000 + 37 * ((x * 5 + z * 11) % 13) * x; });
    T3D_VECTOR_ANALYSIS field;
    field.INIT(VECTOR_FLOAT, 21, 21, 21);
    DIFFUSION(scalar, field, 11, 4);
    CHECK(field.GET(11, 11, 11) == VECTOR{0, field.GET(11, 11, 11).y, 0});
    CHECK(std::abs(field.GET(11, 11, 11).y) == 4);
}

TEST_CASE("a full scan zeroes the voxels whose lines leave the volume") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {15, 15, 15}, NOISE(5, 1, 255));
    T3D_VECTOR_ANALYSIS field;
    scalar.fullScan = 1;
    ScanAll(scalar, field, 4);
    CHECK(field.GET(1, 1, 8) == VZERO); // on an edge a line can leave on both sides
    CHECK(field.GET(8, 15, 1) == VZERO);
    CHECK(field.GET(8, 8, 8) != VZERO);
    scalar.fullScan = 0;
    ScanAll(scalar, field, 4);
    CHECK(field.GET(1, 1, 8) != VZERO);
}

TEST_CASE("a lone voxel has no line long enough and gets the zero vector") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {9, 9, 9},
               [](NAT x, NAT y, NAT z) { return x == 5 && y == 5 && z == 5 ? 200 : 0; });
    T3D_VECTOR_ANALYSIS field;
    for (BYTE method = 0; method <= 7; ++method) {
        scalar.diffusionMethod = method;
        ScanAll(scalar, field, 3);
        CHECK(field.GET(5, 5, 5) == VZERO);
    }
}

TEST_CASE("method 0 and method 7 act as method 5, and statistic 200 as the deviation") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {13, 13, 13}, NOISE(9, 1, 255));
    T3D_VECTOR_ANALYSIS five, other;
    scalar.diffusionMethod = 5;
    ScanAll(scalar, five, 3);
    scalar.subMethod = 200;
    for (const BYTE method : {BYTE{0}, BYTE{7}}) {
        scalar.diffusionMethod = method;
        ScanAll(scalar, other, 3);
        CHECK(DIFFERENT_VECTORS(five, other) == 0);
    }
}

TEST_CASE("a 1-bit volume gives zero vectors") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_MONO, {7, 7, 7}, [](NAT, NAT, NAT) { return 1; });
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 7, 7, 7);
    field.PUT(4, 4, 4, VECTOR{1, 2, 3});
    DIFFUSION(scalar, field, 4, 2);
    CHECK(field.GET(4, 4, 4) == VZERO);
}

TEST_CASE("an empty volume tells so and leaves the vectors as they are") {
    T3D_SCALAR_ANALYSIS scalar(TAG_GRAY);
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 3, 3, 3);
    field.PUT(2, 2, 2, VECTOR{1, 2, 3});
    CAPTURE console;
    DIFFUSION(scalar, field, 2, 1);
    CHECK(console.TEXT() == "Error! Empty vectorfield!\n");
    CHECK(field.GET(2, 2, 2) == VECTOR{1, 2, 3});
}

TEST_CASE("a slice is left as it is unless its x and y sizes are above twice the length") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {8, 9, 1}, NOISE(2, 1, 255));
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 8, 9, 1);
    field.PUT(4, 4, 1, VECTOR{1, 2, 3});
    DIFFUSION(scalar, field, 1, 4); // 8 is not above 8
    CHECK(field.GET(4, 4, 1) == VECTOR{1, 2, 3});
    DIFFUSION(scalar, field, 1, 3); // the z size is not asked for
    CHECK(field.GET(4, 4, 1) != VECTOR{1, 2, 3});
}

TEST_CASE("a reduced slice takes every factor-th voxel") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {14, 13, 12}, NOISE(4, 1, 255, 5));
    T3D_VECTOR_ANALYSIS whole;
    ScanAll(scalar, whole, 2);
    for (NAT factor = 2; factor <= 5; ++factor) {
        T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 14 / factor, 13 / factor, 12 / factor);
        for (NAT z = 1; z <= 12 / factor; ++z)
            DIFFUSION(scalar, field, z * factor, 2, factor);
        for (NAT z = 1; z <= field.SIZEZ(); ++z)
            for (NAT y = 1; y <= field.SIZEY(); ++y)
                for (NAT x = 1; x <= field.SIZEX(); ++x)
                    CHECK(SAME_BITS(field.GET(x, y, z),
                                    whole.GET(x * factor, y * factor, z * factor)));
    }
}

namespace {
// The described walk of the adaptive form over the vectors of a full scan; for volumes without a
// zero, where each of them is the scan at its voxel.
VECTOR FirstOfEight(const T3D_VECTOR_ANALYSIS &whole, NAT x, NAT y, NAT z) {
    const VECTORNAT moves[] = {{0, 0, 0}, {1, 1, 1}, {0, 1, 1}, {1, 0, 0},
                               {1, 0, 1}, {0, 1, 0}, {1, 1, 0}, {0, 0, 1}};
    for (const VECTORNAT &move : moves) {
        const VECTOR found = whole.GET(x + move.x, y + move.y, z + move.z);
        if (found != VZERO) return found;
    }
    return VZERO;
}
} // namespace

TEST_CASE("an adaptive scan tries seven neighbours until one has a vector") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {15, 15, 15}, NOISE(6, 1, 4)); // few values: many ties
    scalar.diffusionMethod = 1;
    T3D_VECTOR_ANALYSIS whole;
    ScanAll(scalar, whole, 2);
    REQUIRE(whole.COUNT(VZERO) > 100);
    for (NAT factor = 2; factor <= 5; ++factor) {
        T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 15, 15, 15);
        for (NAT z = factor; z < 15; z += factor)
            DIFFUSION_ADAPTIVE(scalar, field, z, 2, factor);
        for (NAT y = factor; y < 15; y += factor)
            for (NAT x = factor; x < 15; x += factor) {
                const VECTOR expected = FirstOfEight(whole, x, y, factor);
                CHECK(SAME_BITS(field.GET(x, y, factor), expected));
                CHECK(SAME_BITS(field.GET(x + 1, y + 1, factor + 1), expected));
                CHECK(SAME_BITS(field.GET(x, y + 1, factor), expected));
            }
    }
}

TEST_CASE("an adaptive scan writes at full-size coordinates into the reduced field, so cells "
          "beyond it are dropped") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {12, 12, 12}, NOISE(8, 1, 255));
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 6, 6, 6), whole;
    for (NAT z = 2; z <= 12; z += 2)
        DIFFUSION_ADAPTIVE(scalar, field, z, 2, 2);
    ScanAll(scalar, whole, 2);
    CHECK(field.GET(1, 4, 4) == VZERO); // never written
    CHECK(field.GET(4, 1, 4) == VZERO);
    CHECK(field.GET(4, 4, 1) == VZERO);
    CHECK(SAME_BITS(field.GET(4, 4, 4), FirstOfEight(whole, 4, 4, 4)));
    CHECK(SAME_BITS(field.GET(6, 6, 6), FirstOfEight(whole, 6, 6, 6)));
    CHECK(field.GET(6, 6, 6) != VZERO);
}

TEST_CASE("an adaptive scan looks for zero at the doubled coordinates, whatever the factor is") {
    for (const VECTORNAT &hole : {VECTORNAT{2, 2, 3}, VECTORNAT{3, 3, 3}}) {
        T3D_SCALAR_ANALYSIS scalar;
        NOISE noise(8, 1, 255);
        FILL_FIELD(scalar, TAG_GRAY, {15, 15, 15}, [&](NAT x, NAT y, NAT z) {
            return VECTORNAT{x, y, z} == hole ? 0 : noise(x, y, z);
        });
        T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 5, 5, 5);
        DIFFUSION_ADAPTIVE(scalar, field, 3, 2, 3);
        CHECK((field.GET(3, 3, 3) == VZERO) == (hole.x == 2));
        CHECK((field.GET(4, 4, 4) == VZERO) == (hole.x == 2));
    }
}

TEST_CASE("a scan length above the tables' takes the plain road") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {133, 133, 3},
               [](NAT x, NAT y, NAT) { return (x == 60 || x == 70) && y == 66 ? 9 : 0; });
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 133, 133, 3);
    field.PUT(60, 66, 2, VECTOR{1, 2, 3});
    DIFFUSION(scalar, field, 2, 66);
    CHECK(field.GET(60, 66, 2) == VZERO);
}
