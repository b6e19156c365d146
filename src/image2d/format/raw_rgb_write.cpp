#include "image2d/format/byte_order.hpp"
#include "image2d/format/formats.hpp"
#include "image2d/format/raster_target.hpp"
#include "image2d/format/raw_rgb.hpp"
#include "image2d/format/row_fill.hpp"

namespace morvane {
template <ANY_OF<TRGB, TRGBA, TZRGB> RASTER> bool SAVERGB(const RASTER &raster, const UTF16 &name) {
    const NAT width = raster.WIDTH(), height = raster.HEIGHT();
    if (!IS_WRITABLE(width, height, RGB_LONGEST_SIDE)) return false;
    FILE_WRITE file;
    if (!OPEN_RASTER(file, WITH_EXTENSION(name, {"rgb"}))) return false;
    std::string header = RGB_TAG;
    PUT_LE(header, width, 2);
    PUT_LE(header, height, 2);
    file.WRITE(header);
    const auto fill = [&](NAT y, BYTE *row) { RGBA_ROW(raster, y, row); };
    return WRITE_ROWS(file, {height, 4 * width, fill}) && file.COMMIT();
}

template bool SAVERGB(const TRGB &, const UTF16 &);
template bool SAVERGB(const TRGBA &, const UTF16 &);
template bool SAVERGB(const TZRGB &, const UTF16 &);
} // namespace morvane
