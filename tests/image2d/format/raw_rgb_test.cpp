#include "image2d/format/formats.hpp"
#include "raster_support.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
const std::string HEAD = "RGB " + BYTES({2, 0, 1, 0}); // 2 x 1

bool Tells(const std::string &file, const std::string &line) {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TRGB raster(1, 1);
    CHECK(!LOADRGB(raster, UTF16(folder.PUT("a.rgb", file))));
    CHECK(raster.EMPTY());
    return console.CONTAINS(line);
}
} // namespace

TEST_CASE("an rgb file is 8 header bytes and red, green, blue and 255 for each pixel") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TRGB raster(2, 1), back;
    SET(raster, {1, 2, 3, 4, 5, 6});
    CHECK(SAVERGB(raster, UTF16(folder.PATH("a.rgb"))));
    CHECK(folder.GET("a.rgb") == HEAD + BYTES({1, 2, 3, 255, 4, 5, 6, 255}));
    CHECK(LOADRGB(back, UTF16(folder.PATH("a.rgb"))));
    CHECK(PIXELS(back) == PIXELS(raster));
    CHECK(console.CONTAINS("  RGB (32bit) with (2x1). "));
}

TEST_CASE("the alpha of an image is written into an rgb file and read from it") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TRGBA raster(2, 1), back;
    SET(raster.rgb, {1, 2, 3, 4, 5, 6});
    SET(raster.alpha, {7, 0});
    CHECK(SAVERGB(raster, UTF16(folder.PATH("a.rgb"))));
    CHECK(folder.GET("a.rgb") == HEAD + BYTES({1, 2, 3, 7, 4, 5, 6, 0}));
    CHECK(LOADRGB(back, UTF16(folder.PATH("a.rgb"))));
    CHECK(PIXELS(back.rgb) == PIXELS(raster.rgb));
    CHECK(PIXELS(back.alpha) == std::vector<int>{7, 0});
    TZRGB deep;
    deep.INIT(2, 1, true);
    CHECK(SAVERGB(deep, UTF16(folder.PATH("b.rgb"))));
    CHECK(folder.GET("b.rgb") == HEAD + BYTES({0, 0, 0, 255, 0, 0, 0, 255}));
}

TEST_CASE("the size of an rgb file tells 2, 3 or 4 bytes a pixel") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TRGBA raster;
    CHECK(LOADRGB(raster, UTF16(folder.PUT("a.rgb", HEAD + BYTES({0x12, 0x3F, 0xFE, 0xD0})))));
    CHECK(PIXELS(raster.rgb) == std::vector<int>{0x10, 0x20, 0x30, 0xF0, 0xE0, 0xD0});
    CHECK(PIXELS(raster.alpha) == std::vector<int>{0xF0, 0});
    CHECK(console.CONTAINS("  RGB (16bit) with (2x1). "));
    CHECK(LOADRGB(raster, UTF16(folder.PUT("a.rgb", HEAD + "abcdef"))));
    CHECK(PIXELS(raster.rgb) == std::vector<int>{'a', 'b', 'c', 'd', 'e', 'f'});
    CHECK(PIXELS(raster.alpha) == std::vector<int>{255, 255});
    CHECK(console.CONTAINS("  RGB (24bit) with (2x1). "));
}

TEST_CASE("a bad rgb file is told and leaves an empty picture") {
    CHECK(Tells("RGB", "  Wrong header. Empty image created!\n"));
    CHECK(Tells("RGBA" + HEAD.substr(4) + "abcdef", "  Wrong header. Empty image created!\n"));
    CHECK(Tells("RGB " + BYTES({0, 0, 1, 0}), "  Wrong header. Empty image created!\n"));
    CHECK(Tells(HEAD, "  Bad file size. Empty image created!\n"));
    CHECK(Tells(HEAD + "abcde", "  Bad file size. Empty image created!\n"));
    CHECK(Tells(HEAD + "abcdefghi", "  Bad file size. Empty image created!\n"));
    CHECK(Tells("RGB " + BYTES({255, 255, 255, 255}) + "abcd", "  Bad file size. "));
}

TEST_CASE("an rgb file that is cut anywhere but at another pixel size leaves an empty picture") {
    const auto load = [](auto &raster, const UTF16 &name) { return LOADRGB(raster, name); };
    CHECK(FAILS_AT_EVERY_CUT<TRGB>(HEAD + "abcd", "a.rgb", load));
    CHECK(FAILS_AT_EVERY_CUT<TRGBA>("RGB " + BYTES({1, 0, 1, 0}) + "ab", "a.rgb", load));
}

TEST_CASE("raw colour skips its header bytes and has the size that is given") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    const UTF16 name(folder.PUT("a.raw", "##abcdef"));
    TRGB raster;
    CHECK(LOADRAW(raster, name, 1, 2, 2));
    CHECK(PIXELS(raster) == std::vector<int>{'a', 'b', 'c', 'd', 'e', 'f'});
    CHECK(raster.HEIGHT() == 2);
    CHECK(LOADRAW(raster, name, 2, 1, 0));
    CHECK(PIXELS(raster) == std::vector<int>{'#', '#', 'a', 'c', 'd', 'e'});
    const auto tells = [&](NAT width, NAT height, NAT header, const char *line) {
        console.CLEAR();
        CHECK(!LOADRAW(raster, name, width, height, header));
        CHECK(raster.EMPTY());
        return console.CONTAINS(line);
    };
    CHECK(tells(2, 1, 1, "  Bad file size. Empty image created!\n"));
    CHECK(tells(0, 1, 2, "  Bad size (0x1). Empty image created!\n"));
    CHECK(tells(1, -1, 2, "  Bad size (1x-1). Empty image created!\n"));
    CHECK(tells(1, 2, -1, "  Wrong header. Empty image created!\n"));
    CHECK(tells(1, 2, 9, "  Wrong header. Empty image created!\n"));
    CHECK(tells(NATMAX, NATMAX, 2, "  Bad file size. Empty image created!\n"));
    CHECK(tells(NAT{1} << 62, 2, 0, "  Bad file size. Empty image created!\n"));
}

TEST_CASE("a picture that is too wide for an rgb file is told and not written") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    CHECK(!SAVERGB(TRGB(65536, 1), UTF16(folder.PATH("a.rgb"))));
    CHECK(!SAVETGA(TRGB(1, 65536), UTF16(folder.PATH("a.tga"))));
    CHECK(console.TEXT() == "  Image (65536x1) is too large for this format - not written!\n"
                            "  Image (1x65536) is too large for this format - not written!\n");
    CHECK(folder.ENTRIES() == 0);
    CHECK(SAVERGB(TRGB(65535, 1), UTF16(folder.PATH("a.rgb"))));
    CHECK(SAVETGA(TRGB(65535, 1), UTF16(folder.PATH("a.tga"))));
}
