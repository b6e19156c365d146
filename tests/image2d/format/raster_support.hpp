#pragma once

#include "image2d/canvas/rgb.hpp"
#include "support/capture.hpp"
#include "support/temporary_folder.hpp"

#include <string>
#include <vector>

// Small pictures and files for the tests of raster formats.
namespace morvane {
// Bytes from a list of numbers, for binary files.
inline std::string BYTES(const std::vector<int> &values) {
    std::string bytes;
    for (const int value : values)
        bytes += static_cast<char>(value);
    return bytes;
}

template <class PIXEL> std::vector<int> PIXELS(const CANVAS<PIXEL> &canvas) {
    return {canvas.DATA(), canvas.DATA() + canvas.COUNT()};
}
// Red, green and blue of each pixel, side by side.
inline std::vector<int> PIXELS(const TRGB &raster) {
    std::vector<int> values;
    for (NAT i = 0; i < raster.RED().COUNT(); ++i)
        for (const TGRAY &plane : raster.planes)
            values.push_back(plane.DATA()[i]);
    return values;
}

template <class PIXEL> void SET(CANVAS<PIXEL> &canvas, const std::vector<int> &pixels) {
    for (std::size_t i = 0; i < pixels.size(); ++i)
        canvas.DATA()[i] = static_cast<PIXEL>(pixels[i]);
}
inline void SET(TRGB &raster, const std::vector<int> &values) {
    for (std::size_t i = 0; i < values.size(); ++i)
        raster.planes[i % 3].DATA()[i / 3] = static_cast<BYTE>(values[i]);
}

template <class PIXEL> NAT WIDTH_OF(const CANVAS<PIXEL> &canvas) { return canvas.WIDTH; }
template <class RASTER> NAT WIDTH_OF(const RASTER &raster) { return raster.WIDTH(); }

// load(raster, name) fails on every shorter form of the file and leaves an empty picture, with a
// line on the console each time.
template <class RASTER, class LOADER>
bool FAILS_AT_EVERY_CUT(const std::string &bytes, const std::string &fileName, LOADER load) {
    const TEMPORARY_FOLDER folder;
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        CAPTURE console;
        RASTER raster(2, 2);
        const std::string name = folder.PUT(fileName, bytes.substr(0, length));
        const bool loaded = load(raster, UTF16(name));
        const std::string &text = console.TEXT();
        const bool told = text.find('\n') + 1 < text.size(); // behind the line of the opening
        if (loaded || !raster.EMPTY() || WIDTH_OF(raster) != 0 || !told) return false;
    }
    return true;
}
} // namespace morvane
