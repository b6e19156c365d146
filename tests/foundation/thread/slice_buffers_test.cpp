#include "foundation/thread/slice_buffers.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a new TSLICE has null buffers and states of 0") {
    TSLICE slices;
    REQUIRE(slices.INIT(3));
    for (NAT slice = 1; slice <= 3; ++slice) {
        CHECK(slices.GET(slice) == nullptr);
        CHECK(slices.GETSTATE(slice) == 0);
    }
    CHECK(slices.SLICES.LENGTH == 3);
    CHECK(slices.STATES.LENGTH == 3);
}

TEST_CASE("an empty TSLICE gives null and state 0") {
    TSLICE slices;
    CHECK(slices.GET(1) == nullptr);
    CHECK(slices.GETSTATE(1) == 0);
    slices.PUTSTATE(1, 2);
    slices.FILL(8);
    slices.FILLSTATE(2);
    slices.DONE();
    CHECK(slices.GETSTATE(1) == 0);
}

TEST_CASE("FILL gives each slice a zero block of its own") {
    TSLICE slices;
    REQUIRE(slices.INIT(2));
    slices.FILL(4);
    REQUIRE(slices.GET(1) != nullptr);
    REQUIRE(slices.GET(2) != nullptr);
    CHECK(slices.GET(1) != slices.GET(2));
    for (NAT i = 0; i < 4; ++i)
        CHECK(static_cast<char *>(slices.GET(2))[i] == 0);
    CHECK(slices.GET(0) == nullptr);
    CHECK(slices.GET(3) == nullptr);
}

TEST_CASE("a block that cannot be had stays null") {
    CAPTURE console;
    TSLICE slices;
    REQUIRE(slices.INIT(2));
    slices.FILL(NATMAX);
    CHECK(slices.GET(1) == nullptr);
    CHECK_FALSE(slices.FILL(2, NATMAX));
    CHECK_FALSE(slices.FILL(3, 1));
}

TEST_CASE("a released block can be filled again") {
    TSLICE slices;
    REQUIRE(slices.INIT(2));
    CHECK(slices.FILL(1, 8));
    slices.RELEASE(1);
    CHECK(slices.GET(1) == nullptr);
    slices.RELEASE(1);
    CHECK(slices.FILL(1, 8));
    CHECK(slices.FILL(1, 16));
    CHECK(slices.GET(1) != nullptr);
}

TEST_CASE("FILLSTATE sets all states and CURRENT to 0") {
    TSLICE slices;
    REQUIRE(slices.INIT(3));
    slices.CURRENT = 2;
    slices.FILLSTATE(SLICE_RUNNING);
    CHECK(slices.GETSTATE(1) == 2);
    CHECK(slices.GETSTATE(3) == 2);
    CHECK(slices.GETSTATE(4) == 0);
    CHECK(slices.CURRENT == 0);
}

TEST_CASE("a finished slice may be committed when no neighbour is unfinished") {
    TSLICE slices;
    REQUIRE(slices.INIT(3));
    slices.FILLSTATE(SLICE_RUNNING);
    slices.PUTSTATE(2, SLICE_READY);
    CHECK_FALSE(slices.MAYCOMMIT(2));
    slices.PUTSTATE(1, SLICE_READY);
    CHECK_FALSE(slices.MAYCOMMIT(2));
    slices.PUTSTATE(3, SLICE_DONE);
    CHECK(slices.MAYCOMMIT(2));
    CHECK(slices.MAYCOMMIT(1));
    CHECK_FALSE(slices.MAYCOMMIT(3));
}

TEST_CASE("DONE empties a TSLICE, also when called twice, and INIT works again") {
    TSLICE slices;
    REQUIRE(slices.INIT(2));
    slices.FILL(8);
    slices.DONE();
    slices.DONE();
    CHECK(slices.GET(1) == nullptr);
    CHECK(slices.SLICES.LENGTH == 0);
    REQUIRE(slices.INIT(5));
    CHECK(slices.GET(5) == nullptr);
    CHECK(slices.STATES.LENGTH == 5);
}
