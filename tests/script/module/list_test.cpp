#include "script/module/list.hpp"

#include "support/capture.hpp"

#include <initializer_list>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
TLIST ListOf(BYTE kind, std::initializer_list<const char *> values) {
    TLIST list;
    list.INIT(kind);
    for (const char *value : values)
        list.PUSH(UTF16(value));
    return list;
}

// The values in order, a bar between.
std::string Shown(const TLIST &list) {
    std::string text;
    for (NAT i = 1; i <= list.LENGTH(); ++i)
        text += (i > 1 ? "|" : "") + GETUTF8(list.GET(i));
    return text;
}
} // namespace

TEST_CASE("a list reads a text as its kind") {
    CHECK(Shown(ListOf(LIST_REAL, {"1.5", "50%", "2*3+4", "word", ""})) == "1.5|0.5|10|0|0");
    CHECK(Shown(ListOf(LIST_NAT, {"1.5", "-7", "2.5"})) == "2|-7|2");
    CHECK(Shown(ListOf(LIST_COMPLEX, {"1,2,3", "4"})) == "<1, 2>|<4, 0>");
    CHECK(Shown(ListOf(LIST_VECTOR, {"<1, 2>", "1,2,3,4"})) == "<1, 2, 0>|<1, 2, 3>");
    CHECK(Shown(ListOf(LIST_HYPER, {"1,2,3,4"})) == "<1, 2, 3, 4>");
    CHECK(Shown(ListOf(LIST_CHARS, {"a b", "", "1,2"})) == "a b||1,2");
}

TEST_CASE("a list of whole numbers holds all of them exactly") {
    TLIST list = ListOf(LIST_NAT, {"9007199254740993", "-9223372036854775807"});
    CHECK(Shown(list) == "9007199254740993|-9223372036854775807");
    CHECK(list.MAX() == UTF16("9007199254740993"));
}

TEST_CASE("a list takes of a HYPER the components that its kind has") {
    for (const auto &[kind, text] : {std::pair{LIST_REAL, "1.5"},
                                     {LIST_NAT, "2"},
                                     {LIST_COMPLEX, "<1.5, 2>"},
                                     {LIST_VECTOR, "<1.5, 2, 3>"},
                                     {LIST_HYPER, "<1.5, 2, 3, 4>"},
                                     {LIST_CHARS, "<1.5, 2, 3, 4>"}}) {
        TLIST list;
        list.INIT(kind);
        CHECK(list.PUSH(HYPER{1.5, 2, 3, 4}));
        CHECK(list.GET(1) == UTF16(text));
    }
}

TEST_CASE("GETHYPER gives the numbers of an entry, also those that a text holds") {
    CHECK(ListOf(LIST_NAT, {"5"}).GETHYPER(1) == HYPER{5, 0, 0, 0});
    CHECK(ListOf(LIST_COMPLEX, {"5,6"}).GETHYPER(1) == HYPER{5, 6, 0, 0});
    CHECK(ListOf(LIST_VECTOR, {"5,6,7"}).GETHYPER(1) == HYPER{5, 6, 7, 0});
    CHECK(ListOf(LIST_CHARS, {"<5, 6>"}).GETHYPER(1) == HYPER{5, 6, 0, 0});
}

TEST_CASE("an unknown kind byte makes a list of reals") {
    TLIST list;
    list.INIT(77);
    CHECK(list.KIND() == LIST_REAL);
}

TEST_CASE("a position outside the list gives the background") {
    TLIST list = ListOf(LIST_REAL, {"1"});
    CHECK(list.GET(0) == UTF16("0"));
    list.SETBACKGROUND("-1");
    CHECK(list.GET(0) == UTF16("-1"));
    CHECK(list.GET(2) == UTF16("-1"));
    CHECK(list.GET(-5) == UTF16("-1"));
    CHECK(list.GETHYPER(2) == HYPER{-1, 0, 0, 0});
    CHECK(list.GET(1) == UTF16("1"));
}

