#include "field3d/raster/values.hpp"

#include "foundation/base/safe_arithmetic.hpp"

#include <algorithm>

namespace morvane {
namespace {
template <class VOXEL> constexpr bool IS_BIT = std::is_same_v<VOXEL, bool>;
template <class VOXEL> constexpr NAT MAXIMUM = VOXEL_KIND<VOXEL>::MAXIMUM;

// f(first voxel, count) for every row of the window, as it lies in memory.
template <class RASTER_TYPE, class F> void FOR_ROWS(RASTER_TYPE &raster, F f) {
    const BOX &box = raster.window;
    const NAT length = box.x2 - box.x1 + 1;
    if (raster.EMPTY() || length < 1) return;
    for (NAT z = box.z1; z <= box.z2; ++z)
        for (NAT y = box.y1; y <= box.y2; ++y)
            f(raster.VOXELS() + (raster.INDEX(box.x1, y, z) - 1), length);
}

template <class VOXEL> struct INTERVAL { VOXEL low, high; };
// The part of low..high that voxels can have; an inverted interval when there is none.
template <class VOXEL> INTERVAL<VOXEL> INSIDE_RANGE(NAT low, NAT high) {
    if (low > high || low > MAXIMUM<VOXEL> || high < 0) return {1, 0};
    return {static_cast<VOXEL>(std::max<NAT>(low, 0)),
            static_cast<VOXEL>(std::min(high, MAXIMUM<VOXEL>))};
}

void REPLACE_BITS(T3DMONO &raster, NAT low, NAT high, bool value) {
    const BOX &box = raster.window;
    for (NAT z = box.z1; z <= box.z2; ++z)
        for (NAT y = box.y1; y <= box.y2; ++y)
            for (NAT x = box.x1; x <= box.x2; ++x)
                if (const NAT old = raster._GET(x, y, z) ? 1 : 0; low <= old && old <= high)
                    raster._PUT(x, y, z, value);
}

// Adds `count` voxels to the bins. Four tables in turn, so that runs of equal values don't wait for
// one another's counter.
template <class VOXEL> void ADD_TO_BINS(const VOXEL *voxels, NAT count, TPOLYNAT &bins) {
    constexpr NAT size = MAXIMUM<VOXEL> + 1;
    TPOLYNAT tables(4 * size);
    if (tables.LENGTH == 0) return;
    NAT *const table = tables.ELEMENTS();
    NAT i = 0;
    for (; i + 4 <= count; i += 4)
        for (NAT lane = 0; lane < 4; ++lane)
            ++table[lane * size + voxels[i + lane]];
    for (; i < count; ++i)
        ++table[voxels[i]];
    for (NAT bin = 0; bin < size; ++bin)
        bins.ELEMENTS()[bin] +=
            table[bin] + table[bin + size] + table[bin + 2 * size] + table[bin + 3 * size];
}

// An empty list for fields without bins; else all bins, zero. True when there is work.
template <class VOXEL> bool PREPARE_BINS(const RASTER<VOXEL> &raster, TPOLYNAT &bins) {
    bins.DONE();
    if (IS_BIT<VOXEL> || raster.EMPTY()) return false;
    bins.INIT(MAXIMUM<VOXEL> + 1);
    return bins.LENGTH > 0;
}
} // namespace

template <class VOXEL> LIMITSNAT GETLIMITS(const RASTER<VOXEL> &raster) {
    if constexpr (IS_BIT<VOXEL>) {
        return {0, 1, 1};
    } else {
        constexpr VOXEL top = static_cast<VOXEL>(MAXIMUM<VOXEL>);
        VOXEL low = top, low0 = top, high = 0;
        FOR_ROWS(raster, [&](const VOXEL *row, NAT length) {
            for (NAT i = 0; i < length; ++i) {
                low = std::min(low, row[i]);
                high = std::max(high, row[i]);
                low0 = std::min(low0, row[i] == 0 ? top : row[i]);
            }
        });
        return {low, low0, high};
    }
}

template <class VOXEL> NAT COUNT_RANGE(const RASTER<VOXEL> &raster, NAT low, NAT high) {
    // Deliberate: a 1-bit field has no grey values and answers 0, even when voxels are set.
    if constexpr (IS_BIT<VOXEL>) {
        return 0;
    } else {
        const auto range = INSIDE_RANGE<VOXEL>(low, high);
        NAT count = 0;
        FOR_ROWS(raster, [&](const VOXEL *row, NAT length) {
            for (NAT i = 0; i < length; ++i)
                count += row[i] >= range.low && row[i] <= range.high;
        });
        return count;
    }
}

template <class VOXEL> NAT SUM_RANGE(const RASTER<VOXEL> &raster, NAT low, NAT high) {
    if constexpr (IS_BIT<VOXEL>) {
        return 0;
    } else {
        const auto range = INSIDE_RANGE<VOXEL>(low, high);
        NAT sum = 0;
        FOR_ROWS(raster, [&](const VOXEL *row, NAT length) {
            for (NAT i = 0; i < length; ++i)
                sum += row[i] >= range.low && row[i] <= range.high ? row[i] : 0;
        });
        return sum;
    }
}

template <class VOXEL> bool IFPLAIN(const RASTER<VOXEL> &raster) {
    if (raster.EMPTY()) return false;
    const NAT count = raster.COUNT();
    const VOXEL first = raster._GETINDEX(1);
    for (NAT i = 2; i <= count; ++i)
        if (raster._GETINDEX(i) != first) return false;
    return true;
}

template <class VOXEL> void REPLACE_RANGE(RASTER<VOXEL> &raster, NAT low, NAT high, NAT value) {
    const NAT first = LIMIT(low, NAT{0}, MAXIMUM<VOXEL>);
    const NAT last = LIMIT(high, NAT{0}, MAXIMUM<VOXEL>);
    const NAT limited = LIMIT(value, NAT{0}, MAXIMUM<VOXEL>);
    if (low > high) return;
    if constexpr (IS_BIT<VOXEL>) {
        REPLACE_BITS(raster, first, last, limited != 0);
    } else {
        const auto a = static_cast<VOXEL>(first), b = static_cast<VOXEL>(last);
        FOR_ROWS(raster, [&](VOXEL *row, NAT length) {
            for (NAT i = 0; i < length; ++i)
                row[i] = row[i] >= a && row[i] <= b ? static_cast<VOXEL>(limited) : row[i];
        });
    }
}

template <class VOXEL> void SETRANGE(RASTER<VOXEL> &raster, const TPOLYNAT &table) {
    if constexpr (!IS_BIT<VOXEL>) {
        if (table.LENGTH != MAXIMUM<VOXEL> + 1) return;
        TPOLY_OF<VOXEL> map(table.LENGTH);
        if (map.LENGTH != table.LENGTH) return;
        for (NAT i = 1; i <= map.LENGTH; ++i)
            map._PUT(i, static_cast<VOXEL>(LIMIT(table._GET(i), NAT{0}, MAXIMUM<VOXEL>)));
        FOR_ROWS(raster, [&](VOXEL *row, NAT length) {
            for (NAT i = 0; i < length; ++i)
                row[i] = map.ELEMENTS()[row[i]];
        });
    }
}

template <class VOXEL> void INVERT(RASTER<VOXEL> &raster) {
    using ELEMENT = typename RASTER<VOXEL>::ELEMENT;
    ELEMENT *elements = raster.VOXELS();
    for (NAT i = 0; i < raster.ELEMENTS(); ++i)
        elements[i] = static_cast<ELEMENT>(~elements[i]);
}

template <class VOXEL> void HISTOGRAM(const RASTER<VOXEL> &raster, TPOLYNAT &bins) {
    if (!PREPARE_BINS(raster, bins)) return;
    if constexpr (!IS_BIT<VOXEL>) {
        const BOX &box = raster.window;
        const bool whole = box.x2 - box.x1 + 1 == raster.SIZEX &&
                           box.y2 - box.y1 + 1 == raster.SIZEY &&
                           box.z2 - box.z1 + 1 == raster.SIZEZ;
        if (whole) return ADD_TO_BINS(raster.VOXELS(), raster.COUNT(), bins);
        FOR_ROWS(raster, [&](const VOXEL *row, NAT length) {
            for (NAT i = 0; i < length; ++i)
                ++*bins._INDEX(row[i] + 1);
        });
    }
}

template <class VOXEL>
void HISTOGRAM_FAST(const RASTER<VOXEL> &raster, TPOLYNAT &bins, RANDOM_STREAM &random) {
    if (!PREPARE_BINS(raster, bins)) return;
    if constexpr (!IS_BIT<VOXEL>) {
        const NAT slice = raster.SIZEX * raster.SIZEY;
        const NAT wanted = std::max<NAT>(4096 / slice, 3);
        if (wanted >= raster.SIZEZ) return ADD_TO_BINS(raster.VOXELS(), raster.COUNT(), bins);
        for (NAT i = 0; i < wanted; ++i) {
            const NAT z = random.BELOW(raster.SIZEZ) + 1;
            ADD_TO_BINS(raster.VOXELS() + (z - 1) * slice, slice, bins);
        }
    }
}

template LIMITSNAT GETLIMITS(const RASTER<bool> &);
template NAT COUNT_RANGE(const RASTER<bool> &, NAT, NAT);
template NAT SUM_RANGE(const RASTER<bool> &, NAT, NAT);
template bool IFPLAIN(const RASTER<bool> &);
template void REPLACE_RANGE(RASTER<bool> &, NAT, NAT, NAT);
template void SETRANGE(RASTER<bool> &, const TPOLYNAT &);
template void INVERT(RASTER<bool> &);
template void HISTOGRAM(const RASTER<bool> &, TPOLYNAT &);
template void HISTOGRAM_FAST(const RASTER<bool> &, TPOLYNAT &, RANDOM_STREAM &);

template LIMITSNAT GETLIMITS(const RASTER<BYTE> &);
template NAT COUNT_RANGE(const RASTER<BYTE> &, NAT, NAT);
template NAT SUM_RANGE(const RASTER<BYTE> &, NAT, NAT);
template bool IFPLAIN(const RASTER<BYTE> &);
template void REPLACE_RANGE(RASTER<BYTE> &, NAT, NAT, NAT);
template void SETRANGE(RASTER<BYTE> &, const TPOLYNAT &);
template void INVERT(RASTER<BYTE> &);
template void HISTOGRAM(const RASTER<BYTE> &, TPOLYNAT &);
template void HISTOGRAM_FAST(const RASTER<BYTE> &, TPOLYNAT &, RANDOM_STREAM &);

template LIMITSNAT GETLIMITS(const RASTER<WORD> &);
template NAT COUNT_RANGE(const RASTER<WORD> &, NAT, NAT);
template NAT SUM_RANGE(const RASTER<WORD> &, NAT, NAT);
template bool IFPLAIN(const RASTER<WORD> &);
template void REPLACE_RANGE(RASTER<WORD> &, NAT, NAT, NAT);
template void SETRANGE(RASTER<WORD> &, const TPOLYNAT &);
template void INVERT(RASTER<WORD> &);
template void HISTOGRAM(const RASTER<WORD> &, TPOLYNAT &);
template void HISTOGRAM_FAST(const RASTER<WORD> &, TPOLYNAT &, RANDOM_STREAM &);
} // namespace morvane
