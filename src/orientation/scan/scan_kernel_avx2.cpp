#include "orientation/scan/scan_kernel.hpp"

#if defined(__x86_64__)
#include <immintrin.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace morvane {
namespace {
// Unpacking works in the two halves of a register, so the sums of a centre end in these slots.
constexpr BYTE NARROW_LANES[SCAN_LANES] = {0,  1,  2,  3,  16, 17, 18, 19, 4,  5,  6,
                                           7,  20, 21, 22, 23, 8,  9,  10, 11, 24, 25,
                                           26, 27, 12, 13, 14, 15, 28, 29, 30, 31};
constexpr BYTE WIDE_LANES[SCAN_LANES] = {0,  1,  2,  3,  8,  9,  10, 11, 4,  5,  6,
                                         7,  12, 13, 14, 15, 16, 17, 18, 19, 24, 25,
                                         26, 27, 20, 21, 22, 23, 28, 29, 30, 31};

// f(0) to f(COUNT - 1), unrolled, so that arrays of registers stay registers.
template <NAT... I, class F> void UnrollList(std::integer_sequence<NAT, I...>, const F &f) {
    (f(std::integral_constant<NAT, I>{}), ...);
}
template <NAT COUNT, class F> void Unroll(const F &f) {
    UnrollList(std::make_integer_sequence<NAT, COUNT>{}, f);
}

// 32 bytes or 16 words, one for each centre.
struct LANES {
    __m256i v = _mm256_setzero_si256();

    static LANES LOAD(const void *row) {
        return {_mm256_loadu_si256(static_cast<const __m256i *>(row))};
    }
    static LANES ALL() { return {_mm256_set1_epi32(-1)}; }
    // All ones in the lanes whose bit is set.
    template <class STORED> static LANES MASK(std::uint32_t bits) {
        STORED lanes[32 / sizeof(STORED)];
        for (STORED &lane : lanes) {
            lane = static_cast<STORED>(bits & 1 ? -1 : 0);
            bits >>= 1;
        }
        return LOAD(lanes);
    }
    template <class STORED> LANES MIN(LANES other) const {
        if constexpr (sizeof(STORED) == 1)
            return {_mm256_min_epi8(v, other.v)};
        else
            return {_mm256_min_epi16(v, other.v)};
    }
    template <class STORED> LANES ZEROS() const {
        if constexpr (sizeof(STORED) == 1)
            return {_mm256_cmpeq_epi8(v, _mm256_set1_epi8(NARROW_ZERO))};
        else
            return {_mm256_cmpeq_epi16(v, _mm256_set1_epi16(WIDE_ZERO))};
    }
    // One more in the lanes that are not skipped.
    template <class STORED> LANES COUNT(LANES skip) const {
        if constexpr (sizeof(STORED) == 1)
            return {_mm256_sub_epi8(v, skip.NOT().v)};
        else
            return {_mm256_sub_epi16(v, skip.NOT().v)};
    }
    // The lanes whose count is another.
    template <class STORED> LANES DIFFER(NAT count) const {
        if constexpr (sizeof(STORED) == 1)
            return LANES{_mm256_cmpeq_epi8(v, _mm256_set1_epi8(static_cast<char>(count)))}.NOT();
        else
            return LANES{_mm256_cmpeq_epi16(v, _mm256_set1_epi16(static_cast<short>(count)))}.NOT();
    }
    // Counts of register j of the sums, as 32-bit numbers in the order of its slots.
    template <class STORED> __m256i COUNTS(NAT j) const {
        const __m256i zero = _mm256_setzero_si256();
        __m256i words = v;
        if constexpr (sizeof(STORED) == 1)
            words = j < 2 ? _mm256_unpacklo_epi8(v, zero) : _mm256_unpackhi_epi8(v, zero);
        return j % 2 == 0 ? _mm256_unpacklo_epi16(words, zero) : _mm256_unpackhi_epi16(words, zero);
    }
    LANES AND(LANES other) const { return {_mm256_and_si256(v, other.v)}; }
    LANES OR(LANES other) const { return {_mm256_or_si256(v, other.v)}; }
    LANES ANDNOT(LANES other) const { return {_mm256_andnot_si256(v, other.v)}; } // other, not this
    LANES BLEND(LANES other, LANES mask) const { return {_mm256_blendv_epi8(v, other.v, mask.v)}; }
    LANES NOT() const { return {_mm256_xor_si256(v, ALL().v)}; }
    bool ANY() const { return !_mm256_testz_si256(v, v); }
    bool IS_ALL() const { return _mm256_testc_si256(v, ALL().v); }
};

__m256 Floats(__m256d low, __m256d high) {
    return _mm256_set_m128(_mm256_cvtpd_ps(high), _mm256_cvtpd_ps(low));
}
__m256d Low(__m256i v) { return _mm256_cvtepi32_pd(_mm256_castsi256_si128(v)); }
__m256d High(__m256i v) { return _mm256_cvtepi32_pd(_mm256_extracti128_si256(v, 1)); }
// n * squares - sum * sum in doubles, which hold all three exactly.
__m256d Spread(__m256d n, __m256d squares, __m256d sum) {
    return _mm256_sub_pd(_mm256_mul_pd(n, squares), _mm256_mul_pd(sum, sum));
}

// Sums over the samples of 32 lines of int8: a register of four samples of each of 8 centres goes
// into one multiply-add. The absolute values are below 128, so two of their squares fit 16 bits.
struct NARROW_SUMS {
    static constexpr NAT SAMPLES = 4, GROUPS = 4;
    __m256i squares[GROUPS], sums[GROUPS]; // 8 of 32 bits, 16 of 16 bits

