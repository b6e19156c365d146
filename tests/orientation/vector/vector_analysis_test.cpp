#include "orientation/vector/vector_analysis.hpp"

#include "orientation/vector/vector_sampler.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>
#include <limits>

using namespace morvane;

namespace {
// Every vector tells its voxel: (x, y, z).
void FillWithPositions(T3D_VECTOR_ANALYSIS &field) {
    for (NAT z = 1; z <= field._GETSIZEZ(); ++z)
        for (NAT y = 1; y <= field._GETSIZEY(); ++y)
            for (NAT x = 1; x <= field._GETSIZEX(); ++x)
                field.PUT(x, y, z, VECTORNAT{x, y, z});
}
} // namespace

TEST_CASE("a new vector field is zero, has the unit frame and its kind") {
    for (const BYTE tag : {VECTOR_FLOAT, VECTOR_INTEGER, VECTOR_24BIT}) {
        const T3D_VECTOR_ANALYSIS field(tag, 2, 3, 4);
        CHECK(field._GETID() == tag);
        CHECK(field.SIZE() == VECTORNAT{2, 3, 4});
        CHECK(field.COUNT(VZERO) == 24);
        CHECK(field.MATRIX() == M3NORM);
        CHECK(field.MOVE() == VZERO);
    }
}

TEST_CASE("an unknown kind prints its line and leaves no storage") {
    CAPTURE console;
    const T3D_VECTOR_ANALYSIS field(77, 2, 2, 2);
    CHECK(console.TEXT() == "Unknown vectorfield!\n");
    CHECK(field._GETID() == 0);
    CHECK_FALSE(field.ISNOTEMPTY());
}

TEST_CASE("a size that is not positive gives the empty field of the kind") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 0, 2);
    CHECK(field._GETID() == VECTOR_FLOAT);
    CHECK(field.SIZE() == VZERONAT);
    field.NORM();
    field.SMOOTH(1, 1);
    field.FLIPX();
    CHECK(field.MAX() == 0);
}

TEST_CASE("a size that no memory holds gives the empty field") {
    CAPTURE console;
    const T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, NAT{1} << 40, NAT{1} << 40, 4);
    CHECK_FALSE(field.ISNOTEMPTY());
    CHECK(console.CONTAINS("Out of memory?"));
}

TEST_CASE("NEW keeps the kind and forgets the frame") {
    T3D_VECTOR_ANALYSIS field(VECTOR_INTEGER, 2, 2, 2);
    field._SETMOVE({1, 2, 3});
    field.NEW(3, 3, 3);
    CHECK(field._GETID() == VECTOR_INTEGER);
    CHECK(field.SIZE() == VECTORNAT{3, 3, 3});
    CHECK(field.MOVE() == VZERO);
}

TEST_CASE("a read outside gives the zero vector, a write outside is dropped") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    field.BACKGROUND = {7, 7, 7};
    field.PUT(0, 1, 1, VECTOR{1, 1, 1});
    field.PUT(3, 1, 1, VECTOR{1, 1, 1});
    CHECK(field.GET(0, 1, 1) == VZERO);
    CHECK(field.GET(1, 1, 3) == VZERO);
    CHECK(field.COUNT(VZERO) == 8);
}

TEST_CASE("an integer store rounds to nearest with ties to even, a 24-bit store limits too") {
    T3D_VECTOR_ANALYSIS whole(VECTOR_INTEGER, 1, 1, 1), bytes(VECTOR_24BIT, 1, 1, 1);
    whole.PUT(1, 1, 1, VECTOR{2.5, -1.6, 1e300});
    bytes.PUT(1, 1, 1, VECTOR{2.5, -1.6, 1e300});
    CHECK(whole.GETNAT(1, 1, 1) == VECTORNAT{2, -2, NATMAX});
    CHECK(bytes.GETNAT(1, 1, 1) == VECTORNAT{2, 0, 255});
}

TEST_CASE("one component is written without the others") {
    for (const BYTE tag : {VECTOR_FLOAT, VECTOR_INTEGER, VECTOR_24BIT}) {
        T3D_VECTOR_ANALYSIS field(tag, 1, 1, 1);
        field.PUT(1, 1, 1, VECTOR{1, 2, 3});
        field.PUT(1, 1, 1, BYTE{2}, REAL{9});
        field.PUT(1, 1, 1, BYTE{3}, NAT{8});
        field.PUT(1, 1, 1, BYTE{4}, NAT{100});
        CHECK(field.GET(1, 1, 1) == VECTOR{1, 9, 8});
    }
}

TEST_CASE("a component of an integer store keeps whole numbers above 2^53") {
    T3D_VECTOR_ANALYSIS field(VECTOR_INTEGER, 1, 1, 1);
    field.PUT(1, 1, 1, VECTORNAT{NATMAX - 1, 0, 0});
    field.PUT(1, 1, 1, BYTE{2}, REAL{5});
    CHECK(field.GETNAT(1, 1, 1) == VECTORNAT{NATMAX - 1, 5, 0});
}

