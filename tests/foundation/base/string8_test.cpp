#include "foundation/base/string8.hpp"

#include <string>

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("an empty byte string is a null handle of length 0") {
    const STRING8 empty;
    CHECK(empty.LENGTH() == 0);
    CHECK(empty.DATA() == nullptr);
    CHECK(empty.COUNT() == 0);
    CHECK(STRING8("").DATA() == nullptr);
}

TEST_CASE("a copy shares the bytes until one of the owners writes") {
    STRING8 a("abc");
    STRING8 b = a;
    CHECK(a.COUNT() == 2);
    CHECK(a.DATA() == b.DATA());
    b.UNIQUE()[0] = 'x';
    CHECK(a.VIEW() == "abc");
    CHECK(b.VIEW() == "xbc");
    CHECK(a.COUNT() == 1);
}

TEST_CASE("a handle is one machine word") { CHECK(sizeof(STRING8) == sizeof(void *)); }

TEST_CASE("zero planes of one length are one block, and writing leaves it as it is") {
    STRING8 a = STRING8::FILLED(9, 0);
    const STRING8 b = STRING8::FILLED(9, 0);
    CHECK(a.DATA() == b.DATA());
    a.UNIQUE()[3] = 1;
    CHECK(b.ISZERO());
    CHECK_FALSE(a.ISZERO());
}

TEST_CASE("ISZERO tells the truth at every length and position") {
    for (NAT length : {1, 2, 7, 8, 9, 511, 512, 513, 2000}) {
        STRING8 plane = STRING8::FILLED(length, 0);
        CHECK(plane.ISZERO());
        plane.UNIQUE()[length - 1] = 1;
        CHECK_FALSE(plane.ISZERO());
        plane.UNIQUE()[length - 1] = 0;
        CHECK(plane.ISZERO());
        plane.UNIQUE()[0] = 1;
        CHECK_FALSE(plane.ISZERO());
    }
}

TEST_CASE("APPEND keeps the bytes of other owners, and of itself") {
    STRING8 a("ab");
    const STRING8 before = a;
    a.APPEND("cd");
    a.APPEND(a.VIEW());
    CHECK(a.VIEW() == "abcdabcd");
    CHECK(before.VIEW() == "ab");
    a.APPEND("");
    CHECK(a.LENGTH() == 8);
}

TEST_CASE("a length that no memory holds gives an empty string") {
    CHECK(STRING8::FILLED(NATMAX, 'x').LENGTH() == 0);
    CHECK(STRING8::FILLED(-1, 'x').LENGTH() == 0);
    CHECK(STRING8::RAW(0).LENGTH() == 0);
}

TEST_CASE("equal bytes are equal, whoever holds them") {
    CHECK(STRING8("abc") == STRING8("abc"));
    CHECK(STRING8("abc") != STRING8("abd"));
    CHECK(STRING8() == STRING8(""));
}
