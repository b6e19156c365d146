#include "script/engine/check_parameters.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
bool HAS_COUNT(std::string_view text, NAT least, NAT most) {
    const PARAMETER_COUNT count = COUNT_OF(text);
    return count.least == least && count.most == most;
}
} // namespace

TEST_CASE("the counts of a row are read from its parameters") {
    CHECK(HAS_COUNT("", 0, 0));
    CHECK(HAS_COUNT("value: text", 1, 1));
    CHECK(HAS_COUNT("file: file, size: number [bytes]", 2, 2));
    CHECK(HAS_COUNT("value: real ...", 1, -1));
    CHECK(HAS_COUNT("name: name, [value: text ...]", 1, -1));
    CHECK(HAS_COUNT("[a: text, b: text]", 0, 2));
    CHECK(HAS_COUNT("[a: text], b: text", 1, 2));
    CHECK(HAS_COUNT("a: real [s, min], b: real", 2, 2));
}

TEST_CASE("of several forms the smallest and the largest count hold") {
    CHECK(HAS_COUNT("count: number | first: number, last: number", 1, 2));
    CHECK(HAS_COUNT("[size: vector voxels | x: number, y: number, z: number]", 0, 3));
    CHECK(HAS_COUNT("a: real | b: real ...", 1, -1));
}

TEST_CASE("a parameter is a file when it is one in each form that has it") {
    const auto file = [](std::string_view text, std::size_t offset) {
        return IS_FILE_AT(PARAMETER_FORMS(text), offset);
    };
    CHECK(file("field: file", 0));
    CHECK(file("lines: file, [share: real percent]", 0));
    CHECK_FALSE(file("lines: file, [share: real percent]", 1));
    CHECK(file("field: file, [report: file]", 1));
    CHECK_FALSE(file("field: file | name: text", 0));
    CHECK_FALSE(file("field: file", 1));
    CHECK_FALSE(file("profile: name", 0));
}
