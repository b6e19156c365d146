#include "image2d/chart/scale_steps.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"

#include <algorithm>
#include <cmath>

namespace morvane {
namespace {
constexpr REAL FARTHEST = 1e290;          // ends of a range
constexpr REAL SMALLEST_SPAN = 1e-280;    // narrower ones are a single value
constexpr REAL RELATIVE_SPAN = 1e-9;      // of the larger end; narrower ones are a single value
constexpr REAL LARGE = 1e6, SMALL = 1e-3; // numbers outside share a power of ten
} // namespace

REAL SCALE_STEPS::STEP() const {
    return static_cast<REAL>(digit) * POWER(10, static_cast<REAL>(exponent));
}

UTF16 SCALE_STEPS::LABEL(NAT multiple) const {
    std::string digits = std::to_string(std::abs(multiple * digit));
    const NAT shift = exponent - power; // the point's place behind the last digit
    if (shift > 0 && multiple != 0) digits.append(static_cast<std::size_t>(shift), '0');
    if (shift < 0) {
        const auto decimals = static_cast<std::size_t>(-shift);
        if (digits.size() <= decimals) digits.insert(0, decimals + 1 - digits.size(), '0');
        digits.insert(digits.size() - decimals, FORMAT.DECIMAL ? "." : ",");
    }
    return UTF16(multiple < 0 ? "-" + digits : digits);
}

NAT SCALE_STEPS::LONGEST_LABEL() const {
    if (last < first) return 0;
    return std::max(LABEL(first).LENGTH(), LABEL(last).LENGTH());
}

RANGE GETSOUNDRANGE(REAL min, REAL max) {
    const auto sound = [](REAL value) {
        return std::isnan(value) ? 0 : LIMIT(value, -FARTHEST, FARTHEST);
    };
    const RANGE range{sound(min), sound(max)};
    const REAL size = std::max(std::abs(range.min), std::abs(range.max));
    const REAL span = std::abs(range.max - range.min);
    if (span > SMALLEST_SPAN && span > size * RELATIVE_SPAN) return range;
    const REAL apart = size > SMALLEST_SPAN ? size / 10 : 0.5;
    return {range.min - apart, range.min + apart};
}

SCALE_STEPS GETSTEPS(const RANGE &range, NAT count) {
    const REAL low = std::min(range.min, range.max), high = std::max(range.min, range.max);
    const REAL wanted = (high - low) / static_cast<REAL>(std::max<NAT>(count, 1));
    SCALE_STEPS steps;
    NAT shift = 0;
    const REAL factor = GETSCALE(wanted, {1, 10}, 10, shift);
    const REAL mantissa = wanted * factor; // 1..10
    steps.exponent = -shift;
    steps.digit = mantissa < 1.5 ? 1 : mantissa < 3.5 ? 2 : mantissa < 7.5 ? 5 : 1;
    if (mantissa >= 7.5) ++steps.exponent;
    steps.minor = steps.digit == 2 ? 4 : 5;
    constexpr REAL HAIR = 1e-6; // of a step, by which an end may miss a multiple
    steps.first = TRUNC(std::ceil(low / steps.STEP() - HAIR));
    steps.last = FLOOR(high / steps.STEP() + HAIR);
    const REAL size = std::max(std::abs(low), std::abs(high));
    if (size >= LARGE || size < SMALL) {
        NAT decades = 0; // that bring the size into 1..10
        (void)GETSCALE(size, {1, 10}, 10, decades);
        if (size * POWER(10, static_cast<REAL>(decades)) >= 10) --decades;
        steps.power = FLOOR(static_cast<REAL>(-decades) / 3) * 3;
    }
    return steps;
}
} // namespace morvane
