#include "image2d/format/formats.hpp"
#include "raster_support.hpp"

#include <zlib.h>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// The pixels of a file's text on a canvas of that kind; `console` takes what is told.
template <class RASTER>
std::vector<int> Read(const std::string &bytes, std::string *console = nullptr,
                      const char *fileName = "a.pnm") {
    const TEMPORARY_FOLDER folder;
    CAPTURE capture;
    RASTER raster;
    const bool loaded = LOADPNM(raster, UTF16(folder.PUT(fileName, bytes)));
    CHECK(loaded == !raster.EMPTY());
    if (console) *console = capture.TEXT();
    if constexpr (requires { raster.rgb; })
        return PIXELS(raster.rgb);
    else
        return PIXELS(raster);
}

template <class RASTER> bool Tells(const std::string &bytes, const std::string &line) {
    std::string console;
    Read<RASTER>(bytes, &console);
    return console.find(line) != std::string::npos;
}

std::string Packed(const std::string &bytes) {
    z_stream stream{};
    std::string out(bytes.size() * 2 + 1000, '\0');
    deflateInit2(&stream, 9, Z_DEFLATED, 15 + 16, 8, Z_DEFAULT_STRATEGY);
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef *>(out.data());
    stream.avail_out = static_cast<uInt>(out.size());
    deflate(&stream, Z_FINISH);
    out.resize(stream.total_out);
    deflateEnd(&stream);
    return out;
}

const std::string P5_16 = "P5 2 1 65535\n" + BYTES({0x12, 0x34, 0xFF, 0xFF});
const std::string P6 = "P6\n2 1\n255\n" + BYTES({10, 20, 31, 255, 255, 255});
} // namespace

TEST_CASE("a comment between the width and the height of a PNM file is skipped") {
    CHECK(Read<TGRAY>("P2\n2 # the width\n1\n255\n7 9\n") == std::vector<int>{7, 9});
    CHECK(Read<TGRAY>("P5\n2\n# a line\n# two lines\n1 255\n" + BYTES({7, 9})) ==
          std::vector<int>{7, 9});
    CHECK(Read<TGRAY>("P5#c\n2#c\n1#c\n255\n" + BYTES({7, 9})) == std::vector<int>{7, 9});
}

TEST_CASE("the first binary byte of a PNM file stands right behind one white space") {
    CHECK(Read<TGRAY>("P5 2 1 255\n" + BYTES({10, 35})) == std::vector<int>{10, 35});
    CHECK(Read<TGRAY>("P5 2 1 255 " + BYTES({32, 10})) == std::vector<int>{32, 10});
}

TEST_CASE("rows of a PNM file run from the top, x fastest") {
    CHECK(Read<TGRAY>("P2 3 2 255  1 2 3  4 5 6") == std::vector<int>{1, 2, 3, 4, 5, 6});
    TGRAY raster;
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    REQUIRE(LOADPNM(raster, UTF16(folder.PUT("a.pgm", "P2 3 2 255  1 2 3  4 5 6"))));
    CHECK(raster.GET(3, 1) == 3);
    CHECK(raster.GET(1, 2) == 4);
}

TEST_CASE("a set bit of a bitmap is black, the first pixel in the highest bit, rows on bytes") {
    const std::vector<int> expected = {0,   255, 0,   255, 255, 255, 255, 0,   0,   255,
                                       255, 255, 255, 255, 255, 255, 255, 255, 255, 0};
    CHECK(Read<TGRAY>("P4 10 2\n" + BYTES({0xA1, 0x80, 0x00, 0x40})) == expected);
    CHECK(Read<TFULLGRAY>("P4 10 2\n" + BYTES({0xA1, 0x80, 0x00, 0x40})) == expected);
    CHECK(Read<TGRAY>("P1 10 2 1 0 1 0 0 0 0 1 1 0 0 0 0 0 0 0 0 0 0 1") == expected);
}

TEST_CASE("the digits of an ascii bitmap need no white space between them") {
    CHECK(Read<TGRAY>("P1 3 2 010\n1 1 # c\n0") == std::vector<int>{255, 0, 255, 0, 0, 255});
}

TEST_CASE("a 16-bit file on an 8-bit canvas loses its low bytes and stays on a 16-bit one") {
    CHECK(Read<TGRAY>(P5_16) == std::vector<int>{0x12, 0xFF});
    CHECK(Read<TFULLGRAY>(P5_16) == std::vector<int>{0x1234, 0xFFFF});
    CHECK(Read<TGRAY>("P2 2 1 1000 255 1000") == std::vector<int>{0, 3});
    CHECK(Read<TFULLGRAY>("P2 2 1 1000 255 1000") == std::vector<int>{255, 1000});
}

