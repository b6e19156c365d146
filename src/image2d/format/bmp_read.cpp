#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "image2d/format/byte_order.hpp"
#include "image2d/format/fill_rows.hpp"
#include "image2d/format/formats.hpp"

#include <algorithm>
#include <array>
#include <vector>

namespace morvane {
namespace {
constexpr NAT FILE_HEADER = 14; // bytes, with the magic
constexpr NAT OLD_HEADER = 12, WINDOWS_HEADER = 40, OS2_HEADER = 64;

struct BMP_COLOUR {
    BYTE red = 0, green = 0, blue = 0;
};

struct BMP_HEADER {
    NAT fileSize = 0, pixelOffset = 0; // bytes, as the file says
    NAT size = 0;                      // of the info header
    NAT width = 0, height = 0, bits = 0, compression = 0, colours = 0;
    std::array<BMP_COLOUR, 256> palette{}; // black where the file has no entry

    NAT RowBytes() const { return (width * bits + 31) / 32 * 4; }
    NAT PaletteEnd() const; // the first byte behind the entries
    NAT Entry() const { return size == OLD_HEADER ? 3 : 4; }
};

NAT BMP_HEADER::PaletteEnd() const {
    const NAT most = bits <= 8 ? NAT{1} << bits : 0;
    const NAT told = colours > 0 ? std::min(colours, most) : most;
    const NAT begin = FILE_HEADER + size;
    // A palette may be shorter than its depth allows: the pixels begin behind it.
    return begin + std::clamp((pixelOffset - begin) / Entry(), NAT{0}, told) * Entry();
}

// The two bytes of a bitmap; the other five kinds of the family hold icons, pointers and arrays.
bool ReadMagic(FILE_READ &file) {
    constexpr std::array<std::string_view, 5> FAMILY = {"BA", "CI", "CP", "IC", "PT"};
    char bytes[2] = {};
    const bool read = file.READ(bytes, 2) == 2;
    const std::string_view magic(bytes, 2);
    if (read && magic == "BM") return true;
    if (read && std::find(FAMILY.begin(), FAMILY.end(), magic) != FAMILY.end())
        WRITELN("Unknown header type (" + std::string(magic) + ").");
    else
        WRITELN("  Bad Magic Identifier! Create empty field.");
    return false;
}

bool TellWrongSize(const BMP_HEADER &header) {
    WRITELN("Wrong file size (" + GETUTF8(GETSTRING(header.fileSize)) + ").");
    return false;
}

bool ReadInfo(FILE_READ &file, BMP_HEADER &header) {
    BYTE info[OS2_HEADER] = {};
    if (file.READ(info + 4, header.size - 4) != header.size - 4) return TellWrongSize(header);
    if (header.size == OLD_HEADER) {
        header.width = LE2(info + 4);
        header.height = LE2(info + 6);
        header.bits = LE2(info + 10);
        return true;
    }
    header.width = static_cast<std::int32_t>(LE4(info + 4));
    header.height = static_cast<std::int32_t>(LE4(info + 8));
    header.bits = LE2(info + 14);
    header.compression = LE4(info + 16);
    header.colours = LE4(info + 32);
    return true;
}

bool ReadHeader(FILE_READ &file, BMP_HEADER &header) {
    BYTE bytes[16] = {}; // the rest of the file header, and the size of the info header
    if (!ReadMagic(file)) return false;
    const NAT read = file.READ(bytes, 16);
    header.fileSize = LE4(bytes);
    if (read != 16) return TellWrongSize(header);
    header.pixelOffset = LE4(bytes + 8);
    header.size = LE4(bytes + 12);
    if (header.size == OLD_HEADER || header.size == WINDOWS_HEADER || header.size == OS2_HEADER)
        return ReadInfo(file, header);
    WRITELN("Unknown header size (" + GETUTF8(GETSTRING(header.size)) + ").");
    return false;
}

// What the header says can be read, and fits the file.
bool IsReadable(const FILE_READ &file, const BMP_HEADER &header) {
    if (header.compression != 0) {
        WRITELN("I'm to stupid for compressed images.");
        return false;
    }
    if (header.bits != 1 && header.bits != 4 && header.bits != 8 && header.bits != 24) {
        WRITELN("  Bad BitsPerPixel Identifier (" + GETUTF8(GETSTRING(header.bits)) +
                "). Empty image created!");
        return false;
    }
    if (header.width < 1 || header.height < 1) return TELL_BAD_SIZE(header.width, header.height);
    // The told size must hold the rows and be held by the file, which may go on behind it.
    const NAT rows = BYTES_OF(header.RowBytes(), header.height, 1);
    const bool isBehindHeader = header.pixelOffset >= FILE_HEADER + header.size;
    const bool holdsRows = rows <= header.fileSize - header.pixelOffset;
    if (isBehindHeader && holdsRows && header.fileSize <= file.SIZE()) return true;
    return TellWrongSize(header);
}

bool ReadPalette(FILE_READ &file, BMP_HEADER &header) {
    const NAT begin = FILE_HEADER + header.size, entry = header.Entry();
    const NAT count = (header.PaletteEnd() - begin) / entry;
    for (NAT i = 0; i < count; ++i) {
        BYTE bytes[4] = {};
        if (file.READ(bytes, entry) != entry) return TellWrongSize(header);
        header.palette[static_cast<std::size_t>(i)] = {bytes[2], bytes[1], bytes[0]};
    }
    return file.SEEK(header.pixelOffset) || TellWrongSize(header);
}

// One row as red, green, blue; paletted ones through their palette.
void Decode(const BMP_HEADER &header, const BYTE *row, WORD *samples) {
    const NAT bits = header.bits;
    for (NAT x = 0; x < header.width; ++x, samples += 3) {
        BMP_COLOUR colour;
        if (bits == 24) {
            colour = {row[3 * x + 2], row[3 * x + 1], row[3 * x]};
        } else {
            const NAT at = x * bits; // the first pixel lies in the highest bits
            const int index = row[at / 8] >> (8 - bits - at % 8) & ((1 << bits) - 1);
            colour = header.palette[static_cast<std::size_t>(index)];
        }
        samples[0] = colour.red;
        samples[1] = colour.green;
        samples[2] = colour.blue;
    }
}

const char *Title(NAT bits, bool intoColour) {
    switch (bits) {
    case 1: return intoColour ? "  RGB (Mono) with (" : "  Grey (Mono) with (";
    case 4: return intoColour ? "  RGB (4bit) with (" : "  Grey (4bit) with (";
    case 8: return intoColour ? "  RGB (Grey) with (" : "  Grey with (";
    default: return intoColour ? "  RGB with (" : "  Grey (RGB) with (";
    }
}
} // namespace

template <ANY_OF<TGRAY, TFULLGRAY, TRGB, TRGBA> RASTER>
bool LOADBMP(RASTER &raster, const UTF16 &name) {
    raster.INIT();
    FILE_READ file;
    BMP_HEADER header;
    if (!ASSIGNREAD(file, name) || !ReadHeader(file, header)) return false;
    if (!IsReadable(file, header) || !ReadPalette(file, header)) return false;
    const PICTURE picture{header.width, header.height, 3,
                          false,        true,          Title(header.bits, IS_COLOUR<RASTER>)};
    std::vector<BYTE> row;
    return FILL_ROWS(raster, name, picture, [&](WORD *samples, NAT) {
        row.resize(static_cast<std::size_t>(header.RowBytes()));
        if (file.READ(row.data(), header.RowBytes()) != header.RowBytes())
            return TellWrongSize(header);
        Decode(header, row.data(), samples);
        return true;
    });
}

template bool LOADBMP(TGRAY &, const UTF16 &);
template bool LOADBMP(TFULLGRAY &, const UTF16 &);
template bool LOADBMP(TRGB &, const UTF16 &);
template bool LOADBMP(TRGBA &, const UTF16 &);
} // namespace morvane
