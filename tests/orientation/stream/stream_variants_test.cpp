#include "orientation/stream/stream_variants.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/base/random.hpp"
#include "geometry/model/cloud.hpp"
#include "orientation/stream/seeds.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
void Constant(T3D_VECTOR_ANALYSIS &field, const VECTORNAT &size, const VECTOR &value) {
    field.INIT(VECTOR_FLOAT, size.x, size.y, size.z);
    for (NAT i = 0; i < field._VOXELS(); ++i)
        field.FLOATS()[i] = value;
}

// Mask value 7 at one voxel.
struct ONE_VOXEL {
    T3D_SCALAR_ANALYSIS scalar;
    TPOLYNAT values;
    STREAM_MASK MASK() const { return {scalar, values}; }
    ONE_VOXEL(const VECTORNAT &size, const VECTORNAT &p)
        : scalar(TAG_GRAY, size.x, size.y, size.z) {
        scalar.PUT(p.x, p.y, p.z, 7);
        values.PUSH(7);
        values.SORT();
    }
};

// A frame whose numbers are not exact, so that a lookup at a zero voxel sees a trace of its
// neighbours: only so can a line start there.
void Inexact(T3D_VECTOR_ANALYSIS &field) {
    field._SETMATRIX({{{{1.0 / 3, 0, 0}, {0, 1.0 / 3, 0}, {0, 0, 1.0 / 3}}}});
    field._SETMOVE({1000.1, 1000.1, 1000.1});
}

bool SameLines(const TCLOUD &a, const TCLOUD &b) {
    if (a.GETPOINTLENGTH() != b.GETPOINTLENGTH() || a.GETLINELENGTH() != b.GETLINELENGTH())
        return false;
    for (NAT i = 1; i <= a.GETPOINTLENGTH(); ++i)
        if (!(a.GETPOINT(i) == b.GETPOINT(i))) return false;
    return true;
}
} // namespace

TEST_CASE("a zero field has every candidate and no line") {
    CAPTURE console;
    const T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 4, 4, 4);
    TCLOUD cloud;
    const STREAM_SETTINGS settings;
    _VECTOR_STREAM_UNIFORM({field, cloud, nullptr, settings});
    CHECK(console.CONTAINS("Calculate stream lines. 100 % ready"));
    CHECK(console.CONTAINS("  Found 0 (0%) streamlines from seeds.\n"));
    CHECK(cloud.GETPOINTLENGTH() == 0);
    CHECK(cloud.GETOBJECTLENGTH() == 0);
}

TEST_CASE("a field with a size below 2 gives no output at all") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS flat(VECTOR_FLOAT, 4, 4, 1), none(VECTOR_FLOAT);
    flat._SETMATRIX({{{{-1, 0, 0}, {0, -1, 0}, {0, 0, -1}}}});
    TCLOUD cloud;
    const STREAM_SETTINGS settings;
    _VECTOR_STREAM_UNIFORM({flat, cloud, nullptr, settings});
    _VECTOR_STREAM_UNIFORM_RANDOM({none, cloud, nullptr, settings}, 5);
    _VECTOR_STREAM_SLICE({none, cloud, nullptr, settings}, VZERO, {0, 0, 1});
    CHECK(console.TEXT().empty());
}

TEST_CASE("a matrix with negative entries is told and the run goes on") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    field._SETMATRIX({{{{-1, 0, 0}, {0, -1, 0}, {0, 0, 1}}}});
    TCLOUD cloud;
    const STREAM_SETTINGS settings;
    _VECTOR_STREAM_UNIFORM({field, cloud, nullptr, settings});
    CHECK(console.CONTAINS("  Matrix with negative entries (<-1, 0, 0>;<0, -1, 0>;<0, 0, 1>)!\n"
                           "  Note: Check your coordinate system!\n"));
    CHECK(console.CONTAINS("  Found 0 (0%) streamlines from seeds.\n"));
}

