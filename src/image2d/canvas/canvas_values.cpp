#include "image2d/canvas/canvas.hpp"

#include <algorithm>

namespace morvane {
namespace {
// Calls `row(first pixel, count)` for each row of the area, which lies within the canvas.
template <class PIXEL, class ROW>
void EACH_ROW(const CANVAS<PIXEL> &canvas, const PIXEL_AREA &area, const ROW &row) {
    const PIXEL_AREA inside = canvas.LIMITED(area);
    for (NAT y = inside.top; y <= inside.bottom; ++y)
        row(canvas.ROW(y) + inside.left - 1, inside.WIDTH());
}
} // namespace

template <class PIXEL> PIXEL_LIMITS GETLIMITS(const CANVAS<PIXEL> &canvas, const PIXEL_AREA &area) {
    constexpr PIXEL LARGEST = std::numeric_limits<PIXEL>::max();
    PIXEL min = LARGEST, max = 0, lessOne = LARGEST;
    // A zero less one is the largest value: so the smallest value above 0 needs no test.
    EACH_ROW(canvas, area, [&](const PIXEL *pixels, NAT count) {
        for (NAT i = 0; i < count; ++i) {
            min = std::min(min, pixels[i]);
            max = std::max(max, pixels[i]);
            lessOne = std::min(lessOne, static_cast<PIXEL>(pixels[i] - 1));
        }
    });
    const NAT min0 = lessOne == LARGEST ? LARGEST : NAT{lessOne} + 1;
    return {min, max, min0};
}

template <class PIXEL>
NAT COUNT(const CANVAS<PIXEL> &canvas, NAT low, NAT high, const PIXEL_AREA &area) {
    NAT result = 0;
    EACH_ROW(canvas, area, [&](const PIXEL *pixels, NAT count) {
        result += std::count_if(pixels, pixels + count,
                                [&](NAT value) { return value >= low && value <= high; });
    });
    return result;
}

template <class PIXEL>
NAT SUM(const CANVAS<PIXEL> &canvas, NAT low, NAT high, const PIXEL_AREA &area) {
    NAT result = 0;
    EACH_ROW(canvas, area, [&](const PIXEL *pixels, NAT count) {
        for (NAT i = 0; i < count; ++i)
            result += pixels[i] >= low && pixels[i] <= high ? pixels[i] : 0;
    });
    return result;
}

template <class PIXEL> void HISTOGRAM(const CANVAS<PIXEL> &canvas, TPOLYNAT &bins) {
    bins.DONE();
    bins.INIT();
    if (canvas.EMPTY()) return;
    bins.INIT(CANVAS<PIXEL>::MAXIMUM + 1);
    if (bins.LENGTH == 0) return; // no memory, which has been told
    NAT *counts = static_cast<NAT *>(bins.DATA);
    std::for_each(canvas.DATA(), canvas.DATA() + canvas.COUNT(),
                  [&](PIXEL value) { ++counts[value]; });
}

template <class PIXEL> NAT GETBACKGROUND(const CANVAS<PIXEL> &canvas) {
    TPOLYNAT bins;
    HISTOGRAM(canvas, bins);
    if (bins.LENGTH == 0) return 0;
    const NAT *counts = static_cast<const NAT *>(bins.DATA);
    return std::max_element(counts, counts + bins.LENGTH) - counts;
}

template PIXEL_LIMITS GETLIMITS(const CANVAS<BYTE> &, const PIXEL_AREA &);
template PIXEL_LIMITS GETLIMITS(const CANVAS<WORD> &, const PIXEL_AREA &);
template NAT COUNT(const CANVAS<BYTE> &, NAT, NAT, const PIXEL_AREA &);
template NAT COUNT(const CANVAS<WORD> &, NAT, NAT, const PIXEL_AREA &);
template NAT SUM(const CANVAS<BYTE> &, NAT, NAT, const PIXEL_AREA &);
template NAT SUM(const CANVAS<WORD> &, NAT, NAT, const PIXEL_AREA &);
template void HISTOGRAM(const CANVAS<BYTE> &, TPOLYNAT &);
template void HISTOGRAM(const CANVAS<WORD> &, TPOLYNAT &);
template NAT GETBACKGROUND(const CANVAS<BYTE> &);
template NAT GETBACKGROUND(const CANVAS<WORD> &);
} // namespace morvane
