#include "orientation/scan/scan_kernel.hpp"

#include "foundation/thread/processor.hpp"
#include "orientation/scan/line_statistic.hpp"

#include <algorithm>
#include <cmath>
#include <limits>
#include <type_traits>

namespace morvane {
namespace {
constexpr BYTE IN_ORDER[SCAN_LANES] = {0,  1,  2,  3,  4,  5,  6,  7,  8,  9,  10,
                                       11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21,
                                       22, 23, 24, 25, 26, 27, 28, 29, 30, 31};

// The sums of 32 lines. Squares of int8 samples fit 32 bits for every line, those of int16 do not.
template <class STORED> struct SUMS {
    using SQUARE = std::conditional_t<sizeof(STORED) == 1, std::int32_t, NAT>;
    std::int32_t sums[SCAN_LANES], counts[SCAN_LANES];
    SQUARE squares[SCAN_LANES];
    static constexpr STORED ZERO =
        static_cast<STORED>(sizeof(STORED) == 1 ? NAT{NARROW_ZERO} : NAT{WIDE_ZERO});

    void CLEAR(NAT samples) {
        for (NAT i = 0; i < SCAN_LANES; ++i) {
            sums[i] = 0;
            squares[i] = 0;
            counts[i] = static_cast<std::int32_t>(samples);
        }
    }
    void ADD(const STORED *row) {
        for (NAT i = 0; i < SCAN_LANES; ++i) {
            const std::int32_t x = row[i];
            sums[i] += x;
            squares[i] += static_cast<SQUARE>(x) * x;
        }
    }
};

template <class STORED> bool AnyZero(const SCAN_TASK &task, const std::int32_t *offsets, NAT n) {
    const STORED *centres = static_cast<const STORED *>(task.centres);
    STORED least[SCAN_LANES];
    std::copy_n(centres + offsets[0], SCAN_LANES, least);
    for (NAT s = 1; s < n; ++s) {
        const STORED *row = centres + offsets[s];
        for (NAT i = 0; i < SCAN_LANES; ++i)
            least[i] = std::min(least[i], row[i]);
    }
    std::uint32_t zero = 0;
    for (NAT i = 0; i < SCAN_LANES; ++i)
        zero |= static_cast<std::uint32_t>(least[i] == SUMS<STORED>::ZERO) << i;
    return (zero & task.wanted) != 0;
}

// The run of one lane, from the end where it begins.
template <class STORED>
void AddRun(SUMS<STORED> &sums, const STORED *centre, NAT lane, const std::int32_t *forward,
            const std::int32_t *backward, NAT n) {
    constexpr STORED ZERO = SUMS<STORED>::ZERO;
    const bool back = centre[forward[0]] == ZERO && centre[backward[0]] != ZERO;
    const std::int32_t *offsets = back ? backward : forward;
    NAT s = 0;
    while (s < n && centre[offsets[s]] == ZERO)
        ++s;
    for (; s < n && centre[offsets[s]] != ZERO; ++s) {
        const std::int32_t x = centre[offsets[s]];
        sums.sums[lane] += x;
        sums.squares[lane] += static_cast<typename SUMS<STORED>::SQUARE>(x) * x;
        ++sums.counts[lane];
    }
}

template <class STORED> float Value(const SCAN_TASK &task, const SUMS<STORED> &sums, NAT lane) {
    const NAT n = sums.counts[lane], sum = sums.sums[lane];
    if (task.moment == SCAN_MOMENT::SUM) return static_cast<float>(sum + n * task.shift);
    if (task.moment == SCAN_MOMENT::MEAN)
        return static_cast<float>(sum + n * task.shift) / static_cast<float>(std::max(n, NAT{1}));
    const NAT spread = n * sums.squares[lane] - sum * sum;
    return static_cast<float>(spread) / static_cast<float>(std::max(n * (n - 1), NAT{1}));
}

template <class STORED> void Finish(const SCAN_TASK &task, const SUMS<STORED> &sums, NAT k) {
    float *values = task.values + k * SCAN_LANES;
    for (NAT i = 0; i < SCAN_LANES; ++i) {
        const bool isLong = sums.counts[i] >= task.r;
        values[i] = isLong ? Value(task, sums, i) : std::numeric_limits<float>::infinity();
        task.best[i] = std::min(task.best[i], values[i]);
        task.scanned[i] += isLong;
    }
}

// The exact value of one lane by its run; `samples` has room for the line.
template <class STORED>
float RankOf(const SCAN_TASK &task, const STORED *centre, NAT k, STORED *samples) {
    constexpr STORED ZERO = SUMS<STORED>::ZERO;
    const std::int32_t *forward = task.lines.forward + task.lines.begins[k];
    const std::int32_t *backward = task.lines.backward + task.lines.begins[k];
    const NAT n = task.lines.begins[k + 1] - NAT{task.lines.begins[k]};
    NAT s = 0, count = 0;
    if (n > 0 && centre[forward[0]] == ZERO && centre[backward[0]] != ZERO) forward = backward;
    while (s < n && centre[forward[s]] == ZERO)
        ++s;
    for (; s < n && centre[forward[s]] != ZERO; ++s)
        samples[count++] = centre[forward[s]];
    if (count < task.r || count < 1) return std::numeric_limits<float>::infinity();
    const NAT position = RANK_POSITION(task.statistic, count);
    if (position < 1) return 0;
    std::nth_element(samples, samples + position - 1, samples + count);
    return static_cast<float>(samples[position - 1] + task.shift);
}

template <class STORED> void Ranks(const SCAN_TASK &task) {
    const STORED *centres = static_cast<const STORED *>(task.centres);
    STORED samples[LONGEST_LINE];
    for (NAT k = 0; k < task.lines.count; ++k)
        for (NAT i = 0; i < SCAN_LANES; ++i) {
            const bool wanted = (task.wanted >> i & 1) != 0;
            const float value = wanted ? RankOf(task, centres + i, k, samples)
                                       : std::numeric_limits<float>::infinity();
            task.values[k * SCAN_LANES + i] = value;
            task.best[i] = std::min(task.best[i], value);
            task.scanned[i] += std::isfinite(value);
        }
}

template <class STORED> void Lines(const SCAN_TASK &task) {
    const STORED *centres = static_cast<const STORED *>(task.centres);
    std::fill_n(task.best, SCAN_LANES, std::numeric_limits<float>::infinity());
    std::fill_n(task.scanned, SCAN_LANES, 0);
    if (task.moment == SCAN_MOMENT::RANK) return Ranks<STORED>(task);
    SUMS<STORED> sums;
    for (NAT k = 0; k < task.lines.count; ++k) {
        const std::int32_t *forward = task.lines.forward + task.lines.begins[k];
        const std::int32_t *backward = task.lines.backward + task.lines.begins[k];
        const NAT n = task.lines.begins[k + 1] - NAT{task.lines.begins[k]};
        if (n > 0 && task.zeros && AnyZero<STORED>(task, forward, n)) {
            sums.CLEAR(0);
            for (NAT i = 0; i < SCAN_LANES; ++i)
                if (task.wanted >> i & 1) AddRun(sums, centres + i, i, forward, backward, n);
        } else {
            sums.CLEAR(n);
            for (NAT s = 0; s < n; ++s)
                sums.ADD(centres + forward[s]);
        }
        Finish(task, sums, k);
    }
}

void Select(const float *values, NAT count, const float *limits, std::uint32_t *masks) {
    for (NAT k = 0; k < count; ++k) {
        std::uint32_t mask = 0;
        for (NAT i = 0; i < SCAN_LANES; ++i)
            mask |= static_cast<std::uint32_t>(values[k * SCAN_LANES + i] <= limits[i]) << i;
        masks[k] = mask;
    }
}
} // namespace

const SCAN_KERNEL plain::KERNEL{Lines<std::int8_t>, Lines<std::int16_t>, Select, IN_ORDER,
                                IN_ORDER};

const SCAN_KERNEL &FASTEST_SCAN_KERNEL() {
#if defined(__x86_64__)
    static const SCAN_KERNEL &kernel = PROCESSOR().IS_AVX2 ? avx2::KERNEL : plain::KERNEL;
    return kernel;
#else
    return plain::KERNEL;
#endif
}
} // namespace morvane