TEST_CASE("a mask form traces from its voxels to the border of a constant field") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {5, 5, 5}, {3, 0, 0});
    const ONE_VOXEL mask({5, 5, 5}, {3, 2, 2});
    TCLOUD cloud;
    STREAM_SETTINGS settings;
    settings.angles = 0;
    _VECTOR_STREAM_MASK({field, cloud, nullptr, settings}, mask.MASK());
    REQUIRE(cloud.GETLINELENGTH() == 1);
    CHECK(cloud.GETALLLINEPOINTLENGTH(1) == 7);
    CHECK(cloud.GETPOINT(1) == HYPER{-1, 1, 1, 0}); // both ends lie just outside
    CHECK(cloud.GETPOINT(7) == HYPER{5, 1, 1, 0});
    CHECK(cloud.GETALLMATERIAL(1) == 1);
    CHECK(cloud.GETNAME(1) == UTF16("Streamlines"));
    CHECK(cloud.offset == HYPER{0, 0, 0, 0});
    CHECK(cloud.scale == HYPER{1, 1, 1, 1});
    CHECK(cloud.dimension == HYPER{5, 5, 5, 1});
    CHECK(console.CONTAINS("  Found 1 (100.00%) streamlines from seeds.\n"));
}

TEST_CASE("the segment angle stores the two ends and the seed of a straight line") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {5, 5, 5}, {3, 0, 0});
    const ONE_VOXEL mask({5, 5, 5}, {3, 2, 2});
    TCLOUD cloud;
    const STREAM_SETTINGS settings;
    _VECTOR_STREAM_MASK({field, cloud, nullptr, settings}, mask.MASK());
    REQUIRE(cloud.GETPOINTLENGTH() == 3);
    CHECK(cloud.GETPOINT(1) == HYPER{-1, 1, 1, 0});
    CHECK(cloud.GETPOINT(2) == HYPER{2, 1, 1, 0});
    CHECK(cloud.GETPOINT(3) == HYPER{5, 1, 1, 0});
}

TEST_CASE("the last plane of each axis holds no candidate") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {4, 4, 4}, {1, 0, 0});
    TCLOUD cloud;
    const STREAM_SETTINGS settings;
    for (const VECTORNAT &p : {VECTORNAT{4, 2, 2}, VECTORNAT{2, 4, 2}, VECTORNAT{2, 2, 4}})
        _VECTOR_STREAM_MASK({field, cloud, nullptr, settings}, ONE_VOXEL({4, 4, 4}, p).MASK());
    CHECK(cloud.GETLINELENGTH() == 0);
}

TEST_CASE("stream, its slices and nodes use candidates whose stored vector is zero, the mask, "
          "muscle and random forms use those whose vector is not zero") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {6, 6, 6}, {1, 0, 0});
    const ONE_VOXEL mask({6, 6, 6}, {3, 3, 3});
    STREAM_SETTINGS settings;
    settings.seeds = 0;
    TCLOUD none, lines;
    _VECTOR_STREAM_UNIFORM({field, none, nullptr, settings});
    CHECK(none.GETLINELENGTH() == 0); // no vector is zero: no candidate
    _VECTOR_STREAM_MASK({field, lines, nullptr, settings}, mask.MASK());
    CHECK(lines.GETLINELENGTH() == 1);
    // With one zero vector that voxel alone is a candidate of the former, and none of the latter.
    Inexact(field);
    field.PUT(3, 3, 3, VZERO);
    TCLOUD zero, notZero;
    _VECTOR_STREAM_UNIFORM({field, zero, nullptr, settings});
    CHECK(zero.GETLINELENGTH() == 1);
    CHECK(console.CONTAINS("  Found 1 (100.00%) streamlines from seeds.\n"));
    _VECTOR_STREAM_MASK({field, notZero, nullptr, settings}, mask.MASK());
    CHECK(notZero.GETLINELENGTH() == 0);
    T3D_SCALAR_ANALYSIS target(TAG_GRAY, 6, 6, 6);
    TCLOUD untouched;
    _VECTOR_STREAM_NODES({field, untouched, nullptr, settings}, target);
    CHECK(target.GET(4, 3, 3) == 1);
    CHECK(target.GET(3, 4, 3) == 0);
    CHECK(untouched.GETPOINTLENGTH() == 0);
    CHECK(untouched.GETOBJECTLENGTH() == 0);
}

TEST_CASE("a slice reaches beyond the field, where reads give the zero vector, so that those "
          "candidates count as required") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {5, 5, 5}, {1, 0, 0});
    Inexact(field);
    field.PUT(3, 3, 3, VZERO);
    STREAM_SETTINGS settings;
    settings.seeds = 0;
    TCLOUD cloud;
    // R = round(sqrt(75)) = 9: 19 * 19 candidates, 25 in the field, 24 of these are not zero.
    _VECTOR_STREAM_SLICE({field, cloud, nullptr, settings}, {0, 0, 3}, {0, 0, 1});
    const NAT found = cloud.GETLINELENGTH();
    CHECK(found >= 1);
    CHECK(console.CONTAINS(GETUTF8("  Found " + GETSTRING(found) + " (" +
                                   GETSTRING(static_cast<REAL>(found) / 337 * 100, 2) +
                                   "%) streamlines from seeds.\n")));
}