    NARROW_SUMS() {
        Unroll<GROUPS>([this](auto j) { squares[j] = sums[j] = _mm256_setzero_si256(); });
    }
    void ADD(const LANES *rows) {
        const __m256i lowAb = _mm256_unpacklo_epi8(rows[0].v, rows[1].v);
        const __m256i highAb = _mm256_unpackhi_epi8(rows[0].v, rows[1].v);
        const __m256i lowCd = _mm256_unpacklo_epi8(rows[2].v, rows[3].v);
        const __m256i highCd = _mm256_unpackhi_epi8(rows[2].v, rows[3].v);
        ADD_GROUP(0, _mm256_unpacklo_epi16(lowAb, lowCd));
        ADD_GROUP(1, _mm256_unpackhi_epi16(lowAb, lowCd));
        ADD_GROUP(2, _mm256_unpacklo_epi16(highAb, highCd));
        ADD_GROUP(3, _mm256_unpackhi_epi16(highAb, highCd));
    }
    void ADD_GROUP(NAT j, __m256i x) {
        const __m256i size = _mm256_abs_epi8(x);
        const __m256i pairs = _mm256_maddubs_epi16(size, size);
        const __m256i square = _mm256_madd_epi16(pairs, _mm256_set1_epi16(1));
        const __m256i sum = _mm256_maddubs_epi16(_mm256_set1_epi8(1), x);
        squares[j] = _mm256_add_epi32(squares[j], square);
        sums[j] = _mm256_add_epi16(sums[j], sum);
    }
    __m256i SUM(NAT j) const { return _mm256_madd_epi16(sums[j], _mm256_set1_epi16(1)); }
    __m256 SPREAD(NAT j, __m256i n) const {
        const __m256i sum = SUM(j);
        return _mm256_cvtepi32_ps(
            _mm256_sub_epi32(_mm256_mullo_epi32(n, squares[j]), _mm256_mullo_epi32(sum, sum)));
    }
};

// The same of 16 lines of int16, two samples at a time, while 32 bits hold the sums of squares.
struct WIDE_SUMS {
    static constexpr NAT SAMPLES = 2, GROUPS = 2;
    __m256i squares[GROUPS], sums[GROUPS]; // 8 of 32 bits

    WIDE_SUMS() {
        Unroll<GROUPS>([this](auto j) { squares[j] = sums[j] = _mm256_setzero_si256(); });
    }
    void ADD(const LANES *rows) {
        ADD_GROUP(0, _mm256_unpacklo_epi16(rows[0].v, rows[1].v));
        ADD_GROUP(1, _mm256_unpackhi_epi16(rows[0].v, rows[1].v));
    }
    void ADD_GROUP(NAT j, __m256i x) {
        squares[j] = _mm256_add_epi32(squares[j], _mm256_madd_epi16(x, x));
        sums[j] = _mm256_add_epi32(sums[j], _mm256_madd_epi16(x, _mm256_set1_epi16(1)));
    }
    __m256i SUM(NAT j) const { return sums[j]; }
    __m256 SPREAD(NAT j, __m256i n) const {
        return Floats(Spread(Low(n), Low(squares[j]), Low(sums[j])),
                      Spread(High(n), High(squares[j]), High(sums[j])));
    }
};

// The same for all of int16: sums of squares in 64 bits, those of even and odd slots apart.
struct WIDEST_SUMS {
    static constexpr NAT SAMPLES = 2, GROUPS = 2;
    __m256i even[GROUPS], odd[GROUPS], sums[GROUPS];

