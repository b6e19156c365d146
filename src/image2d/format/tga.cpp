#include "image2d/format/byte_order.hpp"
#include "image2d/format/formats.hpp"
#include "image2d/format/raster_target.hpp"
#include "image2d/format/row_fill.hpp"

namespace morvane {
namespace {
constexpr NAT LONGEST_SIDE = 65535;

std::string Header(NAT width, NAT height) {
    std::string bytes;
    PUT_LE(bytes, 0, 1); // no text behind the header
    PUT_LE(bytes, 0, 1); // no colour map
    PUT_LE(bytes, 2, 1); // true colour, not compressed
    PUT_LE(bytes, 0, 5); // the colour map's fields
    PUT_LE(bytes, 0, 4); // origin 0, 0: the lower left corner
    PUT_LE(bytes, width, 2);
    PUT_LE(bytes, height, 2);
    PUT_LE(bytes, 24, 1); // bits a pixel
    PUT_LE(bytes, 0, 1);  // descriptor
    return bytes;
}
} // namespace

bool SAVETGA(const TRGB &raster, const UTF16 &name) {
    const NAT width = raster.WIDTH(), height = raster.HEIGHT();
    if (!IS_WRITABLE(width, height, LONGEST_SIDE)) return false;
    FILE_WRITE file;
    if (!OPEN_RASTER(file, WITH_EXTENSION(name, {"tga"}))) return false;
    file.WRITE(Header(width, height));
    const auto fill = [&](NAT y, BYTE *row) { BGR_ROW(raster, y, row); };
    return WRITE_ROWS(file, {height, 3 * width, fill, true}) && file.COMMIT();
}
} // namespace morvane