TEST_CASE("a part is a component, of a text an element between tabs") {
    const TLIST vectors = ListOf(LIST_VECTOR, {"<4, 5, 6>"});
    CHECK(vectors.GET(1, 1) == UTF16("4"));
    CHECK(vectors.GET(1, 3) == UTF16("6"));
    CHECK(vectors.GET(1, 4).EMPTY());
    CHECK(vectors.GET(1, 0).EMPTY());
    CHECK(vectors.GET(2, 1) == UTF16("0")); // of the background
    CHECK(ListOf(LIST_COMPLEX, {"4,5"}).GET(1, 2) == UTF16("5"));
    CHECK(ListOf(LIST_HYPER, {"4,5,6,7"}).GET(1, 4) == UTF16("7"));
    CHECK(ListOf(LIST_REAL, {"4"}).GET(1, 1) == UTF16("4"));
    CHECK(ListOf(LIST_REAL, {"4"}).GET(1, 2).EMPTY());
    CHECK(ListOf(LIST_NAT, {"4"}).GET(1, 1) == UTF16("4"));
    CHECK(ListOf(LIST_NAT, {"4"}).GET(1, 2).EMPTY());
    const TLIST texts = ListOf(LIST_CHARS, {"a\t\tc"});
    CHECK(texts.GET(1, 1) == UTF16("a"));
    CHECK(texts.GET(1, 2).EMPTY());
    CHECK(texts.GET(1, 3) == UTF16("c"));
    CHECK(texts.GET(1, 4).EMPTY());
    CHECK(texts.GET(1, NATMAX).EMPTY());
    CHECK(texts.GET(1, 0).EMPTY());
}

TEST_CASE("POP takes the last value, and of an empty list its background") {
    TLIST list = ListOf(LIST_NAT, {"1", "2"});
    CHECK(list.POP() == UTF16("2"));
    CHECK(list.POP() == UTF16("1"));
    CHECK(list.LENGTH() == 0);
    CHECK(list.POP() == UTF16("0"));
    list.SETBACKGROUND("-1");
    CHECK(list.POP() == UTF16("-1"));
}

TEST_CASE("PUT behind the end grows the list, and the gap holds its value") {
    TLIST list = ListOf(LIST_REAL, {"1"});
    CHECK(list.PUT(3, UTF16("3")));
    CHECK(Shown(list) == "1|0|3");
    list.SETVALUE("7");
    CHECK(list.PUT(5, HYPER{5, 0, 0, 0}));
    CHECK(Shown(list) == "1|0|3|7|5");
    CHECK(list.PUT(1, UTF16("9")));
    CHECK(Shown(list) == "9|0|3|7|5");
}

TEST_CASE("PUT does nothing below 1 and where no list can reach") {
    TLIST list = ListOf(LIST_REAL, {"1"});
    CHECK_FALSE(list.PUT(0, UTF16("3")));
    CHECK_FALSE(list.PUT(-1, UTF16("3")));
    CHECK_FALSE(list.PUT(1000000000000, UTF16("3")));
    CHECK_FALSE(list.PUT(NATMAX, UTF16("3")));
    CHECK(Shown(list) == "1");
}

TEST_CASE("INSERT makes room inside the list and at its end") {
    TLIST list = ListOf(LIST_CHARS, {"a", "c"});
    CHECK(list.INSERT(2, "b"));
    CHECK(list.INSERT(1, "_"));
    CHECK(list.INSERT(5, "d"));
    CHECK(Shown(list) == "_|a|b|c|d");
    CHECK_FALSE(list.INSERT(0, "x"));
    CHECK_FALSE(list.INSERT(7, "x"));
    CHECK(list.LENGTH() == 5);
    TLIST empty;
    CHECK(empty.INSERT(1, "4"));
    CHECK(Shown(empty) == "4");
}

TEST_CASE("ERASE takes one entry out") {
    TLIST list = ListOf(LIST_NAT, {"1", "2", "3"});
    CHECK(list.ERASE(2));
    CHECK(Shown(list) == "1|3");
    CHECK_FALSE(list.ERASE(3));
    CHECK_FALSE(list.ERASE(0));
    CHECK(list.ERASE(2));
    CHECK(list.ERASE(1));
    CHECK(list.LENGTH() == 0);
}

TEST_CASE("RESIZE keeps what fits and fills up with the list's value") {
    TLIST list = ListOf(LIST_NAT, {"1", "2"});
    CHECK(list.RESIZE(3));
    CHECK(Shown(list) == "1|2|0");
    list.SETVALUE("8");
    CHECK(list.RESIZE(5));
    CHECK(Shown(list) == "1|2|0|8|8");
    CHECK(list.RESIZE(1));
    CHECK(Shown(list) == "1");
    CHECK(list.RESIZE(-4));
    CHECK(list.LENGTH() == 0);
}

