#include "foundation/base/utf16.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
UTF16 Deleted(UTF16 text, NAT start, NAT count) {
    DELETE(text, start, count);
    return text;
}
UTF16 Replaced(UTF16 text, const UTF16 &find, const UTF16 &replacement) {
    REPLACE(text, find, replacement);
    return text;
}
} // namespace

TEST_CASE("POS gives the first match at or after the start, else 0") {
    CHECK(POS("b", "abcb") == 2);
    CHECK(POS("b", "abcb", 3) == 4);
    CHECK(POS("b", "abcb", 5) == 0);
    CHECK(POS("b", "abcb", -3) == 2);
    CHECK(POS("x", "abc") == 0);
    CHECK(POS("abcd", "abc") == 0);
    CHECK(POS("", "abc") == 0);
    CHECK(POS("a", "") == 0);
}

TEST_CASE("POS compares both planes") {
    CHECK(POS("A", "ŁA") == 2); // U+0141 has the low byte of "A"
    CHECK(POS("Ł", "AAŁ") == 3);
    CHECK(POS("AŁ", "AAŁA") == 2);
}

TEST_CASE("INVPOS searches from the end") {
    CHECK(INVPOS("b", "abcb") == 4);
    CHECK(INVPOS("b", "abcb", 3) == 2);
    CHECK(INVPOS("b", "abcb", 1) == 0);
    CHECK(INVPOS("b", "abcb", 99) == 4);
    CHECK(INVPOS("b", "abcb", 0) == 0);
    CHECK(INVPOS("A", "AŁ") == 1);
    CHECK(INVPOS("A", "ŁŁ") == 0);
    CHECK(INVPOS("", "abc") == 0);
}

TEST_CASE("COPY gives as many units as exist") {
    CHECK(COPY("abcd", 2, 2) == "bc");
    CHECK(COPY("abcd", 3, 99) == "cd");
    CHECK(COPY("abcd", 1, NATMAX) == "abcd");
    CHECK(COPY("abcd", 5, 1).EMPTY());
    CHECK(COPY("abcd", 2, 0).EMPTY());
    CHECK(COPY("abcd", 2, -1).EMPTY());
    CHECK(COPY("abcd", -1, 2) == "ab");
    CHECK(COPY("aé€d", 2, 2) == "é€");
    CHECK(COPY("é€d", 3, 1).PLAIN());
}

TEST_CASE("COPYINSIDE takes the units from the first to the last position") {
    CHECK(COPYINSIDE("abcd", 2, 3) == "bc");
    CHECK(COPYINSIDE("abcd", 2, 2) == "b");
    CHECK(COPYINSIDE("abcd", 0, 2) == "ab");
    CHECK(COPYINSIDE("abcd", 3, 99) == "cd");
}

TEST_CASE("a last position below the first gives the whole text") {
    CHECK(COPYINSIDE("abcd", 3, 2) == "abcd");
}

TEST_CASE("DELETE cuts in place") {
    CHECK(Deleted("abcd", 2, 2) == "ad");
    CHECK(Deleted("abcd", 1, 1) == "bcd");
    CHECK(Deleted("abcd", 3, 99) == "ab");
    CHECK(Deleted("abcd", 2, NATMAX) == "a");
    CHECK(Deleted("abcd", 1, 4).EMPTY());
    CHECK(Deleted("abcd", 0, 2) == "abcd");
    CHECK(Deleted("abcd", 5, 1) == "abcd");
    CHECK(Deleted("abcd", 2, 0) == "abcd");
    CHECK(Deleted("aéc€", 1, 1) == "éc€");
}

TEST_CASE("ISDIGIT finds a digit or a minus with high byte 0") {
    CHECK(ISDIGIT("ab3"));
    CHECK(ISDIGIT("a-b"));
    CHECK_FALSE(ISDIGIT("abc"));
    CHECK_FALSE(ISDIGIT(UTF16CHAR{'1', 1}));
    CHECK(ISDIGITWEAK("x-"));
    CHECK_FALSE(ISDIGITWEAK("x"));
}

TEST_CASE("LOWERCASE and UPPERCASE change ASCII letters only") {
    CHECK(LOWERCASE("aBZ[@é") == "abz[@é");
    CHECK(UPPERCASE("aBz{`é") == "ABZ{`é");
    CHECK(FIRSTUPPERCASE("hELLO wORLD") == "Hello world");
    CHECK(FIRSTUPPERCASE("").EMPTY());
}

TEST_CASE("LOWERCASE keeps the high plane, so that U+0141 changes into another character") {
    CHECK(LOWERCASE("Ł") == UTF16(UTF16CHAR{0x61, 0x01}));
}

TEST_CASE("FILLBEFORE and FILLUP add whole fillers and may overshoot") {
    CHECK(FILLBEFORE("7", 3, "0") == "007");
    CHECK(FILLBEFORE("7", 4, "ab") == "abab7");
    CHECK(FILLUP("7", 4, "ab") == "7abab");
    CHECK(FILLUP("7", 2, "é") == "7é");
    CHECK(FILLUP("777", 2, "a") == "777");
    CHECK(FILLUP("7", 5, "") == "7");
    CHECK(FILLUP("7", NATMAX, "a") == "7"); // no memory holds it
}

TEST_CASE("KILLFIRST and KILLLAST remove one of the characters as often as it stands there") {
    CHECK(KILLFIRST("  a b ", ' ') == "a b ");
    CHECK(KILLLAST("  a b ", ' ') == "  a b");
    CHECK(KILLFIRST("'\"'a", '\'', '"') == "a");
    CHECK(KILLLAST("a'\"'", '\'', '"') == "a");
    CHECK(KILLFIRST("    ", ' ').EMPTY());
    CHECK(KILLLAST("    ", ' ').EMPTY());
}

TEST_CASE("KILLSPACE and KILLTAB remove every blank, every tab") {
    CHECK(KILLSPACE(" a b\tc ") == "ab\tc");
    CHECK(KILLTAB("\ta b\tc") == "a bc");
    CHECK(KILLSPACE("é ł") == "éł");
}

TEST_CASE("REPLACE changes every occurrence and does not search the replacement again") {
    CHECK(Replaced("aaa", "aa", "a") == "aa");
    CHECK(Replaced("-1-2", "-", "--") == "--1--2");
    CHECK(Replaced("abc", "b", "") == "ac");
    CHECK(Replaced("abc", "x", "y") == "abc");
    CHECK(Replaced("abc", "", "y") == "abc");
    CHECK(Replaced("", "a", "y").EMPTY());
    CHECK(Replaced("a€b€", "€", "π!") == "aπ!bπ!");
    CHECK(Replaced("A", "Ł", "x") == "A");
}

TEST_CASE("REPLACE works on single characters and on bytes") {
    UTF16 text("a.b.€");
    REPLACE(text, '.', ',');
    CHECK(text == "a,b,€");
    std::string bytes = "x--y";
    REPLACE(bytes, "-", "+-");
    CHECK(bytes == "x+-+-y");
    REPLACE(bytes, "", "z");
    CHECK(bytes == "x+-+-y");
}

TEST_CASE("GETREPLACE returns a copy") {
    const UTF16 text("a b");
    CHECK(GETREPLACE(text, ' ', '.') == "a.b");
    CHECK(text == "a b");
    CHECK(GETREPLACE("Ġ ", ' ', '.') == "Ġ."); // U+0120 has the low byte of a blank
}

TEST_CASE("ASCIICLEAN_HARD turns control and high bytes into blanks") {
    CHECK(ASCIICLEAN_HARD("a\tb\xC3\x7Fz") == "a b \x7Fz");
}
