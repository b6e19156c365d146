#include "image2d/filter/smooth_rows.hpp"

#include "foundation/thread/processor.hpp"

#include <limits>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// Noise with many zeros and largest values.
template <class PIXEL> std::vector<PIXEL> Noise(std::size_t count, std::uint32_t seed) {
    std::vector<PIXEL> row(count);
    for (PIXEL &pixel : row) {
        seed = seed * 1664525 + 1013904223;
        pixel = static_cast<PIXEL>(seed >> 9);
        if (seed >> 29 == 0) pixel = 0;
        if (seed >> 29 == 1) pixel = std::numeric_limits<PIXEL>::max();
    }
    return row;
}

template <class PIXEL>
void Compare(const SMOOTH_ROWS<PIXEL> &one, const SMOOTH_ROWS<PIXEL> &other, NAT count) {
    using COLUMN = typename SMOOTH_ROWS<PIXEL>::COLUMN;
    const auto length = static_cast<std::size_t>(count + 2);
    const auto seed = static_cast<std::uint32_t>(count);
    const std::vector<PIXEL> above = Noise<PIXEL>(length, seed), centre = Noise<PIXEL>(length, 99),
                             below = Noise<PIXEL>(length, seed + 7);
    std::vector<COLUMN> columns(length), columnsOther(length);
    one.sum(above.data(), centre.data(), below.data(), columns.data(), count + 2);
    other.sum(above.data(), centre.data(), below.data(), columnsOther.data(), count + 2);
    CHECK(columns == columnsOther);
    for (std::size_t rule = 0; rule < MEAN_RULES; ++rule) {
        std::vector<PIXEL> out(length), outOther(length);
        one.take[rule](columns.data() + 1, centre.data() + 1, out.data() + 1, count);
        other.take[rule](columns.data() + 1, centre.data() + 1, outOther.data() + 1, count);
        CHECK(out == outOther);
    }
}
} // namespace

TEST_CASE_TEMPLATE("the rows of every processor equal the plain ones at every length", PIXEL, BYTE,
                   WORD) {
    for (NAT count = 0; count <= 70; ++count)
        Compare(FASTEST_ROWS<PIXEL>(), plain::ROWS<PIXEL>(), count);
}

TEST_CASE("the ninths of every sum of nine pixels are exact in all rows") {
    std::vector<const SMOOTH_ROWS<WORD> *> kernels = {&plain::ROWS<WORD>(), &FASTEST_ROWS<WORD>()};
    for (const auto *kernel : kernels) {
        NAT wrong = 0;
        std::vector<std::uint32_t> columns(34);
        std::vector<WORD> out(32);
        for (std::uint32_t sum = 0; sum <= 9 * 65535; ++sum) {
            // The three columns sum up to it at the middle of the 16 lanes' turn.
            const std::size_t lane = sum % 32;
            std::fill(columns.begin(), columns.end(), 0);
            columns[lane] = sum / 3;
            columns[lane + 1] = sum / 3;
            columns[lane + 2] = sum - sum / 3 * 2;
            kernel->take[0](columns.data() + 1, out.data(), out.data(), 32);
            wrong += out[lane] != sum / 9;
        }
        CHECK(wrong == 0);
    }
    NAT wrong = 0;
    for (std::uint32_t sum = 0; sum <= 9 * 255; ++sum) {
        std::vector<std::uint16_t> columns(18, static_cast<std::uint16_t>(sum / 3));
        columns[2] = static_cast<std::uint16_t>(sum - sum / 3 * 2);
        std::vector<BYTE> out(16), plainOut(16);
        FASTEST_ROWS<BYTE>().take[0](columns.data() + 1, out.data(), out.data(), 16);
        plain::ROWS<BYTE>().take[0](columns.data() + 1, plainOut.data(), plainOut.data(), 16);
        wrong += out[1] != sum / 9 || plainOut[1] != sum / 9;
    }
    CHECK(wrong == 0);
}
