#include "foundation/container/poly_statistics.hpp"

#include <algorithm>
#include <array>
#include <bit>

namespace morvane {
namespace {
// An unsigned number of 256 bits, the lowest 64 first.
class WIDE {
public:
    void ADD(UINT128 value) {
        ADD_LIMB(0, static_cast<std::uint64_t>(value));
        ADD_LIMB(1, static_cast<std::uint64_t>(value >> 64));
    }
    // this += a * b * 2^(64*shift)
    void ADD_PRODUCT(std::uint64_t a, std::uint64_t b, std::size_t shift) {
        const UINT128 product = static_cast<UINT128>(a) * b;
        ADD_LIMB(shift, static_cast<std::uint64_t>(product));
        ADD_LIMB(shift + 1, static_cast<std::uint64_t>(product >> 64));
    }
    WIDE TIMES(std::uint64_t factor) const {
        WIDE result;
        for (std::size_t i = 0; i < 4; ++i)
            result.ADD_PRODUCT(limbs[i], factor, i);
        return result;
    }
    WIDE MINUS(const WIDE &other) const {
        WIDE result;
        std::uint64_t borrow = 0;
        for (std::size_t i = 0; i < 4; ++i) {
            const UINT128 taken = static_cast<UINT128>(other.limbs[i]) + borrow;
            result.limbs[i] = static_cast<std::uint64_t>(limbs[i] - taken);
            borrow = taken > limbs[i] ? 1 : 0;
        }
        return result;
    }
    // Rounded to nearest, ties to even, like the conversion of a narrower whole number.
    REAL ROUNDED() const {
        std::size_t top = 3;
        while (top > 0 && limbs[top] == 0)
            --top;
        const int zeros = std::countl_zero(limbs[top]);
        if (limbs[top] == 0) return 0;
        std::uint64_t head = limbs[top] << zeros;
        bool rest = false; // any bit below the 64 of the head
        if (top > 0) {
            if (zeros > 0) head |= limbs[top - 1] >> (64 - zeros);
            rest = limbs[top - 1] << zeros != 0;
            for (std::size_t i = 0; i + 1 < top; ++i)
                rest = rest || limbs[i] != 0;
        }
        return std::ldexp(static_cast<REAL>(head | (rest ? 1 : 0)),
                          64 * static_cast<int>(top) - zeros);
    }

private:
    void ADD_LIMB(std::size_t index, std::uint64_t value) {
        for (; index < 4 && value != 0; ++index) {
            limbs[index] += value;
            value = limbs[index] < value ? 1 : 0;
        }
    }
    std::array<std::uint64_t, 4> limbs{};
};

std::uint64_t ABOVE(NAT value, NAT least) {
    return static_cast<std::uint64_t>(value) - static_cast<std::uint64_t>(least);
}

REAL WIDE_SD(std::span<const NAT> values, NAT least) {
    WIDE squares;
    UINT128 sum = 0;
    for (const NAT value : values) {
        const std::uint64_t x = ABOVE(value, least);
        sum += x;
        squares.ADD(static_cast<UINT128>(x) * x);
    }
    const std::uint64_t low = static_cast<std::uint64_t>(sum);
    const std::uint64_t high = static_cast<std::uint64_t>(sum >> 64);
    WIDE squareOfSum;
    squareOfSum.ADD_PRODUCT(low, low, 0);
    squareOfSum.ADD_PRODUCT(low, high, 1);
    squareOfSum.ADD_PRODUCT(low, high, 1);
    squareOfSum.ADD_PRODUCT(high, high, 2);
    return NATSD_ROUNDED(static_cast<NAT>(values.size()),
                         squares.TIMES(values.size()).MINUS(squareOfSum).ROUNDED());
}
} // namespace

REAL NATSD(std::span<const NAT> values) {
    if (values.size() < 2) return 0;
    const auto [least, most] = std::minmax_element(values.begin(), values.end());
    const UINT128 reach = static_cast<UINT128>(ABOVE(*most, *least)) * values.size();
    if (reach >> 63 != 0) return WIDE_SD(values, *least);
    std::uint64_t sum = 0; // at most n * spread, below 2^63
    UINT128 squares = 0;   // at most n * spread^2; times n below 2^126
    for (const NAT value : values) {
        const std::uint64_t x = ABOVE(value, *least);
        sum += x;
        squares += static_cast<UINT128>(x) * x;
    }
    const UINT128 numerator = squares * values.size() - static_cast<UINT128>(sum) * sum;
    return NATSD_ROUNDED(static_cast<NAT>(values.size()), static_cast<REAL>(numerator));
}

REAL NATMEAN(std::span<const NAT> values) {
    INT128 sum = 0;
    for (const NAT value : values)
        sum += value;
    return values.empty() ? 0 : static_cast<REAL>(sum) / static_cast<REAL>(values.size());
}

NAT NATMIDDLE(NAT a, NAT b) {
    const INT128 sum = static_cast<INT128>(a) + b;
    const NAT floor = static_cast<NAT>(sum >> 1);
    return (sum & 1) != 0 && (floor & 1) != 0 ? floor + 1 : floor;
}
} // namespace morvane
