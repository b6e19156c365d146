#include "script/module/list.hpp"

#include "foundation/base/number_text.hpp"

#include <cmath>
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

std::string Shown(const TLIST &list) {
    std::string text;
    for (NAT i = 1; i <= list.LENGTH(); ++i)
        text += (i > 1 ? "|" : "") + GETUTF8(list.GET(i));
    return text;
}

std::string Inliers(const TLIST &list, const TLIST &baseline, REAL factor) {
    TLIST kept;
    kept.KEEP_INLIERS(list, baseline, factor);
    return Shown(kept);
}

// FORMAT as it was, at the end of a test.
struct FORMAT_KEEPER {
    TFORMAT before = FORMAT;
    ~FORMAT_KEEPER() { FORMAT = before; }
};
} // namespace

TEST_CASE("MIN and MAX of numbers show all their digits") {
    const TLIST list = ListOf(LIST_REAL, {"123456.789", "-0.123456789", "2"});
    CHECK(list.MIN() == UTF16("-0.123456789"));
    CHECK(list.MAX() == UTF16("123456.789"));
    CHECK(ListOf(LIST_NAT, {"3", "-4", "2"}).MIN() == UTF16("-4"));
}

TEST_CASE("MIN and MAX of records are decided by the first component that differs") {
    const TLIST list = ListOf(LIST_VECTOR, {"<1, 2, 3>", "<0, 9, 0>", "<1, 2, 0>"});
    CHECK(list.MIN() == UTF16("<0, 9>")); // the short form leaves the zero out
    CHECK(list.MAX() == UTF16("<1, 2, 3>"));
    CHECK(ListOf(LIST_COMPLEX, {"2,1", "2,0"}).MIN() == UTF16("2"));
    CHECK(ListOf(LIST_HYPER, {"2,1,0,4", "2,1,0,3"}).MAX() == UTF16("<2, 1, 0, 4>"));
}

TEST_CASE("MIN and MAX of texts follow the order of texts") {
    const TLIST list = ListOf(LIST_CHARS, {"b", "10", "9", "a"});
    CHECK(list.MIN() == UTF16("10"));
    CHECK(list.MAX() == UTF16("b"));
}

TEST_CASE("MIN and MAX of an empty list are empty") {
    for (const BYTE kind :
         {LIST_REAL, LIST_NAT, LIST_COMPLEX, LIST_VECTOR, LIST_HYPER, LIST_CHARS}) {
        CHECK(ListOf(kind, {}).MIN().EMPTY());
        CHECK(ListOf(kind, {}).MAX().EMPTY());
    }
}

TEST_CASE("SHORTEST and LONGEST compare lengths") {
    const TLIST vectors = ListOf(LIST_VECTOR, {"<0, 4, 0>", "<1, 2, 2>", "<-5, 0, 0>"});
    CHECK(vectors.SHORTEST() == 2); // lengths 4, 3, 5
    CHECK(vectors.LONGEST() == 3);
    const TLIST numbers = ListOf(LIST_REAL, {"-3", "2", "1", "-1"});
    CHECK(numbers.SHORTEST() == 3);
    CHECK(numbers.LONGEST() == 1);
    CHECK(ListOf(LIST_NAT, {"-3", "2"}).SHORTEST() == 2);
    CHECK(ListOf(LIST_CHARS, {"bb", "a", "ccc"}).LONGEST() == 3);
    CHECK(TLIST().SHORTEST() == 0);
    CHECK(TLIST().LONGEST() == 0);
}

TEST_CASE("MEAN and SD of numbers") {
    const TLIST list = ListOf(LIST_REAL, {"1", "2", "3"});
    CHECK(list.MEAN() == HYPER{2, 0, 0, 0});
    CHECK(list.SD() == HYPER{1, 0, 0, 0});
    CHECK(list.SHOW(list.MEAN()) == UTF16("2"));
    CHECK(TLIST().MEAN() == HZERO);
    CHECK(ListOf(LIST_REAL, {"4"}).SD() == HZERO);
}