TEST_CASE("a masked slice uses the voxels of its plane that have the value") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {5, 5, 5}, {1, 0, 0});
    Inexact(field);
    field.PUT(3, 3, 3, VZERO);
    const ONE_VOXEL inside({5, 5, 5}, {3, 3, 3}), outside({5, 5, 5}, {3, 3, 4});
    const STREAM_SETTINGS settings;
    TCLOUD cloud, none;
    _VECTOR_STREAM_SLICE_MASK({field, cloud, nullptr, settings}, {0, 0, 3}, {0, 0, 1},
                              inside.MASK());
    CHECK(cloud.GETLINELENGTH() == 1);
    CHECK(console.CONTAINS("  Found 1 (100.00%) streamlines from seeds.\n"));
    _VECTOR_STREAM_SLICE_MASK({field, none, nullptr, settings}, {0, 0, 3}, {0, 0, 1},
                              outside.MASK());
    CHECK(none.GETLINELENGTH() == 0);
}

TEST_CASE("the zero point of a slice is the middle of the field") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {6, 6, 6}, {1, 0, 0});
    Inexact(field);
    field.PUT(3, 3, 3, VZERO);
    STREAM_SETTINGS settings;
    settings.seeds = 0;
    TCLOUD middle, named, other;
    _VECTOR_STREAM_SLICE({field, middle, nullptr, settings}, VZERO, {1, 0, 0});
    _VECTOR_STREAM_SLICE({field, named, nullptr, settings}, {3, 3, 3}, {1, 0, 0});
    _VECTOR_STREAM_SLICE({field, other, nullptr, settings}, {5, 3, 3}, {1, 0, 0});
    CHECK(middle.GETLINELENGTH() > 0);
    CHECK(SameLines(middle, named));
    CHECK_FALSE(SameLines(middle, other));
}

TEST_CASE("with seeds 1 a line is kept whole, and later seeds in its voxels are skipped") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {5, 5, 5}, {1, 0, 0});
    T3D_SCALAR_ANALYSIS scalar(TAG_GRAY, 5, 5, 5);
    TPOLYNAT values;
    values.PUSH(0); // every voxel
    STREAM_SETTINGS settings;
    settings.angles = 0;
    TCLOUD cloud;
    _VECTOR_STREAM_MASK({field, cloud, nullptr, settings}, {scalar, values});
    CHECK(cloud.GETLINELENGTH() == 16);         // one for each row of the 4 x 4 x 4 candidates
    CHECK(cloud.GETALLLINEPOINTLENGTH(1) == 7); // -1, the seed at 0, and 1 to 5
    CHECK(console.CONTAINS("  Found 16 (25.00%) streamlines from seeds.\n"));
    settings.seeds = 0;
    TCLOUD every;
    _VECTOR_STREAM_MASK({field, every, nullptr, settings}, {scalar, values});
    CHECK(every.GETLINELENGTH() == 64);
}

TEST_CASE("with seeds above 1 a visited voxel in the cube blocks a seed") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {9, 9, 2}, {1, 0, 0});
    T3D_SCALAR_ANALYSIS scalar(TAG_GRAY, 9, 9, 2);
    TPOLYNAT values;
    values.PUSH(0);
    STREAM_SETTINGS settings;
    settings.angles = 0;
    settings.seeds = 2;
    TCLOUD cloud;
    _VECTOR_STREAM_MASK({field, cloud, nullptr, settings}, {scalar, values});
    // Rows y = 1 and y = 5: row 4 still has row 1 at offset -3.
    REQUIRE(cloud.GETLINELENGTH() == 2);
    CHECK(cloud.GETPOINT(1).y == 0);
    CHECK(cloud.GETLINE(2, 1).y == 4);
}

