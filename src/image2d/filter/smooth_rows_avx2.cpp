#include "image2d/filter/smooth_rows.hpp"

#if defined(__x86_64__)
#include <immintrin.h>

// 16 pixels a step. What is left of a row goes through the plain rows.
namespace morvane {
namespace {
constexpr NAT STEP = 16;

template <class T> __m256i Load(const T *p) {
    return _mm256_loadu_si256(reinterpret_cast<const __m256i *>(p));
}
template <class T> void Store(T *p, __m256i v) {
    _mm256_storeu_si256(reinterpret_cast<__m256i *>(p), v);
}
__m128i LoadHalf(const void *p) { return _mm_loadu_si128(static_cast<const __m128i *>(p)); }
__m256i Bytes(const BYTE *p) { return _mm256_cvtepu8_epi16(LoadHalf(p)); }  // as 16 words
__m256i Words(const WORD *p) { return _mm256_cvtepu16_epi32(LoadHalf(p)); } // as 8 numbers

// Truncated ninths of 8 numbers below 2^20, and of 16 words below 2^15; as in the plain rows.
__m256i NinthOfNumbers(__m256i sums) {
    const __m256 shifted = _mm256_add_ps(_mm256_cvtepi32_ps(sums), _mm256_set1_ps(0.5F));
    return _mm256_cvttps_epi32(_mm256_mul_ps(shifted, _mm256_set1_ps(1.0F / 9.0F)));
}
__m256i NinthOfWords(__m256i sums) { return _mm256_mulhi_epu16(sums, _mm256_set1_epi16(7282)); }

__m256i PackNumbers(__m256i low, __m256i high) {
    return _mm256_permute4x64_epi64(_mm256_packus_epi32(low, high), 0xD8);
}

// (c + m) / 2 and 2c - m limited, on 16 words.
__m256i Half(__m256i c, __m256i m) {
    return _mm256_add_epi16(_mm256_and_si256(c, m), _mm256_srli_epi16(_mm256_xor_si256(c, m), 1));
}
__m256i Sharp(__m256i c, __m256i m) {
    // One of the differences is zero.
    return _mm256_subs_epu16(_mm256_adds_epu16(c, _mm256_subs_epu16(c, m)),
                             _mm256_subs_epu16(m, c));
}
template <MEAN_RULE RULE> __m256i Mix(__m256i c, __m256i m) {
    if constexpr (RULE == MEAN_RULE::HALF) return Half(c, m);
    if constexpr (RULE == MEAN_RULE::SHARP) return Sharp(c, m);
    if constexpr (RULE == MEAN_RULE::HALF_OF_MASK)
        return _mm256_andnot_si256(_mm256_cmpeq_epi16(c, _mm256_setzero_si256()), Half(c, m));
    return m;
}

template <class T> __m256i ThreeColumns(const T *columns) {
    const __m256i left = Load(columns - 1), middle = Load(columns), right = Load(columns + 1);
    if constexpr (sizeof(T) == 2)
        return _mm256_add_epi16(_mm256_add_epi16(left, middle), right);
    else
        return _mm256_add_epi32(_mm256_add_epi32(left, middle), right);
}

template <MEAN_RULE RULE> void Step(const std::uint32_t *columns, const WORD *centre, WORD *out) {
    __m256i low = NinthOfNumbers(ThreeColumns(columns));
    __m256i high = NinthOfNumbers(ThreeColumns(columns + 8));
    if constexpr (RULE == MEAN_RULE::NINTH) {
        const __m256i eightLow = _mm256_slli_epi32(Words(centre), 3);
        const __m256i eightHigh = _mm256_slli_epi32(Words(centre + 8), 3);
        low = NinthOfNumbers(_mm256_add_epi32(eightLow, low));
        high = NinthOfNumbers(_mm256_add_epi32(eightHigh, high));
    }
    Store(out, Mix<RULE>(Load(centre), PackNumbers(low, high)));
}

template <MEAN_RULE RULE> void Step(const std::uint16_t *columns, const BYTE *centre, BYTE *out) {
    const __m256i c = Bytes(centre);
    __m256i m = NinthOfWords(ThreeColumns(columns));
    if constexpr (RULE == MEAN_RULE::NINTH)
        m = NinthOfWords(_mm256_add_epi16(_mm256_slli_epi16(c, 3), m));
    const __m256i value = Mix<RULE>(c, m);
    const __m128i bytes =
        _mm_packus_epi16(_mm256_castsi256_si128(value), _mm256_extracti128_si256(value, 1));
    _mm_storeu_si128(reinterpret_cast<__m128i *>(out), bytes);
}

template <class PIXEL, MEAN_RULE RULE>
void TakeRow(const typename SMOOTH_ROWS<PIXEL>::COLUMN *columns, const PIXEL *centre, PIXEL *out,
             NAT count) {
    NAT i = 0;
    for (; i + STEP <= count; i += STEP)
        Step<RULE>(columns + i, centre + i, out + i);
    plain::ROWS<PIXEL>().take[static_cast<std::size_t>(RULE)](columns + i, centre + i, out + i,
                                                              count - i);
}

void AddStep(const WORD *above, const WORD *centre, const WORD *below, std::uint32_t *columns) {
    for (NAT part = 0; part < STEP; part += 8)
        Store(columns + part,
              _mm256_add_epi32(_mm256_add_epi32(Words(above + part), Words(centre + part)),
                               Words(below + part)));
}
void AddStep(const BYTE *above, const BYTE *centre, const BYTE *below, std::uint16_t *columns) {
    Store(columns, _mm256_add_epi16(_mm256_add_epi16(Bytes(above), Bytes(centre)), Bytes(below)));
}

template <class PIXEL>
void Sum(const PIXEL *above, const PIXEL *centre, const PIXEL *below,
         typename SMOOTH_ROWS<PIXEL>::COLUMN *columns, NAT count) {
    NAT i = 0;
    for (; i + STEP <= count; i += STEP)
        AddStep(above + i, centre + i, below + i, columns + i);
    plain::ROWS<PIXEL>().sum(above + i, centre + i, below + i, columns + i, count - i);
}
} // namespace

template <class PIXEL> const SMOOTH_ROWS<PIXEL> &avx2::ROWS() {
    static constexpr SMOOTH_ROWS<PIXEL> rows{
        Sum<PIXEL>,
        {TakeRow<PIXEL, MEAN_RULE::MEAN>, TakeRow<PIXEL, MEAN_RULE::HALF>,
         TakeRow<PIXEL, MEAN_RULE::NINTH>, TakeRow<PIXEL, MEAN_RULE::HALF_OF_MASK>,
         TakeRow<PIXEL, MEAN_RULE::SHARP>}};
    return rows;
}

template const SMOOTH_ROWS<BYTE> &avx2::ROWS();
template const SMOOTH_ROWS<WORD> &avx2::ROWS();
} // namespace morvane
#endif
