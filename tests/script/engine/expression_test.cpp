#include "script/engine/script_runner.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// The value that `a OP ...` leaves in a, with "old" before.
std::string VALUE_OF(const std::string &assignment) {
    return RUN_SCRIPT("a := old\n" + assignment + "\nlist a\n");
}
} // namespace

TEST_CASE("no numeric operator reads the old value of its target") {
    CHECK(RUN_SCRIPT("a := 5\na += 1\nprint a\nb := 2\nc := 3\na += b c\nprint a\n") == "1\n5\n");
}

TEST_CASE("the numeric operators without a parameter give zero") {
    for (const char *op : {"+=", "-=", "*=", "/=", "o=", "x="}) {
        CAPTURE(op);
        CHECK(VALUE_OF("a " + std::string(op) + " \"\"") == "0[0]\n");
    }
}

TEST_CASE("the numeric operators with one parameter give its short form") {
    for (const char *op : {"+=", "-=", "*=", "/=", "o=", "x="}) {
        CAPTURE(op);
        CHECK(VALUE_OF("a " + std::string(op) + " 2.5") == "0[2.5]\n");
        CHECK(VALUE_OF("a " + std::string(op) + " <1,2,0>") == "0[<1, 2>]\n");
    }
}

TEST_CASE("the numeric operators fold their parameters in order") {
    CHECK(VALUE_OF("a += 1 2 4") == "0[7]\n");
    CHECK(VALUE_OF("a -= 10 2 4") == "0[4]\n");
    CHECK(VALUE_OF("a *= 2 3 4") == "0[24]\n");
    CHECK(VALUE_OF("a *= <1,2> <3,4>") == "0[<3, 8>]\n");
    CHECK(VALUE_OF("a /= 24 2 3") == "0[4]\n");
    CHECK(VALUE_OF("a /= 24 0") == "0[0]\n");
    CHECK(VALUE_OF("a o= <1,2,3> <4,5,6>") == "0[32]\n");
    CHECK(VALUE_OF("a o= <1,2,3> <4,5,6> <2,9>") == "0[64]\n");
    CHECK(VALUE_OF("a x= <1,0,0> <0,1,0>") == "0[<0, 0, 1>]\n");
}

TEST_CASE("texts are joined in front or behind") {
    CHECK(VALUE_OF("a ~= \"\"") == "0[]\n");
    CHECK(VALUE_OF("a ~= x y z") == "0[zyx]\n");
    CHECK(VALUE_OF("a |= \"\"") == "0[]\n");
    CHECK(VALUE_OF("a |= x y z") == "0[x y z]\n");
}

TEST_CASE("rounding takes the digits from the first of several parameters") {
    CHECK(VALUE_OF("a #= \"\"") == "0[]\n");
    CHECK(VALUE_OF("a #= 2.5") == "0[2]\n");
    CHECK(VALUE_OF("a #= 3.5") == "0[4]\n");
    CHECK(VALUE_OF("a #= 2 3.14159 2.71828") == "0[3.14 2.72]\n");
    CHECK(VALUE_OF("a #= 1 <1.25,2.26>") == "0[<1.2, 2.3>]\n");
    CHECK(VALUE_OF("a #= -4 7 123") == "0[0007 0123]\n");
    CHECK(VALUE_OF("a #= -2 12345") == "0[12345]\n");
}

TEST_CASE("a width beyond any text costs no memory") {
    CHECK(VALUE_OF("a #= -9000000000 7") == "0[" + std::string(254, '0') + "]\n");
}

TEST_CASE("the norm divides by the largest component") {
    CHECK(VALUE_OF("a %= <1,2,4> 5") == "0[<0.25, 0.5, 1> 1]\n");
    CHECK(VALUE_OF("a %= \"\"") ==
          "Parameter error! Please use min. one parameter in line 2 (m).\n");
}

TEST_CASE("of several texts only the last one's cut remains") {
    CHECK(VALUE_OF("a $= \"\"") == "0[]\n");
    CHECK(VALUE_OF("a $= abc") == "0[abc]\n");
    CHECK(VALUE_OF("a $= 2 abcd efgh") == "0[ef]\n");
    CHECK(VALUE_OF("a $= -3 abcd efgh") == "0[fgh]\n");
    CHECK(VALUE_OF("a $= 0 abcd") == "0[]\n");
    CHECK(VALUE_OF("a $= 9 abcd") == "0[abcd]\n");
    CHECK(VALUE_OF("a $= -9 abcd") == "0[abcd]\n");
    CHECK(VALUE_OF("a d= \"\"") == "0[]\n");
    CHECK(VALUE_OF("a d= abc") == "0[abc]\n");
    CHECK(VALUE_OF("a d= 1 abcd efgh") == "0[fgh]\n");
    CHECK(VALUE_OF("a d= -1 abcd efgh") == "0[efg]\n");
    CHECK(VALUE_OF("a d= 0 abcd") == "0[abcd]\n");
    CHECK(VALUE_OF("a d= 9 abcd") == "0[]\n");
    CHECK(VALUE_OF("a d= -9 abcd") == "0[]\n");
}

TEST_CASE("the part before a separator is taken of each text") {
    CHECK(VALUE_OF("a s= \"\"") == "0[]\n");
    CHECK(VALUE_OF("a s= abc") == "0[abc]\n");
    CHECK(VALUE_OF("a s= . a.b.c d.e f") == "0[a d f]\n");
}

TEST_CASE("a text is replaced in each of the later texts") {
    CHECK(VALUE_OF("a r= b x abc bbb") == "0[axc xxx]\n");
    CHECK(VALUE_OF("a r= b x") == "Parameter error! Please use min. 3 parameters in line 2 (m).\n");
}

TEST_CASE("every parameter is removed from the old value of the target") {
    CHECK(VALUE_OF("a != l d") == "0[o]\n");
    CHECK(VALUE_OF("a != \"\"") ==
          "Parameter error! Please use min. one parameter in line 2 (m).\n");
}

TEST_CASE("a word that is no operator empties the target") {
    CHECK(VALUE_OF("a ?= 5") == "0[]\n");
    CHECK(VALUE_OF("a += 1\na = = 5") == "0[]\n");
}
