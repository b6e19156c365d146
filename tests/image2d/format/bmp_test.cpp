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

// The parts of a bitmap; the sizes of the file header follow from them.
struct BMP {
    std::string magic = "BM";
    std::int64_t headerSize = 40, width = 2, height = 2, bits = 24, compression = 0, colours = 0;
    std::string palette, pixels;
    std::int64_t sizeError = 0, offsetError = 0; // added to the true values

    std::string Info() const {
        if (headerSize == 12)
            return Word(12, 4) + Word(width, 2) + Word(height, 2) + Word(1, 2) + Word(bits, 2);
        std::string info = Word(headerSize, 4) + Word(width, 4) + Word(height, 4) + Word(1, 2) +
                           Word(bits, 2) + Word(compression, 4) + Word(0, 4) + Word(0, 8) +
                           Word(colours, 4) + Word(0, 4);
        info.resize(static_cast<std::size_t>(headerSize < 40 ? 40 : headerSize));
        return info;
    }
    std::string File() const {
        const std::string body = Info() + palette;
        const auto offset = static_cast<std::int64_t>(14 + body.size());
        const auto size = offset + static_cast<std::int64_t>(pixels.size());
        return magic + Word(size + sizeError, 4) + Word(0, 4) + Word(offset + offsetError, 4) +
               body + pixels;
    }
};

template <class RASTER> std::vector<int> Read(const BMP &file, std::string *console = nullptr) {
    const TEMPORARY_FOLDER folder;
    CAPTURE capture;
    RASTER raster;
    const bool loaded = LOADBMP(raster, UTF16(folder.PUT("a.bmp", file.File())));
    CHECK(loaded == !raster.EMPTY());
    if (console) *console = capture.TEXT();
    if constexpr (requires { raster.rgb; })
        return PIXELS(raster.rgb);
    else
        return PIXELS(raster);
}

template <class RASTER> bool Tells(const BMP &file, const std::string &line) {
    std::string console;
    Read<RASTER>(file, &console);
    return console.find(line) != std::string::npos;
}

// 2x2 of 24 bits: the lower row first, blue, green, red, padded to 8 bytes.
BMP Colour() {
    BMP file;
    file.pixels = BYTES({1, 2, 3, 4, 5, 6, 0, 0, 10, 20, 30, 40, 50, 60, 0, 0});
    return file;
}

// 3x1 of 1, 4 or 8 bits with the colours 0: (1, 2, 3), 1: (90, 60, 30), the entries' order is blue,
// green, red.
BMP Paletted(int bits, const std::vector<int> &row) {
    BMP file;
    file.width = 3;
    file.height = 1;
    file.bits = bits;
    file.colours = 2;
    file.palette = BYTES({3, 2, 1, 0, 30, 60, 90, 0});
    file.pixels = BYTES(row);
    return file;
}
} // namespace

TEST_CASE("a bitmap of 24 bits is read from its last row on") {
    CHECK(Read<TRGB>(Colour()) == std::vector<int>{30, 20, 10, 60, 50, 40, 3, 2, 1, 6, 5, 4});
    CHECK(Read<TRGBA>(Colour()) == std::vector<int>{30, 20, 10, 60, 50, 40, 3, 2, 1, 6, 5, 4});
    CHECK(Read<TGRAY>(Colour()) == std::vector<int>{20, 50, 2, 5});
    CHECK(Read<TFULLGRAY>(Colour()) == std::vector<int>{20, 50, 2, 5});
}

TEST_CASE("a paletted bitmap goes through its palette") {
    const std::vector<int> colours = {1, 2, 3, 90, 60, 30, 1, 2, 3};
    CHECK(Read<TRGB>(Paletted(1, {0x40, 0, 0, 0})) == colours);
    CHECK(Read<TRGB>(Paletted(4, {0x01, 0x00, 0, 0})) == colours);
    CHECK(Read<TRGB>(Paletted(8, {0, 1, 0, 0})) == colours);
    CHECK(Read<TGRAY>(Paletted(1, {0x40, 0, 0, 0})) == std::vector<int>{2, 60, 2});
    CHECK(Read<TGRAY>(Paletted(4, {0x01, 0x00, 0, 0})) == std::vector<int>{2, 60, 2});
    CHECK(Read<TFULLGRAY>(Paletted(8, {0, 1, 0, 0})) == std::vector<int>{2, 60, 2});
}

TEST_CASE("a colour that a palette doesn't have is black") {
    CHECK(Read<TGRAY>(Paletted(8, {0, 2, 255, 0})) == std::vector<int>{2, 0, 0});
    BMP file = Paletted(8, {0, 1, 1, 0});
    file.colours = 0x7FFFFFFF; // more than there are
    CHECK(Read<TGRAY>(file) == std::vector<int>{2, 60, 60});
    file.palette.clear();
    CHECK(Read<TGRAY>(file) == std::vector<int>{0, 0, 0});
}

TEST_CASE("the old header of a bitmap has palette entries of 3 bytes, the OS/2 one of 4") {
    BMP file = Paletted(8, {0, 1, 0, 0});
    file.headerSize = 12;
    file.palette = BYTES({3, 2, 1, 30, 60, 90});
    CHECK(Read<TRGB>(file) == std::vector<int>{1, 2, 3, 90, 60, 30, 1, 2, 3});
    file = Paletted(8, {0, 1, 0, 0});
    file.headerSize = 64;
    CHECK(Read<TRGB>(file) == std::vector<int>{1, 2, 3, 90, 60, 30, 1, 2, 3});
}

