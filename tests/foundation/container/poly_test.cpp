#include "foundation/container/memory_block.hpp"
#include "foundation/container/poly_types.hpp"
#include "support/capture.hpp"

#include <utility>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
constexpr NAT REAL_SIZE = sizeof(REAL);

void FILL_WITH(TPOLYREAL &list, std::initializer_list<REAL> values) {
    list.INIT();
    for (const REAL value : values)
        list.PUSH(value);
}
bool HOLDS(const TPOLYREAL &list, std::initializer_list<REAL> values) {
    if (list.LENGTH != static_cast<NAT>(values.size())) return false;
    NAT position = 0;
    for (const REAL value : values)
        if (list.GET(++position) != value) return false;
    return true;
}
} // namespace

TEST_CASE("a static INIT gives zero elements and the range from 1 to the count") {
    TPOLY list;
    list.INIT(3, REAL_SIZE);
    CHECK(list.LENGTH == 3);
    CHECK(list.MAXIMAL == 3);
    CHECK(list.DYNAMIC == 0);
    CHECK(list.SIZE == 8);
    CHECK(list.RANGE == RANGENAT{1, 3});
    CHECK(list.GUARD == list.DATA);
    CHECK_FALSE(list.SORTED);
    REAL value = 1;
    list.GET(3, &value);
    CHECK(value == 0);
}

TEST_CASE("a dynamic INIT reserves 64 KiB and is empty") {
    TPOLY list;
    list.INIT(REAL_SIZE);
    CHECK(list.LENGTH == 0);
    CHECK(list.RANGE == RANGENAT{0, 0});
    CHECK(list.MAXIMAL == 8192);
    CHECK(list.DYNAMIC == 8192);
}

TEST_CASE("a dynamic INIT with an element above 64 KiB reserves as many elements as it has bytes") {
    TPOLY list;
    list.INIT(65537);
    CHECK(list.MAXIMAL == 65537);
}

TEST_CASE("INIT with a count below 1 makes a dynamic list") {
    TPOLY list;
    list.INIT(0, REAL_SIZE);
    CHECK(list.DYNAMIC == 8192);
    CHECK(list.LENGTH == 0);
}

TEST_CASE("INIT with a size below 1 leaves everything empty") {
    TPOLY list;
    list.INIT(5, 0);
    CHECK(list.FRESH());
    CHECK(list.LENGTH == 0);
    CHECK(list.SIZE == 0);
}

TEST_CASE("INIT on an object with random content does not crash when GUARD differs from DATA") {
    TPOLY list;
    int something = 0;
    list.DATA = &something;
    list.GUARD = nullptr;
    list.LENGTH = 0x5A5A5A5A5A;
    list.MAXIMAL = -7;
    list.DYNAMIC = 99;
    list.SIZE = 12345;
    list.CHECK2 = 77;
    CHECK(list.FRESH());
    list.INIT(2, REAL_SIZE);
    CHECK(list.LENGTH == 2);
    CHECK(list.CHECK2 == 0);
    CHECK_FALSE(list.FRESH());
}

TEST_CASE("INIT with the count and size that a list has reuses its block") {
    TPOLY list;
    list.INIT(2, REAL_SIZE);
    const REAL value = 4;
    list.PUT(1, &value);
    const void *block = list.DATA;
    list.INIT(2, REAL_SIZE);
    CHECK(list.DATA == block);
    CHECK(*static_cast<REAL *>(list._INDEX(1)) == 4);
}

TEST_CASE("INIT with another count or size abandons the old block without freeing it") {
    TPOLY list;
    list.INIT(2, REAL_SIZE);
    const REAL value = 4;
    list.PUT(2, &value);
    REAL *block = static_cast<REAL *>(list.DATA);
    list.INIT(3, REAL_SIZE);
    CHECK(list.DATA != block);
    CHECK(block[1] == 4); // still there; the memory checkers would tell a read of a freed block
    FREE_BLOCK(block);
}

TEST_CASE("a typed INIT with another count frees what it held") {
    TPOLYREAL list(2); // the leak checker watches
    list.INIT(3);
    CHECK(list.LENGTH == 3);
}

TEST_CASE("a dynamic INIT on a dynamic list of the same size empties it and keeps its block") {
    TPOLYREAL list;
    FILL_WITH(list, {1, 2, 3});
    const void *block = list.DATA;
    list.INIT();
    CHECK(list.DATA == block);
    CHECK(list.LENGTH == 0);
    list.NEWLENGTH(3);
    CHECK(HOLDS(list, {0, 0, 0}));
}

TEST_CASE("without memory a static INIT is told and leaves an empty field with its size") {
    CAPTURE console;
    TPOLY list;
    list.INIT(NATMAX, 16);
    CHECK(console.TEXT() == "  Wrong static allocation (Out of memory?)! Create empty field.\n");
    CHECK(list.LENGTH == 0);
    CHECK(list.MAXIMAL == 0);
    CHECK(list.SIZE == 16);
    CHECK(list.FRESH());
}

