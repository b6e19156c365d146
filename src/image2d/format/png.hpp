#pragma once

#include "foundation/console/files.hpp"

#include <vector>

// PNG without compression: one zlib stream of stored blocks.
namespace morvane {
enum class PNG_MODE : NAT { GRAY = 0, RGB = 2, PALETTE = 3, GRAY_ALPHA = 4, RGB_ALPHA = 6 };

// Whether the format knows the colour mode, and the bit depth in it; when not, that is told.
bool CHECK_PNG(NAT depth, NAT mode);
// Bytes of the zlib stream around raw data: head, blocks with their own heads, checksum.
NAT PNG_STREAM_BYTES(NAT raw);

inline constexpr NAT PNG_BLOCK = 0x2000;     // most raw bytes of a stored block
inline constexpr NAT PNG_PART = 0x100000;    // bytes that are collected before they are written
inline constexpr NAT PNG_CHUNK = 0x7FFFFFFF; // most bytes of a chunk

// The image data of a PNG file under way: raw bytes come in, chunks go out, with the sums running.
// A picture of less than PNG_PART bytes is collected as a whole. May throw for memory.
class PNG_STREAM {
public:
    // `raw` bytes will come in; a stream of more than `mostBytes` goes on in another chunk.
    PNG_STREAM(FILE_WRITE &target, NAT raw, NAT mostBytes = PNG_CHUNK);
    void HEADER(NAT width, NAT height, NAT depth, PNG_MODE mode);
    void RAW(const BYTE *bytes, NAT count);
    void FINISH(); // behind the last raw byte

private:
    void Chunk(std::string_view type, std::string_view data); // a whole one
    void BeginData();
    void Data(const BYTE *bytes, NAT count); // of the zlib stream
    void BeginBlock();
    void Put(const void *bytes, NAT count);
    void Sum();
    void Flush();

    FILE_WRITE &file;
    std::vector<BYTE> part; // not yet written
    std::size_t summed = 0; // of them, in the chunk's sum
    NAT rawLeft, streamLeft, chunkLeft = 0, blockLeft = 0;
    NAT longestChunk;
    std::uint32_t crc = 0, adler = 1;
};
} // namespace morvane
