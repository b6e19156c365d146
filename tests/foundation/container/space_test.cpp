#include "foundation/container/space.hpp"
#include "support/capture.hpp"

#include <utility>

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a space runs fastest along x, then y, and reads DEFAULT outside") {
    TSPACEWORD space(2, 3, 2);
    space.PUT(2, 3, 2, 5);
    CHECK(space.GET(12) == 5);
    space.PUT(1, 2, 1, 4);
    CHECK(space.GET(3) == 4);
    space.DEFAULT = 9;
    CHECK(space.GET(3, 1, 1) == 9);
    CHECK(space.GET(1, 1, 0) == 9);
    space.PUT(3, 1, 1, 7);
    CHECK(space.GET(3) == 4);
    space.PUTINDEX(1, 8);
    CHECK(space.GET(1, 1, 1) == 8);
}

TEST_CASE("every space has its code") {
    CHECK(TSPACENAT(1, 1, 1).KIND == 'R');
    CHECK(TSPACEWORD(1, 1, 1).KIND == 'S');
    CHECK(TSPACEBYTE(1, 1, 1).KIND == 'T');
    CHECK(TSPACEBOOL(1, 1, 1).KIND == 'U');
    CHECK(TSPACEVECTOR(1, 1, 1).KIND == 'X');
    CHECK(TSPACEVECTORNAT(1, 1, 1).KIND == 'Y');
}

TEST_CASE("a space without memory has no dimensions") {
    CAPTURE console;
    TSPACEBYTE space(NATMAX, NATMAX, 2);
    CHECK(console.TEXT() == "  Wrong static allocation (Out of memory?)! Create empty field.\n");
    CHECK(space.NX == 0);
    CHECK(space.NZ == 0);
    space.INIT(2, -2, 2);
    CHECK(space.NX == 0);
    CHECK(space.LENGTH == 0);
}

TEST_CASE("FILL sets all voxels and SORTED, INVERT complements them") {
    TSPACEBYTE space(2, 1, 1);
    space.FILL(0x0F);
    CHECK(space.SORTED);
    space.INVERT();
    CHECK(space.GET(2, 1, 1) == 0xF0);
    CHECK_FALSE(space.SORTED);
    TSPACENAT nats(1, 1, 1);
    nats.INVERT();
    CHECK(nats.GET(1, 1, 1) == -1);
}

TEST_CASE("a part of a vector is set by its number") {
    TSPACEVECTOR space(1, 1, 1);
    space.PUT(1, 1, 1, 1, 4.0);
    space.PUT(1, 1, 1, 3, 6.0);
    space.PUT(1, 1, 1, 4, 9.0);
    space.PUT(2, 1, 1, 1, 9.0);
    CHECK(space.GET(1, 1, 1) == VECTOR{4, 0, 6});
}

TEST_CASE("COUNT counts vectors by length and by value") {
    TSPACEVECTOR space(3, 1, 1);
    space.PUT(1, 1, 1, {3, 4, 0});
    space.PUT(2, 1, 1, {0, 0, 1});
    CHECK(space.COUNT(1, 5) == 2);
    CHECK(space.COUNT(1.5, 5) == 1);
    CHECK(space.COUNT(VZERO) == 1);
}

TEST_CASE("GETLINE stores one element after each step, so that entry n/2 is the middle") {
    TSPACEVECTORNAT space(5, 1, 1);
    for (NAT x = 1; x <= 5; ++x)
        space.PUT(x, 1, 1, {x, 0, 0});
    TPOLYVECTORNAT line;
    space.GETLINE(5, 1, 1, 1, 1, 1, line); // four steps of -65535: 4.00002 down to 1.00006
    REQUIRE(line.LENGTH == 4);
    CHECK(line.GET(1) == VECTORNAT{4, 0, 0});
    CHECK(line.GET(2) == VECTORNAT{3, 0, 0});
    CHECK(line.GET(4) == VECTORNAT{1, 0, 0});
    space.GETLINE(2, 1, 1, 2, 1, 1, line);
    CHECK(line.LENGTH == 0);
}

TEST_CASE("GETLINE reads DEFAULT outside the space") {
    TSPACEVECTOR space(1, 1, 1);
    space.DEFAULT = {7, 7, 7};
    TPOLYVECTOR line;
    space.GETLINE(1, 1, 1, 1, 1, -2, line);
    CHECK(line.LENGTH == 3);
    CHECK(line.GET(3) == VECTOR{7, 7, 7});
}

TEST_CASE("a fixed-point walk stops slightly short of its far end point") {
    FIXED_WALK walk({1, 1, 1}, {4, 1, 1});
    REQUIRE(walk.STEPS() == 3);
    walk.NEXT();
    CHECK(walk.POINT() == VECTORNAT{1, 1, 1}); // 1 + 65535/65536
    walk.NEXT();
    walk.NEXT();
    CHECK(walk.POINT() == VECTORNAT{3, 1, 1}); // the far point 4 is not reached
}

TEST_CASE("LINE marks its first point and every step") {
    TSPACEBOOL mask(5, 2, 1);
    mask.LINE({1, 1, 1}, {4, 1, 1}, true);
    CHECK(mask.GET(1, 1, 1));
    CHECK(mask.GET(2, 1, 1));
    CHECK(mask.GET(3, 1, 1));
    CHECK_FALSE(mask.GET(4, 1, 1));
    mask.LINE({2, 2, 1}, {2, 2, 1}, true);
    CHECK(mask.GET({2, 2, 1}));
    mask.LINE({-4, 1, 1}, {9, 1, 1}, false); // outside is dropped
    CHECK_FALSE(mask.GET(1, 1, 1));
}

TEST_CASE("the checked GET of the last voxel of a mask reads DEFAULT, _GET reads its bit") {
    TSPACEBOOL mask(2, 2, 2);
    mask.PUT(2, 2, 2, true);
    CHECK_FALSE(mask.GET(2, 2, 2));
    CHECK(mask._GET(2, 2, 2));
    mask.DEFAULT = true;
    mask.PUT(2, 2, 2, false);
    CHECK(mask.GET(2, 2, 2));
    CHECK_FALSE(mask._GET(2, 2, 2));
}

TEST_CASE("a mask is filled and inverted as a whole") {
    TSPACEBOOL mask(3, 3, 1);
    mask.FILL(true);
    CHECK(mask.GET(1, 1, 1));
    CHECK(mask._GET(3, 3, 1));
    mask.INVERT();
    CHECK_FALSE(mask.GET(2, 2, 1));
    CHECK_FALSE(mask._GET(3, 3, 1));
    mask.PUT({4, 1, 1}, true);
    CHECK_FALSE(mask.GET(1, 2, 1)); // a voxel outside is not the next row
}

TEST_CASE("a moved space carries its dimensions") {
    TSPACEBOOL a(2, 2, 2);
    a.PUT(1, 2, 1, true);
    TSPACEBOOL b = std::move(a);
    CHECK(b.GET(1, 2, 1));
    CHECK(a.NX == 0);
    TSPACENAT c(1, 1, 2);
    c.PUT(1, 1, 2, 5);
    const TSPACENAT d = std::move(c);
    CHECK(d.GET(1, 1, 2) == 5);
    CHECK(c.NZ == 0);
}
