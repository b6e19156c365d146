#include "orientation/scan/scan.hpp"

#include "foundation/base/matrix3.hpp"
#include "orientation/scan/scan_fields.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::string MethodLine(BYTE method, NAT r = 3) {
    T3D_SCALAR_ANALYSIS scalar(TAG_GRAY, 7, 7, 7);
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 7, 7, 7);
    scalar.diffusionMethod = method;
    CAPTURE console;
    REQUIRE(DIFFUSION_FIELD(scalar, field, r, 1, false, 1));
    return console.TEXT().substr(0, console.TEXT().find('\n'));
}
} // namespace

TEST_CASE("each method has its line") {
    CHECK(MethodLine(1) == "Method: brenk2013 = only the single best vector");
    CHECK(MethodLine(2) == "Method: brenk2014a = mean the two best vectors, if distance < 1.5");
    CHECK(MethodLine(3) == "Method: brenk2014b = mean (same SD) best vectors, only for 25.00 %");
    CHECK(MethodLine(4) == "Method: brenk2015a = mean (same SD) best vectors (around 5.00°), only "
                           "for 25.00 %");
    CHECK(MethodLine(6) == "Method: brenk2019 = mean (same SD) best vectors (around 5.00°), only "
                           "for 25.00 %");
    for (const BYTE method : {BYTE{0}, BYTE{5}, BYTE{7}})
        CHECK(MethodLine(method) ==
              "Method: brenk2015b = mean the best vectors (around 5.00°), only for 25.00 %");
}

TEST_CASE("a scan sizes the vector field and tells its threads") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {9, 8, 7}, NOISE(1, 1, 255));
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT);
    CAPTURE console;
    CHECK(DIFFUSION_FIELD(scalar, field, 2, 1, false, 3));
    CHECK(field.SIZE() == VECTORNAT{9, 8, 7});
    CHECK(console.TEXT().rfind("  Assigned vector field (9x8x7) updated.\nMethod: ", 0) == 0);
    CHECK(console.CONTAINS("\nWorking threads: 7\nParallel: 3\n"));
    CHECK(field.COUNT(VZERO) < 9 * 8 * 7);
    console.CLEAR();
    CHECK(DIFFUSION_FIELD(scalar, field, 2, 1, false, 0)); // a limit below 1 counts as 1
    CHECK_FALSE(console.CONTAINS("Assigned"));
    CHECK(console.CONTAINS("\nWorking threads: 7\nParallel: 1\n"));
}

TEST_CASE("a wrong scan length is told and changes no vector field") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {9, 9, 8}, NOISE(1, 1, 255));
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    for (const NAT r : {NAT{0}, NAT{-3}, NAT{4}, NAT{65536}, NATMAX, NATMIN}) {
        CAPTURE console;
        CHECK_FALSE(DIFFUSION_FIELD(scalar, field, r, 1, false, 1));
        CHECK(console.TEXT() == "Wrong scan size (" + std::to_string(r) + ")!\n");
        CHECK(field.SIZE() == VECTORNAT{2, 2, 2});
    }
    T3D_SCALAR_ANALYSIS nothing;
    CAPTURE console;
    CHECK_FALSE(DIFFUSION_FIELD(nothing, field, 1, 1, false, 1));
    CHECK(console.TEXT() == "Wrong scan size (1)!\n");
}

TEST_CASE("the vector field takes the frame of the scalar") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {9, 9, 9}, NOISE(1, 1, 255));
    scalar._SETMATRIX(GM3({2, 0, 0}, {0, 0, 3}, {0, 4, 0}));
    scalar._SETMOVE({10, 20, 30});
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT);
    CAPTURE console;
    CHECK(DIFFUSION_FIELD(scalar, field, 2, 1, false, 1));
    CHECK(field.MOVE() == VECTOR{10, 20, 30});
    CHECK(field.MATRIX()[1] == VECTOR{0, 0, 3});
    CHECK(DIFFUSION_FIELD(scalar, field, 2, 3, false, 1));
    CHECK(field.SIZE() == VECTORNAT{3, 3, 3});
    CHECK(field.MOVE() == VECTOR{10, 20, 30});
    CHECK(field.MATRIX()[0] == VECTOR{6, 0, 0});
    CHECK(field.MATRIX()[1] == VECTOR{0, 0, 9});
    CHECK(field.GETFRAME().INVERSEMATRIX()[0].x == doctest::Approx(1.0 / 6).epsilon(1e-15));
}

TEST_CASE("a reduced field fits only when its size times the factor is the scalar's, so with a "
          "rest it is made anew each time") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {9, 8, 8}, NOISE(1, 1, 255));
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT);
    for (int run = 0; run < 2; ++run) {
        CAPTURE console;
        CHECK(DIFFUSION_FIELD(scalar, field, 2, 2, false, 1));
        CHECK(console.CONTAINS("  Assigned vector field (4x4x4) updated.\n"));
        CHECK(console.CONTAINS("\nWorking threads: 4\n"));
    }
    FILL_FIELD(scalar, TAG_GRAY, {8, 8, 8}, NOISE(1, 1, 255));
    CAPTURE console;
    CHECK(DIFFUSION_FIELD(scalar, field, 2, 2, false, 1));
    CHECK_FALSE(console.CONTAINS("Assigned"));
}

TEST_CASE("the thread limit changes no byte of a scan") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {20, 17, 16}, NOISE(21, 1, 30, 10));
    for (NAT factor = 1; factor <= 3; ++factor)
        for (const bool adaptive : {false, true}) {
            if (adaptive && factor == 1) continue;
            T3D_VECTOR_ANALYSIS one(VECTOR_FLOAT), eight(VECTOR_FLOAT);
            CAPTURE console;
            CHECK(DIFFUSION_FIELD(scalar, one, 3, factor, adaptive, 1));
            CHECK(DIFFUSION_FIELD(scalar, eight, 3, factor, adaptive, 8));
            CHECK(DIFFERENT_VECTORS(one, eight) == 0);
            CHECK(one.COUNT(VZERO) < one._VOXELS());
        }
}

TEST_CASE("a scan overwrites a field of the right size cell by cell") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {7, 7, 7}, [](NAT x, NAT, NAT) { return x == 4 ? 0 : 9; });
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 7, 7, 7);
    field.PUT(4, 4, 4, VECTOR{1, 2, 3});
    CAPTURE console;
    CHECK(DIFFUSION_FIELD(scalar, field, 3, 1, false, 2));
    CHECK(field.GET(4, 4, 4) == VZERO);
}
