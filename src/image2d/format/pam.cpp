#include "image2d/format/formats.hpp"
#include "image2d/format/raster_target.hpp"
#include "image2d/format/row_fill.hpp"

namespace morvane {
namespace {
FLAT_ROWS Rows(const TRGB &raster) {
    return {raster.HEIGHT(), 3 * raster.WIDTH(),
            [&](NAT y, BYTE *row) { RGB_ROW(raster, y, row); }};
}

template <ANY_OF<TRGBA, TZRGB> RASTER> FLAT_ROWS Rows(const RASTER &raster) {
    return {raster.HEIGHT(), 4 * raster.WIDTH(),
            [&](NAT y, BYTE *row) { RGBA_ROW(raster, y, row); }};
}
} // namespace

template <ANY_OF<TRGB, TRGBA, TZRGB> RASTER> bool SAVEPAM(const RASTER &raster, const UTF16 &name) {
    constexpr bool ALPHA = !std::same_as<RASTER, TRGB>;
    if (!IS_WRITABLE(raster.WIDTH(), raster.HEIGHT())) return false;
    FILE_WRITE file;
    if (!OPEN_RASTER(file, WITH_EXTENSION(name, {"pam"}, true))) return false;
    file.WRITE("P7\n# morvane\nWIDTH " + std::to_string(raster.WIDTH()) + "\nHEIGHT " +
               std::to_string(raster.HEIGHT()) + "\nDEPTH " + (ALPHA ? "4" : "3") +
               "\nMAXVAL 255 \nTUPLTYPE " + (ALPHA ? "RGB_ALPHA" : "RGB  ") + "\nENDHDR\n");
    return WRITE_ROWS(file, Rows(raster)) && file.COMMIT();
}

template bool SAVEPAM(const TRGB &, const UTF16 &);
template bool SAVEPAM(const TRGBA &, const UTF16 &);
template bool SAVEPAM(const TZRGB &, const UTF16 &);
} // namespace morvane
