#include "script/module/use_all.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/base/random.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "script/engine/macro.hpp"

#include <algorithm>
#include <cmath>
#include <limits>

// Random numbers for scripts. Every call draws from its own stream, so that a seed fixes them all.
namespace morvane {
namespace {
constexpr REAL EXACT_REAL = 9007199254740992.0; // 2^53: whole numbers below are exact

RANDOM_STREAM NEW_STREAM() { return {NEXT_RANDOM_COMMAND(), 0}; }

// A whole number of low..high, each as likely as the others, also over the whole 64-bit range.
NAT RANDOM_WHOLE(RANDOM_STREAM &stream, NAT low, NAT high) {
    const std::uint64_t span = static_cast<std::uint64_t>(high) - static_cast<std::uint64_t>(low);
    std::uint64_t step = 0;
    if (span < static_cast<std::uint64_t>(NATMAX)) {
        step = static_cast<std::uint64_t>(stream.BELOW(static_cast<NAT>(span) + 1));
    } else {
        do
            step = stream.NEXT64();
        while (step > span);
    }
    return static_cast<NAT>(static_cast<std::uint64_t>(low) + step);
}

// The whole numbers between two reals as their lowest and highest; the ends in any order. Between
// neighbours without one, the two whole numbers around.
RANGE WHOLE_RANGE(REAL a, REAL b) {
    constexpr REAL largest = std::numeric_limits<REAL>::max();
    const REAL low = std::ceil(LIMIT(std::min(a, b), -largest, largest));
    const REAL high = std::floor(LIMIT(std::max(a, b), -largest, largest));
    return {std::min(low, high), std::max(low, high)};
}

RANGE PARAMETER_RANGE(TMACRO *engine) {
    const REAL first = GETREAL(engine->GETPARAMETER(1));
    return WHOLE_RANGE(first, GETREAL(engine->GETPARAMETER(2)));
}

void RANDOM_RANGE_REF(TMACRO *engine) {
    const RANGE range = PARAMETER_RANGE(engine);
    RANDOM_STREAM stream = NEW_STREAM();
    REAL value = 0;
    if (range.min > -EXACT_REAL && range.max < EXACT_REAL) {
        value = static_cast<REAL>(RANDOM_WHOLE(stream, ROUND(range.min), ROUND(range.max)));
    } else {
        const REAL share = stream.FRACTION();
        value =
            LIMIT(std::floor(range.min * (1 - share) + range.max * share), range.min, range.max);
    }
    engine->COMMAND_RESULT = GETSTRING(value);
}

void RANDOM_RANGE_NAT_REF(TMACRO *engine) {
    const RANGE range = PARAMETER_RANGE(engine);
    RANDOM_STREAM stream = NEW_STREAM();
    engine->COMMAND_RESULT = GETSTRING(RANDOM_WHOLE(stream, ROUND(range.min), ROUND(range.max)));
}

// COUNT reals of 0..1, or of -1..1 when FULL.
template <int COUNT, bool FULL> void RANDOM_LAMD(TMACRO *engine) {
    RANDOM_STREAM stream = NEW_STREAM();
    const auto next = [&] { return FULL ? stream.FRACTION() * 2 - 1 : stream.FRACTION(); };
    HYPER value;
    value.x = next();
    if (COUNT > 1) value.y = next();
    if (COUNT > 2) value.z = next();
    if (COUNT > 3) value.w = next();
    if constexpr (COUNT == 1) engine->COMMAND_RESULT = GETSTRING(value.x);
    if constexpr (COUNT == 2) engine->COMMAND_RESULT = GETSTRING(COMPLEX{value.x, value.y});
    if constexpr (COUNT == 3) engine->COMMAND_RESULT = GETSTRING(VECTOR{value.x, value.y, value.z});
    if constexpr (COUNT == 4) engine->COMMAND_RESULT = GETSTRING(value);
}

// COUNT whole numbers of 0..LARGEST.
template <int COUNT, NAT LARGEST> void RANDOM_WHOLE_LAMD(TMACRO *engine) {
    RANDOM_STREAM stream = NEW_STREAM();
    HYPERNAT value;
    value.x = stream.BELOW(LARGEST + 1);
    if (COUNT > 2) {
        value.y = stream.BELOW(LARGEST + 1);
        value.z = stream.BELOW(LARGEST + 1);
    }
    if (COUNT > 3) value.w = stream.BELOW(LARGEST + 1);
    if constexpr (COUNT == 1) engine->COMMAND_RESULT = GETSTRING(value.x);
    if constexpr (COUNT == 3)
        engine->COMMAND_RESULT = GETSTRING(VECTORNAT{value.x, value.y, value.z});
    if constexpr (COUNT == 4) engine->COMMAND_RESULT = GETSTRING(value);
}

constexpr COMMAND_ROW RANDOM_ROWS[] = {
    FUNCTION("random.range", RANDOM_RANGE_REF, EXACTLY(2), "a: number, b: number",
             "a := random.range 1 6", "whole random number from a to b"),
    FUNCTION("random.range.nat", RANDOM_RANGE_NAT_REF, EXACTLY(2), "a: number, b: number",
             "a := random.range.nat 1 6", "whole random number of the 64-bit range"),
    LAMBDA("random", (RANDOM_LAMD<1, false>), "print random", "random number from 0 to 1"),
    LAMBDA("random2", (RANDOM_LAMD<2, false>), "print random2", "two random numbers from 0 to 1"),
    LAMBDA("random3", (RANDOM_LAMD<3, false>), "print random3", "three random numbers from 0 to 1"),
    LAMBDA("random4", (RANDOM_LAMD<4, false>), "print random4", "four random numbers from 0 to 1"),
    LAMBDA("random.full", (RANDOM_LAMD<1, true>), "print random.full",
           "random number from -1 to 1"),
    LAMBDA("random2.full", (RANDOM_LAMD<2, true>), "print random2.full",
           "two random numbers from -1 to 1"),
    LAMBDA("random3.full", (RANDOM_LAMD<3, true>), "print random3.full",
           "three random numbers from -1 to 1"),
    LAMBDA("random4.full", (RANDOM_LAMD<4, true>), "print random4.full",
           "four random numbers from -1 to 1"),
    LAMBDA("random.byte", (RANDOM_WHOLE_LAMD<1, 255>), "print random.byte",
           "whole random number from 0 to 255"),
    LAMBDA("random.gray", (RANDOM_WHOLE_LAMD<1, 255>), "print random.gray",
           "whole random number from 0 to 255"),
    LAMBDA("random.word", (RANDOM_WHOLE_LAMD<1, 65535>), "print random.word",
           "whole random number from 0 to 65535"),
    LAMBDA("random.fullgray", (RANDOM_WHOLE_LAMD<1, 65535>), "print random.fullgray",
           "whole random number from 0 to 65535"),
    LAMBDA("random.rgb", (RANDOM_WHOLE_LAMD<3, 255>), "print random.rgb",
           "random colour <red, green, blue>"),
    LAMBDA("random.rgba", (RANDOM_WHOLE_LAMD<4, 255>), "print random.rgba",
           "random colour <red, green, blue, alpha>"),
};
static_assert(ROWS_ARE_SOUND(RANDOM_ROWS));
} // namespace

const COMMAND_SET RANDOM_SET{"", RANDOM_ROWS};
} // namespace morvane
