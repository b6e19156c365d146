#include "orientation/scan/line_statistic.hpp"
#include "orientation/scan/scan_kernel.hpp"

#if defined(__x86_64__)
#include <immintrin.h>

#include <algorithm>
#include <bit>
#include <limits>

// Minimum, quartiles, median and maximum of the lines of many centres at once: the samples of a
// line are sorted by a network of minima and maxima, all centres side by side.
namespace morvane {
namespace {
// 32 bytes, one for each centre.
struct BYTES {
    using STORED = std::int8_t;
    static constexpr NAT COUNT = 32;
    static __m256i MIN(__m256i a, __m256i b) { return _mm256_min_epi8(a, b); }
    static __m256i MAX(__m256i a, __m256i b) { return _mm256_max_epi8(a, b); }
    static __m256i EQUAL(__m256i a, __m256i b) { return _mm256_cmpeq_epi8(a, b); }
    static __m256i SUB(__m256i a, __m256i b) { return _mm256_sub_epi8(a, b); }
    static __m256i ALL(STORED value) { return _mm256_set1_epi8(value); }
    static constexpr STORED ZERO = NARROW_ZERO;
};
// 16 words.
struct WORDS {
    using STORED = std::int16_t;
    static constexpr NAT COUNT = 16;
    static __m256i MIN(__m256i a, __m256i b) { return _mm256_min_epi16(a, b); }
    static __m256i MAX(__m256i a, __m256i b) { return _mm256_max_epi16(a, b); }
    static __m256i EQUAL(__m256i a, __m256i b) { return _mm256_cmpeq_epi16(a, b); }
    static __m256i SUB(__m256i a, __m256i b) { return _mm256_sub_epi16(a, b); }
    static __m256i ALL(STORED value) { return _mm256_set1_epi16(value); }
    static constexpr STORED ZERO = WIDE_ZERO;
};

struct LINE {
    const std::int32_t *forward, *backward;
    NAT n;
};
// The samples of one line, a register each, and how many of them each centre has.
template <class KIND> struct SAMPLES {
    __m256i rows[LONGEST_LINE];
    alignas(32) typename KIND::STORED counts[KIND::COUNT];

    const typename KIND::STORED *ROW(NAT position) const {
        return reinterpret_cast<const typename KIND::STORED *>(rows + position - 1);
    }
};

__m256i Load(const void *row) { return _mm256_loadu_si256(static_cast<const __m256i *>(row)); }

// Merge exchange (Knuth, The Art of Computer Programming 3, 5.2.2, algorithm M).
template <class KIND> void Sort(__m256i *rows, NAT n) {
    if (n < 2) return;
    const NAT top = static_cast<NAT>(std::bit_ceil(static_cast<std::uint64_t>(n)) / 2);
    for (NAT p = top; p > 0; p /= 2) {
        NAT q = top, r = 0, d = p;
        while (true) {
            for (NAT i = 0; i + d < n; ++i) {
                if ((i & p) != r) continue;
                const __m256i a = rows[i], b = rows[i + d];
                rows[i] = KIND::MIN(a, b);
                rows[i + d] = KIND::MAX(a, b);
            }
            if (q == p) break;
            d = q - p;
            q /= 2;
            r = p;
        }
    }
}

// All samples, zeros or not; true when a wanted centre has none that is zero.
template <class KIND>
bool ReadWhole(const typename KIND::STORED *centres, const LINE &line, __m256i wanted,
               __m256i *rows) {
    __m256i least = KIND::ALL(std::numeric_limits<typename KIND::STORED>::max());
    for (NAT s = 0; s < line.n; ++s) {
        rows[s] = Load(centres + line.forward[s]);
        least = KIND::MIN(least, rows[s]);
    }
    return _mm256_testz_si256(KIND::EQUAL(least, KIND::ALL(KIND::ZERO)), wanted) != 0;
}

// The runs of non-zero samples. The others become the largest value, so that they are sorted
// behind.
template <class KIND>
void ReadRuns(const typename KIND::STORED *centres, const LINE &line, SAMPLES<KIND> &samples) {
    const __m256i zero = KIND::ALL(KIND::ZERO);
    const __m256i behind = KIND::ALL(std::numeric_limits<typename KIND::STORED>::max());
    const __m256i zero1 = KIND::EQUAL(Load(centres + line.forward[0]), zero);
    const __m256i zero2 = KIND::EQUAL(Load(centres + line.backward[0]), zero);
    const __m256i back = _mm256_andnot_si256(zero2, zero1);
    __m256i leading = _mm256_set1_epi32(-1), ended = _mm256_setzero_si256();
    __m256i skipped = _mm256_setzero_si256();
    for (NAT s = 0; s < line.n; ++s) {
        const __m256i x = _mm256_blendv_epi8(Load(centres + line.forward[s]),
                                             Load(centres + line.backward[s]), back);
        const __m256i isZero = KIND::EQUAL(x, zero);
        leading = _mm256_and_si256(leading, isZero);
        const __m256i skip = _mm256_or_si256(ended, isZero);
        ended = _mm256_or_si256(ended, _mm256_andnot_si256(leading, isZero));
        samples.rows[s] = _mm256_blendv_epi8(x, behind, skip);
        skipped = KIND::SUB(skipped, skip); // one more
    }
    const auto n = static_cast<typename KIND::STORED>(line.n);
    _mm256_store_si256(reinterpret_cast<__m256i *>(samples.counts),
                       KIND::SUB(KIND::ALL(n), skipped));
}

// A centre's number of samples: bytes hold up to 255.
NAT CountOf(std::int8_t count) { return static_cast<std::uint8_t>(count); }
NAT CountOf(std::int16_t count) { return count; }

template <class KIND> class RANKS {
public:
    RANKS(const SCAN_TASK &scanTask, NAT firstLane) : task(scanTask), first(firstLane) {}

    void RUN() {
        const auto *centres = static_cast<const STORED *>(task.centres) + first;
        STORED mask[KIND::COUNT];
        for (NAT i = 0; i < KIND::COUNT; ++i)
            mask[i] = static_cast<STORED>(task.wanted >> (first + i) & 1 ? -1 : 0);
        const __m256i wanted = Load(mask);
        for (NAT k = 0; k < task.lines.count; ++k) {
            const std::uint32_t begin = task.lines.begins[k];
            const LINE line{task.lines.forward + begin, task.lines.backward + begin,
                            task.lines.begins[k + 1] - NAT{begin}};
            if (line.n < task.r || line.n < 1) {
                PUT(k, [](NAT) { return INFINITE; });
            } else if (ReadWhole<KIND>(centres, line, wanted, samples.rows)) {
                FINISH_WHOLE(k, line.n);
            } else {
                ReadRuns(centres, line, samples);
                Sort<KIND>(samples.rows, line.n);
                PUT(k, [this](NAT i) { return VALUE(i); });
            }
        }
    }

private:
    using STORED = typename KIND::STORED;
    static constexpr float INFINITE = std::numeric_limits<float>::infinity();

    void FINISH_WHOLE(NAT k, NAT n) {
        const NAT position = RANK_POSITION(task.statistic, n);
        if (position < 1) return PUT(k, [](NAT) { return 0.0F; });
        if (position == 1 || position == n)
            FIND_END(position, n);
        else
            Sort<KIND>(samples.rows, n);
        const STORED *row = samples.ROW(position);
        PUT(k, [row, this](NAT i) { return static_cast<float>(row[i] + task.shift); });
    }
    // Minimum or maximum needs no sorting: it is gathered in its place.
    void FIND_END(NAT position, NAT n) {
        __m256i end = samples.rows[0];
        for (NAT s = 1; s < n; ++s)
            end = position == 1 ? KIND::MIN(end, samples.rows[s]) : KIND::MAX(end, samples.rows[s]);
        samples.rows[position - 1] = end;
    }
    float VALUE(NAT i) const {
        const NAT count = CountOf(samples.counts[i]);
        if (count < task.r || count < 1) return INFINITE;
        const NAT position = RANK_POSITION(task.statistic, count);
        return position < 1 ? 0 : static_cast<float>(samples.ROW(position)[i] + task.shift);
    }
    template <class VALUE_OF> void PUT(NAT k, const VALUE_OF &valueOf) {
        float *values = task.values + k * SCAN_LANES + first;
        float *best = task.best + first;
        std::int32_t *scanned = task.scanned + first;
        for (NAT i = 0; i < KIND::COUNT; ++i) {
            values[i] = valueOf(i);
            best[i] = std::min(best[i], values[i]);
            scanned[i] += values[i] < INFINITE;
        }
    }

    const SCAN_TASK &task;
    NAT first;
    SAMPLES<KIND> samples;
};
} // namespace

void avx2::NARROW_RANKS(const SCAN_TASK &task) { RANKS<BYTES>(task, 0).RUN(); }

void avx2::WIDE_RANKS(const SCAN_TASK &task) {
    RANKS<WORDS>(task, 0).RUN();
    RANKS<WORDS>(task, 16).RUN();
}
} // namespace morvane
#endif
