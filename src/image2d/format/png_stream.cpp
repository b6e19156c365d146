#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "image2d/format/byte_order.hpp"
#include "image2d/format/checksum_kernel.hpp"
#include "image2d/format/png.hpp"

#include <algorithm>
#include <array>

namespace morvane {
namespace {
constexpr std::string_view SIGNATURE = "\x89PNG\r\n\x1A\n";
constexpr std::string_view STREAM_HEAD = "\x78\x01"; // deflate, 32 kB window, fastest
constexpr NAT STREAM_TAIL = 4;                       // the Adler sum
constexpr NAT BLOCK_HEAD = 5;

struct MODE_ROW {
    PNG_MODE mode;
    std::array<NAT, 5> depths; // 0 ends them
    const char *word;
};
constexpr std::array MODES = {
    MODE_ROW{PNG_MODE::GRAY, {1, 2, 4, 8, 16}, "gray"},
    MODE_ROW{PNG_MODE::RGB, {8, 16}, "rgb"},
    MODE_ROW{PNG_MODE::PALETTE, {1, 2, 4, 8}, "palette"},
    MODE_ROW{PNG_MODE::GRAY_ALPHA, {8, 16}, "gray+alpha"},
    MODE_ROW{PNG_MODE::RGB_ALPHA, {8, 16}, "rgb+alpha"},
};

const BYTE *Bytes(std::string_view text) { return reinterpret_cast<const BYTE *>(text.data()); }
NAT Length(std::string_view text) { return static_cast<NAT>(text.size()); }
} // namespace

bool CHECK_PNG(NAT depth, NAT mode) {
    for (const MODE_ROW &row : MODES) {
        if (static_cast<NAT>(row.mode) != mode) continue;
        const bool known =
            depth > 0 && std::find(row.depths.begin(), row.depths.end(), depth) != row.depths.end();
        if (!known)
            WRITELN("Wrong png bit depth (" + GETUTF8(GETSTRING(depth)) + ") in mode " + row.word +
                    "!");
        return known;
    }
    WRITELN("Wrong png mode (" + GETUTF8(GETSTRING(mode)) + ")!");
    return false;
}

NAT PNG_STREAM_BYTES(NAT raw) {
    const NAT blocks = (raw + PNG_BLOCK - 1) / PNG_BLOCK;
    return Length(STREAM_HEAD) + blocks * BLOCK_HEAD + raw + STREAM_TAIL;
}

PNG_STREAM::PNG_STREAM(FILE_WRITE &target, NAT raw, NAT mostBytes)
    : file(target), rawLeft(raw), streamLeft(PNG_STREAM_BYTES(raw)), longestChunk(mostBytes) {
    part.reserve(static_cast<std::size_t>(PNG_PART + 2 * PNG_BLOCK));
}

void PNG_STREAM::HEADER(NAT width, NAT height, NAT depth, PNG_MODE mode) {
    std::string data;
    PUT_BE4(data, width);
    PUT_BE4(data, height);
    PUT_LE(data, depth, 1);
    PUT_LE(data, static_cast<NAT>(mode), 1);
    PUT_LE(data, 0, 3); // deflate, the one filter family, not interlaced
    Put(SIGNATURE.data(), Length(SIGNATURE));
    Chunk("IHDR", data);
    Data(Bytes(STREAM_HEAD), Length(STREAM_HEAD));
}

void PNG_STREAM::RAW(const BYTE *bytes, NAT count) {
    adler = CHECKSUMS().adler32(adler, bytes, count);
    while (count > 0) {
        if (blockLeft == 0) BeginBlock();
        const NAT now = std::min(count, blockLeft);
        Data(bytes, now);
        bytes += now;
        count -= now;
        blockLeft -= now;
    }
}

void PNG_STREAM::FINISH() {
    std::string tail;
    PUT_BE4(tail, adler);
    Data(Bytes(tail), STREAM_TAIL);
    Chunk("IEND", {});
    Flush();
}

void PNG_STREAM::Chunk(std::string_view type, std::string_view data) {
    const std::string body = std::string(type) + std::string(data);
    std::string bytes;
    PUT_BE4(bytes, Length(data));
    bytes += body;
    PUT_BE4(bytes, CRC32(body));
    Put(bytes.data(), Length(bytes));
}

// A data chunk; its length is known before its first byte.
void PNG_STREAM::BeginData() {
    chunkLeft = std::min(streamLeft, longestChunk);
    streamLeft -= chunkLeft;
    std::string bytes;
    PUT_BE4(bytes, chunkLeft);
    bytes += "IDAT";
    Put(bytes.data(), Length(bytes));
    crc = CRC32("IDAT");
    summed = part.size();
}

void PNG_STREAM::Data(const BYTE *bytes, NAT count) {
    while (count > 0) {
        if (chunkLeft == 0) BeginData();
        const NAT now = std::min(count, chunkLeft);
        Put(bytes, now);
        bytes += now;
        count -= now;
        chunkLeft -= now;
        if (chunkLeft > 0) continue;
        Sum();
        std::string sum;
        PUT_BE4(sum, crc);
        Put(sum.data(), Length(sum));
    }
}

// A stored block: whether it is the last one, its length, and that with all bits turned.
void PNG_STREAM::BeginBlock() {
    blockLeft = std::min(rawLeft, PNG_BLOCK);
    rawLeft -= blockLeft;
    std::string head;
    PUT_LE(head, rawLeft == 0 ? 1 : 0, 1);
    PUT_LE(head, blockLeft, 2);
    PUT_LE(head, ~blockLeft, 2);
    Data(Bytes(head), BLOCK_HEAD);
}

void PNG_STREAM::Put(const void *bytes, NAT count) {
    const BYTE *from = static_cast<const BYTE *>(bytes);
    part.insert(part.end(), from, from + count);
    if (static_cast<NAT>(part.size()) >= PNG_PART) Flush();
}

// Takes the chunk's bytes that are not yet written into its sum, many at once.
void PNG_STREAM::Sum() {
    crc = CHECKSUMS().crc32(crc, part.data() + summed, static_cast<NAT>(part.size() - summed));
    summed = part.size();
}

// A failed write stays with the file, which tells it.
void PNG_STREAM::Flush() {
    Sum();
    file.WRITE(part.data(), static_cast<NAT>(part.size()));
    part.clear();
    summed = 0;
}
} // namespace morvane