TEST_CASE("the mean of whole numbers is a real") {
    const TLIST list = ListOf(LIST_NAT, {"1", "2"});
    CHECK(list.SHOW(list.MEAN()) == UTF16("1.5"));
    CHECK(list.SD().x == doctest::Approx(std::sqrt(0.5)).epsilon(1e-15));
}

TEST_CASE("MEAN and SD of records go by component") {
    const TLIST list = ListOf(LIST_VECTOR, {"<1, 2, 0>", "<3, 2, 4>"});
    CHECK(list.SHOW(list.MEAN()) == UTF16("<2, 2, 2>"));
    CHECK(list.SD().x == doctest::Approx(std::sqrt(2.0)).epsilon(1e-15));
    CHECK(list.SD().y == 0);
    CHECK(list.SD().z == doctest::Approx(std::sqrt(8.0)).epsilon(1e-15));
    const TLIST pairs = ListOf(LIST_COMPLEX, {"1,2", "3,4"}),
                four = ListOf(LIST_HYPER, {"1,2,3,4"});
    CHECK(pairs.SHOW(pairs.MEAN()) == UTF16("<2, 3>"));
    CHECK(four.SHOW(four.MEAN()) == UTF16("<1, 2, 3, 4>"));
}

TEST_CASE("MEAN and SD of texts take the numbers that they hold") {
    const TLIST list = ListOf(LIST_CHARS, {"1 mm", "3 mm"});
    CHECK(list.SHOW(list.MEAN()) == UTF16("2"));
    CHECK(list.SD().x == doctest::Approx(std::sqrt(2.0)).epsilon(1e-15));
}

TEST_CASE("SMOOTH takes the smoothed left neighbour and keeps both ends") {
    TLIST list = ListOf(LIST_REAL, {"0", "4", "0", "8"});
    CHECK(list.SMOOTH());
    CHECK(Shown(list) == "0|2|2.5|8");
    CHECK(list.SMOOTH());
    CHECK(Shown(list) == "0|1.625|3.65625|8");
    TLIST twice = ListOf(LIST_REAL, {"0", "4", "0", "8"});
    CHECK(twice.SMOOTH(2));
    CHECK(Shown(twice) == "0|1.625|3.65625|8");
    TLIST whole = ListOf(LIST_NAT, {"0", "4", "1", "8"});
    CHECK(whole.SMOOTH());
    CHECK(Shown(whole) == "0|2|3|8");
    TLIST vectors = ListOf(LIST_VECTOR, {"0,0,0", "4,0,8", "0,0,0"});
    CHECK(vectors.SMOOTH());
    CHECK(Shown(vectors) == "<0, 0, 0>|<2, 0, 4>|<0, 0, 0>");
}

TEST_CASE("SMOOTH leaves short lists, no passes and texts as they are") {
    TLIST pair = ListOf(LIST_REAL, {"0", "4"}), list = ListOf(LIST_REAL, {"0", "4", "0"});
    CHECK(pair.SMOOTH());
    CHECK(Shown(pair) == "0|4");
    CHECK(list.SMOOTH(0));
    CHECK(list.SMOOTH(-3));
    CHECK(Shown(list) == "0|4|0");
    TLIST texts = ListOf(LIST_CHARS, {"0", "4", "0"});
    CHECK_FALSE(texts.SMOOTH());
    CHECK(Shown(texts) == "0|4|0");
}

TEST_CASE("SMOOTH ends when a pass changes nothing any more") {
    TLIST list = ListOf(LIST_REAL, {"0", "9", "2"});
    CHECK(list.SMOOTH(NATMAX));
    CHECK(Shown(list) == "0|1|2");
}

TEST_CASE("SMOOTH ends where infinite values leave nothing to average") {
    TLIST list = ListOf(LIST_REAL, {"1e308*10", "-1e308*10", "5", "1e308*10", "3"});
    CHECK(list.SMOOTH(NATMAX));
    CHECK(Shown(list) == "0|0|0|0|3");
}

