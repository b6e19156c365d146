#include "image2d/format/row_fill.hpp"
#include "raster_support.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// What fill(target) leaves in a buffer of that many bytes of 99.
template <class FILL> std::vector<int> Filled(std::size_t length, FILL fill) {
    std::vector<BYTE> bytes(length, 99);
    fill(bytes.data());
    return {bytes.begin(), bytes.end()};
}
} // namespace

TEST_CASE("rows with a leading 0 follow one another, or stand a stride apart") {
    TGRAY gray(2, 2);
    SET(gray, {1, 2, 3, 4});
    CHECK(Filled(6, [&](BYTE *out) { FILL_0GRAY(gray, out); }) ==
          std::vector<int>{0, 1, 2, 0, 3, 4});
    CHECK(Filled(9, [&](BYTE *out) { FILL_0GRAY(gray, out, 5); }) ==
          std::vector<int>{0, 1, 2, 99, 99, 0, 3, 4, 99});
    TFULLGRAY deep(1, 2);
    SET(deep, {0x1234, 0xFF});
    CHECK(Filled(6, [&](BYTE *out) { FILL_0FULLGRAY_NTOBE(deep, out); }) ==
          std::vector<int>{0, 0x12, 0x34, 0, 0, 0xFF});
    CHECK(Filled(8, [&](BYTE *out) { FILL_0FULLGRAY_NTOBE(deep, out, 4); }) ==
          std::vector<int>{0, 0x12, 0x34, 99, 0, 0, 0xFF, 99});
}

TEST_CASE("colour rows with a leading 0 interleave their components") {
    TRGBA raster(1, 2);
    raster.FILL({1, 2, 3, 4});
    CHECK(Filled(8, [&](BYTE *out) { FILL_0RGB(raster.rgb, out); }) ==
          std::vector<int>{0, 1, 2, 3, 0, 1, 2, 3});
    CHECK(Filled(10, [&](BYTE *out) { FILL_0RGBA(raster, out); }) ==
          std::vector<int>{0, 1, 2, 3, 4, 0, 1, 2, 3, 4});
    CHECK(Filled(11, [&](BYTE *out) { FILL_0RGBA(raster, out, 6); }) ==
          std::vector<int>{0, 1, 2, 3, 4, 99, 0, 1, 2, 3, 4});
    TZRGB depth;
    depth.INIT(1, 1, true);
    CHECK(Filled(5, [&](BYTE *out) { FILL_0ZRGB(depth, out); }) ==
          std::vector<int>{0, 0, 0, 0, 255});
}

TEST_CASE("colour becomes bits, its mean, or interleaved bytes in a flat buffer") {
    TRGB raster(1, 2);
    SET(raster, {255, 255, 255, 30, 20, 11});
    CHECK(Filled(2, [&](BYTE *out) { FILL_MONO(raster, out); }) == std::vector<int>{0, 0x80});
    CHECK(Filled(2, [&](BYTE *out) { FILL_GRAY(raster, out); }) == std::vector<int>{255, 20});
    CHECK(Filled(3, [&](BYTE *out) { FILL_GRAY(raster, out, 2); }) ==
          std::vector<int>{255, 99, 20});
    CHECK(Filled(6, [&](BYTE *out) { FILL_RGB(raster, out); }) ==
          std::vector<int>{255, 255, 255, 30, 20, 11});
}

TEST_CASE("a row of samples becomes pixels of every kind") {
    const std::vector<WORD> samples = {10, 20, 33, 40, 300, 300, 300, 70};
    TGRAY gray(2, 1);
    STORE_ROW(gray, 1, {samples.data(), 4, false});
    CHECK(PIXELS(gray) == std::vector<int>{21, 255});
    TFULLGRAY full(2, 1);
    STORE_ROW(full, 1, {samples.data(), 1, true});
    CHECK(PIXELS(full) == std::vector<int>{10, 20});
    TRGBA colour(2, 1);
    STORE_ROW(colour, 1, {samples.data(), 4, false});
    CHECK(PIXELS(colour.rgb) == std::vector<int>{10, 20, 33, 255, 255, 255});
    CHECK(PIXELS(colour.alpha) == std::vector<int>{40, 70});
    const std::vector<WORD> deep = {0x1234, 0xFFFF};
    STORE_ROW(gray, 1, {deep.data(), 1, true});
    CHECK(PIXELS(gray) == std::vector<int>{0x12, 0xFF});
}
