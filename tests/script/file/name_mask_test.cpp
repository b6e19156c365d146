#include "script/file/name_mask.hpp"

#include <string>

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a star stands for any run of characters and a question mark for one") {
    CHECK(FITS_MASK("slice_07.pgm", "slice_??.pgm"));
    CHECK_FALSE(FITS_MASK("slice_7.pgm", "slice_??.pgm"));
    CHECK_FALSE(FITS_MASK("slice_107.pgm", "slice_??.pgm"));
    CHECK(FITS_MASK("a.pgm", "*"));
    CHECK(FITS_MASK("a.pgm", "a*.pgm"));
    CHECK(FITS_MASK("a.b.pgm", "*.pgm"));
    CHECK_FALSE(FITS_MASK("a.pgm.bak", "*.pgm"));
    CHECK(FITS_MASK("aXbXc", "a*b*c"));
    CHECK(FITS_MASK("ab", "a**b"));
    CHECK_FALSE(FITS_MASK("", "?"));
}

TEST_CASE("a question mark stands for one letter of any alphabet") {
    CHECK(FITS_MASK("µ.txt", "?.txt"));
    CHECK_FALSE(FITS_MASK("µm.txt", "?.txt"));
}

TEST_CASE("a mask without wildcards fits the very name only, and case counts") {
    CHECK(FITS_MASK("a.pgm", "a.pgm"));
    CHECK_FALSE(FITS_MASK("A.pgm", "a.pgm"));
    CHECK_FALSE(FITS_MASK("A.pgm", "*a.pgm"));
    CHECK(FITS_MASK("a[1].pgm", "a[1]*"));
    CHECK_FALSE(FITS_MASK("a1.pgm", "a[1]*"));
}

TEST_CASE("a name with a point in front needs a mask with one") {
    CHECK_FALSE(FITS_MASK(".hidden", "*"));
    CHECK_FALSE(FITS_MASK(".hidden", "?hidden"));
    CHECK(FITS_MASK(".hidden", ".h*"));
    CHECK_FALSE(FITS_MASK("..", ".*"));
    CHECK_FALSE(FITS_MASK(".", ".*"));
}

TEST_CASE("a mask of many stars against a long name ends at once") {
    const std::string name(250, 'a');
    std::string mask;
    for (int i = 0; i < 100; ++i)
        mask += "*a";
    CHECK_FALSE(FITS_MASK(name, mask + "b"));
    CHECK(FITS_MASK(name, mask));
}

TEST_CASE("wildcards are found in every part of a path") {
    CHECK(HAS_WILDCARD("data/*/a.pgm"));
    CHECK(HAS_WILDCARD("data/a?.pgm"));
    CHECK_FALSE(HAS_WILDCARD("data/a[1].pgm"));
}
