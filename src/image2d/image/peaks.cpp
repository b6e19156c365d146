#include "image2d/image/peaks.hpp"

#include "foundation/base/safe_arithmetic.hpp"
#include "image2d/filter/adjust.hpp"
#include "image2d/image/channels.hpp"

#include <algorithm>
#include <vector>

namespace morvane {
namespace {
constexpr NAT BINS_A_PASS = 64;

// One pass of (1, 2, 1) / 4; the ends are repeated.
void SmoothBins(std::vector<REAL> &bins) {
    REAL before = bins.front();
    for (std::size_t i = 0; i < bins.size(); ++i) {
        const REAL here = bins[i], behind = bins[std::min(i + 1, bins.size() - 1)];
        bins[i] = (before + 2 * here + behind) / 4;
        before = here;
    }
}

// The middle of the first run of largest values.
std::size_t FirstPeak(const std::vector<REAL> &bins) {
    const auto top = std::max_element(bins.begin(), bins.end());
    const auto end = std::find_if(top, bins.end(), [&](REAL bin) { return bin < *top; });
    return static_cast<std::size_t>(top - bins.begin() + (end - top - 1) / 2);
}

void CountChannel(const TIMAGE &image, PEAK_CHANNEL channel, TPOLYNAT &bins) {
    bins.INIT(image.PIXELMAX() + 1);
    if (bins.LENGTH < 1) return;
    std::vector<NAT> row(static_cast<std::size_t>(image.SIZEX()));
    const bool isMean = channel == PEAK_CHANNEL::MEAN;
    const LAYER layer = isMean ? 0 : static_cast<LAYER>(channel);
    for (NAT y = 1; y <= image.SIZEY(); ++y) {
        GETROW(image, layer, isMean ? 1 : 3, y, row);
        for (const NAT value : row)
            bins._PUT(value + 1, bins._GET(value + 1) + 1);
    }
}

template <class PIXEL> void Shift(CANVAS<PIXEL> &plane, NAT change) {
    constexpr NAT LARGEST = CANVAS<PIXEL>::MAXIMUM;
    TPOLYNAT table;
    table.INIT(LARGEST + 1);
    for (NAT v = 0; v < table.LENGTH; ++v)
        table._PUT(v + 1, LIMIT(v + change, NAT{0}, LARGEST));
    SETRANGE(plane, plane.WHOLE(), table);
}
} // namespace

NAT PEAK(const TPOLYNAT &bins, const COMPLEXNAT &range) {
    const NAT low = std::max<NAT>(range.x, 0), high = std::min(range.y, bins.LENGTH - 1);
    std::vector<REAL> counts;
    for (NAT v = low; v <= high; ++v)
        counts.push_back(static_cast<REAL>(bins._GET(v + 1)));
    if (std::all_of(counts.begin(), counts.end(), [](REAL count) { return count <= 0; })) return -1;
    for (NAT pass = 0; pass < bins.LENGTH / BINS_A_PASS; ++pass)
        SmoothBins(counts);
    return low + static_cast<NAT>(FirstPeak(counts));
}

void SETPEAK(TIMAGE &image, PEAK_CHANNEL channel, const COMPLEXNAT &range, NAT target) {
    if (!image.ISNOTEMPTY() || image._ZRGB()) return;
    if (channel != PEAK_CHANNEL::MEAN && !image.ISCOLOUR()) return;
    TPOLYNAT bins;
    CountChannel(image, channel, bins);
    const NAT peak = PEAK(bins, range);
    if (peak < 0) return;
    const NAT goal = LIMIT(target, -image.PIXELMAX(), 2 * image.PIXELMAX());
    VALUEPLANES(image, [&](auto &plane) { Shift(plane, goal - peak); });
}
} // namespace morvane