TEST_CASE("SORT puts the smallest first, or last while FORMAT.SORTING is false") {
    const FORMAT_KEEPER keeper;
    struct ORDER {
        BYTE kind;
        const char *up, *down;
    };
    for (const auto &[kind, up, down] :
         {ORDER{LIST_REAL, "1|2|10", "10|2|1"}, ORDER{LIST_NAT, "1|2|10", "10|2|1"},
          ORDER{LIST_COMPLEX, "<1, 0>|<2, 0>|<10, 0>", "<10, 0>|<2, 0>|<1, 0>"},
          ORDER{LIST_CHARS, "1|10|2", "2|10|1"}}) {
        TLIST list = ListOf(kind, {"10", "1", "2"});
        FORMAT.SORTING = true;
        list.SORT();
        CHECK(Shown(list) == up);
        FORMAT.SORTING = false;
        list.SORT();
        CHECK(Shown(list) == down);
    }
}

TEST_CASE("SORT of records goes on with the next component where one is equal") {
    TLIST list = ListOf(LIST_VECTOR, {"1,2,3", "1,2,0", "0,5,5"});
    list.SORT();
    CHECK(Shown(list) == "<0, 5, 5>|<1, 2, 0>|<1, 2, 3>");
}

TEST_CASE("SORTREAL orders texts by their number") {
    TLIST list = ListOf(LIST_CHARS, {"slice 10", "slice 9", "slice 100"});
    list.SORTREAL();
    CHECK(Shown(list) == "slice 9|slice 10|slice 100");
    TLIST numbers = ListOf(LIST_NAT, {"10", "9"});
    numbers.SORTREAL();
    CHECK(Shown(numbers) == "9|10");
}

TEST_CASE("an inlier lies in mean plus or minus factor times SD, both ends included") {
    // Mean 2, SD the root of 20: with factor 1 from -2.47 to 6.47.
    const TLIST list = ListOf(LIST_REAL, {"0", "0", "0", "10", "0"});
    CHECK(Inliers(list, list, 1) == "0|0|0|0");
    CHECK(Inliers(list, list, -1) == "0|0|0|0");
    CHECK(Inliers(list, list, 3) == "0|0|0|10|0");
    const TLIST ends = ListOf(LIST_REAL, {"1", "2", "3"}); // mean 2, SD 1
    CHECK(Inliers(ends, ends, 1) == "1|2|3");
    CHECK(Inliers(ends, ends, 0.5) == "2");
}

TEST_CASE("inliers against a baseline list") {
    const TLIST base = ListOf(LIST_REAL, {"1", "2", "3"});
    CHECK(Inliers(ListOf(LIST_NAT, {"0", "1", "2", "3", "4"}), base, 1) == "1|2|3");
    CHECK(Inliers(base, ListOf(LIST_REAL, {"2"}), 3) == "2");
}

TEST_CASE("a record is an inlier when all its components are") {
    const TLIST list = ListOf(LIST_VECTOR, {"0,1,0", "0,1,0", "0,1,10", "0,1,0", "0,1,0"});
    CHECK(Inliers(list, list, 1) == "<0, 1, 0>|<0, 1, 0>|<0, 1, 0>|<0, 1, 0>");
}

TEST_CASE("values without spread are no outliers, however their mean is rounded") {
    const TLIST list = ListOf(LIST_REAL, {"0.1", "0.1", "0.1"});
    CHECK(Inliers(list, list, 0) == "0.1|0.1|0.1");
}

TEST_CASE("texts are inliers by the numbers that they hold") {
    const TLIST list = ListOf(LIST_CHARS, {"a 0", "b 0", "c 0", "d 10", "e 0"});
    CHECK(Inliers(list, list, 1) == "a 0|b 0|c 0|e 0");
}

TEST_CASE("the inliers of an empty list and against an empty baseline") {
    const TLIST empty, list = ListOf(LIST_REAL, {"0", "1"});
    CHECK(Inliers(empty, empty, 3) == "");
    CHECK(Inliers(empty, list, 3) == "");
    CHECK(Inliers(list, empty, 3) == "0");
}

TEST_CASE("KEEP_INLIERS may write into its baseline") {
    TLIST base = ListOf(LIST_REAL, {"1", "2", "3"});
    const TLIST list = ListOf(LIST_REAL, {"0", "2", "9"});
    base.KEEP_INLIERS(list, base, 1);
    CHECK(Shown(base) == "2");
}
