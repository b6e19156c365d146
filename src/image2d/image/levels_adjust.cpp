#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "image2d/filter/adjust.hpp"
#include "image2d/image/channels.hpp"
#include "image2d/image/levels.hpp"

#include <algorithm>
#include <utility>

// Stretching of values, by the extremes or by shares of the histogram.
namespace morvane {
namespace {
// Bounds are shares of counts: 29 % of 100 pixels is 29.
constexpr REAL SLACK = 1e-9;

// The first value with more than that share of the pixels at or below it.
NAT LowBound(const TPOLYNAT &bins, REAL share) {
    const REAL limit = share * static_cast<REAL>(bins.SUM()) + SLACK;
    NAT count = 0;
    for (NAT i = 1; i <= bins.LENGTH; ++i) {
        count += bins._GET(i);
        if (static_cast<REAL>(count) > limit) return i - 1;
    }
    return bins.LENGTH - 1;
}

// The last value with more than that share at or above it.
NAT HighBound(const TPOLYNAT &bins, REAL share) {
    const REAL limit = share * static_cast<REAL>(bins.SUM()) + SLACK;
    NAT count = 0;
    for (NAT i = bins.LENGTH; i >= 1; --i) {
        count += bins._GET(i);
        if (static_cast<REAL>(count) > limit) return i - 1;
    }
    return 0;
}

template <class PIXEL> void Stretch(CANVAS<PIXEL> &plane, NAT low, NAT high) {
    if (low < high) ADJUST_LINEAR(plane, low, high, 0, CANVAS<PIXEL>::MAXIMUM);
}

// f(plane, bins) for each plane that has pixels.
template <class F> void WithHistogram(TIMAGE &image, F &&f) {
    if (!image.ISNOTEMPTY()) return;
    VALUEPLANES(image, [&](auto &plane) {
        TPOLYNAT bins;
        HISTOGRAM(plane, bins);
        if (bins.LENGTH > 0) f(plane, bins);
    });
}

// The bounds of a soft stretch, in ascending order, and the share of the range at its ends.
struct SOFT_BOUNDS {
    NAT outerLow, innerLow, innerHigh, outerHigh;
};

REAL Part(NAT v, NAT low, NAT high) {
    return DIVIDE(static_cast<REAL>(v - low), static_cast<REAL>(high - low));
}

NAT Softened(NAT v, const SOFT_BOUNDS &b, NAT largest) {
    constexpr NAT ENDS = 16;
    const NAT knee = largest / ENDS;
    const REAL end = static_cast<REAL>(knee), middle = static_cast<REAL>(largest - 2 * knee);
    if (v < b.outerLow) return 0;
    if (v > b.outerHigh) return largest;
    if (v < b.innerLow) return ROUND(end * Part(v, b.outerLow, b.innerLow));
    if (v <= b.innerHigh) return knee + ROUND(middle * Part(v, b.innerLow, b.innerHigh));
    return largest - knee + ROUND(end * Part(v, b.innerHigh, b.outerHigh));
}

template <class PIXEL> void StretchSoftly(CANVAS<PIXEL> &plane, const SOFT_BOUNDS &bounds) {
    constexpr NAT LARGEST = CANVAS<PIXEL>::MAXIMUM;
    TPOLYNAT table;
    table.INIT(LARGEST + 1);
    for (NAT v = 0; v < table.LENGTH; ++v)
        table._PUT(v + 1, Softened(v, bounds, LARGEST));
    SETRANGE(plane, plane.WHOLE(), table);
}
} // namespace

void ADJUST(TIMAGE &image) {
    image._PLANES([](auto &plane) { ADJUST(plane, plane.WHOLE()); });
}

void ADJUST_LINEAR(TIMAGE &image, const COMPLEXNAT &from, const COMPLEXNAT &to) {
    if (from.x == from.y) return;
    VALUEPLANES(image, [&](auto &plane) { ADJUST_LINEAR(plane, from.x, from.y, to.x, to.y); });
}

void ADJUST_PERCENTAGE(TIMAGE &image, REAL low, REAL high) {
    WithHistogram(image, [&](auto &plane, const TPOLYNAT &bins) {
        Stretch(plane, LowBound(bins, low), HighBound(bins, high));
    });
}

void ADJUST_WEAK(TIMAGE &image, const SOFT_SHARES &shares) {
    // Plain pairs: clang before 16 takes no structured bindings into a lambda.
    const std::pair<REAL, REAL> low = std::minmax({shares.innerLow, shares.outerLow});
    const std::pair<REAL, REAL> high = std::minmax({shares.innerHigh, shares.outerHigh});
    WithHistogram(image, [&](auto &plane, const TPOLYNAT &bins) {
        const SOFT_BOUNDS bounds{LowBound(bins, low.first), LowBound(bins, low.second),
                                 HighBound(bins, high.second), HighBound(bins, high.first)};
        if (bounds.innerLow < bounds.innerHigh) StretchSoftly(plane, bounds);
    });
}

void ADJUST_OUTLIERS(TIMAGE &image) {
    constexpr REAL QUARTER = 0.25;
    WithHistogram(image, [&](auto &plane, const TPOLYNAT &bins) {
        const PIXEL_LIMITS limits = GETLIMITS(plane);
        const NAT lower = LowBound(bins, QUARTER), higher = HighBound(bins, QUARTER);
        const NAT reach = ROUND(QUARTER * static_cast<REAL>(higher - lower));
        Stretch(plane, std::max(lower - reach, NAT{limits.min}),
                std::min(higher + reach, NAT{limits.max}));
    });
}
} // namespace morvane
