#include "foundation/base/checksum.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "image2d/format/byte_order.hpp"
#include "image2d/format/fill_rows.hpp"
#include "image2d/format/formats.hpp"
#include "image2d/format/raw_rgb.hpp"

#include <cstring>
#include <vector>

namespace morvane {
namespace {
bool TellWrongHeader() {
    WRITELN("  Wrong header. Empty image created!");
    return false;
}

// Two bytes: four half bytes, the high one of each byte first, each the high half of a component.
void DecodeNibbles(const BYTE *row, WORD *samples, NAT width) {
    for (NAT i = 0; i < 2 * width; ++i) {
        samples[2 * i] = static_cast<WORD>(GETNIBBLE(row[i], 2) << 4);
        samples[2 * i + 1] = static_cast<WORD>(GETNIBBLE(row[i], 1) << 4);
    }
}

const char *Title(NAT pixelBytes) {
    if (pixelBytes == 2) return "  RGB (16bit) with (";
    return pixelBytes == 3 ? "  RGB (24bit) with (" : "  RGB (32bit) with (";
}

// The pixels from the file's present position on; what the file has left tells their bytes.
template <class RASTER>
bool ReadPixels(RASTER &raster, FILE_READ &file, const UTF16 &name, NAT width, NAT height) {
    const NAT bytes = file.SIZE() - file.POSITION();
    NAT pixelBytes = 0;
    for (const NAT candidate : {2, 3, 4})
        if (BYTES_OF(width, height, candidate) == bytes) pixelBytes = candidate;
    if (pixelBytes == 0) return TELL_BAD_FILE_SIZE();
    const PICTURE picture{width, height, pixelBytes == 3 ? NAT{3} : NAT{4},
                          false, false,  Title(pixelBytes)};
    std::vector<BYTE> row;
    return FILL_ROWS(raster, name, picture, [&](WORD *samples, NAT count) {
        const NAT rowBytes = width * pixelBytes;
        row.resize(static_cast<std::size_t>(rowBytes));
        if (file.READ(row.data(), rowBytes) != rowBytes) return TELL_BAD_FILE_SIZE();
        if (pixelBytes == 2) DecodeNibbles(row.data(), samples, width);
        for (NAT i = 0; pixelBytes > 2 && i < count; ++i)
            samples[i] = row[static_cast<std::size_t>(i)];
        return true;
    });
}
} // namespace

template <ANY_OF<TRGB, TRGBA> RASTER> bool LOADRGB(RASTER &raster, const UTF16 &name) {
    raster.INIT();
    FILE_READ file;
    BYTE header[RGB_HEADER] = {};
    if (!ASSIGNREAD(file, name)) return false;
    if (file.READ(header, RGB_HEADER) != RGB_HEADER) return TellWrongHeader();
    const NAT width = LE2(header + 4), height = LE2(header + 6);
    if (std::memcmp(header, RGB_TAG, 4) != 0 || width < 1 || height < 1) return TellWrongHeader();
    return ReadPixels(raster, file, name, width, height);
}

template <ANY_OF<TRGB, TRGBA> RASTER>
bool LOADRAW(RASTER &raster, const UTF16 &name, NAT width, NAT height, NAT header) {
    raster.INIT();
    FILE_READ file;
    if (!ASSIGNREAD(file, name)) return false;
    if (width < 1 || height < 1) return TELL_BAD_SIZE(width, height);
    if (header < 0 || header > file.SIZE() || !file.SEEK(header)) return TellWrongHeader();
    return ReadPixels(raster, file, name, width, height);
}

template bool LOADRGB(TRGB &, const UTF16 &);
template bool LOADRGB(TRGBA &, const UTF16 &);
template bool LOADRAW(TRGB &, const UTF16 &, NAT, NAT, NAT);
template bool LOADRAW(TRGBA &, const UTF16 &, NAT, NAT, NAT);
} // namespace morvane
