#include "orientation/scan/line_statistic.hpp"

#include "foundation/container/poly_statistics.hpp"

#include <algorithm>

namespace morvane {
namespace {
NAT Sum(const NAT *samples, NAT count) {
    NAT sum = 0;
    for (NAT i = 0; i < count; ++i)
        sum += samples[i];
    return sum;
}

REAL StandardDeviation(const NAT *samples, NAT count) {
    NAT sum = 0, squares = 0; // a square has 32 bits and a line below 2^18 samples
    for (NAT i = 0; i < count; ++i) {
        sum += samples[i];
        squares += samples[i] * samples[i];
    }
    return NATSD(count, sum, squares);
}

// The element at a 1-based sorted position; position 0 reads 0.
NAT Sorted(NAT *samples, NAT count, NAT position) {
    if (position < 1) return 0;
    std::nth_element(samples, samples + position - 1, samples + count);
    return samples[position - 1];
}
} // namespace

REAL LINE_STATISTIC(BYTE subMethod, NAT *samples, NAT count) {
    if (count < 1) return 0;
    switch (subMethod) {
    case 0: return static_cast<REAL>(Sum(samples, count));
    case 1: return NATMEAN(count, Sum(samples, count));
    case 3: return static_cast<REAL>(*std::min_element(samples, samples + count));
    case 4:
    case 5:
    case 6: return static_cast<REAL>(Sorted(samples, count, RANK_POSITION(subMethod, count)));
    case 7: return static_cast<REAL>(*std::max_element(samples, samples + count));
    default: return StandardDeviation(samples, count);
    }
}
} // namespace morvane
