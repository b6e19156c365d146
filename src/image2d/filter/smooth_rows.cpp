#include "image2d/filter/smooth_rows.hpp"

#include "foundation/thread/processor.hpp"

#include <algorithm>
#include <limits>

namespace morvane {
namespace {
// A sum of 9 pixels divided by 9. The half lies farther from a whole ninth than the error of the
// product, so that truncation is exact for every sum below 2^20, and the loop has no division.
inline std::uint32_t Ninth(std::uint32_t sum) {
    return static_cast<std::uint32_t>(static_cast<std::int32_t>(
        (static_cast<float>(static_cast<std::int32_t>(sum)) + 0.5F) * (1.0F / 9.0F)));
}
// The same for sums of 9 bytes, where the product fits the 32 bits: 7282 * 9 = 65538.
inline std::uint32_t Ninth(std::uint16_t sum) { return sum * 7282U >> 16; }

template <class PIXEL, MEAN_RULE RULE>
inline PIXEL Take(std::uint32_t c, typename SMOOTH_ROWS<PIXEL>::COLUMN sum) {
    using COLUMN = typename SMOOTH_ROWS<PIXEL>::COLUMN;
    constexpr std::uint32_t LARGEST = std::numeric_limits<PIXEL>::max();
    const std::uint32_t m = Ninth(sum);
    std::uint32_t value = m;
    if constexpr (RULE == MEAN_RULE::HALF) value = (c + m) / 2;
    if constexpr (RULE == MEAN_RULE::NINTH) value = Ninth(static_cast<COLUMN>(8 * c + m));
    if constexpr (RULE == MEAN_RULE::HALF_OF_MASK) value = c == 0 ? 0 : (c + m) / 2;
    if constexpr (RULE == MEAN_RULE::SHARP) value = std::min(std::max(2 * c, m) - m, LARGEST);
    return static_cast<PIXEL>(value);
}

template <class PIXEL>
void Sum(const PIXEL *above, const PIXEL *centre, const PIXEL *below,
         typename SMOOTH_ROWS<PIXEL>::COLUMN *columns, NAT count) {
    using COLUMN = typename SMOOTH_ROWS<PIXEL>::COLUMN;
    for (NAT i = 0; i < count; ++i)
        columns[i] = static_cast<COLUMN>(COLUMN{above[i]} + centre[i] + below[i]);
}

template <class PIXEL, MEAN_RULE RULE>
void TakeRow(const typename SMOOTH_ROWS<PIXEL>::COLUMN *columns, const PIXEL *centre, PIXEL *out,
             NAT count) {
    using COLUMN = typename SMOOTH_ROWS<PIXEL>::COLUMN;
    for (NAT i = 0; i < count; ++i) {
        const auto sum = static_cast<COLUMN>(columns[i - 1] + columns[i] + columns[i + 1]);
        out[i] = Take<PIXEL, RULE>(centre[i], sum);
    }
}
} // namespace

template <class PIXEL> const SMOOTH_ROWS<PIXEL> &plain::ROWS() {
    static constexpr SMOOTH_ROWS<PIXEL> rows{
        Sum<PIXEL>,
        {TakeRow<PIXEL, MEAN_RULE::MEAN>, TakeRow<PIXEL, MEAN_RULE::HALF>,
         TakeRow<PIXEL, MEAN_RULE::NINTH>, TakeRow<PIXEL, MEAN_RULE::HALF_OF_MASK>,
         TakeRow<PIXEL, MEAN_RULE::SHARP>}};
    return rows;
}

template <class PIXEL> const SMOOTH_ROWS<PIXEL> &FASTEST_ROWS() {
#if defined(__x86_64__)
    static const SMOOTH_ROWS<PIXEL> &rows =
        PROCESSOR().IS_AVX2 ? avx2::ROWS<PIXEL>() : plain::ROWS<PIXEL>();
    return rows;
#else
    return plain::ROWS<PIXEL>();
#endif
}

template const SMOOTH_ROWS<BYTE> &plain::ROWS();
template const SMOOTH_ROWS<WORD> &plain::ROWS();
template const SMOOTH_ROWS<BYTE> &FASTEST_ROWS();
template const SMOOTH_ROWS<WORD> &FASTEST_ROWS();
} // namespace morvane
