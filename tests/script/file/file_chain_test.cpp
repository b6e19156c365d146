#include "script/file/file_command.hpp"

#include <doctest/doctest.h>

using namespace morvane;
using NAMES = std::vector<UTF16>;

TEST_CASE("a line knows the files that led to it") {
    TFILECOMMAND script;
    REQUIRE(script.LOADBYTES("one\ntwo\nthree\n", "a"));
    CHECK(script.GETCHAIN(2) == NAMES{"a"});
    REQUIRE(script.INSERTBYTES(2, "first\nsecond\n", "b"));
    REQUIRE(script.INSERTBYTES(3, "inner\n", "c"));
    CHECK(script.GETCHAIN(1) == NAMES{"a"});
    CHECK(script.GETCHAIN(2) == NAMES{"a", "b"});
    CHECK(script.GETCHAIN(3) == NAMES{"a", "b", "c"});
    CHECK(script.GETCHAIN(4) == NAMES{"a"});
    CHECK(script.GETCHAIN(0).empty());
    CHECK(script.GETCHAIN(5).empty());
}

TEST_CASE("a file that stands in two places has the chain of each") {
    TFILECOMMAND script;
    REQUIRE(script.LOADBYTES("one\ntwo\n", "a"));
    REQUIRE(script.INSERTBYTES(1, "x\n", "b"));
    REQUIRE(script.INSERTBYTES(2, "y\n", "c"));
    REQUIRE(script.INSERTBYTES(2, "x\n", "b"));
    CHECK(script.GETCHAIN(1) == NAMES{"a", "b"});
    CHECK(script.GETCHAIN(2) == NAMES{"a", "c", "b"});
}
