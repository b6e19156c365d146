#include "foundation/container/poly_types.hpp"

#include <cmath>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
template <class T> TPOLY_OF<T> LIST(std::initializer_list<T> values) {
    TPOLY_OF<T> list;
    list.INIT();
    for (const T &value : values)
        list.PUSH(value);
    return list;
}
template <class T> bool HOLDS(const TPOLY_OF<T> &list, std::initializer_list<T> values) {
    return std::equal(list.SPAN().begin(), list.SPAN().end(), values.begin(), values.end());
}
} // namespace

TEST_CASE("POP gives the last element and shortens the list, zero from an empty one") {
    TPOLYVECTOR list = LIST<VECTOR>({{1, 2, 3}, {4, 5, 6}});
    CHECK(list.POP() == VECTOR{4, 5, 6});
    CHECK(list.LENGTH == 1);
    list.POP();
    CHECK(list.POP() == VZERO);
}

TEST_CASE("FILL sets all elements") {
    TPOLYWORD list(3);
    list.FILL(7);
    CHECK(HOLDS<WORD>(list, {7, 7, 7}));
}

TEST_CASE("MIN and MAX of an empty list are the values that every element beats") {
    TPOLYNAT nats;
    TPOLYREAL reals;
    CHECK(nats.MIN() == NATMAX);
    CHECK(nats.MAX() == NATMIN);
    CHECK(reals.MIN() == REALMAX);
    CHECK(reals.MAX() == -REALMAX);
}

TEST_CASE("MAXPOS is the first largest position, 0 when empty") {
    CHECK(LIST<NAT>({3, 9, 2, 9}).MAXPOS() == 2);
    CHECK(TPOLYNAT().MAXPOS() == 0);
}

TEST_CASE("DIMMIN and DIMMAX of an empty list of vectors are infinities") {
    CHECK(TPOLYVECTOR().DIMMIN() == VMAX);
    CHECK(TPOLYVECTOR().DIMMAX() == VMIN);
    CHECK(TPOLYCOMPLEX().DIMMIN() == COMPLEX{REALMAX, REALMAX});
    CHECK(TPOLYCOMPLEXNAT().DIMMAX() == COMPLEXNAT{NATMIN, NATMIN});
}

TEST_CASE("DIMMIN and DIMMAX work by component, MIN and MAX by the order of the records") {
    const TPOLYVECTOR list = LIST<VECTOR>({{1, 9, 0}, {2, -1, 5}, {1, 8, 7}});
    CHECK(list.DIMMIN() == VECTOR{1, -1, 0});
    CHECK(list.DIMMAX() == VECTOR{2, 9, 7});
    CHECK(list.MIN() == VECTOR{1, 8, 7});
    CHECK(list.MAX() == VECTOR{2, -1, 5});
}

TEST_CASE("MIN0 skips zero vectors from the second element on") {
    CHECK(LIST<VECTOR>({{5, 0, 0}, {0, 0, 0}, {3, 0, 0}}).MIN0() == VECTOR{3, 0, 0});
    CHECK(LIST<VECTOR>({{0, 0, 0}, {3, 0, 0}}).MIN0() == VZERO);
}

TEST_CASE("SUM and MEAN work by component, and the mean of an empty list is 0") {
    const TPOLYHYPER list = LIST<HYPER>({{1, 2, 3, 4}, {3, 4, 5, 8}});
    CHECK(list.SUM() == HYPER{4, 6, 8, 12});
    CHECK(list.MEAN() == HYPER{2, 3, 4, 6});
    CHECK(TPOLYHYPER().MEAN() == HZERO);
    CHECK(TPOLYREAL().MEAN() == 0);
}

TEST_CASE("MEAN of whole numbers is the real quotient") {
    CHECK(LIST<NAT>({1, 2}).MEAN() == 1.5);
    CHECK(LIST<NAT>({NATMAX, NATMAX}).MEAN() == 9223372036854775807.0);
    CHECK(TPOLYNAT().MEAN() == 0);
}

TEST_CASE("SD has the divisor n-1 and is 0 for fewer than two elements") {
    CHECK(LIST<REAL>({1, 3}).SD() == doctest::Approx(std::sqrt(2.0)));
    CHECK(LIST<REAL>({5}).SD() == 0);
    CHECK(LIST<NAT>({1, 3}).SD() == std::sqrt(2.0));
    CHECK(LIST<HYPER>({{1, 0, 0, 2}, {3, 0, 0, 2}}).SD() == HYPER{std::sqrt(2.0), 0, 0, 0});
    CHECK(LIST<HYPER>({{1, 0, 0, 2}, {3, 0, 0, 2}}).VARIANCE() == HYPER{2, 0, 0, 0});
}

TEST_CASE("MEDIAN of the reals 1, 2, 3, 4 is 2") { CHECK(LIST<REAL>({4, 2, 3, 1}).MEDIAN() == 2); }