TEST_CASE("values stay as they are whatever the maximum says") {
    CHECK(Read<TGRAY>("P2 2 1 15 7 15") == std::vector<int>{7, 15});
    CHECK(Read<TFULLGRAY>("P5 2 1 255\n" + BYTES({7, 255})) == std::vector<int>{7, 255});
    CHECK(Read<TRGB>("P3 1 1 100 1 50 100") == std::vector<int>{1, 50, 100});
}

TEST_CASE("an ascii number beyond the canvas becomes its largest value") {
    CHECK(Read<TGRAY>("P2 2 1 255 300 99999999999999999999") == std::vector<int>{255, 255});
    CHECK(Read<TFULLGRAY>("P2 2 1 255 300 70000") == std::vector<int>{300, 65535});
}

TEST_CASE("grey from a colour file is the sum of the components divided by three") {
    CHECK(Read<TGRAY>(P6) == std::vector<int>{20, 255});
    CHECK(Read<TFULLGRAY>("P3 1 1 65535 1000 2000 3002") == std::vector<int>{2000});
    CHECK(Read<TGRAY>("P3 1 1 65535 1000 2000 3002") == std::vector<int>{7}); // 2000 / 256
}

TEST_CASE("colour from a grey file has the value in all components, and alpha is 255") {
    CHECK(Read<TRGB>("P2 2 1 255 7 9") == std::vector<int>{7, 7, 7, 9, 9, 9});
    CHECK(Read<TRGB>("P4 2 1\n" + BYTES({0x40})) == std::vector<int>{255, 255, 255, 0, 0, 0});
    CHECK(Read<TRGBA>(P6) == std::vector<int>{10, 20, 31, 255, 255, 255});
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TRGBA raster;
    REQUIRE(LOADPNM(raster, UTF16(folder.PUT("a.ppm", P6))));
    CHECK(PIXELS(raster.alpha) == std::vector<int>{255, 255});
}

TEST_CASE("a reader of PNM files names the conversion") {
    CHECK(Tells<TGRAY>("P1 2 1 1 0", "  Grey (Mono) with (2x1). "));
    CHECK(Tells<TGRAY>("P5 1 1 255\nx", "  Grey with (1x1). "));
    CHECK(Tells<TGRAY>(P6, "  Grey (RGB) with (2x1). "));
    CHECK(Tells<TGRAY>(P5_16, "  Grey (Fullgrey) with (2x1). "));
    CHECK(Tells<TFULLGRAY>(P5_16, "  Grey (Fullgrey) with (2x1). "));
    CHECK(Tells<TGRAY>("P3 1 1 256 1 2 3", "  Grey (Fullrgb) with (1x1). "));
    CHECK(Tells<TRGB>("P5 1 1 255\nx", "  RGB (Grey) with (1x1). "));
    CHECK(Tells<TRGBA>(P6, "  RGB with (2x1). "));
    CHECK(Tells<TRGB>(P6, ". 100 % ready ("));
}

TEST_CASE("what is no PNM file is told and leaves an empty picture") {
    CHECK(Tells<TGRAY>("P7 1 1 255\nx", "  Bad Magic Identifier (P7)!\n"));
    CHECK(Tells<TGRAY>("P0 1 1 255\nx", "  Bad Magic Identifier (P0)!\n"));
    CHECK(Tells<TGRAY>("", "  Bad Magic Identifier ()!\n"));
    CHECK(Tells<TRGB>(std::string(100000, 'P'), "  Bad Magic Identifier (PPPPPPPPPPPPPPPP)!\n"));
    CHECK(Tells<TGRAY>("P2 0 3 255 1", "  Bad size (0x3). Empty image created!\n"));
    CHECK(Tells<TGRAY>("P2 3 -1 255 1", "  Bad size (3x-1). Empty image created!\n"));
    CHECK(Tells<TGRAY>("P2 abc 3 255 1", "  Bad size (abcx3). Empty image created!\n"));
    CHECK(Tells<TGRAY>("P2 1 1 255 x", "  Bad number (x). Empty image created!\n"));
    CHECK(Tells<TGRAY>("P2 1 1 255 -5", "  Bad number (-). Empty image created!\n"));
    CHECK(Tells<TGRAY>("P2 2 1 255 5x 1", "  Bad number (x). Empty image created!\n"));
    CHECK(Tells<TGRAY>("P2 2 1 255 5", "  Bad file size. Empty image created!\n"));
}

