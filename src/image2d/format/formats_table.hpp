#pragma once

#include "image2d/format/formats.hpp"

#include <span>

namespace morvane {
// The reader and the writer of one canvas kind; null where it has none.
template <class RASTER> struct RASTER_CODEC {
    bool (*read)(RASTER &raster, const UTF16 &name) = nullptr;
    bool (*write)(const RASTER &raster, const UTF16 &name) = nullptr;
};

// A raster format. Choosing by extension, the page of formats and the tests walk these rows.
struct RASTER_FORMAT {
    std::string_view extension; // in lower case
    bool zipped;                // also with ".gz" behind it
    std::string_view legend;    // what the format is
    std::string_view values;    // how values are kept
    RASTER_CODEC<TGRAY> gray;
    RASTER_CODEC<TFULLGRAY> fullGray;
    RASTER_CODEC<TRGB> rgb;
    RASTER_CODEC<TRGBA> rgba;
    RASTER_CODEC<TZRGB> zrgb;

    template <class RASTER> const RASTER_CODEC<RASTER> &CODEC() const {
        if constexpr (std::same_as<RASTER, TGRAY>)
            return gray;
        else if constexpr (std::same_as<RASTER, TFULLGRAY>)
            return fullGray;
        else if constexpr (std::same_as<RASTER, TRGB>)
            return rgb;
        else if constexpr (std::same_as<RASTER, TRGBA>)
            return rgba;
        else
            return zrgb;
    }
    bool MATCHES(std::string_view fileExtension) const; // "pgm", or "pgm.gz" of a zipped one
};

std::span<const RASTER_FORMAT> RASTER_FORMATS();
// The row of a file name's extension, in any case; null when there is none.
const RASTER_FORMAT *RASTER_FORMAT_OF(const UTF16 &name);
} // namespace morvane