    WIDEST_SUMS() {
        Unroll<GROUPS>([this](auto j) { even[j] = odd[j] = sums[j] = _mm256_setzero_si256(); });
    }
    void ADD(const LANES *rows) {
        ADD_GROUP(0, _mm256_unpacklo_epi16(rows[0].v, rows[1].v));
        ADD_GROUP(1, _mm256_unpackhi_epi16(rows[0].v, rows[1].v));
    }
    void ADD_GROUP(NAT j, __m256i x) {
        const __m256i square = _mm256_madd_epi16(x, x);
        const __m256i evenPart = _mm256_and_si256(square, _mm256_set1_epi64x(0xFFFFFFFF));
        even[j] = _mm256_add_epi64(even[j], evenPart);
        odd[j] = _mm256_add_epi64(odd[j], _mm256_srli_epi64(square, 32));
        sums[j] = _mm256_add_epi32(sums[j], _mm256_madd_epi16(x, _mm256_set1_epi16(1)));
    }
    // A whole number below 2^52 as a double.
    static __m256d REALS(__m256i whole) {
        const __m256d base = _mm256_set1_pd(4503599627370496.0); // 2^52
        const __m256i bits = _mm256_or_si256(whole, _mm256_castpd_si256(base));
        return _mm256_sub_pd(_mm256_castsi256_pd(bits), base);
    }
    __m256i SUM(NAT j) const { return sums[j]; }
    __m256 SPREAD(NAT j, __m256i n) const {
        const __m256d evens = REALS(even[j]), odds = REALS(odd[j]);
        const __m256d first = _mm256_unpacklo_pd(evens, odds);
        const __m256d second = _mm256_unpackhi_pd(evens, odds);
        const __m256d low = _mm256_permute2f128_pd(first, second, 0x20);
        const __m256d high = _mm256_permute2f128_pd(first, second, 0x31);
        return Floats(Spread(Low(n), low, Low(sums[j])), Spread(High(n), high, High(sums[j])));
    }
};

// The approximate values of 8 lines of n samples each; `pairs` is 1 / (n * (n - 1)).
__m256 Values(const SCAN_TASK &task, __m256i n, __m256i sum, __m256 spread, __m256 pairs) {
    if (task.moment == SCAN_MOMENT::VARIANCE) return _mm256_mul_ps(spread, pairs);
    const __m256i shift = _mm256_set1_epi32(static_cast<int>(task.shift));
    const __m256 total = _mm256_cvtepi32_ps(_mm256_add_epi32(sum, _mm256_mullo_epi32(n, shift)));
    if (task.moment == SCAN_MOMENT::SUM) return total;
    return _mm256_div_ps(total, _mm256_max_ps(_mm256_cvtepi32_ps(n), _mm256_set1_ps(1)));
}

void StoreValues(const SCAN_TASK &task, NAT k, NAT slot, __m256 values) {
    _mm256_storeu_ps(task.values + k * SCAN_LANES + slot, values);
    float *best = task.best + slot;
    _mm256_storeu_ps(best, _mm256_min_ps(_mm256_loadu_ps(best), values));
}

// `mask`: all ones in the lanes with one more direction.
void AddScanned(const SCAN_TASK &task, NAT slot, __m256i mask) {
    __m256i *scanned = reinterpret_cast<__m256i *>(task.scanned + slot);
    _mm256_storeu_si256(scanned, _mm256_sub_epi32(_mm256_loadu_si256(scanned), mask));
}

// One direction: its samples' offsets from both ends, and where its results go.
struct LINE {
    const std::int32_t *forward, *backward;
    NAT n;
};
LINE GetLine(const LINE_OFFSETS &lines, NAT k) {
    const std::uint32_t begin = lines.begins[k];
    return {lines.forward + begin, lines.backward + begin, lines.begins[k + 1] - NAT{begin}};
}

// Whether a line of a wanted centre holds a zero.
template <class STORED> bool AnyZero(const STORED *centres, const LINE &line, const LANES &wanted) {
    LANES least = LANES::LOAD(centres + line.forward[0]);
    for (NAT s = 1; s < line.n; ++s)
        least = least.template MIN<STORED>(LANES::LOAD(centres + line.forward[s]));
    return least.template ZEROS<STORED>().AND(wanted).ANY();
}

// All samples of the line, zeros or not.
template <class SUMS, class STORED>
void AddAll(SUMS &sums, const STORED *centres, const LINE &line) {
    constexpr NAT STEP = SUMS::SAMPLES;
    LANES rows[std::size_t{STEP}];
    NAT s = 0;
    for (; s + STEP <= line.n; s += STEP) {
        Unroll<STEP>([&](auto i) { rows[i] = LANES::LOAD(centres + line.forward[s + i]); });
        sums.ADD(rows);
    }
    if (s == line.n) return;
    Unroll<STEP>([&](auto i) {
        rows[i] = s + i < line.n ? LANES::LOAD(centres + line.forward[s + i]) : LANES{};
    });
    sums.ADD(rows);
}

// The first run of non-zero samples of the lanes in `wanted`, their number in `counts`. Lanes in
// `back` walk from the far end; with BOTH false there are none.
template <bool BOTH, class SUMS, class STORED>
void AddRun(SUMS &sums, const STORED *centres, const LINE &line, const LANES &wanted,
            const LANES &back, LANES &counts) {
    constexpr NAT STEP = SUMS::SAMPLES;
    LANES ended = wanted.NOT(), leading = LANES::ALL();
    LANES rows[std::size_t{STEP}];
    for (NAT s = 0; s < line.n; s += STEP) {
        Unroll<STEP>([&](auto i) {
            if (s + i >= line.n) {
                rows[i] = LANES{};
                return;
            }
            LANES x = LANES::LOAD(centres + line.forward[s + i]);
            if constexpr (BOTH) x = x.BLEND(LANES::LOAD(centres + line.backward[s + i]), back);
            const LANES zero = x.template ZEROS<STORED>();
            leading = leading.AND(zero);
            const LANES skip = ended.OR(zero);
            ended = ended.OR(leading.ANDNOT(zero));
            rows[i] = skip.ANDNOT(x);
            counts = counts.template COUNT<STORED>(skip);
        });
        sums.ADD(rows);
        if (ended.IS_ALL()) return;
    }
}

template <class SUMS, class STORED>
void AddRuns(SUMS &sums, const STORED *centres, const LINE &line, const LANES &wanted,
             LANES &counts) {
    const LANES zero1 = LANES::LOAD(centres + line.forward[0]).template ZEROS<STORED>();
    const LANES zero2 = LANES::LOAD(centres + line.backward[0]).template ZEROS<STORED>();
    const LANES back = zero2.ANDNOT(zero1).AND(wanted);
    if (back.ANY())
        AddRun<true>(sums, centres, line, wanted, back, counts);
    else
        AddRun<false>(sums, centres, line, wanted, back, counts);
}

const float INFINITE = std::numeric_limits<float>::infinity();

// The 8 slots of each register of the sums become values of lines long enough.
template <class SUMS>
void FinishWhole(const SCAN_TASK &task, const SUMS &sums, NAT k, NAT samples, NAT slot) {
    const NAT pairs = std::max(samples * (samples - 1), NAT{1});
    const __m256i n = _mm256_set1_epi32(static_cast<int>(samples));
    const __m256 factor = _mm256_set1_ps(1.0F / static_cast<float>(pairs));
    Unroll<SUMS::GROUPS>([&](auto j) {
        StoreValues(task, k, slot + 8 * j, Values(task, n, sums.SUM(j), sums.SPREAD(j, n), factor));
    });
}

void FinishShort(const SCAN_TASK &task, NAT k, NAT slot, NAT groups) {
    for (NAT j = 0; j < groups; ++j)
        StoreValues(task, k, slot + 8 * j, _mm256_set1_ps(INFINITE));
}

template <class SUMS, class STORED>
void FinishRuns(const SCAN_TASK &task, const SUMS &sums, NAT k, const LANES &counts, NAT slot) {
    const __m256i enough = _mm256_set1_epi32(static_cast<int>(task.r) - 1);
    const __m256 one = _mm256_set1_ps(1), infinite = _mm256_set1_ps(INFINITE);
    Unroll<SUMS::GROUPS>([&](auto j) {
        const __m256i n = counts.template COUNTS<STORED>(j);
        const __m256 count = _mm256_cvtepi32_ps(n);
        const __m256 pairs = _mm256_max_ps(_mm256_mul_ps(count, _mm256_sub_ps(count, one)), one);
        const __m256i isLong = _mm256_cmpgt_epi32(n, enough);
        const __m256 values =
            Values(task, n, sums.SUM(j), sums.SPREAD(j, n), _mm256_div_ps(one, pairs));
        StoreValues(task, k, slot + 8 * j,
                    _mm256_blendv_ps(infinite, values, _mm256_castsi256_ps(isLong)));
        AddScanned(task, slot + 8 * j, isLong);
    });
}

// The centres of one register of the tile, from lane `first` on: 32 of int8, 16 of int16.
template <class SUMS, class STORED> void Lines(const SCAN_TASK &task, NAT first) {
    const STORED *centres = static_cast<const STORED *>(task.centres) + first;
    const LANES wanted = LANES::MASK<STORED>(task.wanted >> first);
    int whole = 0;       // directions long enough for every lane
    bool sparse = false; // the line before had zeros, so this one is likely to have some
    for (NAT k = 0; k < task.lines.count; ++k) {
        const LINE line = GetLine(task.lines, k);
        SUMS sums;
        if (line.n < task.r || line.n < 1) {
            FinishShort(task, k, first, SUMS::GROUPS);
        } else if (task.zeros && (sparse || AnyZero(centres, line, wanted))) {
            LANES counts;
            AddRuns(sums, centres, line, wanted, counts);
            sparse = counts.template DIFFER<STORED>(line.n).AND(wanted).ANY();
            FinishRuns<SUMS, STORED>(task, sums, k, counts, first);
        } else {
            AddAll(sums, centres, line);
            FinishWhole(task, sums, k, line.n, first);
            ++whole;
        }
    }
    for (NAT j = 0; j < SUMS::GROUPS; ++j)
        AddScanned(task, first + 8 * j, _mm256_set1_epi32(-whole));
}

void Clear(const SCAN_TASK &task) {
    for (NAT i = 0; i < SCAN_LANES; ++i) {
        task.best[i] = INFINITE;
        task.scanned[i] = 0;
    }
}

void Narrow(const SCAN_TASK &task) {
    Clear(task);
    if (task.moment == SCAN_MOMENT::RANK) return avx2::NARROW_RANKS(task);
    Lines<NARROW_SUMS, std::int8_t>(task, 0);
}

// Pairs of squares add up in 32 bits as long as no line can overflow them.
void Wide(const SCAN_TASK &task) {
    Clear(task);
    if (task.moment == SCAN_MOMENT::RANK) return avx2::WIDE_RANKS(task);
    NAT longest = 0;
    for (NAT k = 0; k < task.lines.count; ++k)
        longest = std::max(longest, task.lines.begins[k + 1] - NAT{task.lines.begins[k]});
    const bool fits = (longest + 1) * task.largest * task.largest < (NAT{1} << 31);
    for (NAT first = 0; first < SCAN_LANES; first += 16) {
        if (fits)
            Lines<WIDE_SUMS, std::int16_t>(task, first);
        else
            Lines<WIDEST_SUMS, std::int16_t>(task, first);
    }
}

void Select(const float *values, NAT count, const float *limits, std::uint32_t *masks) {
    __m256 limit[4];
    for (NAT j = 0; j < 4; ++j)
        limit[j] = _mm256_loadu_ps(limits + 8 * j);
    for (NAT k = 0; k < count; ++k) {
        std::uint32_t mask = 0;
        for (NAT j = 0; j < 4; ++j) {
            const __m256 value = _mm256_loadu_ps(values + k * SCAN_LANES + 8 * j);
            const int bits = _mm256_movemask_ps(_mm256_cmp_ps(value, limit[j], _CMP_LE_OQ));
            mask |= static_cast<std::uint32_t>(bits) << (8 * j);
        }
        masks[k] = mask;
    }
}
} // namespace

const SCAN_KERNEL avx2::KERNEL{Narrow, Wide, Select, NARROW_LANES, WIDE_LANES};
} // namespace morvane
#endif
