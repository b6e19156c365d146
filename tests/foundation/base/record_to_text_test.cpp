#include "foundation/base/number_text.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::string S(const UTF16 &text) { return GETUTF8(text); }
} // namespace

TEST_CASE("records print as lists between < and >") {
    CHECK(S(GETSTRING(VECTOR{1, 2, 3})) == "<1, 2, 3>");
    CHECK(S(GETSTRING(COMPLEX{1, 2})) == "<1, 2>");
    CHECK(S(GETSTRING(HYPER{1, 2, 3, 4})) == "<1, 2, 3, 4>");
    CHECK(S(GETSTRING(VECTORNAT{1, -2, 3})) == "<1, -2, 3>");
    CHECK(S(GETSTRING(COMPLEXNAT{640, 480})) == "<640, 480>");
    CHECK(S(GETSTRING(HYPERNAT{1, 2, 3, 4})) == "<1, 2, 3, 4>");
}

TEST_CASE("records print each component with the decimals") {
    CHECK(S(GETSTRING(VECTOR{1, 2.345, -3}, 2)) == "<1.00, 2.35, -3.00>");
    CHECK(S(GETSTRING(COMPLEX{1.26, 2}, 1)) == "<1.3, 2.0>");
    CHECK(S(GETSTRING(HYPER{1, 2, 3, 4.6}, 0)) == "<1, 2, 3, 5>");
}

TEST_CASE("without DECIMAL the separator is a semicolon, also for whole numbers") {
    FORMAT.DECIMAL = false;
    CHECK(S(GETSTRING(COMPLEXNAT{1, 2})) == "<1; 2>");
    CHECK(S(GETSHORT(VECTOR{1.5, 2, 0})) == "<1,5; 2>");
    FORMAT.DECIMAL = true;
}

TEST_CASE("GETSHORT leaves out trailing zero components") {
    CHECK(S(GETSHORT(VECTOR{5, 0, 0})) == "5");
    CHECK(S(GETSHORT(VECTOR{5, 6, 0})) == "<5, 6>");
    CHECK(S(GETSHORT(VECTOR{0, 0, 7})) == "<0, 0, 7>");
    CHECK(S(GETSHORT(VZERO)) == "0");
    CHECK(S(GETSHORT(HYPER{1, 2, 0, 0})) == "<1, 2>");
    CHECK(S(GETSHORT(HYPER{1, 2, 3, 4})) == "<1, 2, 3, 4>");
    CHECK(S(GETSHORT(HYPERNAT{9, 0, 0, 0})) == "9");
    CHECK(S(GETSHORT(VECTOR{1.256, 2, 0}, 1)) == "<1.3, 2.0>");
    CHECK(S(GETSHORT(HYPER{1.256, 0, 0, 0}, 1)) == "1.3");
}

TEST_CASE("matrices print their rows between round brackets") {
    CHECK(S(GETSTRING(M3NORM)) == "(<1, 0, 0>;<0, 1, 0>;<0, 0, 1>)");
    CHECK(S(GETSTRING(M4ZERO)) == "(<0, 0, 0, 0>;<0, 0, 0, 0>;<0, 0, 0, 0>;<0, 0, 0, 0>)");
}

TEST_CASE("a time prints from its first to its last part that is not 0") {
    CHECK(S(GETSTRING(TIME{0, 1, 5, 30, 0})) == "1:5:30 h");
    CHECK(S(GETSTRING(TIME{2, 0, 0, 0, 0})) == "2 d");
    CHECK(S(GETSTRING(TIME{0, 0, 1, 0, 5})) == "1:0:5 min");
    CHECK(S(GETSTRING(TIME{0, 0, 0, 7, 0})) == "7 sec");
    CHECK(S(GETSTRING(TIME{0, 0, 0, 0, 9})) == "9 100sec");
    CHECK(S(GETSTRING(TIME{})) == "0 sec");
}
