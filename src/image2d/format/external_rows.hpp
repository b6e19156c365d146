#pragma once

#include "image2d/canvas/rgb.hpp"

#include <type_traits>

// What the image libraries need to know of a pixel kind, and its rows as interleaved samples.
namespace morvane {
// A pixel of TFULLGRAY is one 16-bit sample, of all other kinds 1, 3 or 4 bytes.
template <class RASTER> struct EXTERNAL_KIND;
template <> struct EXTERNAL_KIND<TGRAY> {
    static constexpr const char *TITLE = "Grey";
    static constexpr NAT CHANNELS = 1, BYTES = 1;
};
template <> struct EXTERNAL_KIND<TFULLGRAY> {
    static constexpr const char *TITLE = "Fullgrey";
    static constexpr NAT CHANNELS = 1, BYTES = 2;
};
template <> struct EXTERNAL_KIND<TRGB> {
    static constexpr const char *TITLE = "RGB";
    static constexpr NAT CHANNELS = 3, BYTES = 3;
};
template <> struct EXTERNAL_KIND<TRGBA> {
    static constexpr const char *TITLE = "RGBA";
    static constexpr NAT CHANNELS = 4, BYTES = 4;
};
template <> struct EXTERNAL_KIND<TZRGB> {
    static constexpr const char *TITLE = "ZRGB";
    static constexpr NAT CHANNELS = 4, BYTES = 4;
};

inline NAT WIDTH_OF(const TGRAY &canvas) { return canvas.WIDTH; }
inline NAT HEIGHT_OF(const TGRAY &canvas) { return canvas.HEIGHT; }
inline NAT WIDTH_OF(const TFULLGRAY &canvas) { return canvas.WIDTH; }
inline NAT HEIGHT_OF(const TFULLGRAY &canvas) { return canvas.HEIGHT; }
template <class COLOUR> NAT WIDTH_OF(const COLOUR &canvas) { return canvas.WIDTH(); }
template <class COLOUR> NAT HEIGHT_OF(const COLOUR &canvas) { return canvas.HEIGHT(); }

// Where red, green and blue lie in a pixel; alpha is the fourth byte.
struct SAMPLE_ORDER {
    std::size_t red, green, blue;
};
inline constexpr SAMPLE_ORDER RGB_ORDER{0, 1, 2}, BGR_ORDER{2, 1, 0};

// A row of samples into row y of the canvas, and back. `samples` holds WIDTH * BYTES bytes, and for
// TFULLGRAY words in the processor's order.
template <class RASTER>
void PUT_SAMPLES(RASTER &canvas, NAT y, const BYTE *samples, SAMPLE_ORDER order);
template <class RASTER>
void GET_SAMPLES(const RASTER &canvas, NAT y, BYTE *samples, SAMPLE_ORDER order);
} // namespace morvane