TEST_CASE("a snake leaves out what a line before it has passed") {
    CAPTURE console;
    // Below row 4 the vectors run slanting, from there on along x: the lines of voxels <1,1> and
    // <6,1> meet in row 4.
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {14, 8, 3}, {1, 0, 0});
    T3D_SCALAR_ANALYSIS scalar(TAG_GRAY, 14, 8, 3);
    for (NAT z = 1; z <= 3; ++z)
        for (NAT y = 1; y <= 3; ++y)
            for (NAT x = 1; x <= 14; ++x)
                field.PUT(x, y, z, VECTOR{1, 1, 0});
    scalar.PUT(1, 1, 2, 7);
    scalar.PUT(6, 1, 2, 7);
    TPOLYNAT values;
    values.PUSH(7);
    STREAM_SETTINGS settings;
    settings.angles = 0;
    const auto secondLine = [&](NAT snakes) {
        settings.snakes = snakes;
        TCLOUD cloud;
        _VECTOR_STREAM_MASK({field, cloud, nullptr, settings}, {scalar, values});
        REQUIRE(cloud.GETLINELENGTH() == 2);
        return cloud.GETALLLINEPOINTLENGTH(2);
    };
    const NAT whole = secondLine(0), cut = secondLine(1), early = secondLine(2);
    CHECK(cut < whole);
    CHECK(cut > 1);
    CHECK(early < cut);
}

TEST_CASE("a line is dropped only when its forward half is the longer one by more than two steps, "
          "a longer backward half passes") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {21, 3, 3}, {1, 0, 0});
    STREAM_SETTINGS settings;
    settings.stopLength = 100;
    const auto found = [&](NAT x) {
        TCLOUD cloud;
        _VECTOR_STREAM_MUSCLE_MASK({field, cloud, nullptr, settings},
                                   ONE_VOXEL({21, 3, 3}, {x, 2, 2}).MASK());
        return cloud.GETLINELENGTH();
    };
    // From voxel x the forward half has length 22 - x, the backward half x.
    CHECK(found(3) == 0);
    CHECK(found(9) == 0);  // 13 - 9 = 4 is above 2
    CHECK(found(10) == 1); // 12 - 10 = 2 is not
    CHECK(found(19) == 1);
}

TEST_CASE("a seed at the end of a fibre is dropped by the muscle forms") {
    CAPTURE console;
    // At -2^53 a step of 1 towards zero is exact, and one away from it is lost: the backward half
    // has no point.
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {6, 3, 3}, {1, 0, 0});
    field._SETMOVE({-9007199254740992.0, 0, 0});
    const ONE_VOXEL mask({6, 3, 3}, {1, 2, 2});
    STREAM_SETTINGS settings;
    settings.angles = 0;
    TCLOUD line, none;
    _VECTOR_STREAM_MASK({field, line, nullptr, settings}, mask.MASK());
    REQUIRE(line.GETLINELENGTH() == 1);
    CHECK(line.GETPOINT(1).x == -9007199254740992.0); // the seed is the first point
    _VECTOR_STREAM_MUSCLE_MASK({field, none, nullptr, settings}, mask.MASK());
    CHECK(none.GETLINELENGTH() == 0);
}

TEST_CASE("a drawn candidate that does not qualify is drawn once more, not until one does") {
    CAPTURE console;
    RESTART_RANDOM(5);
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {4, 4, 4}, {1, 0, 0});
    STREAM_SETTINGS settings;
    settings.seeds = 0;
    TCLOUD cloud;
    const NAT rounds = 200;
    _VECTOR_STREAM_UNIFORM_RANDOM({field, cloud, nullptr, settings}, rounds);
    // The same draws, told again: a coordinate of 0 lies outside the field, where vectors are zero.
    NAT expected = 0;
    for (NAT round = 1; round <= rounds; ++round) {
        RESTART_RANDOM(5);
        RANDOM_STREAM random(NEXT_RANDOM_COMMAND(), static_cast<std::uint64_t>(round));
        bool inside = false;
        for (int draw = 0; draw < 2 && !inside; ++draw) {
            const REAL x = random.FRACTION(), y = random.FRACTION(), z = random.FRACTION();
            inside = ROUND(x * 4) > 0 && ROUND(y * 4) > 0 && ROUND(z * 4) > 0;
        }
        expected += inside;
    }
    CHECK(cloud.GETLINELENGTH() == expected);
    CHECK(expected < rounds);
    CHECK(console.CONTAINS(
        "  Note: Required seeds may vary from the found seeds by zero vectors.\n"));
}