TEST_CASE("quartiles of an even length are the lower neighbour") {
    const TPOLYNAT list = LIST<NAT>({80, 10, 70, 20, 60, 30, 50, 40});
    CHECK(list.Q1() == 20);     // position 8/4
    CHECK(list.MEDIAN() == 40); // position 8/2
    CHECK(list.Q3() == 60);     // position (8/4)*3
}

TEST_CASE("quartiles of an odd length stand at n/4+1, n/2+1 and (n/4)*3+1") {
    const TPOLYNAT list = LIST<NAT>({70, 10, 60, 20, 50, 30, 40});
    CHECK(list.Q1() == 20);
    CHECK(list.MEDIAN() == 40);
    CHECK(list.Q3() == 40); // (7/4)*3+1 = 4
}

TEST_CASE("the outer quartiles of a list of two read position 0 and are 0") {
    const TPOLYREAL list = LIST<REAL>({5, 7});
    CHECK(list.Q1() == 0);
    CHECK(list.MEDIAN() == 5);
    CHECK(list.Q3() == 0);
    CHECK(list.QUANTILE() == VECTOR{0, 5, 0});
}

TEST_CASE("a list of three has its third quartile at position 1") {
    const TPOLYNAT list = LIST<NAT>({9, 7, 8});
    CHECK(list.Q1() == 7);
    CHECK(list.MEDIAN() == 8);
    CHECK(list.Q3() == 7);
}

TEST_CASE("quartiles of an empty list are 0 and the list stays as it is") {
    CHECK(TPOLYREAL().MEDIAN() == 0);
    const TPOLYREAL list = LIST<REAL>({3, 1, 2});
    list.MEDIAN();
    CHECK(HOLDS<REAL>(list, {3, 1, 2}));
}

TEST_CASE("QUANTILE of whole numbers averages two neighbours at an even length") {
    CHECK(LIST<NAT>({1, 2, 3, 4}).QUANTILE() == VECTORNAT{2, 2, 4}); // 1.5, 2.5, 3.5 to even
    CHECK(LIST<NAT>({5, 7}).QUANTILE() == VECTORNAT{2, 6, 2});       // position 0 reads as 0
    CHECK(LIST<NAT>({9, 7, 8}).QUANTILE() == VECTORNAT{7, 8, 7});
}

TEST_CASE("QUANTILE of reals takes single elements") {
    CHECK(LIST<REAL>({1, 2, 3, 4}).QUANTILE() == VECTOR{1, 2, 3});
}

TEST_CASE("the median of vectors follows their order") {
    CHECK(LIST<VECTOR>({{3, 0, 0}, {1, 5, 0}, {1, 4, 9}}).MEDIAN() == VECTOR{1, 5, 0});
}

TEST_CASE("SMOOTH uses the smoothed left neighbour and keeps both ends") {
    TPOLYREAL list = LIST<REAL>({0, 4, 0, 8});
    list.SMOOTH(); // 2: (4+0)/2 = 2; 3: (0 + (2+8)/2)/2 = 2.5
    CHECK(HOLDS<REAL>(list, {0, 2, 2.5, 8}));
    TPOLYREAL two = LIST<REAL>({1, 5});
    two.SMOOTH();
    CHECK(HOLDS<REAL>(two, {1, 5}));
}

TEST_CASE("SMOOTH of whole numbers rounds halves to even") {
    TPOLYNAT list = LIST<NAT>({0, 5, 0}); // 2.5
    list.SMOOTH();
    CHECK(HOLDS<NAT>(list, {0, 2, 0}));
}

TEST_CASE("DERIVATION takes differences and averages each with the next") {
    TPOLYREAL target;
    LIST<REAL>({1, 4, 6, 7}).DERIVATION(target); // differences 3, 3, 2, 1
    CHECK(HOLDS<REAL>(target, {3, 2.5, 1.5, 1}));
    LIST<REAL>({2, 7}).DERIVATION(target);
    CHECK(HOLDS<REAL>(target, {5, 5}));
    LIST<REAL>({6}).DERIVATION(target);
    CHECK(HOLDS<REAL>(target, {6}));
}

TEST_CASE("ADDUP, SUBTRACT and MULTIPLY act on every element") {
    TPOLYVECTOR list = LIST<VECTOR>({{1, 2, 3}, {0, 0, 0}});
    list.ADDUP({1, 1, 1});
    list.MULTIPLY({2, 1, 0});
    list.SUBTRACT({1, 0, 0});
    CHECK(HOLDS<VECTOR>(list, {{3, 3, 0}, {1, 1, 0}}));
    TPOLYHYPER hypers = LIST<HYPER>({{1, 2, 3, 4}});
    hypers.MULTIPLY({1, 2, 3, 4});
    CHECK(hypers.GET(1) == HYPER{1, 4, 9, 16});
}

