#include "foundation/base/number_text.hpp"
#include "image2d/format/formats.hpp"
#include "image2d/format/raster_target.hpp"
#include "image2d/format/row_fill.hpp"

namespace morvane {
namespace {
std::string Number(NAT value) { return std::to_string(value); }

// `maximum` 0: the format has none.
bool Save(const UTF16 &name, const char *magic, NAT width, NAT maximum, const FLAT_ROWS &rows) {
    FILE_WRITE file;
    if (!OPEN_RASTER(file, name)) return false;
    file.WRITE(std::string(magic) + "\n# morvane\n" + Number(width) + " " + Number(rows.count) +
               "\n" + (maximum > 0 ? Number(maximum) + "\n" : std::string()));
    return WRITE_ROWS(file, rows) && file.COMMIT();
}

FLAT_ROWS GrayRows(const TGRAY &raster) {
    return {raster.HEIGHT, raster.WIDTH, [&](NAT y, BYTE *row) { GRAY_ROW(raster, y, row); }};
}

FLAT_ROWS GrayRows(const TFULLGRAY &raster) {
    return {raster.HEIGHT, 2 * raster.WIDTH,
            [&](NAT y, BYTE *row) { FULLGRAY_NTOBE_ROW(raster, y, row); }};
}

FLAT_ROWS GrayRows(const TRGB &raster) {
    return {raster.HEIGHT(), raster.WIDTH(), [&](NAT y, BYTE *row) { MEAN_ROW(raster, y, row); }};
}
} // namespace

bool SAVEPBM(const TRGB &raster, const UTF16 &name) {
    const NAT width = raster.WIDTH();
    if (!IS_WRITABLE(width, raster.HEIGHT())) return false;
    return Save(
        WITH_EXTENSION(name, {"pbm"}, true), "P4", width, 0,
        {raster.HEIGHT(), (width + 7) / 8, [&](NAT y, BYTE *row) { MONO_ROW(raster, y, row); }});
}

template <ANY_OF<TGRAY, TFULLGRAY, TRGB> RASTER>
bool SAVEPGM(const RASTER &raster, const UTF16 &name) {
    constexpr bool DEEP = std::same_as<RASTER, TFULLGRAY>;
    const FLAT_ROWS rows = GrayRows(raster);
    const NAT width = rows.bytes / (DEEP ? 2 : 1);
    if (!IS_WRITABLE(width, rows.count)) return false;
    return Save(WITH_EXTENSION(name, {"pgm"}, true), "P5", width,
                DEEP ? TFULLGRAY::MAXIMUM : TGRAY::MAXIMUM, rows);
}

bool SAVEPPM(const TRGB &raster, const UTF16 &name) {
    const NAT width = raster.WIDTH();
    if (!IS_WRITABLE(width, raster.HEIGHT())) return false;
    return Save(WITH_EXTENSION(name, {"ppm", "pnm"}, true), "P6", width, TGRAY::MAXIMUM,
                {raster.HEIGHT(), 3 * width, [&](NAT y, BYTE *row) { RGB_ROW(raster, y, row); }});
}

template bool SAVEPGM(const TGRAY &, const UTF16 &);
template bool SAVEPGM(const TFULLGRAY &, const UTF16 &);
template bool SAVEPGM(const TRGB &, const UTF16 &);
} // namespace morvane