TEST_CASE("a clone has the kind, the vectors and the frame of the other") {
    for (const BYTE tag : {VECTOR_FLOAT, VECTOR_INTEGER, VECTOR_24BIT}) {
        T3D_VECTOR_ANALYSIS field(tag, 2, 3, 2), other(VECTOR_FLOAT, 1, 1, 1);
        FillWithPositions(field);
        field._SETMOVE({4, 5, 6});
        field.BACKGROUND = {1, 0, 0};
        other.CLONE(field);
        CHECK(other._GETID() == tag);
        CHECK(other.GET(2, 3, 2) == VECTOR{2, 3, 2});
        CHECK(other.MOVE() == VECTOR{4, 5, 6});
        CHECK(other.BACKGROUND == VECTOR{1, 0, 0});
        other.PUT(2, 3, 2, VZERO);
        CHECK(field.GET(2, 3, 2) == VECTOR{2, 3, 2});
    }
}

TEST_CASE("the raw block of a float field lies x fastest, other kinds have none") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    FillWithPositions(field);
    REQUIRE(field.FLOATS() != nullptr);
    CHECK(field.FLOATS()[1] == VECTOR{2, 1, 1});
    CHECK(field.FLOATS()[2] == VECTOR{1, 2, 1});
    CHECK(field.FLOATS()[4] == VECTOR{1, 1, 2});
    CHECK(T3D_VECTOR_ANALYSIS(VECTOR_INTEGER, 2, 2, 2).FLOATS() == nullptr);
}

TEST_CASE("a line has the same voxels in every kind of store") {
    TPOLYVECTOR lists[3];
    NAT i = 0;
    for (const BYTE tag : {VECTOR_FLOAT, VECTOR_INTEGER, VECTOR_24BIT}) {
        T3D_VECTOR_ANALYSIS field(tag, 6, 4, 2);
        FillWithPositions(field);
        field.GETLINE(5, 4, 2, 1, 1, 1, lists[i]);
        CHECK(lists[i].LENGTH == 5); // round(sqrt(16 + 9 + 1))
        ++i;
    }
    for (NAT k = 1; k <= 5; ++k) {
        CHECK(lists[0].GET(k) == lists[1].GET(k));
        CHECK(lists[0].GET(k) == lists[2].GET(k));
    }
}

TEST_CASE("a trilinear read on a voxel gives its vector") {
    for (const BYTE tag : {VECTOR_FLOAT, VECTOR_INTEGER, VECTOR_24BIT}) {
        T3D_VECTOR_ANALYSIS field(tag, 3, 3, 3);
        FillWithPositions(field);
        CHECK(field.GET_TRILINEAR({0, 0, 0}) == VECTOR{1, 1, 1});
        CHECK(field.GET_TRILINEAR({2, 1, 0}) == VECTOR{3, 2, 1});
        CHECK(field.GET_TRILINEAR({2, 2, 2}) == VECTOR{3, 3, 3});
    }
}

TEST_CASE("a trilinear read between voxels is their blend") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    field.PUT(1, 1, 1, VECTOR{8, 0, 0});
    field.PUT(2, 2, 2, VECTOR{0, 16, 0});
    CHECK(field.GET_TRILINEAR({0.5, 0.5, 0.5}) == VECTOR{1, 2, 0}); // an eighth of each
    CHECK(field.GET_TRILINEAR({0.25, 0, 0}) == VECTOR{6, 0, 0});
}

TEST_CASE("a trilinear read fades to zero towards and behind the border") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    for (NAT i = 0; i < 8; ++i)
        field.FLOATS()[i] = {4, 4, 4};
    CHECK(field.GET_TRILINEAR({1.5, 0, 0}) == VECTOR{2, 2, 2});
    CHECK(field.GET_TRILINEAR({1.5, 1.5, 0}) == VECTOR{1, 1, 1});
    CHECK(field.GET_TRILINEAR({2, 0, 0}) == VZERO);
    // Between 0 and -1 the whole part is 0 and the fraction below 0.
    CHECK(field.GET_TRILINEAR({-1.5, 0, 0}) == VECTOR{-2, -2, -2});
    CHECK(field.GET_TRILINEAR({-2, 0, 0}) == VZERO);
    CHECK(field.GET_TRILINEAR({1e300, 0, 0}) == VZERO);
}

TEST_CASE("a read at a point that is no number gives the zero vector") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    field.FLOATS()[0] = {4, 4, 4};
    const REAL nan = std::numeric_limits<REAL>::quiet_NaN();
    CHECK(field.GET_TRILINEAR({nan, 0, 0}) == VZERO);
    CHECK(field.GET_TRILINEAR({REALMAX, 0, 0}) == VZERO);
    CHECK(field.GET_TRILANCZOS({nan, 0, 0}) == VZERO);
    CHECK(field.GET_TRILANCZOS({-REALMAX, 0, 0}) == VZERO);
}