TEST_CASE("without memory a dynamic INIT is told and leaves the size 0") {
    CAPTURE console;
    TPOLY list;
    list.INIT(NATMAX / 2); // the reserve is that many elements: the product is out of range
    CHECK(console.TEXT() == "  Wrong dynamic allocation (Out of memory?)! Create empty field.\n");
    CHECK(list.SIZE == 0);
}

TEST_CASE("PUT behind the end of a static list changes nothing, not even LENGTH") {
    TPOLYREAL list(2);
    list.PUT(3, 9);
    CHECK(HOLDS(list, {0, 0}));
}

TEST_CASE("PUT at 5 of an empty dynamic list gives length 5 with four zero elements") {
    TPOLYREAL list;
    list.INIT();
    list.PUT(5, 9);
    CHECK(HOLDS(list, {0, 0, 0, 0, 9}));
    CHECK(list.RANGE == RANGENAT{1, 5});
}

TEST_CASE("PUT below 1 changes nothing") {
    TPOLYREAL list;
    FILL_WITH(list, {1});
    list.SORT();
    list.PUT(0, 9);
    list.PUT(-3, 9);
    CHECK(HOLDS(list, {1}));
    CHECK(list.SORTED);
}

TEST_CASE("PUT clears SORTED") {
    TPOLYREAL list;
    FILL_WITH(list, {1, 2});
    list.SORT();
    CHECK(list.SORTED);
    list.PUT(1, 1);
    CHECK_FALSE(list.SORTED);
}

TEST_CASE("a dynamic list grows when a position reaches its capacity") {
    TPOLYREAL list;
    list.INIT();
    list.PUT(8192, 3);
    CHECK(list.LENGTH == 8192);
    CHECK(list.MAXIMAL == 16384);
    CHECK(list.GET(8192) == 3);
}

TEST_CASE("a list pushes its own element while its block moves") {
    TPOLYREAL list;
    list.INIT();
    list.PUSH(42);
    while (list.LENGTH < 8191)
        list.PUSH(1);
    list.PUSH(list._GET(1));
    CHECK(list.GET(8192) == 42);
}

TEST_CASE("a default-constructed list becomes dynamic at its first PUT") {
    TPOLYREAL list;
    CHECK(list.FRESH());
    list.PUSH(4);
    CHECK(HOLDS(list, {4}));
    CHECK(list.DYNAMIC > 0);
}

TEST_CASE("a checked GET outside the range gives zero") {
    TPOLYREAL list;
    FILL_WITH(list, {4});
    CHECK(list.GET(0) == 0);
    CHECK(list.GET(2) == 0);
    CHECK(list.GET(-1) == 0);
}

TEST_CASE("the untyped GET does nothing outside the range and for a null target") {
    TPOLY list;
    list.INIT(1, REAL_SIZE);
    REAL value = 5;
    list.GET(2, &value);
    CHECK(value == 5);
    list.GET(1, nullptr);
    list.GET(1, &value);
    CHECK(value == 0);
}

TEST_CASE("GETPOS gives the address with an offset, and null outside") {
    TPOLY list;
    list.INIT(2, REAL_SIZE);
    void *position = nullptr;
    list.GETPOS(2, position, 3);
    CHECK(position == static_cast<char *>(list.DATA) + 11);
    list.GETPOS(3, position);
    CHECK(position == nullptr);
}

TEST_CASE("SWAP of lists of different lengths gives false and changes nothing") {
    TPOLYREAL a, b;
    FILL_WITH(a, {1});
    FILL_WITH(b, {2, 3});
    CHECK_FALSE(a.SWAP(b));
    CHECK(HOLDS(a, {1}));
    CHECK(HOLDS(b, {2, 3}));
}

TEST_CASE("SWAP exchanges the blocks of a static and a dynamic list of one length") {
    TPOLYREAL a(2), b;
    FILL_WITH(b, {2, 3});
    CHECK(a.SWAP(b));
    CHECK(HOLDS(a, {2, 3}));
    CHECK(HOLDS(b, {0, 0}));
    a.PUSH(4); // the capacity came with the block
    CHECK(HOLDS(a, {2, 3, 4}));
}

TEST_CASE("FLIP reverses the order and clears SORTED") {
    TPOLYREAL list;
    FILL_WITH(list, {1, 2, 3});
    list.SORT();
    list.FLIP();
    CHECK(HOLDS(list, {3, 2, 1}));
    CHECK_FALSE(list.SORTED);
    TPOLY raw;
    raw.INIT(2, REAL_SIZE);
    const REAL one = 1;
    raw.PUT(1, &one);
    raw.FLIP();
    CHECK(*static_cast<REAL *>(raw._INDEX(2)) == 1);
}

TEST_CASE("REPLACE copies the other list when the element sizes match") {
    TPOLYREAL a, b;
    FILL_WITH(a, {1, 2, 3});
    FILL_WITH(b, {7, 8});
    a.REPLACE(b);
    CHECK(HOLDS(a, {7, 8}));
    TPOLY bytes;
    bytes.INIT(3, 1);
    bytes.TPOLY::REPLACE(b);
    CHECK(bytes.LENGTH == 3);
}

