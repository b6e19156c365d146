#include "foundation/container/matrix.hpp"
#include "support/capture.hpp"

#include <utility>

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a matrix runs fastest along x and reads DEFAULT outside") {
    TMATRIXNAT matrix(3, 2);
    matrix.PUT(2, 1, 5);
    matrix.PUT(1, 2, 6);
    CHECK(matrix.GET(2) == 5); // list position 2 + 0*3
    CHECK(matrix.GET(4) == 6);
    matrix.DEFAULT = 9;
    CHECK(matrix.GET(2, 1) == 5);
    CHECK(matrix.GET(0, 1) == 9);
    CHECK(matrix.GET(4, 1) == 9);
    CHECK(matrix.GET(1, 3) == 9);
    CHECK(matrix.SORTED == false);
}

TEST_CASE("INIT of a matrix sets its code, SORTED, DEFAULT and WRITE") {
    TMATRIXBYTE matrix(2, 2);
    CHECK(matrix.KIND == 'D');
    CHECK(matrix.SORTED);
    CHECK(matrix.DEFAULT == 0);
    CHECK(matrix.WRITE == 0);
    CHECK(TMATRIXREAL(1, 1).KIND == 'A');
    CHECK(TMATRIXNAT(1, 1).KIND == 'B');
    CHECK(TMATRIXWORD(1, 1).KIND == 'C');
    CHECK(TMATRIXVECTOR(1, 1).KIND == 'H');
    CHECK(TMATRIXVECTORNAT(1, 1).KIND == 'I');
}

TEST_CASE("a matrix without memory has the size 0 by 0") {
    CAPTURE console;
    TMATRIXREAL matrix(NATMAX / 2, 3);
    CHECK(console.TEXT() == "  Wrong static allocation (Out of memory?)! Create empty field.\n");
    CHECK(matrix.WIDTH == 0);
    CHECK(matrix.HEIGHT == 0);
    matrix.INIT(-1, 4);
    CHECK(matrix.WIDTH == 0);
    CHECK(matrix.LENGTH == 0);
}

TEST_CASE("PUT outside a static matrix is ignored") {
    TMATRIXNAT matrix(2, 2);
    matrix.PUT(3, 1, 5);
    matrix.PUT(1, 3, 5);
    CHECK(matrix.MAX() == 0);
}

TEST_CASE("RESIZE gives new dimensions without moving elements") {
    TMATRIXWORD matrix(2, 2);
    matrix.PUT(1, 2, 7); // list position 3
    matrix.RESIZE(3, 1);
    CHECK(matrix.WIDTH == 3);
    CHECK(matrix.HEIGHT == 1);
    CHECK(matrix.GET(3, 1) == 7);
}

TEST_CASE("the first row of a dynamic matrix grows to the right") {
    TMATRIXNAT matrix;
    matrix.INIT();
    matrix.PUT(3, 1, 5);
    CHECK(matrix.WIDTH == 3);
    CHECK(matrix.HEIGHT == 1);
    matrix.PUT(1, 1, 4);
    CHECK(matrix.WIDTH == 3);
    CHECK(matrix.GET(1, 1) == 4);
    CHECK(matrix.GET(3, 1) == 5);
}

TEST_CASE("a dynamic matrix that widens keeps every element at its place") {
    TMATRIXNAT matrix;
    matrix.INIT();
    for (NAT y = 1; y <= 3; ++y)
        for (NAT x = 1; x <= 2; ++x)
            matrix.PUT(x, y, 10 * y + x);
    matrix.PUT(4, 2, 99);
    CHECK(matrix.WIDTH == 4);
    CHECK(matrix.HEIGHT == 3);
    for (NAT y = 1; y <= 3; ++y)
        for (NAT x = 1; x <= 2; ++x)
            CHECK(matrix.GET(x, y) == 10 * y + x);
    CHECK(matrix.GET(4, 2) == 99);
    CHECK(matrix.GET(3, 1) == 0);
}

TEST_CASE("a dynamic matrix grows downwards and ignores positions below 1") {
    TMATRIXNAT matrix;
    matrix.INIT();
    matrix.PUT(2, 3, 8);
    CHECK(matrix.WIDTH == 2);
    CHECK(matrix.HEIGHT == 3);
    CHECK(matrix.GET(2, 3) == 8);
    matrix.PUT(0, 1, 1);
    matrix.PUT(1, -1, 1);
    CHECK(matrix.SUM() == 8);
}

TEST_CASE("a row is filled up to, a column including, its larger end") {
    TMATRIXBYTE matrix(4, 4);
    matrix.WRITE = 8;
    matrix._HLINE(4, 2, 1);
    CHECK(matrix.GET(1, 1) == 0);
    CHECK(matrix.GET(2, 1) == 8);
    CHECK(matrix.GET(3, 1) == 8);
    CHECK(matrix.GET(4, 1) == 0);
    matrix._VLINE(1, 3, 2);
    CHECK(matrix.GET(1, 2) == 8);
    CHECK(matrix.GET(1, 3) == 8);
    CHECK(matrix.GET(1, 4) == 0);
    matrix._VVLINE(1, 3, 4); // (3*8 + 8)/4 = 8, (0 + 8)/4 = 2
    CHECK(matrix.GET(1, 3) == 8);
    CHECK(matrix.GET(1, 4) == 2);
    matrix.PUT(4, 4);
    CHECK(matrix.GET(4, 4) == 8);
}

TEST_CASE("a moved matrix carries its size") {
    TMATRIXNAT a(2, 1);
    a.PUT(2, 1, 3);
    const TMATRIXNAT b = std::move(a);
    CHECK(b.GET(2, 1) == 3);
    CHECK(a.WIDTH == 0);
    CHECK(a.LENGTH == 0);
}

TEST_CASE("without memory a growing matrix becomes empty and reads DEFAULT") {
    for (const NAT y : {NAT{1}, NAT{2}}) {
        CAPTURE console;
        TMATRIXNAT matrix;
        matrix.INIT();
        matrix.PUT(1, y, 5);
        matrix.DEFAULT = 9;
        matrix.PUT(y == 1 ? NATMAX / 4 : 1, y == 1 ? 1 : NATMAX / 4, 6);
        CHECK(console.TEXT() == "  Not enough Memory! Create empty field.\n");
        CHECK(matrix.WIDTH == 0);
        CHECK(matrix.HEIGHT == 0);
        CHECK(matrix.GET(1, 1) == 9);
    }
}
