#pragma once

#include "foundation/base/records.hpp"

#include <array>
#include <type_traits>

// The inner loops of the 3x3 filters (smooth.hpp) on rows: sums of the columns, then the pixels.
namespace morvane {
// How a filter makes its pixel of the centre c and the mean m of the nine around it.
enum class MEAN_RULE : std::size_t {
    MEAN,         // m
    HALF,         // (c + m) / 2
    NINTH,        // (8c + m) / 9
    HALF_OF_MASK, // 0 for c = 0, else (c + m) / 2
    SHARP         // 2c - m, limited
};
inline constexpr std::size_t MEAN_RULES = 5;

template <class PIXEL> struct SMOOTH_ROWS {
    // Holds the sum of nine pixels.
    using COLUMN = std::conditional_t<sizeof(PIXEL) == 1, std::uint16_t, std::uint32_t>;
    // columns[i] = above[i] + centre[i] + below[i] for i from 0 below count.
    void (*sum)(const PIXEL *above, const PIXEL *centre, const PIXEL *below, COLUMN *columns,
                NAT count);
    // out[i] by the rule, of centre[i] and columns[i-1 .. i+1], for i from 0 below count; `out` may
    // be `centre`.
    using TAKE = void(const COLUMN *columns, const PIXEL *centre, PIXEL *out, NAT count);
    std::array<TAKE *, MEAN_RULES> take;
};

namespace plain {
template <class PIXEL> const SMOOTH_ROWS<PIXEL> &ROWS();
}
namespace avx2 {
template <class PIXEL> const SMOOTH_ROWS<PIXEL> &ROWS(); // in smooth_rows_avx2.cpp
}
template <class PIXEL> const SMOOTH_ROWS<PIXEL> &FASTEST_ROWS(); // of this processor
} // namespace morvane