TEST_CASE("the largest value of a PNM file lies in 1..65535, for colour images in 1..255") {
    CHECK(Tells<TGRAY>("P2 1 1 0 0", "  Bad value Depth (0) max = 65535!\n"));
    CHECK(Tells<TGRAY>("P2 1 1 65536 0", "  Bad value Depth (65536) max = 65535!\n"));
    CHECK(Tells<TFULLGRAY>("P5 1 1 65536\nxx", "  Bad value Depth (65536) max = 65535!\n"));
    CHECK(Tells<TRGB>("P3 1 1 256 1 2 3", "  Bad value Depth (256) max = 255.\n"));
    CHECK(Tells<TRGBA>("P3 1 1 0 1 2 3", "  Bad value Depth (0) max = 255.\n"));
    CHECK(Tells<TRGB>("P5 1 1 65535\nxx", "  Bad value Depth (65535) max = 255.\n"));
    CHECK(Read<TFULLGRAY>("P2 1 1 65535 65535") == std::vector<int>{65535});
}

TEST_CASE("a PNM file that is cut anywhere leaves an empty picture") {
    const auto load = [](auto &raster, const UTF16 &name) { return LOADPNM(raster, name); };
    CHECK(FAILS_AT_EVERY_CUT<TGRAY>("P2 2 2 255 1 2 3 4", "a.pgm", load));
    CHECK(FAILS_AT_EVERY_CUT<TGRAY>("P1 2 2 1001", "a.pbm", load));
    CHECK(FAILS_AT_EVERY_CUT<TRGB>("P3 1 1 9 1 2 3", "a.ppm", load));
    CHECK(FAILS_AT_EVERY_CUT<TGRAY>("P4 9 2\n" + BYTES({1, 2, 3, 4}), "a.pbm", load));
    CHECK(FAILS_AT_EVERY_CUT<TFULLGRAY>(P5_16, "a.pgm", load));
    CHECK(FAILS_AT_EVERY_CUT<TRGBA>(P6, "a.ppm", load));
    CHECK(FAILS_AT_EVERY_CUT<TGRAY>(Packed(P6), "a.ppm.gz", load));
    CHECK(FAILS_AT_EVERY_CUT<TGRAY>(Packed("P2 2 1 255 17 9"), "a.pgm.gz", load));
}

TEST_CASE("a packed PNM file is read through gzip, and its damage is told") {
    std::string console;
    CHECK(Read<TGRAY>(Packed(P6), &console, "a.ppm.gz") == std::vector<int>{20, 255});
    std::string damaged = Packed(P6);
    damaged[damaged.size() - 6] ^= 1; // in the checksum
    CHECK(Read<TGRAY>(damaged, &console, "a.ppm.gz").empty());
    CHECK(console.find("CRC error in data") != std::string::npos);
    CHECK(Read<TGRAY>(Packed("P5 2 2 255\nabc"), &console, "a.pgm.gz").empty());
    CHECK(console.find("  Bad file size. Empty image created!\n") != std::string::npos);
}

TEST_CASE("a header that promises more than the file holds takes no memory for it") {
    const std::vector<std::string> headers = {
        "P5 1000000 1000000 255\nx",         "P4 9000000000 900000000\nx",
        "P2 3000000000 3000000000 255\n1 2", "P6 9223372036854775807 9223372036854775807 255\nx",
        "P1 99999999999999999999 1 1",       "P3 4611686018427387904 1 255 1 2 3"};
    for (const std::string &header : headers) {
        CHECK(Read<TGRAY>(header).empty());
        CHECK(Read<TGRAY>(Packed(header), nullptr, "a.pgm.gz").empty());
    }
}

TEST_CASE("a picture larger than one packed part is read whole") {
    std::string bytes = "P5 2000 1500 255\n";
    for (int i = 0; i < 3000000; ++i)
        bytes += static_cast<char>(i * 7 % 251);
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    TGRAY raster;
    REQUIRE(LOADPNM(raster, UTF16(folder.PUT("a.pgm.gz", Packed(bytes)))));
    CHECK(std::string(reinterpret_cast<const char *>(raster.DATA()), 3000000) ==
          bytes.substr(bytes.size() - 3000000));
}
