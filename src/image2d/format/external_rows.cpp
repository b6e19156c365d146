#include "image2d/format/external_rows.hpp"

#include <algorithm>
#include <cstring>

namespace morvane {
namespace {
TRGB &PlanesOf(TRGB &canvas) { return canvas; }
TRGB &PlanesOf(TRGBA &canvas) { return canvas.rgb; }
TRGB &PlanesOf(TZRGB &canvas) { return canvas.rgb; }

template <class RASTER> constexpr bool IS_GRAY = EXTERNAL_KIND<RASTER>::CHANNELS == 1;
template <class RASTER> constexpr bool HAS_ALPHA = EXTERNAL_KIND<RASTER>::CHANNELS == 4;

// f(plane, offset) for every plane of a colour image and its sample in a pixel.
template <class RASTER, class F> void ForPlanes(RASTER &canvas, SAMPLE_ORDER order, const F &f) {
    f(PlanesOf(canvas).RED(), order.red);
    f(PlanesOf(canvas).GREEN(), order.green);
    f(PlanesOf(canvas).BLUE(), order.blue);
    if constexpr (HAS_ALPHA<RASTER>) f(canvas.alpha, std::size_t{3});
}
} // namespace

template <class RASTER>
void PUT_SAMPLES(RASTER &canvas, NAT y, const BYTE *samples, SAMPLE_ORDER order) {
    constexpr auto STEP = static_cast<std::size_t>(EXTERNAL_KIND<RASTER>::BYTES);
    const auto width = static_cast<std::size_t>(WIDTH_OF(canvas));
    if constexpr (IS_GRAY<RASTER>)
        std::memcpy(canvas.ROW(y), samples, width * STEP);
    else
        ForPlanes(canvas, order, [&](TGRAY &plane, std::size_t offset) {
            BYTE *row = plane.ROW(y);
            for (std::size_t x = 0; x < width; ++x)
                row[x] = samples[x * STEP + offset];
        });
}

template <class RASTER>
void GET_SAMPLES(const RASTER &canvas, NAT y, BYTE *samples, SAMPLE_ORDER order) {
    constexpr auto STEP = static_cast<std::size_t>(EXTERNAL_KIND<RASTER>::BYTES);
    const auto width = static_cast<std::size_t>(WIDTH_OF(canvas));
    if constexpr (IS_GRAY<RASTER>)
        std::memcpy(samples, canvas.ROW(y), width * STEP);
    else
        ForPlanes(const_cast<RASTER &>(canvas), order, [&](TGRAY &plane, std::size_t offset) {
            const BYTE *row = plane.ROW(y);
            for (std::size_t x = 0; x < width; ++x)
                samples[x * STEP + offset] = row[x];
        });
}

template void PUT_SAMPLES(TGRAY &, NAT, const BYTE *, SAMPLE_ORDER);
template void PUT_SAMPLES(TFULLGRAY &, NAT, const BYTE *, SAMPLE_ORDER);
template void PUT_SAMPLES(TRGB &, NAT, const BYTE *, SAMPLE_ORDER);
template void PUT_SAMPLES(TRGBA &, NAT, const BYTE *, SAMPLE_ORDER);
template void PUT_SAMPLES(TZRGB &, NAT, const BYTE *, SAMPLE_ORDER);
template void GET_SAMPLES(const TGRAY &, NAT, BYTE *, SAMPLE_ORDER);
template void GET_SAMPLES(const TFULLGRAY &, NAT, BYTE *, SAMPLE_ORDER);
template void GET_SAMPLES(const TRGB &, NAT, BYTE *, SAMPLE_ORDER);
template void GET_SAMPLES(const TRGBA &, NAT, BYTE *, SAMPLE_ORDER);
template void GET_SAMPLES(const TZRGB &, NAT, BYTE *, SAMPLE_ORDER);
} // namespace morvane
