#include "image2d/format/byte_order.hpp"
#include "image2d/format/fill_rows.hpp"
#include "image2d/format/formats.hpp"
#include "image2d/format/raster_target.hpp"
#include "image2d/format/row_fill.hpp"

#include <limits>

namespace morvane {
namespace {
constexpr NAT HEADER = 8; // bytes
constexpr NAT TAGS = 13;
constexpr NAT DIRECTORY = 2 + 12 * TAGS + 4; // bytes
constexpr NAT LARGEST_FILE = std::numeric_limits<std::uint32_t>::max();
constexpr int SHORT = 3, LONG = 4; // type codes of 2 and 4 bytes

struct TIFF_IMAGE {
    NAT width = 0, channels = 1, bits = 8;
    FLAT_ROWS rows;

    NAT PixelBytes() const { return BYTES_OF(rows.bytes, rows.count, 1); }
    // The directory begins at an even position.
    NAT DirectoryOffset() const { return HEADER + (PixelBytes() + 1) / 2 * 2; }
};

TIFF_IMAGE ImageOf(const TGRAY &raster) {
    return {raster.WIDTH, 1, 8, {raster.HEIGHT, raster.WIDTH, [&](NAT y, BYTE *row) {
                                     GRAY_ROW(raster, y, row);
                                 }}};
}

TIFF_IMAGE ImageOf(const TFULLGRAY &raster) {
    return {raster.WIDTH, 1, 16, {raster.HEIGHT, 2 * raster.WIDTH, [&](NAT y, BYTE *row) {
                                      FULLGRAY_NTOLE_ROW(raster, y, row);
                                  }}};
}

TIFF_IMAGE ImageOf(const TRGB &raster) {
    return {raster.WIDTH(), 3, 8, {raster.HEIGHT(), 3 * raster.WIDTH(), [&](NAT y, BYTE *row) {
                                       RGB_ROW(raster, y, row);
                                   }}};
}

// A value of 2 bytes lies in the first half of its field.
void PutTag(std::string &bytes, NAT tag, int type, NAT value) {
    PUT_LE(bytes, tag, 2);
    PUT_LE(bytes, type, 2);
    PUT_LE(bytes, 1, 4);
    PUT_LE(bytes, value, 4);
}

std::string Directory(const TIFF_IMAGE &image) {
    std::string bytes;
    PUT_LE(bytes, TAGS, 2);
    PutTag(bytes, 0x100, LONG, image.width);
    PutTag(bytes, 0x101, LONG, image.rows.count);
    PutTag(bytes, 0x102, SHORT, image.bits);
    PutTag(bytes, 0x103, SHORT, 1);                           // not compressed
    PutTag(bytes, 0x106, SHORT, image.channels == 1 ? 1 : 2); // 0 is black; or red, green, blue
    PutTag(bytes, 0x111, LONG, HEADER);                       // where the one strip begins
    PutTag(bytes, 0x112, SHORT, 1);                           // first row on top
    PutTag(bytes, 0x115, SHORT, image.channels);
    PutTag(bytes, 0x116, LONG, image.rows.count);
    PutTag(bytes, 0x117, LONG, image.PixelBytes());
    PutTag(bytes, 0x118, SHORT, 0);                     // smallest
    PutTag(bytes, 0x119, SHORT, (1 << image.bits) - 1); // and largest sample
    PutTag(bytes, 0x11C, SHORT, 1);                     // components of a pixel side by side
    PUT_LE(bytes, 0, 4);                                // no other directory
    return bytes;
}
} // namespace

template <ANY_OF<TGRAY, TFULLGRAY, TRGB> RASTER>
bool SAVETIF(const RASTER &raster, const UTF16 &name) {
    const TIFF_IMAGE image = ImageOf(raster);
    const NAT width = image.width, height = image.rows.count;
    if (!IS_WRITABLE(width, height)) return false;
    if (image.PixelBytes() > LARGEST_FILE - HEADER - DIRECTORY - 1)
        return TELL_TOO_LARGE(width, height);
    FILE_WRITE file;
    if (!OPEN_RASTER(file, WITH_EXTENSION(name, {"tif", "tiff"}))) return false;
    std::string header = "II";
    PUT_LE(header, 42, 2);
    PUT_LE(header, image.DirectoryOffset(), 4);
    file.WRITE(header);
    if (!WRITE_ROWS(file, image.rows)) return false;
    if (image.PixelBytes() % 2 == 1) file.WRITE(std::string_view("\0", 1));
    file.WRITE(Directory(image));
    return file.COMMIT();
}

template bool SAVETIF(const TGRAY &, const UTF16 &);
template bool SAVETIF(const TFULLGRAY &, const UTF16 &);
template bool SAVETIF(const TRGB &, const UTF16 &);
} // namespace morvane
