#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "image2d/format/fill_rows.hpp"
#include "image2d/format/formats.hpp"
#include "image2d/format/pnm_source.hpp"

namespace morvane {
namespace {
constexpr NAT LARGEST_VALUE = 65535, LARGEST_BYTE = 255;
constexpr WORD WHITE = 255;

struct PNM_HEADER {
    bool ascii = false, bits = false, colour = false;
    NAT width = 0, height = 0, maximum = 1;

    NAT Channels() const { return colour ? 3 : 1; }
    bool Deep() const { return maximum > LARGEST_BYTE; }
    NAT RowBytes() const { // of a binary file
        return bits ? (width + 7) / 8 : width * Channels() * (Deep() ? 2 : 1);
    }
    NAT FewestBytes() const; // that the pixels need; NATMAX when the size is out of range
};

NAT PNM_HEADER::FewestBytes() const {
    // Room for the row of words and for a canvas is in range whenever this is.
    const NAT pixels = BYTES_OF(width, height, Channels() * 2);
    if (pixels == NATMAX) return NATMAX;
    if (!ascii) return RowBytes() * height;
    return bits ? pixels / 2 : pixels - 1; // a digit, and a blank between two numbers
}

// The value of a word of digits; -1 for any other word.
NAT Number(const UTF16 &word) {
    NAT value = 0, code = 0;
    VAL(word, value, code);
    return code == 0 ? value : -1;
}

bool ReadMagic(PNM_SOURCE &source, PNM_HEADER &header) {
    const UTF16 magic = source.NEXT_WORD();
    if (magic.LENGTH() != 2 || !magic.IS(1, 'P') || !magic.PLAIN()) return TELL_BAD_MAGIC(magic);
    const int digit = magic.GETCHAR(2).low - '0';
    if (digit < 1 || digit > 6) return TELL_BAD_MAGIC(magic);
    header.ascii = digit <= 3;
    header.bits = digit % 3 == 1;
    header.colour = digit % 3 == 0;
    return true;
}

// `limit` is the largest value that the canvas takes, `sign` ends the line of a refusal.
bool ReadHeader(PNM_SOURCE &source, PNM_HEADER &header, NAT limit, const char *sign) {
    if (!ReadMagic(source, header)) return false;
    const UTF16 width = source.NEXT_WORD(), height = source.NEXT_WORD();
    header.width = Number(width);
    header.height = Number(height);
    if (header.FewestBytes() == NATMAX) return TELL_BAD_SIZE(width, height);
    if (header.bits) return true;
    const UTF16 maximum = source.NEXT_WORD();
    header.maximum = Number(maximum);
    if (header.maximum >= 1 && header.maximum <= limit) return true;
    WRITELN("  Bad value Depth (" + GETUTF8(COPY(maximum, 1, 16)) +
            ") max = " + GETUTF8(GETSTRING(limit)) + sign);
    return false;
}

const char *Title(const PNM_HEADER &header, bool intoColour) {
    if (intoColour) return header.colour ? "  RGB with (" : "  RGB (Grey) with (";
    if (header.bits) return "  Grey (Mono) with (";
    if (header.colour) return header.Deep() ? "  Grey (Fullrgb) with (" : "  Grey (RGB) with (";
    return header.Deep() ? "  Grey (Fullgrey) with (" : "  Grey with (";
}

// The row of a binary file as samples.
void Decode(const PNM_HEADER &header, const BYTE *row, WORD *samples, NAT count) {
    if (header.bits) {
        for (NAT i = 0; i < count; ++i)
            samples[i] = row[i / 8] >> (7 - i % 8) & 1 ? WORD{0} : WHITE;
    } else if (header.Deep()) {
        for (NAT i = 0; i < count; ++i)
            samples[i] = static_cast<WORD>(row[2 * i] << 8 | row[2 * i + 1]);
    } else {
        for (NAT i = 0; i < count; ++i)
            samples[i] = row[i];
    }
}

NEXT_ROW BinaryRows(PNM_SOURCE &source, const PNM_HEADER &header, std::vector<BYTE> &row) {
    return [&](WORD *samples, NAT count) {
        const NAT bytes = header.RowBytes();
        row.resize(static_cast<std::size_t>(bytes)); // less than the row of samples takes
        if (source.READ(row.data(), bytes) != bytes) return TELL_BAD_FILE_SIZE();
        Decode(header, row.data(), samples, count);
        return true;
    };
}

NEXT_ROW AsciiRows(PNM_NUMBERS &numbers, const PNM_HEADER &header) {
    return [&](WORD *samples, NAT count) {
        for (NAT i = 0; i < count; ++i) {
            if (!numbers.NEXT(samples[i], header.bits)) return false;
            if (header.bits) samples[i] = samples[i] == 0 ? WHITE : WORD{0};
        }
        return true;
    };
}
} // namespace

template <ANY_OF<TGRAY, TFULLGRAY, TRGB, TRGBA> RASTER>
bool LOADPNM(RASTER &raster, const UTF16 &name) {
    constexpr bool COLOUR = IS_COLOUR<RASTER>;
    raster.INIT();
    PNM_SOURCE source;
    PNM_HEADER header;
    if (!source.OPEN(name)) return false;
    if (!ReadHeader(source, header, COLOUR ? LARGEST_BYTE : LARGEST_VALUE, COLOUR ? "." : "!"))
        return false;
    if (!source.ENSURE(header.FewestBytes())) return false;
    PNM_NUMBERS numbers(source);
    std::vector<BYTE> row;
    const PICTURE picture{header.width,  header.height, header.Channels(),
                          header.Deep(), false,         Title(header, COLOUR)};
    const bool read =
        FILL_ROWS(raster, name, picture,
                  header.ascii ? AsciiRows(numbers, header) : BinaryRows(source, header, row));
    if (read && source.INTACT()) return true;
    raster.INIT();
    return false;
}

template bool LOADPNM(TGRAY &, const UTF16 &);
template bool LOADPNM(TFULLGRAY &, const UTF16 &);
template bool LOADPNM(TRGB &, const UTF16 &);
template bool LOADPNM(TRGBA &, const UTF16 &);
} // namespace morvane