TEST_CASE("a list longer than memory can hold is told in one line and left empty") {
    for (const BYTE kind :
         {LIST_REAL, LIST_NAT, LIST_COMPLEX, LIST_VECTOR, LIST_HYPER, LIST_CHARS}) {
        CAPTURE console;
        TLIST list = ListOf(kind, {"1", "2"});
        CHECK_FALSE(list.RESIZE(1000000000000));
        CHECK(list.LENGTH() == 0);
        CHECK(list.KIND() == kind);
        CHECK(console.TEXT() ==
              "  Not enough memory for a list of 1000000000000 values! Create empty list.\n");
        CHECK(list.PUSH(UTF16("5")));
        CHECK(list.LENGTH() == 1);
    }
}

TEST_CASE("FLIP reverses the order") {
    TLIST list = ListOf(LIST_CHARS, {"a", "b", "c"});
    list.FLIP();
    CHECK(Shown(list) == "c|b|a");
    TLIST empty;
    empty.FLIP();
    CHECK(empty.LENGTH() == 0);
}

TEST_CASE("the position stays between the place before the first and the one behind the last") {
    TLIST list = ListOf(LIST_NAT, {"5", "6"});
    CHECK(list.POSITION() == 1);
    list.NEXT();
    CHECK(list.POSITION() == 2);
    list.NEXT();
    list.NEXT();
    CHECK(list.POSITION() == 3);
    list.BEFORE();
    CHECK(list.POSITION() == 2);
    list.FIRST();
    list.BEFORE();
    list.BEFORE();
    CHECK(list.POSITION() == 0);
    list.LAST();
    CHECK(list.POSITION() == 2);
    list.SETPOSITION(NATMAX);
    CHECK(list.POSITION() == 3);
    list.SETPOSITION(NATMIN);
    CHECK(list.POSITION() == 0);
}

TEST_CASE("the position of a list that shrinks is at most behind its last entry") {
    TLIST list = ListOf(LIST_NAT, {"5", "6", "7"});
    list.LAST();
    list.POP();
    list.POP();
    CHECK(list.POSITION() == 2);
    TLIST empty;
    empty.LAST();
    CHECK(empty.POSITION() == 0);
    empty.FIRST();
    CHECK(empty.POSITION() == 1);
}

TEST_CASE("SETKIND empties the list and reads value and background as the new kind") {
    TLIST list = ListOf(LIST_REAL, {"1.5"});
    list.SETVALUE("2.5");
    list.SETBACKGROUND("-1");
    list.SETKIND(LIST_VECTOR);
    CHECK(list.LENGTH() == 0);
    CHECK(list.VALUE() == UTF16("<2.5, 0, 0>"));
    CHECK(list.BACKGROUND() == UTF16("<-1, 0, 0>"));
    list.SETKIND(LIST_CHARS);
    CHECK(list.VALUE() == UTF16("<2.5, 0, 0>"));
}

TEST_CASE("a value and a background that nobody set are empty texts in a list of texts") {
    TLIST list;
    list.SETKIND(LIST_CHARS);
    CHECK(list.VALUE().EMPTY());
    CHECK(list.BACKGROUND().EMPTY());
    list.SETKIND(LIST_NAT);
    CHECK(list.VALUE() == UTF16("0"));
}

TEST_CASE("INIT forgets value and background, DONE keeps the kind") {
    TLIST list = ListOf(LIST_NAT, {"1"});
    list.SETVALUE("2");
    list.DONE();
    CHECK(list.LENGTH() == 0);
    CHECK(list.KIND() == LIST_NAT);
    CHECK(list.VALUE() == UTF16("2"));
    list.DONE();
    list.INIT(LIST_NAT);
    CHECK(list.VALUE() == UTF16("0"));
    CHECK(list.BACKGROUND() == UTF16("0"));
}

TEST_CASE("PUSH without a value appends the value of the list") {
    TLIST list;
    CHECK(list.PUSH());
    list.SETVALUE("4");
    CHECK(list.PUSH());
    CHECK(Shown(list) == "0|4");
}

TEST_CASE("REPLACE takes kind, values, value and background") {
    TLIST source = ListOf(LIST_VECTOR, {"1,2,3"}), target = ListOf(LIST_NAT, {"9", "9"});
    source.SETVALUE("1");
    source.SETBACKGROUND("2");
    target.REPLACE(source);
    CHECK(Shown(target) == "<1, 2, 3>");
    CHECK(target.VALUE() == UTF16("<1, 0, 0>"));
    CHECK(target.BACKGROUND() == UTF16("<2, 0, 0>"));
    target.REPLACE(target);
    CHECK(Shown(target) == "<1, 2, 3>");
    target.REPLACE(TLIST());
    CHECK(target.LENGTH() == 0);
}
