#include "image2d/format/png.hpp"

#include "foundation/console/console.hpp"
#include "image2d/format/fill_rows.hpp"
#include "image2d/format/formats.hpp"
#include "image2d/format/raster_target.hpp"
#include "image2d/format/row_fill.hpp"

#include <limits>
#include <new>

namespace morvane {
namespace {
constexpr NAT LONGEST_SIDE = std::numeric_limits<std::int32_t>::max();

// What a canvas kind is in the format; the rows are without their filter byte.
struct PNG_IMAGE {
    NAT width = 0, depth = 8;
    PNG_MODE mode = PNG_MODE::GRAY;
    FLAT_ROWS rows;

    NAT Raw() const { return BYTES_OF(rows.bytes + 1, rows.count, 1); }
};

PNG_IMAGE ImageOf(const TGRAY &raster) {
    return {raster.WIDTH, 8, PNG_MODE::GRAY, {raster.HEIGHT, raster.WIDTH, [&](NAT y, BYTE *row) {
                                                  GRAY_ROW(raster, y, row);
                                              }}};
}

PNG_IMAGE ImageOf(const TFULLGRAY &raster) {
    return {
        raster.WIDTH, 16, PNG_MODE::GRAY, {raster.HEIGHT, 2 * raster.WIDTH, [&](NAT y, BYTE *row) {
                                               FULLGRAY_NTOBE_ROW(raster, y, row);
                                           }}};
}

PNG_IMAGE ImageOf(const TRGB &raster) {
    return {
        raster.WIDTH(),
        8,
        PNG_MODE::RGB,
        {raster.HEIGHT(), 3 * raster.WIDTH(), [&](NAT y, BYTE *row) { RGB_ROW(raster, y, row); }}};
}

template <ANY_OF<TRGBA, TZRGB> RASTER> PNG_IMAGE ImageOf(const RASTER &raster) {
    return {
        raster.WIDTH(),
        8,
        PNG_MODE::RGB_ALPHA,
        {raster.HEIGHT(), 4 * raster.WIDTH(), [&](NAT y, BYTE *row) { RGBA_ROW(raster, y, row); }}};
}

void Fill(const TGRAY &raster, BYTE *raw) { FILL_0GRAY(raster, raw); }
void Fill(const TFULLGRAY &raster, BYTE *raw) { FILL_0FULLGRAY_NTOBE(raster, raw); }
void Fill(const TRGB &raster, BYTE *raw) { FILL_0RGB(raster, raw); }
void Fill(const TRGBA &raster, BYTE *raw) { FILL_0RGBA(raster, raw); }
void Fill(const TZRGB &raster, BYTE *raw) { FILL_0ZRGB(raster, raw); }

// A small picture at once.
template <class RASTER> void PutAll(PNG_STREAM &stream, const RASTER &raster, NAT raw) {
    std::vector<BYTE> bytes(static_cast<std::size_t>(raw));
    Fill(raster, bytes.data());
    stream.RAW(bytes.data(), raw);
}

// A large one row by row, each behind its filter byte 0.
void PutRows(PNG_STREAM &stream, const FLAT_ROWS &rows) {
    std::vector<BYTE> row(static_cast<std::size_t>(rows.bytes + 1));
    for (NAT y = 1; y <= rows.count; ++y) {
        rows.fill(y, row.data() + 1);
        stream.RAW(row.data(), rows.bytes + 1);
    }
}

// May throw for memory.
template <class RASTER> void Write(FILE_WRITE &file, const RASTER &raster, const PNG_IMAGE &image) {
    const NAT raw = image.Raw();
    PNG_STREAM stream(file, raw);
    stream.HEADER(image.width, image.rows.count, image.depth, image.mode);
    if (raw < PNG_PART)
        PutAll(stream, raster, raw);
    else
        PutRows(stream, image.rows);
    stream.FINISH();
}
} // namespace

template <ANY_OF<TGRAY, TFULLGRAY, TRGB, TRGBA, TZRGB> RASTER>
bool SAVEPNG(const RASTER &raster, const UTF16 &name) {
    const PNG_IMAGE image = ImageOf(raster);
    if (!IS_WRITABLE(image.width, image.rows.count, LONGEST_SIDE)) return false;
    if (!CHECK_PNG(image.depth, static_cast<NAT>(image.mode))) return false;
    FILE_WRITE file;
    if (!OPEN_RASTER(file, WITH_EXTENSION(name, {"png"}))) return false;
    try {
        Write(file, raster, image);
    } catch (const std::bad_alloc &) {
        WRITELN("PNG memory error!");
        return false;
    }
    return file.COMMIT();
}

template bool SAVEPNG(const TGRAY &, const UTF16 &);
template bool SAVEPNG(const TFULLGRAY &, const UTF16 &);
template bool SAVEPNG(const TRGB &, const UTF16 &);
template bool SAVEPNG(const TRGBA &, const UTF16 &);
template bool SAVEPNG(const TZRGB &, const UTF16 &);
} // namespace morvane
