#include "image2d/format/row_fill.hpp"

#include <algorithm>

namespace morvane {
namespace {
// The grey value of each pixel of a row, shifted right, limited to the canvas.
template <class PIXEL> void StoreGray(PIXEL *target, NAT width, const SAMPLE_ROW &row, int shift) {
    const WORD *samples = row.samples;
    const NAT channels = row.channels;
    const auto limited = [&](int value) {
        return static_cast<PIXEL>(
            std::min(value >> shift, static_cast<int>(CANVAS<PIXEL>::MAXIMUM)));
    };
    if (channels == 1) {
        for (NAT x = 0; x < width; ++x)
            target[x] = limited(samples[x]);
        return;
    }
    for (NAT x = 0; x < width; ++x, samples += channels)
        target[x] = limited((samples[0] + samples[1] + samples[2]) / 3);
}

// One component of each pixel of a row; grey serves for all.
void StorePlane(TGRAY &canvas, NAT y, const SAMPLE_ROW &row, NAT component) {
    const WORD *samples = row.samples + (row.channels == 1 ? 0 : component);
    const int shift = row.deep ? 8 : 0;
    const NAT width = canvas.WIDTH, channels = row.channels;
    BYTE *target = canvas.ROW(y);
    for (NAT x = 0; x < width; ++x, samples += channels)
        target[x] = static_cast<BYTE>(std::min(*samples >> shift, 255));
}
} // namespace

void STORE_ROW(TGRAY &canvas, NAT y, const SAMPLE_ROW &row) {
    StoreGray(canvas.ROW(y), canvas.WIDTH, row, row.deep ? 8 : 0);
}

void STORE_ROW(TFULLGRAY &canvas, NAT y, const SAMPLE_ROW &row) {
    StoreGray(canvas.ROW(y), canvas.WIDTH, row, 0);
}

void STORE_ROW(TRGB &canvas, NAT y, const SAMPLE_ROW &row) {
    for (NAT component = 0; component < 3; ++component)
        StorePlane(canvas.planes[static_cast<std::size_t>(component)], y, row, component);
}

void STORE_ROW(TRGBA &canvas, NAT y, const SAMPLE_ROW &row) {
    STORE_ROW(canvas.rgb, y, row);
    if (row.channels == 4)
        StorePlane(canvas.alpha, y, row, 3);
    else
        std::fill_n(canvas.alpha.ROW(y), canvas.WIDTH(), BYTE{255});
}
} // namespace morvane