TEST_CASE("bytes read as little-endian numbers from a 1-based position") {
    const TPOLYBYTE list = LIST<BYTE>({9, 0x01, 0x02, 0x03, 0x80, 0, 0, 0, 0x40});
    CHECK(list.GETBYTE2(2) == 0x0201);
    CHECK(list.GETBYTE4(2) == 0x80030201);
    CHECK(list.GETBYTE8(2) == 0x4000000080030201);
    const TPOLYBYTE floats = LIST<BYTE>({0, 0, 0x80, 0x3F, 0, 0, 0, 0, 0, 0, 0xF0, 0x3F});
    CHECK(floats.GETFLOAT32(1) == 1.0f);
    CHECK(floats.GETFLOAT64(5) == 1.0);
}

TEST_CASE("CLEAR sets all bytes to 0") {
    TPOLYBYTE list = LIST<BYTE>({1, 2});
    list.CLEAR();
    CHECK(HOLDS<BYTE>(list, {0, 0}));
}

TEST_CASE("INIT sets the axis flags and PUT clears them") {
    TPOLYVECTOR list;
    list.INIT();
    CHECK(list.SORTEDX);
    CHECK(list.SORTEDZ);
    list.PUSH({1, 2, 3});
    CHECK_FALSE(list.SORTEDX);
    CHECK_FALSE(list.SORTEDY);
    CHECK_FALSE(list.SORTEDZ);
}

TEST_CASE("SEARCH gives the same position on a sorted and on an unsorted list") {
    TPOLYNAT list = LIST<NAT>({4, 2, 4, 9});
    CHECK(list.SEARCH(4) == 1);
    CHECK(list.SEARCH(5) == 0);
    list.SORT(); // 2, 4, 4, 9
    CHECK(list.SEARCH(4) == 2);
    CHECK(list.SEARCH(5) == 0);
    CHECK(list.SEARCH(10) == 0);
}

TEST_CASE("SEARCHOVER finds the first element that is large enough") {
    TPOLYNAT list = LIST<NAT>({4, 2, 7, 9});
    CHECK(list.SEARCHOVER(5) == 3);
    CHECK(list.SEARCHOVER(10) == 0);
    list.SORT();
    CHECK(list.SEARCHOVER(3) == 2);
}

TEST_CASE("SEARCHX and BACKSEARCHX look at the x component") {
    TPOLYCOMPLEX list = LIST<COMPLEX>({{5, 1}, {3, 2}, {5, 3}});
    CHECK(list.SEARCHX(5) == 1);
    CHECK(list.SEARCHX(4) == 0);
    list.SORTX();
    CHECK(list.SORTEDX);
    CHECK(list.SEARCHX(3) == 1);
    const TPOLYVECTOR vectors = LIST<VECTOR>({{5, 1, 0}, {3, 2, 0}, {5, 3, 0}});
    CHECK(vectors.BACKSEARCHX(5) == 3);
    CHECK(vectors.BACKSEARCHX(5, 2) == 1);
    CHECK(vectors.BACKSEARCHX(4) == 0);
}

TEST_CASE("CHECK compares an element and is false outside the list") {
    const TPOLYVECTORNAT list = LIST<VECTORNAT>({{1, 2, 3}});
    CHECK((list.CHECK)(1, {1, 2, 3}));
    CHECK_FALSE((list.CHECK)(1, {1, 2, 4}));
    CHECK_FALSE((list.CHECK)(2, {0, 0, 0}));
    CHECK(list._CHECK(1, {1, 2, 3}));
    CHECK(list.LOWER(1, {1, 2, 4}));
    CHECK_FALSE(list.LOWER(1, {1, 2, 3}));
    CHECK(LIST<COMPLEXNAT>({{7, 1}})._CHECKX(1, 7));
}

TEST_CASE("LOOKNEAR probes four positions in their order") {
    const TPOLYVECTOR list = LIST<VECTOR>({{1, 0, 0}, {2, 0, 0}, {1, 0, 0}});
    CHECK(list.LOOKNEAR(0, 3, 1, 2, {1, 0, 0}) == 3);
    CHECK(list.LOOKNEAR(0, 9, 1, 2, {2, 0, 0}) == 2);
    CHECK(list.LOOKNEAR(1, 1, 1, 1, {2, 0, 0}) == 0);
}

TEST_CASE("DERIVATION of a list that was never filled is empty") {
    TPOLYREAL target = LIST<REAL>({2, 7});
    TPOLYREAL().DERIVATION(target);
    CHECK(target.LENGTH == 0);
}

TEST_CASE("a list that grows by zeros is not sorted by an axis any more") {
    TPOLYCOMPLEX list = LIST<COMPLEX>({{5, 1}, {3, 1}});
    list.SORTX();
    list.NEWLENGTH(4); // the x components are 3, 5, 0, 0
    CHECK_FALSE(list.SORTEDX);
    CHECK(list.SEARCHX(0) == 3);
}
