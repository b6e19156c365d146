#include "foundation/container/poly_bool.hpp"
#include "support/capture.hpp"

#include <utility>

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a list of flags counts from 0 and packs eight in a byte") {
    TPOLYBOOL list(10);
    list.PUT(0, true);
    list.PUT(9, true);
    CHECK(list.GET(0));
    CHECK_FALSE(list.GET(1));
    CHECK(list.GET(9));
    CHECK(list.BITS == 10);
    CHECK(list.LENGTH == 2);
    CHECK(list.COUNT() == 2);
    CHECK(static_cast<BYTE *>(list.DATA)[0] == 1);
    CHECK(static_cast<BYTE *>(list.DATA)[1] == 2);
}

TEST_CASE("a flag at position -1 or behind the last reads DEFAULT") {
    TPOLYBOOL list(3);
    CHECK_FALSE(list.GET(-1));
    list.DEFAULT = true;
    CHECK(list.GET(-1));
    CHECK(list.GET(3));
    CHECK_FALSE(list.GET(2));
}

TEST_CASE("flags behind the end of a static list are not written, a dynamic one grows") {
    TPOLYBOOL fixed(3), dynamic;
    fixed.PUT(3, true);
    CHECK(fixed.BITS == 3);
    CHECK_FALSE(fixed._GET(3));
    dynamic.INIT();
    dynamic.PUT(20, true);
    CHECK(dynamic.BITS == 21);
    CHECK(dynamic.COUNT() == 1);
    dynamic.PUSH(true);
    CHECK(dynamic.GET(21));
}

TEST_CASE("ALLTRUE looks at the flags in use, and an empty list gives true") {
    TPOLYBOOL list;
    list.INIT();
    CHECK(list.ALLTRUE());
    list.INIT(9);
    CHECK_FALSE(list.ALLTRUE());
    list.FILL(true);
    CHECK(list.ALLTRUE());
    list.PUT(8, false);
    CHECK_FALSE(list.ALLTRUE());
}

TEST_CASE("new flags are false, also after FILL and a change of length") {
    for (const bool isDynamic : {false, true}) {
        TPOLYBOOL list;
        if (isDynamic)
            list.INIT();
        else
            list.INIT(5);
        list.NEWLENGTH(5);
        list.FILL(true);
        list.NEWLENGTH(3);
        list.NEWLENGTH(20);
        CHECK(list.COUNT() == 3);
        list.NEWLENGTH(0);
        list.NEWLENGTH(12);
        CHECK(list.COUNT() == 0);
    }
}

TEST_CASE("INIT sets the second flag true and DEFAULT false") {
    TPOLYBOOL list(1);
    CHECK(list.WRITE);
    CHECK_FALSE(list.DEFAULT);
    list.PUT(0);
    CHECK(list.GET(0));
}

TEST_CASE("REPLACE and a move carry the count of flags") {
    TPOLYBOOL a(11), b;
    a.PUT(10, true);
    b.REPLACE(a);
    CHECK(b.BITS == 11);
    CHECK(b.GET(10));
    const TPOLYBOOL c = std::move(a);
    CHECK(c.GET(10));
    CHECK(a.BITS == 0);
}

TEST_CASE("without memory a growing list of flags becomes empty and reads DEFAULT") {
    CAPTURE console;
    TPOLYBOOL list;
    list.INIT();
    list.PUT(3, true);
    list.SIZE = NATMAX / 2; // stands for memory that no machine has
    list.PUT(8 * list.MAXIMAL, true);
    CHECK(console.TEXT() == "  Not enough Memory! Create empty field.\n");
    CHECK(list.BITS == 0);
    CHECK_FALSE(list.GET(3));
}
