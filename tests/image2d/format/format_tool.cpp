// Writes one picture in every format of every kind, and its pixels beside it, for other readers:
//   format_tool write FOLDER WIDTH HEIGHT
// makes FOLDER/<kind>.<extension> and FOLDER/<kind>.raw (the kind's pixels, interleaved; words
// little-endian). Reads files and writes their pixels the same way:
//   format_tool read KIND FILE RESULT
// Kinds: gray, fullgray, rgb, rgba, zrgb.
#include "foundation/console/console.hpp"
#include "image2d/format/formats_table.hpp"
#include "image2d/format/row_fill.hpp"

#include <cstdlib>
#include <fstream>
#include <vector>

namespace morvane {
namespace {
// Every value occurs, neighbours differ in all directions.
template <class PIXEL> void Fill(CANVAS<PIXEL> &canvas, NAT seed) {
    for (NAT i = 0; i < canvas.COUNT(); ++i)
        canvas.DATA()[i] = static_cast<PIXEL>(seed + i * 7919 + i / canvas.WIDTH * 31);
}
void Fill(TRGB &raster, NAT seed) {
    for (TGRAY &plane : raster.planes)
        Fill(plane, seed += 83);
}
template <class RASTER> void Fill(RASTER &raster, NAT seed) {
    Fill(raster.rgb, seed);
    Fill(raster.alpha, seed + 5);
}

void Row(const TGRAY &raster, NAT y, BYTE *row) { GRAY_ROW(raster, y, row); }
void Row(const TFULLGRAY &raster, NAT y, BYTE *row) { FULLGRAY_NTOLE_ROW(raster, y, row); }
void Row(const TRGB &raster, NAT y, BYTE *row) { RGB_ROW(raster, y, row); }
template <class RASTER> void Row(const RASTER &raster, NAT y, BYTE *row) {
    RGBA_ROW(raster, y, row);
}

template <class RASTER> COMPLEXNAT SizeOf(const RASTER &raster) {
    if constexpr (requires { raster.WIDTH(); })
        return {raster.WIDTH(), raster.HEIGHT()};
    else
        return {raster.WIDTH, raster.HEIGHT};
}

template <class RASTER> void WritePixels(const RASTER &raster, NAT bytes, const std::string &path) {
    std::ofstream file(path, std::ios::binary);
    const COMPLEXNAT size = SizeOf(raster);
    std::vector<BYTE> row(static_cast<std::size_t>(size.x * bytes));
    for (NAT y = 1; y <= size.y; ++y) {
        Row(raster, y, row.data());
        file.write(reinterpret_cast<const char *>(row.data()),
                   static_cast<std::streamsize>(row.size()));
    }
}

template <class RASTER>
bool Write(const std::string &kind, NAT bytes, const std::string &folder, NAT width, NAT height) {
    RASTER raster(width, height);
    Fill(raster, 17);
    WritePixels(raster, bytes, folder + "/" + kind + ".raw");
    bool good = true;
    for (const RASTER_FORMAT &format : RASTER_FORMATS()) {
        if (!format.CODEC<RASTER>().write) continue;
        const std::string path = folder + "/" + kind + "." + std::string(format.extension);
        good = SAVE(raster, UTF16(path)) && good;
        if (format.zipped) good = SAVE(raster, UTF16(path + ".gz")) && good;
    }
    return good;
}

template <class RASTER> bool Read(NAT bytes, const std::string &from, const std::string &to) {
    RASTER raster;
    if (!LOAD(raster, UTF16(from))) return false;
    WritePixels(raster, bytes, to);
    return true;
}

bool ReadKind(const std::string &kind, const std::string &from, const std::string &to) {
    if (kind == "gray") return Read<TGRAY>(1, from, to);
    if (kind == "fullgray") return Read<TFULLGRAY>(2, from, to);
    if (kind == "rgb") return Read<TRGB>(3, from, to);
    return Read<TRGBA>(4, from, to);
}

bool WriteKinds(const std::string &folder, NAT width, NAT height) {
    return Write<TGRAY>("gray", 1, folder, width, height) &&
           Write<TFULLGRAY>("fullgray", 2, folder, width, height) &&
           Write<TRGB>("rgb", 3, folder, width, height) &&
           Write<TRGBA>("rgba", 4, folder, width, height) &&
           Write<TZRGB>("zrgb", 4, folder, width, height);
}
} // namespace
} // namespace morvane

int main(int count, char **arguments) {
    using namespace morvane;
    if (count != 5) return 2;
    const std::string command = arguments[1];
    if (command == "read") return ReadKind(arguments[2], arguments[3], arguments[4]) ? 0 : 1;
    SETSINK([](std::string_view, void *) {}, nullptr);
    return WriteKinds(arguments[2], std::atol(arguments[3]), std::atol(arguments[4])) ? 0 : 1;
}