TEST_CASE("a trilinear read goes through the frame") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 3, 3, 3);
    FillWithPositions(field);
    field._SETMATRIX({{{{2, 0, 0}, {0, 4, 0}, {0, 0, 8}}}});
    field._SETMOVE({10, 20, 30});
    CHECK(field.GET_TRILINEAR({12, 20, 38}) == VECTOR{2, 1, 2});
    CHECK(field.GET_TRILINEAR({11, 22, 30}) == VECTOR{1.5, 1.5, 1});
}

TEST_CASE("the fast inner path and the checked one give the same bits") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 4, 4, 4), wide(VECTOR_FLOAT, 6, 6, 6);
    NAT seed = 1;
    for (NAT z = 1; z <= 4; ++z)
        for (NAT y = 1; y <= 4; ++y)
            for (NAT x = 1; x <= 4; ++x) {
                seed = seed * 48271 % 2147483647;
                const REAL a = static_cast<REAL>(seed) / 1e5;
                field.PUT(x, y, z, VECTOR{a, 1 / a, a * a});
                wide.PUT(x, y, z, VECTOR{a, 1 / a, a * a});
            }
    // In the wide field the same eight corners always lie inside.
    for (REAL x = 1; x <= 4; x += 0.37)
        for (REAL z = 1; z <= 4; z += 0.29) {
            const VECTOR local{x, 4 - (x - 1), z};
            CHECK(field._TRILINEAR(local) == wide._TRILINEAR(local));
        }
}

TEST_CASE("the sampler places points as the frame does") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 3, 3, 3);
    field._SETMATRIX({{{{0.9, 0.1, 0}, {-0.2, 1.1, 0.3}, {0, 0.1, 0.7}}}});
    field._SETMOVE({0.1, 7.3, -2});
    const VECTOR_SAMPLER sampler(field);
    for (REAL t = -2; t < 2; t += 0.13) {
        const VECTOR point{t, 7 + t * t, 1 - t};
        CHECK(sampler.LOCAL(point) == field.GETFRAME().G2L(point));
    }
}

TEST_CASE("a Lanczos read on a voxel gives its vector, and that of a constant field inside") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 9, 9, 9);
    FillWithPositions(field);
    const VECTOR v = field.GET_TRILANCZOS({4, 3, 5});
    CHECK(v == VECTOR{5, 4, 6}); // the kernel is 0 at whole distances
    T3D_VECTOR_ANALYSIS constant(VECTOR_FLOAT, 9, 9, 9);
    for (NAT i = 0; i < 729; ++i)
        constant.FLOATS()[i] = {2, -1, 0};
    const VECTOR w = constant.GET_TRILANCZOS({3.7, 3.2, 4.5});
    CHECK(w.x == doctest::Approx(2).epsilon(1e-12)); // the weights are divided by their sum
    CHECK(w.y == doctest::Approx(-1).epsilon(1e-12));
}

TEST_CASE("a Lanczos read half way between two voxels has the kernel's weights") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 20, 9, 9);
    field.PUT(10, 5, 5, VECTOR{1, 0, 0});
    // L(1/2) over the sum of L(±1/2), L(±3/2), L(±5/2), L(±7/2).
    const auto kernel = [](REAL x) {
        const REAL a = PI * x;
        return 4 * std::sin(a) * std::sin(a / 4) / (a * a);
    };
    const REAL sum = 2 * (kernel(0.5) + kernel(1.5) + kernel(2.5) + kernel(3.5));
    CHECK(field._TRILANCZOS({10.5, 5, 5}).x == doctest::Approx(kernel(0.5) / sum).epsilon(1e-12));
    CHECK(field._TRILANCZOS({11.5, 5, 5}).x == doctest::Approx(kernel(1.5) / sum).epsilon(1e-12));
}

TEST_CASE("counts, extremes and the histogram of a vector field go by length") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 4, 1, 1);
    field.PUT(1, 1, 1, VECTOR{3, 4, 0});
    field.PUT(2, 1, 1, VECTOR{0, 0, 2});
    field.PUT(3, 1, 1, VECTOR{0, 0, 2});
    CHECK((field.MIN)() == 0);
    CHECK((field.MAX)() == 5);
    CHECK(field.COUNT(2, 5) == 3);
    CHECK(field.COUNT(VECTOR{0, 0, 2}) == 2);
    TPOLYNAT bins;
    field.HISTOGRAM(bins);
    REQUIRE(bins.LENGTH == 6);
    CHECK(bins.GET(1) == 1);
    CHECK(bins.GET(3) == 2);
    CHECK(bins.GET(6) == 1);
}

TEST_CASE("a histogram of huge lengths has its last bin for them") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 1, 1, 1);
    field.PUT(1, 1, 1, VECTOR{1e100, 0, 0});
    TPOLYNAT bins;
    field.HISTOGRAM(bins);
    REQUIRE(bins.LENGTH == 65536);
    CHECK(bins.GET(65536) == 1);
}