TEST_CASE("REPLACE of a part moves the tail") {
    TPOLYREAL list, two, none;
    FILL_WITH(list, {1, 2, 3, 4});
    FILL_WITH(two, {8, 9});
    none.INIT();
    list.REPLACE(2, 1, two);
    CHECK(HOLDS(list, {1, 8, 9, 3, 4}));
    list.REPLACE(1, 3, two);
    CHECK(HOLDS(list, {8, 9, 3, 4}));
    list.REPLACE(2, 2, none);
    CHECK(HOLDS(list, {8, 4}));
    list.REPLACE(3, 0, two); // behind the last element
    CHECK(HOLDS(list, {8, 4, 8, 9}));
    list.REPLACE(6, 1, two); // beyond: nothing
    CHECK(HOLDS(list, {8, 4, 8, 9}));
}

TEST_CASE("REPLACE of a part by the list itself uses its former elements") {
    TPOLYREAL list;
    FILL_WITH(list, {1, 2, 3});
    list.REPLACE(2, 1, list);
    CHECK(HOLDS(list, {1, 1, 2, 3, 3}));
}

TEST_CASE("DONE leaves a zero object that may be used again, and may be called twice") {
    TPOLYREAL list;
    FILL_WITH(list, {1});
    list.TAG[0] = 'x';
    list.DONE();
    list.DONE();
    CHECK(list.FRESH());
    CHECK(list.SIZE == 0);
    CHECK(list.KIND == 0);
    CHECK(list.TAG[0] == 0);
    list.INIT(1);
    CHECK(list.LENGTH == 1);
}

TEST_CASE("a destroyed CHECK field is told at DONE and the block is left alone") {
    CAPTURE console;
    TPOLYREAL list(2);
    void *block = list.DATA;
    list.CHECK2 = 1;
    list.DONE();
    CHECK(console.TEXT().starts_with("  Corrupt memory (Done size="));
    CHECK(console.TEXT().ends_with(" and should=16)!\n"));
    CHECK(list.FRESH());
    FREE_BLOCK(block);
}

TEST_CASE("a destroyed CHECK field is told by NEWLENGTH with its place") {
    CAPTURE console;
    TPOLYREAL zero(2), fixed(2), dynamic;
    dynamic.INIT();
    void *blocks[] = {zero.DATA, fixed.DATA, dynamic.DATA};
    zero.CHECK1 = fixed.CHECK3 = dynamic.CHECK2 = 1;
    zero.NEWLENGTH(0);
    fixed.NEWLENGTH(3);
    dynamic.NEWLENGTH(9000);
    CHECK(console.CONTAINS("  Corrupt memory (Newlength-0 size="));
    CHECK(console.CONTAINS("  Corrupt memory (Newlength-static size="));
    CHECK(console.CONTAINS("  Corrupt memory (Newlength-dynamic size="));
    fixed.CHECK3 = dynamic.CHECK2 = 0;
    for (void *block : blocks)
        FREE_BLOCK(block);
}

TEST_CASE("DONE frees nothing when the counts do not add up") {
    TPOLYREAL list(2);
    void *block = list.DATA;
    list.LENGTH = 1;
    list.DONE();
    CHECK(list.FRESH());
    FREE_BLOCK(block); // a second free would be told by the memory checkers
}

TEST_CASE("moving a list leaves an empty one behind") {
    TPOLYREAL a;
    FILL_WITH(a, {1, 2});
    TPOLYREAL b = std::move(a);
    CHECK(HOLDS(b, {1, 2}));
    CHECK(a.FRESH());
    CHECK(a.LENGTH == 0);
}

TEST_CASE("ADDLENGTH adds to the length and stops at 0") {
    TPOLYREAL list;
    FILL_WITH(list, {1});
    list.ADDLENGTH(2);
    CHECK(HOLDS(list, {1, 0, 0}));
    list.ADDLENGTH(-9);
    CHECK(list.LENGTH == 0);
}

TEST_CASE("every class has its type code") {
    TPOLYNAT nat(1);
    TPOLYWORD word(1);
    TPOLYBYTE byte(1);
    TPOLYBOOL flag(1);
    TPOLYPOINTER pointer(1);
    TPOLYCHARS chars(1);
    TPOLYVECTOR vector(1);
    CHECK(nat.KIND == 2);
    CHECK(word.KIND == 3);
    CHECK(byte.KIND == 4);
    CHECK(flag.KIND == 5);
    CHECK(pointer.KIND == 225);
    CHECK(chars.KIND == 241);
    CHECK(vector.KIND == 0);
}

TEST_CASE("REPLACE by a list that was never filled empties the list") {
    const TPOLYREAL nothing;
    TPOLYREAL list;
    FILL_WITH(list, {1, 2, 3});
    list.REPLACE(2, 1, nothing);
    CHECK(HOLDS(list, {1, 3}));
    list.REPLACE(nothing);
    CHECK(list.LENGTH == 0);
}
