#include "foundation/container/poly_types.hpp"

#include <algorithm>

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

TEST_CASE("SORT puts every kind of number in ascending order") {
    TPOLYNAT nats = LIST<NAT>({3, -1, 2, 3, 0});
    nats.SORT();
    CHECK(HOLDS<NAT>(nats, {-1, 0, 2, 3, 3}));
    CHECK(nats.SORTED);
    TPOLYREAL reals = LIST<REAL>({0.5, -2, 7});
    reals.SORT();
    CHECK(HOLDS<REAL>(reals, {-2, 0.5, 7}));
    TPOLYWORD words = LIST<WORD>({9, 1});
    words.SORT();
    CHECK(HOLDS<WORD>(words, {1, 9}));
    TPOLYBYTE bytes = LIST<BYTE>({9, 1, 255});
    bytes.SORT();
    CHECK(HOLDS<BYTE>(bytes, {1, 9, 255}));
}

TEST_CASE("equal keys end in the order that the heap gives") {
    // Three equal keys a b c: no exchange while the heap is built. Round one exchanges a and c:
    // c b | a. No sift, as b is not strictly larger. Round two exchanges c and b: b | c a.
    TPOLYCOMPLEX three = LIST<COMPLEX>({{1, 5}, {2, 5}, {3, 5}});
    three.SORTY();
    CHECK(HOLDS<COMPLEX>(three, {{2, 5}, {3, 5}, {1, 5}}));
    // Keys 1 2 2 as a b c: the heap takes the left child b, as c is not strictly larger: b a c.
    // Round one: c a | b. Round two: a | c b.
    TPOLYCOMPLEX mixed = LIST<COMPLEX>({{1, 1}, {2, 2}, {3, 2}});
    mixed.SORTY();
    CHECK(HOLDS<COMPLEX>(mixed, {{1, 1}, {3, 2}, {2, 2}}));
    CHECK(mixed.SORTEDY);
}

TEST_CASE("SORTX, SORTY and SORTZ set only the flag of their axis") {
    TPOLYVECTORNAT list = LIST<VECTORNAT>({{3, 1, 2}, {1, 2, 3}, {2, 3, 1}});
    list.SORTX();
    CHECK(HOLDS<VECTORNAT>(list, {{1, 2, 3}, {2, 3, 1}, {3, 1, 2}}));
    CHECK(list.SORTEDX);
    list.SORTZ();
    CHECK(HOLDS<VECTORNAT>(list, {{2, 3, 1}, {3, 1, 2}, {1, 2, 3}}));
    CHECK(list.SORTEDZ);
    CHECK_FALSE(list.SORTEDX);
    CHECK_FALSE(list.SORTEDY);
}

TEST_CASE("SORTHELP gives positions in ascending order and leaves the list") {
    const TPOLYREAL list = LIST<REAL>({0.3, 0.1, 0.2});
    TPOLYNAT index;
    list.SORTHELP(index);
    CHECK(HOLDS<NAT>(index, {2, 3, 1}));
    CHECK(HOLDS<REAL>(list, {0.3, 0.1, 0.2}));
    TPOLYREAL().SORTHELP(index);
    CHECK(index.LENGTH == 0);
}

TEST_CASE("SORTRANK orders by how often a value occurs, rarest first") {
    TPOLYNAT list = LIST<NAT>({7, 5, 7, 9, 7, 5});
    list.SORTRANK();
    CHECK(HOLDS<NAT>(list, {9, 5, 5, 7, 7, 7}));
}

TEST_CASE("UNIQUE_DIRECTION keeps the last of equal or opposite elements") {
    TPOLYVECTORNAT list =
        LIST<VECTORNAT>({{1, 0, 0}, {0, 1, 0}, {-1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {5, 5, 5}});
    list.UNIQUE_DIRECTION();
    CHECK(HOLDS<VECTORNAT>(list, {{-1, 0, 0}, {0, 1, 0}, {0, 0, 1}}));
}

TEST_CASE("UNIQUE_DIRECTION never keeps the last element") {
    TPOLYCOMPLEXNAT one = LIST<COMPLEXNAT>({{1, 2}});
    one.UNIQUE_DIRECTION();
    CHECK(one.LENGTH == 0);
    TPOLYCOMPLEXNAT list = LIST<COMPLEXNAT>({{1, 2}, {3, 4}, {-1, -2}});
    list.UNIQUE_DIRECTION(); // the first is opposite to the last, and the last never stays
    CHECK(HOLDS<COMPLEXNAT>(list, {{3, 4}}));
}

TEST_CASE("UNIQUE_DIRECTION equals the plain rule on many elements") {
    RANDOM_STREAM random(1, 1);
    TPOLYVECTORNAT list, expected;
    for (NAT i = 0; i < 500; ++i)
        list.PUSH({random.BELOW(7) - 3, random.BELOW(7) - 3, random.BELOW(3) - 1});
    for (NAT i = 1; i < list.LENGTH; ++i) {
        bool keep = true;
        for (NAT j = i + 1; j <= list.LENGTH; ++j)
            keep = keep && list.GET(j) != list.GET(i) && list.GET(j) != -list.GET(i);
        if (keep) expected.PUSH(list.GET(i));
    }
    list.UNIQUE_DIRECTION();
    CHECK(std::ranges::equal(list.SPAN(), expected.SPAN()));
}

TEST_CASE("MIX keeps the elements and clears SORTED") {
    TPOLYNAT list;
    for (NAT i = 1; i <= 100; ++i)
        list.PUSH(i);
    list.SORT();
    RANDOM_STREAM random(1, 1);
    list.MIX(random);
    CHECK_FALSE(list.SORTED);
    CHECK_FALSE(std::ranges::is_sorted(list.SPAN()));
    list.SORT();
    CHECK(list.GET(1) == 1);
    CHECK(list.GET(100) == 100);
    CHECK(list.SUM() == 5050);
}
