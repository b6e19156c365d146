#include "app/range_parameters.hpp"

#include "foundation/console/console.hpp"
#include "script/engine/macro.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
TPOLYNAT collected;
void COLLECT(TMACRO *engine) { GETVALUES(engine, 2, collected); }

// The values of a line "collect mask ..." from its second parameter on.
void VALUES_OF(const std::string &parameters) {
    SETSINK([](std::string_view, void *) {}, nullptr);
    TMACRO engine;
    engine.INIT();
    engine.PUTPROCEDURE("collect", COLLECT);
    engine.LOADTEXT("collect mask " + parameters + "\n");
    engine.SINGLERUN();
    SETSINK(nullptr, nullptr);
}
} // namespace

TEST_CASE("a range is one value, or two parted by a comma, a semicolon or two points") {
    CHECK(GETRANGE("7").x == 7);
    CHECK(GETRANGE("7").y == 7);
    CHECK(GETRANGE("2,10").x == 2);
    CHECK(GETRANGE("2,10").y == 10);
    CHECK(GETRANGE("2;10").y == 10);
    CHECK(GETRANGE("2..10").x == 2);
    CHECK(GETRANGE("2..10").y == 10);
}

TEST_CASE("the ends of a range in the wrong order are swapped") {
    CHECK(GETRANGE("10..2").x == 2);
    CHECK(GETRANGE("10..2").y == 10);
    CHECK(GETREALRANGE("1.5,0.5").min == 0.5);
    CHECK(GETREALRANGE("1.5,0.5").max == 1.5);
}

TEST_CASE("values and ranges of a line become one sorted list without doubles") {
    VALUES_OF("9 <2..4> <4, 5> 9");
    REQUIRE(collected.LENGTH == 5);
    CHECK(collected.GET(1) == 2);
    CHECK(collected.GET(4) == 5);
    CHECK(collected.GET(5) == 9);
    CHECK(collected.SEARCH(4) == 3);
    CHECK(collected.SEARCH(6) == 0);
}

TEST_CASE("a range beyond what a voxel can hold ends there") {
    VALUES_OF("<65530..9000000000>");
    CHECK(collected.LENGTH == 6);
    VALUES_OF("<-5..-1>");
    CHECK(collected.LENGTH == 0);
}

TEST_CASE("one factor holds for all axes, a vector for each its own") {
    CHECK(GETFACTORS("2").z == 2);
    CHECK(GETFACTORS("1,2,3").z == 3);
    CHECK(GETFACTORS("").x == 0);
}
