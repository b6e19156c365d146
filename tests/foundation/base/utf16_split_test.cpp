#include "foundation/base/utf16.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("GETSPLIT gives the head and leaves the text") {
    const UTF16 text("a;b;c");
    CHECK(GETSPLIT(text, ";") == "a");
    CHECK(GETSPLIT(text, "x") == "a;b;c");
    CHECK(GETSPLIT(text, ";b;") == "a");
}

TEST_CASE("SPLIT returns the head and leaves the tail") {
    UTF16 text("a;b");
    CHECK(SPLIT(text, ";") == "a");
    CHECK(text == "b");
    CHECK(SPLIT(text, ";") == "b");
    CHECK(text.EMPTY());
    CHECK(SPLIT(text, ";").EMPTY());
}

TEST_CASE("SPLIT at the last character leaves an empty text") {
    UTF16 text("a;");
    CHECK(SPLIT(text, ";") == "a");
    CHECK(text.EMPTY());
}

TEST_CASE("SOFTSPLIT honours brackets of all four kinds") {
    for (const char *head : {"(a,b)", "[a,b]", "{a,b}", "<a,b>", "({a},[b])"}) {
        UTF16 text = UTF16(head) + ",c";
        CHECK(SOFTSPLIT(text, ",") == head);
        CHECK(text == "c");
    }
}

TEST_CASE("SOFTSPLIT_RAW does not count < and >") {
    UTF16 text("<a,b>,c");
    CHECK(SOFTSPLIT_RAW(text, ",") == "<a");
    CHECK(text == "b>,c");
}

TEST_CASE("SOFTSPLIT honours quotes, and a quote inside the other kind is a plain character") {
    UTF16 text("'a,b',c");
    CHECK(SOFTSPLIT(text, ",") == "'a,b'");
    CHECK(text == "c");
    text = "\"it's, so\",c";
    CHECK(SOFTSPLIT(text, ",") == "\"it's, so\"");
    text = "'a \" b',c";
    CHECK(SOFTSPLIT(text, ",") == "'a \" b'");
}

TEST_CASE("brackets count only outside quotes") {
    UTF16 text("'(',c");
    CHECK(SOFTSPLIT(text, ",") == "'('");
}

TEST_CASE("a separator that is a bracket is not counted as one") {
    UTF16 text("a(b");
    CHECK(SOFTSPLIT(text, "(") == "a");
    CHECK(text == "b");
}

TEST_CASE("without a separator outside brackets SOFTSPLIT returns everything") {
    UTF16 text("(a,b");
    CHECK(SOFTSPLIT(text, ",") == "(a,b");
    CHECK(text.EMPTY());
}

TEST_CASE("a candidate at depth 0 finds the next full match, which may lie inside brackets further "
          "right") {
    CHECK(SOFTPOS(":=", "a:b(c:=d)", true) == 6);
    CHECK(SOFTPOS(":=", "a(c:=d)", true) == 0);
}

TEST_CASE("units with a high byte are no brackets") {
    const UTF16 text = UTF16(UTF16CHAR{'(', 1}) + ",c";
    CHECK(SOFTPOS(",", text, true) == 2);
}

TEST_CASE("GETTAG gives the text between the tags") {
    CHECK(GETTAG("x<b>bold</b>y", "b") == "bold");
    CHECK(GETTAG("<b></b>", "b").EMPTY());
    CHECK(GETTAG("<b>bold", "b").EMPTY());
}

TEST_CASE("a missing opening tag is not tested for, the copy starts behind its length") {
    CHECK(GETTAG("abcdef</b>", "b") == "cdef"); // from position 1 + 2
}