TEST_CASE("a reader of bitmaps names the depth") {
    CHECK(Tells<TGRAY>(Paletted(1, {0x40, 0, 0, 0}), "  Grey (Mono) with (3x1). "));
    CHECK(Tells<TGRAY>(Paletted(4, {1, 0, 0, 0}), "  Grey (4bit) with (3x1). "));
    CHECK(Tells<TGRAY>(Paletted(8, {0, 1, 0, 0}), "  Grey with (3x1). "));
    CHECK(Tells<TGRAY>(Colour(), "  Grey (RGB) with (2x2). "));
    CHECK(Tells<TRGB>(Colour(), "  RGB with (2x2). "));
}

TEST_CASE("what is no bitmap is told and leaves an empty picture") {
    BMP file = Colour();
    file.magic = "XY";
    CHECK(Tells<TGRAY>(file, "  Bad Magic Identifier! Create empty field.\n"));
    for (const char *kind : {"BA", "CI", "CP", "IC", "PT"}) {
        file.magic = kind;
        CHECK(Tells<TRGB>(file, std::string("Unknown header type (") + kind + ").\n"));
    }
}

TEST_CASE("a bitmap of an unknown header, depth, compression or size is refused") {
    BMP file = Colour();
    file.headerSize = 108;
    CHECK(Tells<TGRAY>(file, "Unknown header size (108).\n"));
    file = Colour();
    file.compression = 1;
    CHECK(Tells<TGRAY>(file, "I'm to stupid for compressed images.\n"));
    for (const int bits : {0, 2, 16, 32}) {
        file = Colour();
        file.bits = bits;
        CHECK(Tells<TGRAY>(file, "  Bad BitsPerPixel Identifier (" + std::to_string(bits) +
                                     "). Empty image created!\n"));
    }
    file = Colour();
    file.height = -2;
    CHECK(Tells<TGRAY>(file, "  Bad size (2x-2). Empty image created!\n"));
    file.height = 0;
    CHECK(Tells<TRGB>(file, "  Bad size (2x0). Empty image created!\n"));
}

TEST_CASE("a bitmap whose sizes contradict the file is refused") {
    BMP file = Colour();
    file.sizeError = 1; // more than there is
    CHECK(Tells<TGRAY>(file, "Wrong file size (71).\n"));
    file.sizeError = -1; // less than the rows need
    CHECK(Tells<TGRAY>(file, "Wrong file size (69).\n"));
    file = Colour();
    file.offsetError = -1; // into the header
    CHECK(Tells<TGRAY>(file, "Wrong file size (70).\n"));
    for (const int side : {100, 46341, 0x7FFFFFFF}) {
        file = Colour();
        file.width = file.height = side;
        CHECK(Tells<TRGB>(file, "Wrong file size (70).\n"));
    }
    file = Colour();
    file.pixels += "behind"; // the file goes on
    file.sizeError = -6;
    CHECK(Read<TGRAY>(file) == std::vector<int>{20, 50, 2, 5});
}

TEST_CASE("a bitmap that is cut anywhere leaves an empty picture") {
    const auto load = [](auto &raster, const UTF16 &name) { return LOADBMP(raster, name); };
    CHECK(FAILS_AT_EVERY_CUT<TRGB>(Colour().File(), "a.bmp", load));
    CHECK(FAILS_AT_EVERY_CUT<TGRAY>(Paletted(4, {1, 0, 0, 0}).File(), "a.bmp", load));
    BMP file = Paletted(8, {0, 1, 0, 0});
    file.headerSize = 64;
    CHECK(FAILS_AT_EVERY_CUT<TFULLGRAY>(file.File(), "a.bmp", load));
}

TEST_CASE("a written bitmap of width 1 has 3 bytes of a pixel and one of padding in each row") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TRGB raster(1, 2);
    SET(raster, {1, 2, 3, 4, 5, 6});
    CHECK(SAVEBMP(raster, UTF16(folder.PATH("a.bmp"))));
    CHECK(folder.GET("a.bmp") == "BM" + Word(62, 4) + Word(0, 4) + Word(54, 4) + Word(40, 4) +
                                     Word(1, 4) + Word(2, 4) + Word(1, 2) + Word(24, 2) +
                                     Word(0, 4) + Word(8, 4) + Word(0, 8) + Word(0, 8) +
                                     BYTES({6, 5, 4, 0, 3, 2, 1, 0}));
}

TEST_CASE("bitmaps of every width come back as they were written") {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    for (NAT width = 1; width <= 9; ++width) {
        TRGB raster(width, 3), back;
        for (NAT i = 0; i < raster.RED().COUNT() * 3; ++i)
            raster.planes[static_cast<std::size_t>(i % 3)].DATA()[i / 3] =
                static_cast<BYTE>(i * 37 + width);
        CHECK(SAVEBMP(raster, UTF16(folder.PATH("a.dib"))));
        CHECK(LOADBMP(back, UTF16(folder.PATH("a.dib"))));
        CHECK(PIXELS(back) == PIXELS(raster));
    }
}
