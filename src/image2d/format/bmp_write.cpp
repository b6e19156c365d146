#include "image2d/format/byte_order.hpp"
#include "image2d/format/fill_rows.hpp"
#include "image2d/format/formats.hpp"
#include "image2d/format/raster_target.hpp"
#include "image2d/format/row_fill.hpp"

#include <algorithm>
#include <limits>

namespace morvane {
namespace {
constexpr NAT HEADERS = 54; // bytes: file header 14, info header 40
constexpr NAT LONGEST_SIDE = std::numeric_limits<std::int32_t>::max();
constexpr NAT LARGEST_FILE = std::numeric_limits<std::uint32_t>::max();

std::string Headers(NAT width, NAT height, NAT pixelBytes) {
    std::string bytes = "BM";
    PUT_LE(bytes, HEADERS + pixelBytes, 4);
    PUT_LE(bytes, 0, 4);       // unused
    PUT_LE(bytes, HEADERS, 4); // where the pixels begin
    PUT_LE(bytes, 40, 4);      // size of the info header
    PUT_LE(bytes, width, 4);
    PUT_LE(bytes, height, 4);
    PUT_LE(bytes, 1, 2);  // planes
    PUT_LE(bytes, 24, 2); // bits a pixel
    PUT_LE(bytes, 0, 4);  // not compressed
    PUT_LE(bytes, pixelBytes, 4);
    PUT_LE(bytes, 0, 8); // no resolution
    PUT_LE(bytes, 0, 8); // no palette
    return bytes;
}
} // namespace

bool SAVEBMP(const TRGB &raster, const UTF16 &name) {
    const NAT width = raster.WIDTH(), height = raster.HEIGHT();
    if (!IS_WRITABLE(width, height, LONGEST_SIDE)) return false;
    const NAT rowBytes = (3 * width + 3) / 4 * 4, pixelBytes = BYTES_OF(rowBytes, height, 1);
    if (pixelBytes > LARGEST_FILE - HEADERS) return TELL_TOO_LARGE(width, height);
    FILE_WRITE file;
    if (!OPEN_RASTER(file, WITH_EXTENSION(name, {"bmp", "dib"}))) return false;
    file.WRITE(Headers(width, height, pixelBytes));
    const auto fill = [&](NAT y, BYTE *row) {
        BGR_ROW(raster, y, row);
        std::fill(row + 3 * width, row + rowBytes, BYTE{0});
    };
    return WRITE_ROWS(file, {height, rowBytes, fill, true}) && file.COMMIT();
}
} // namespace morvane
