#pragma once

#include "fuzz_files.hpp"
#include "image2d/format/formats.hpp"

// What the fuzz targets of raster readers have in common.
namespace morvane {
// A load that fails leaves an empty canvas, one that succeeds a filled one.
template <class RASTER, class LOADER> void LOAD_CHECKED(const std::string &path, LOADER load) {
    RASTER raster;
    const bool loaded = load(raster, UTF16(path));
    if (loaded == raster.EMPTY()) std::abort();
}
} // namespace morvane
