#include "image2d/format/formats.hpp"
#include "image2d/format/png.hpp"
#include "raster_support.hpp"

#include <zlib.h>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
std::uint32_t Number(const std::string &bytes, std::size_t at) {
    std::uint32_t value = 0;
    for (std::size_t i = 0; i < 4; ++i)
        value = value << 8 | static_cast<BYTE>(bytes[at + i]);
    return value;
}

struct CHUNK {
    std::string type, data;
};

// The chunks of a file; none when its signature, a length or a sum is wrong.
std::vector<CHUNK> Chunks(const std::string &file) {
    std::vector<CHUNK> chunks;
    if (!file.starts_with("\x89PNG\r\n\x1A\n")) return {};
    for (std::size_t at = 8; at < file.size();) {
        const std::size_t length = Number(file, at);
        if (at + 12 + length > file.size()) return {};
        const std::string body = file.substr(at + 4, 4 + length);
        const auto sum = ::crc32(0, reinterpret_cast<const Bytef *>(body.data()),
                                 static_cast<uInt>(body.size()));
        if (Number(file, at + 8 + length) != sum) return {};
        chunks.push_back({body.substr(0, 4), body.substr(4)});
        at += 12 + length;
    }
    return chunks;
}

// All image data of a file, one chunk after another.
std::string Stream(const std::vector<CHUNK> &chunks) {
    std::string stream;
    for (const CHUNK &chunk : chunks)
        if (chunk.type == "IDAT") stream += chunk.data;
    return stream;
}

std::string Unpacked(const std::string &stream, std::size_t most) {
    std::string raw(most, '\0');
    uLongf length = most;
    const int code = ::uncompress(reinterpret_cast<Bytef *>(raw.data()), &length,
                                  reinterpret_cast<const Bytef *>(stream.data()), stream.size());
    return code == Z_OK ? raw.substr(0, length) : "failed";
}

// Stored blocks of a zlib stream; -1 when a head is wrong.
int Blocks(const std::string &stream) {
    int count = 0;
    for (std::size_t at = 2; at + 4 < stream.size(); ++count) {
        const auto length = static_cast<std::size_t>(static_cast<BYTE>(stream[at + 1]) |
                                                     static_cast<BYTE>(stream[at + 2]) << 8);
        const bool isLast = at + 5 + length + 4 == stream.size();
        if (length > 0x2000 || stream[at] != (isLast ? 1 : 0)) return -1;
        at += 5 + length;
    }
    return count;
}

template <class RASTER> std::vector<CHUNK> Saved(const RASTER &raster) {
    const TEMPORARY_FOLDER folder;
    CAPTURE console;
    CHECK(SAVEPNG(raster, UTF16(folder.PATH("a.png"))));
    return Chunks(folder.GET("a.png"));
}
} // namespace

TEST_CASE("a PNG file is a signature and three chunks: header, data, end") {
    TGRAY raster(2, 1);
    SET(raster, {7, 9});
    const std::vector<CHUNK> chunks = Saved(raster);
    REQUIRE(chunks.size() == 3);
    CHECK(chunks[0].type == "IHDR");
    CHECK(chunks[0].data == BYTES({0, 0, 0, 2, 0, 0, 0, 1, 8, 0, 0, 0, 0}));
    CHECK(chunks[1].type == "IDAT");
    // One stored block of 3 bytes: a filter byte and two pixels; the Adler sum of 0, 7, 9 is
    // 1+0+7+9 = 17 and 1+8+17 = 26.
    CHECK(chunks[1].data == BYTES({0x78, 1, 1, 3, 0, 0xFC, 0xFF, 0, 7, 9, 0, 26, 0, 17}));
    CHECK(chunks[2].type == "IEND");
    CHECK(chunks[2].data.empty());
}

TEST_CASE("each kind of image has its own colour type and depth in a PNG file") {
    TFULLGRAY deep(2, 1);
    SET(deep, {0x1234, 0xFF00});
    std::vector<CHUNK> chunks = Saved(deep);
    CHECK(chunks[0].data.substr(8, 2) == BYTES({16, 0}));
    CHECK(Unpacked(Stream(chunks), 100) == BYTES({0, 0x12, 0x34, 0xFF, 0}));
    TRGB colour(1, 2);
    SET(colour, {1, 2, 3, 4, 5, 6});
    chunks = Saved(colour);
    CHECK(chunks[0].data.substr(8, 2) == BYTES({8, 2}));
    CHECK(Unpacked(Stream(chunks), 100) == BYTES({0, 1, 2, 3, 0, 4, 5, 6}));
    TRGBA transparent(1, 1);
    transparent.FILL({1, 2, 3, 40});
    chunks = Saved(transparent);
    CHECK(chunks[0].data.substr(8, 2) == BYTES({8, 6}));
    CHECK(Unpacked(Stream(chunks), 100) == BYTES({0, 1, 2, 3, 40}));
    TZRGB depth;
    depth.INIT(1, 1, true);
    chunks = Saved(depth);
    CHECK(chunks[0].data.substr(8, 2) == BYTES({8, 6}));
    CHECK(Unpacked(Stream(chunks), 100) == BYTES({0, 0, 0, 0, 255}));
}