TEST_CASE("the same seed gives the same random lines") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {9, 9, 9}, {1, 2, 3});
    const STREAM_SETTINGS settings;
    TCLOUD first, second, other;
    RESTART_RANDOM(42);
    _VECTOR_STREAM_UNIFORM_RANDOM({field, first, nullptr, settings}, 20);
    RESTART_RANDOM(42);
    _VECTOR_STREAM_UNIFORM_RANDOM({field, second, nullptr, settings}, 20);
    _VECTOR_STREAM_UNIFORM_RANDOM({field, other, nullptr, settings}, 20);
    CHECK(first.GETLINELENGTH() > 0);
    CHECK(SameLines(first, second));
    CHECK_FALSE(SameLines(first, other)); // the next command draws other numbers
}

TEST_CASE("the masked random form names the mask in its note, the muscle forms do not") {
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {4, 4, 4}, {1, 0, 0});
    const ONE_VOXEL mask({4, 4, 4}, {2, 2, 2});
    const STREAM_SETTINGS settings;
    TCLOUD cloud;
    const char *plain = "  Note: Required seeds may vary from the found seeds by zero vectors.\n";
    const char *masked = "  Note: Required seeds may vary from the found seeds by zero vectors or "
                         "masks value.\n";
    CAPTURE console;
    _VECTOR_STREAM_MASK_RANDOM({field, cloud, nullptr, settings}, 30, mask.MASK());
    CHECK(console.CONTAINS(masked));
    console.CLEAR();
    _VECTOR_STREAM_MUSCLE_MASK_RANDOM({field, cloud, nullptr, settings}, 30, mask.MASK());
    CHECK(console.CONTAINS(plain));
    console.CLEAR();
    _VECTOR_STREAM_MUSCLE_RANDOM({field, cloud, nullptr, settings}, 30);
    CHECK(console.CONTAINS(plain));
}

TEST_CASE("the random forms take each candidate from the mask") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {4, 4, 4}, {1, 0, 0});
    const ONE_VOXEL mask({4, 4, 4}, {2, 2, 2});
    STREAM_SETTINGS settings;
    settings.seeds = 0;
    TCLOUD cloud;
    RESTART_RANDOM(1);
    _VECTOR_STREAM_MASK_RANDOM({field, cloud, nullptr, settings}, 500, mask.MASK());
    REQUIRE(cloud.GETLINELENGTH() > 0);
    for (NAT line = 1; line <= cloud.GETLINELENGTH(); ++line)
        CHECK(cloud.GETLINE(line, 1).y == 1);
}

TEST_CASE("the line value is the running number of its seed, blocked seeds counted") {
    CAPTURE console;
    T3D_VECTOR_ANALYSIS field;
    Constant(field, {4, 3, 3}, {1, 0, 0});
    T3D_SCALAR_ANALYSIS scalar(TAG_GRAY, 4, 3, 3);
    TPOLYNAT values;
    values.PUSH(0);
    STREAM_SETTINGS settings;
    settings.angles = 0;
    TCLOUD cloud;
    _VECTOR_STREAM_MASK({field, cloud, nullptr, settings}, {scalar, values});
    REQUIRE(cloud.GETLINELENGTH() == 4); // rows of three candidates, the first one is free
    CHECK(cloud.GETALLMATERIAL(1) == 1);
    CHECK(cloud.GETALLMATERIAL(2) == 4);
    CHECK(cloud.GETALLMATERIAL(4) == 10);
}

TEST_CASE("a run works on fields of whole numbers and bytes as well") {
    CAPTURE console;
    for (const BYTE kind : {VECTOR_INTEGER, VECTOR_24BIT}) {
        T3D_VECTOR_ANALYSIS field(kind, 5, 5, 5);
        for (NAT z = 1; z <= 5; ++z)
            for (NAT y = 1; y <= 5; ++y)
                for (NAT x = 1; x <= 5; ++x)
                    field.PUT(x, y, z, VECTOR{9, 0, 0});
        TCLOUD cloud;
        const STREAM_SETTINGS settings;
        _VECTOR_STREAM_MASK({field, cloud, nullptr, settings},
                            ONE_VOXEL({5, 5, 5}, {3, 3, 3}).MASK());
        REQUIRE(cloud.GETPOINTLENGTH() == 3);
        CHECK(cloud.GETPOINT(3) == HYPER{5, 2, 2, 0});
    }
}
