#include "image2d/format/formats.hpp"
#include "raster_support.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::string Word(std::uint32_t value) {
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        text += static_cast<char>(value >> shift & 0xFF);
    return text;
}

// Header length, width, height, depth, format word, unused.
std::string File(std::uint32_t length, std::uint32_t width, std::uint32_t height,
                 std::uint32_t depth, std::uint32_t format, const std::string &pixels) {
    return "IMGF" + Word(length) + Word(width) + Word(height) + Word(depth) + Word(format) +
           Word(0) + pixels;
}

template <class RASTER> std::vector<int> Read(const std::string &file, std::string &console) {
    const TEMPORARY_FOLDER folder;
    CAPTURE capture;
    RASTER raster;
    const bool loaded = LOADIMGF(raster, UTF16(folder.PUT("a.imgf", file)));
    CHECK(loaded == !raster.EMPTY());
    console = capture.TEXT();
    return PIXELS(raster);
}

bool Tells(const std::string &file, const std::string &line) {
    std::string console;
    CHECK(Read<TGRAY>(file, console).empty());
    return console.find(line) != std::string::npos;
}
const std::string DEEP = File(28, 2, 1, 16, 1, BYTES({0x12, 0x34, 0xFF, 0x80}));
} // namespace

TEST_CASE("an IMGF file of 16 bits drops its low bytes on an 8-bit canvas") {
    std::string console;
    CHECK(Read<TGRAY>(DEEP, console) == std::vector<int>{0x12, 0xFF});
    CHECK(console.find("  Grey (Fullgrey) with (2x1). ") != std::string::npos);
    CHECK(Read<TFULLGRAY>(DEEP, console) == std::vector<int>{0x1234, 0xFF80});
}

TEST_CASE("an IMGF file of 8 bits keeps its values") {
    std::string console;
    const std::string file = File(28, 2, 2, 8, 1, BYTES({1, 2, 3, 255}));
    CHECK(Read<TGRAY>(file, console) == std::vector<int>{1, 2, 3, 255});
    CHECK(console.find("  Grey with (2x2). ") != std::string::npos);
    CHECK(Read<TFULLGRAY>(file, console) == std::vector<int>{1, 2, 3, 255});
}

TEST_CASE("the pixels of an IMGF file begin behind the length that its header tells") {
    std::string console;
    CHECK(Read<TGRAY>(File(30, 1, 1, 8, 1, "abX"), console) == std::vector<int>{'X'});
    CHECK(Read<TGRAY>(File(0, 1, 1, 8, 1, "abX"), console) == std::vector<int>{'a'});
}

TEST_CASE("a bad IMGF header is told and leaves an empty picture") {
    CHECK(Tells("IMGX" + DEEP.substr(4), "  Bad Magic Identifier (IMGX)!\n"));
    CHECK(Tells(File(28, 2, 1, 16, 2, "abcd"), "  Error - compressed file (2)!\n"));
    CHECK(Tells(File(28, 2, 1, 12, 1, "abcd"), "  Error - wrong bit depth (12)!\n"));
    CHECK(Tells(File(28, 0, 1, 8, 1, "abcd"), "  Bad size (0x1). Empty image created!\n"));
    for (const std::uint32_t side : {3U, 65536U, 0xFFFFFFFFU})
        CHECK(
            Tells(File(28, side, side, 16, 1, "abcd"), "  Bad file size. Empty image created!\n"));
    CHECK(Tells(File(0xFFFFFFFF, 1, 1, 8, 1, "abcd"), "  Bad file size. Empty image created!\n"));
}

TEST_CASE("an IMGF file that is cut anywhere leaves an empty picture") {
    const auto load = [](auto &raster, const UTF16 &name) { return LOADIMGF(raster, name); };
    CHECK(FAILS_AT_EVERY_CUT<TGRAY>(DEEP, "a.imgf", load));
    CHECK(FAILS_AT_EVERY_CUT<TFULLGRAY>(DEEP, "a.t1", load));
}