TEST_CASE("a PNG file of 0x2000 raw bytes has one block, one byte more gives two") {
    for (const NAT raw : {0x1FFF, 0x2000}) { // a row of raw - 1 pixels and its filter byte
        const TGRAY raster(raw - 1, 1);
        CHECK(Blocks(Stream(Saved(raster))) == 1);
    }
    CHECK(Blocks(Stream(Saved(TGRAY(0x2000, 1)))) == 2);
    CHECK(Blocks(Stream(Saved(TGRAY(0x2000 - 1, 2)))) == 2);
    CHECK(PNG_STREAM_BYTES(0x2000) == 2 + 5 + 0x2000 + 4);
    CHECK(PNG_STREAM_BYTES(0x2001) == 2 + 10 + 0x2001 + 4);
}

TEST_CASE("a large PNG file is written row by row and is the same as a small one would be") {
    // Raw bytes around 0x100000, where the way of writing changes.
    for (const NAT height : {1023, 1024, 1025, 2500}) {
        TGRAY raster(1023, height);
        for (NAT i = 0; i < raster.COUNT(); ++i)
            raster.DATA()[i] = static_cast<BYTE>(i * 31 % 253);
        std::string expected;
        for (NAT y = 1; y <= height; ++y)
            expected += '\0' + std::string(reinterpret_cast<const char *>(raster.ROW(y)), 1023);
        const std::string stream = Stream(Saved(raster));
        CHECK(Blocks(stream) == (height * 1024 + 0x1FFF) / 0x2000);
        CHECK(static_cast<NAT>(stream.size()) == PNG_STREAM_BYTES(height * 1024));
        CHECK(Unpacked(stream, expected.size() + 1) == expected);
    }
}

TEST_CASE("a stream beyond the longest chunk goes on in another one") {
    const std::string raw = BYTES({0, 1, 2, 3, 0, 4, 5, 6});
    for (NAT longest = 1; longest <= 20; ++longest) {
        const TEMPORARY_FOLDER folder;
        CAPTURE console;
        FILE_WRITE file;
        REQUIRE(ASSIGNWRITE(file, UTF16(folder.PATH("a.png"))));
        PNG_STREAM stream(file, 8, longest);
        stream.HEADER(3, 2, 8, PNG_MODE::GRAY);
        stream.RAW(reinterpret_cast<const BYTE *>(raw.data()), 3);
        stream.RAW(reinterpret_cast<const BYTE *>(raw.data()) + 3, 5);
        stream.FINISH();
        REQUIRE(file.COMMIT());
        const std::vector<CHUNK> chunks = Chunks(folder.GET("a.png"));
        CHECK(static_cast<NAT>(chunks.size()) == 2 + (19 + longest - 1) / longest);
        CHECK(Unpacked(Stream(chunks), 100) == raw);
    }
}

TEST_CASE("a bit depth or a colour mode that PNG doesn't know is told") {
    struct ROW {
        NAT mode;
        std::vector<NAT> depths;
        const char *word;
    };
    const std::vector<ROW> rows = {{0, {1, 2, 4, 8, 16}, "gray"},
                                   {2, {8, 16}, "rgb"},
                                   {3, {1, 2, 4, 8}, "palette"},
                                   {4, {8, 16}, "gray+alpha"},
                                   {6, {8, 16}, "rgb+alpha"}};
    for (const ROW &row : rows)
        for (NAT depth = -1; depth <= 33; ++depth) {
            CAPTURE console;
            const bool known =
                std::find(row.depths.begin(), row.depths.end(), depth) != row.depths.end();
            CHECK(CHECK_PNG(depth, row.mode) == known);
            CHECK(console.TEXT() == (known ? std::string()
                                           : "Wrong png bit depth (" + std::to_string(depth) +
                                                 ") in mode " + row.word + "!\n"));
        }
    for (const NAT mode : {-1, 1, 5, 7}) {
        CAPTURE console;
        CHECK(!CHECK_PNG(8, mode));
        CHECK(console.TEXT() == "Wrong png mode (" + std::to_string(mode) + ")!\n");
    }
}
