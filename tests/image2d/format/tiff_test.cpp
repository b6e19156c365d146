#include "image2d/format/formats.hpp"
#include "raster_support.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::string Word(std::int64_t value, int bytes) {
    std::string text;
    for (int i = 0; i < bytes; ++i)
        text += static_cast<char>(value >> 8 * i & 0xFF);
    return text;
}

std::string Tag(int tag, int type, int value) {
    return Word(tag, 2) + Word(type, 2) + Word(1, 4) + Word(value, 4);
}

std::string Directory(int width, int height, int bits, int channels) {
    return Word(13, 2) + Tag(0x100, 4, width) + Tag(0x101, 4, height) + Tag(0x102, 3, bits) +
           Tag(0x103, 3, 1) + Tag(0x106, 3, channels == 1 ? 1 : 2) + Tag(0x111, 4, 8) +
           Tag(0x112, 3, 1) + Tag(0x115, 3, channels) + Tag(0x116, 4, height) +
           Tag(0x117, 4, width * height * channels * bits / 8) + Tag(0x118, 3, 0) +
           Tag(0x119, 3, bits == 8 ? 255 : 65535) + Tag(0x11C, 3, 1) + Word(0, 4);
}
} // namespace

TEST_CASE("a TIFF file is a header, the pixels, and the directory at an even position") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TGRAY raster(3, 1);
    SET(raster, {1, 2, 255});
    CHECK(SAVETIF(raster, UTF16(folder.PATH("a.tif"))));
    CHECK(folder.GET("a.tif") ==
          "II" + Word(42, 2) + Word(12, 4) + BYTES({1, 2, 255, 0}) + Directory(3, 1, 8, 1));
}

TEST_CASE("a TIFF file of 16 bits has the low byte first, one of colour three samples a pixel") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TFULLGRAY deep(1, 2);
    SET(deep, {0x1234, 0xFF00});
    CHECK(SAVETIF(deep, UTF16(folder.PATH("a.tiff"))));
    CHECK(folder.GET("a.tiff") == "II" + Word(42, 2) + Word(12, 4) +
                                      BYTES({0x34, 0x12, 0x00, 0xFF}) + Directory(1, 2, 16, 1));
    TRGB colour(2, 1);
    SET(colour, {1, 2, 3, 4, 5, 6});
    CHECK(SAVETIF(colour, UTF16(folder.PATH("b.tif"))));
    CHECK(folder.GET("b.tif") ==
          "II" + Word(42, 2) + Word(14, 4) + BYTES({1, 2, 3, 4, 5, 6}) + Directory(2, 1, 8, 3));
}
