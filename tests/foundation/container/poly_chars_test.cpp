#include "foundation/base/number_text.hpp"
#include "foundation/container/poly_types.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
TPOLYCHARS LIST(std::initializer_list<const char *> texts) {
    TPOLYCHARS list;
    list.INIT();
    for (const char *text : texts)
        list.PUSH(text);
    return list;
}
std::string JOINED(const TPOLYCHARS &list) {
    std::string all;
    for (NAT i = 1; i <= list.LENGTH; ++i)
        all += GETUTF8(list.GET(i)) + " ";
    return all;
}
struct FORMAT_KEEPER { // gives the process-wide settings back
    TFORMAT kept = FORMAT;
    ~FORMAT_KEEPER() { FORMAT = kept; }
};
} // namespace

TEST_CASE("texts sort by text order and set their flag") {
    TPOLYCHARS list = LIST({"pear", "apple", "fig"});
    CHECK_FALSE(list.SORTEDTEXT);
    list.SORT();
    CHECK(JOINED(list) == "apple fig pear ");
    CHECK(list.SORTEDTEXT);
    list.PUSH("kiwi");
    CHECK_FALSE(list.SORTEDTEXT);
}

TEST_CASE("texts sort descending when FORMAT.SORTING is false") {
    const FORMAT_KEEPER keeper;
    FORMAT.SORTING = false;
    TPOLYCHARS list = LIST({"pear", "apple", "fig"});
    list.SORT();
    CHECK(JOINED(list) == "pear fig apple ");
    CHECK(list.SEARCH("fig") == 2);
    list = LIST({"9", "10", "1"});
    list.SORTREAL();
    CHECK(JOINED(list) == "10 9 1 ");
}

TEST_CASE("SORTREAL sorts by the number in each text") {
    TPOLYCHARS list = LIST({"file 10", "file 9", "file 1"});
    list.SORTREAL();
    CHECK(JOINED(list) == "file 1 file 9 file 10 ");
    CHECK(list.SORTEDREAL);
    CHECK_FALSE(list.SORTEDTEXT);
}

TEST_CASE("SORTWITHHELP puts the texts in a given order") {
    TPOLYCHARS list = LIST({"a", "b", "c"});
    TPOLYNAT index;
    for (const NAT position : {3, 1, 2})
        index.PUSH(position);
    list.SORTWITHHELP(index);
    CHECK(JOINED(list) == "c a b ");
}

TEST_CASE("a text is found in a sorted and in an unsorted list") {
    TPOLYCHARS list = LIST({"b", "a", "b"});
    CHECK(list.SEARCH("b") == 1);
    CHECK(list.BACKSEARCH("b") == 3);
    CHECK(list.BACKSEARCH("b", 2) == 1);
    CHECK(list.SEARCH("x") == 0);
    CHECK(list.COUNT("b") == 2);
    list.SORT();
    CHECK(list.SEARCH("b") == 2);
    CHECK(list.SEARCH("x") == 0);
}

TEST_CASE("a sorted list is searched right after the text order has changed") {
    const FORMAT_KEEPER keeper;
    TPOLYCHARS list = LIST({"aa", "b", "ccc"});
    list.SORT();
    FORMAT.ALIGN = false; // short texts are lower now
    CHECK(list.SEARCH("aa") == 1);
    CHECK(list.SEARCH("b") == 2);
}

TEST_CASE("PUSH_UNIQUE appends unless the last text equals it") {
    TPOLYCHARS list = LIST({"a"});
    list.PUSH_UNIQUE("a");
    list.PUSH_UNIQUE("b");
    list.PUSH_UNIQUE("a");
    CHECK(JOINED(list) == "a b a ");
}

TEST_CASE("CHECK and LOWER of texts are false outside the list") {
    const TPOLYCHARS list = LIST({"b"});
    CHECK((list.CHECK)(1, "b"));
    CHECK_FALSE((list.CHECK)(2, ""));
    CHECK(list.LOWER(1, "c"));
    CHECK_FALSE(list.LOWER(2, "c"));
}

TEST_CASE("POP gives the last text") {
    TPOLYCHARS list = LIST({"a", "b"});
    CHECK(GETUTF8(list.POP()) == "b");
    list.POP();
    CHECK(list.POP().EMPTY());
}
