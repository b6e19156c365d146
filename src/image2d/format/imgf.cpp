#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "image2d/format/byte_order.hpp"
#include "image2d/format/fill_rows.hpp"
#include "image2d/format/formats.hpp"

#include <vector>

namespace morvane {
namespace {
constexpr NAT MAGIC_BYTES = 4, HEADER_BYTES = 24;

struct IMGF_HEADER {
    NAT pixels = 0; // the first byte of the pixels
    NAT width = 0, height = 0, depth = 0;

    NAT PixelBytes() const { return depth / 8; }
};

bool ReadMagic(FILE_READ &file) {
    char magic[MAGIC_BYTES] = {};
    const NAT read = file.READ(magic, MAGIC_BYTES);
    const std::string_view text(magic, static_cast<std::size_t>(read));
    return text == "IMGF" || TELL_BAD_MAGIC(UTF16(ASCIICLEAN_HARD(text)));
}

bool TellError(const char *what, NAT value) {
    WRITELN("  Error - " + std::string(what) + " (" + GETUTF8(GETSTRING(value)) + ")!");
    return false;
}

// Big-endian words: the bytes before the pixels, width, height, depth, format word, unused.
bool ReadHeader(FILE_READ &file, IMGF_HEADER &header) {
    BYTE words[HEADER_BYTES] = {};
    if (!ReadMagic(file)) return false;
    if (file.READ(words, HEADER_BYTES) != HEADER_BYTES) return TELL_BAD_FILE_SIZE();
    const NAT format = BE4(words + 16);
    header.pixels = std::max(NAT{BE4(words)}, MAGIC_BYTES + HEADER_BYTES);
    header.width = BE4(words + 4);
    header.height = BE4(words + 8);
    header.depth = BE4(words + 12);
    if (format != 1) return TellError("compressed file", format);
    if (header.depth != 8 && header.depth != 16) return TellError("wrong bit depth", header.depth);
    if (header.width < 1 || header.height < 1) return TELL_BAD_SIZE(header.width, header.height);
    const NAT bytes = BYTES_OF(header.width, header.height, header.PixelBytes());
    return file.SIZE() - header.pixels >= bytes || TELL_BAD_FILE_SIZE();
}
} // namespace

template <ANY_OF<TGRAY, TFULLGRAY> RASTER> bool LOADIMGF(RASTER &raster, const UTF16 &name) {
    raster.INIT();
    FILE_READ file;
    IMGF_HEADER header;
    if (!ASSIGNREAD(file, name) || !ReadHeader(file, header)) return false;
    if (!file.SEEK(header.pixels)) return TELL_BAD_FILE_SIZE();
    const bool deep = header.depth == 16;
    const PICTURE picture{
        header.width, header.height, 1,
        deep,         false,         deep ? "  Grey (Fullgrey) with (" : "  Grey with ("};
    std::vector<BYTE> row;
    return FILL_ROWS(raster, name, picture, [&](WORD *samples, NAT count) {
        const NAT bytes = count * header.PixelBytes();
        row.resize(static_cast<std::size_t>(bytes));
        if (file.READ(row.data(), bytes) != bytes) return TELL_BAD_FILE_SIZE();
        for (NAT i = 0; i < count; ++i)
            samples[i] = deep ? static_cast<WORD>(row[static_cast<std::size_t>(2 * i)] << 8 |
                                                  row[static_cast<std::size_t>(2 * i + 1)])
                              : row[static_cast<std::size_t>(i)];
        return true;
    });
}

template bool LOADIMGF(TGRAY &, const UTF16 &);
template bool LOADIMGF(TFULLGRAY &, const UTF16 &);
} // namespace morvane
