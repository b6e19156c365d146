#include "foundation/base/geometry.hpp"
#include "foundation/base/number_print.hpp"
#include "foundation/base/number_text.hpp"
#include "script/engine/macro.hpp"
#include "script/module/math_parameters.hpp"
#include "script/module/stack.hpp"
#include "script/module/use_all.hpp"

#include <algorithm>
#include <limits>

namespace morvane {
namespace {
// The angles that scripts may name. An `@` replaces the newest name first, so a name stands before
// the longer ones that begin with it.
struct NAMED_ANGLE {
    std::string_view name;
    REAL value;
};
constexpr NAMED_ANGLE ANGLES[] = {
    {"math.2*pi", 2 * PI}, {"math.360°", 2 * PI}, {"math.pi", PI},       {"math.180°", PI},
    {"math.pi/2", PI / 2}, {"math.90°", PI / 2},  {"math.pi/4", PI / 4}, {"math.45°", PI / 4},
};

// All digits, with the sign that parts the decimals as FORMAT has it.
UTF16 AngleText(REAL value) {
    std::string text;
    PRINT_PLAIN(text, value);
    if (!FORMAT.DECIMAL) std::replace(text.begin(), text.end(), '.', ',');
    return text;
}

template <bool TFORMAT::*FIELD> void SET_FLAG(TMACRO *engine) {
    FORMAT.*FIELD = GETBOOLEAN(engine->GETPARAMETER(1));
}
template <bool TFORMAT::*FIELD> void GET_FLAG_REF(TMACRO *engine) {
    if (engine->CHECKPARAMETER(0)) engine->COMMAND_RESULT = UTF16(FORMAT.*FIELD ? "1" : "0");
}
template <std::int32_t TFORMAT::*FIELD> void SET_COUNT(TMACRO *engine) {
    using LIMITS = std::numeric_limits<std::int32_t>;
    FORMAT.*FIELD = static_cast<std::int32_t>(
        LIMIT(GETNAT(engine->GETPARAMETER(1)), LIMITS::min(), LIMITS::max()));
}
template <std::int32_t TFORMAT::*FIELD> void GET_COUNT_REF(TMACRO *engine) {
    if (engine->CHECKPARAMETER(0)) engine->COMMAND_RESULT = std::to_string(FORMAT.*FIELD);
}

// A number is read with the sign that parts its decimals, so the named angles change with it;
// those that the script has set itself stay.
void MATH_DECIMAL(TMACRO *engine) {
    const bool decimal = GETBOOLEAN(engine->GETPARAMETER(1));
    for (const NAMED_ANGLE &angle : ANGLES) {
        const UTF16 before = AngleText(angle.value);
        const bool decimalBefore = std::exchange(FORMAT.DECIMAL, decimal);
        if (engine->GETCONSTANTVALUE(angle.name) == before)
            engine->PUTCONSTANT(angle.name, AngleText(angle.value));
        FORMAT.DECIMAL = decimalBefore;
    }
    FORMAT.DECIMAL = decimal;
}

// f of each parameter and of the count of its numbers, joined with a blank.
template <UTF16 (*F)(const HYPER &, NAT)> void EACH_REF(TMACRO *engine) {
    std::vector<UTF16> results;
    for (const UTF16 &text : ALL_PARAMETERS(engine))
        results.push_back(F(GETHYPER(text), COUNT_NUMBERS(text, 4)));
    engine->COMMAND_RESULT = JOIN_RESULTS(results);
}

// Only the components that were given count: the missing ones of a vector are no zeros here, or
// its smallest component would always be one.
template <bool SMALLEST> UTF16 Extreme(const HYPER &value, NAT count) {
    const std::array<REAL, 4> parts{value.x, value.y, value.z, value.w};
    const auto end = parts.begin() + std::clamp<NAT>(count, 1, 4);
    const REAL divisor =
        SMALLEST ? *std::min_element(parts.begin(), end) : *std::max_element(parts.begin(), end);
    return GETSHORT(RELATIVENORM(value, divisor));
}
UTF16 Norm(const HYPER &value, NAT) { return GETSHORT(NORM(value)); }
UTF16 Length(const HYPER &value, NAT) { return GETSTRING(GETLENGTH(value)); }

void MATH_ANGLE_REF(TMACRO *engine) {
    const HYPER a = GETHYPER(engine->GETPARAMETER(1)), b = GETHYPER(engine->GETPARAMETER(2));
    engine->COMMAND_RESULT = GETSTRING(GETANGLE(a, b));
}

constexpr HANDLER SCIENTIFIC = SET_FLAG<&TFORMAT::SCIENTIFIC>;
constexpr HANDLER SCIENTIFIC_REF = GET_FLAG_REF<&TFORMAT::SCIENTIFIC>;
constexpr HANDLER DECIMAL_REF = GET_FLAG_REF<&TFORMAT::DECIMAL>;
constexpr HANDLER DIGIT = SET_FLAG<&TFORMAT::DIGIT>;
constexpr HANDLER DIGIT_REF = GET_FLAG_REF<&TFORMAT::DIGIT>;
constexpr HANDLER LEADING = SET_COUNT<&TFORMAT::LEADING>;
constexpr HANDLER LEADING_REF = GET_COUNT_REF<&TFORMAT::LEADING>;
constexpr HANDLER TRAILING = SET_COUNT<&TFORMAT::TRAILING>;
constexpr HANDLER TRAILING_REF = GET_COUNT_REF<&TFORMAT::TRAILING>;
constexpr HANDLER DEGREE = SET_FLAG<&TFORMAT::DEGREE>;
constexpr HANDLER DEGREE_REF = GET_FLAG_REF<&TFORMAT::DEGREE>;
constexpr HANDLER VECTORS = SET_FLAG<&TFORMAT::VECTOR>;
constexpr HANDLER VECTORS_REF = GET_FLAG_REF<&TFORMAT::VECTOR>;
constexpr HANDLER MATRICES = SET_FLAG<&TFORMAT::MATRIX>;
constexpr HANDLER MATRICES_REF = GET_FLAG_REF<&TFORMAT::MATRIX>;

constexpr COMMAND_ROW MATH_ROWS[] = {
    PROPERTY("scientific", SCIENTIFIC, SCIENTIFIC_REF, EXACTLY(1), "on: flag", "math.scientific 1",
             "numbers print in the short E form (default 0)"),
    PROPERTY("decimal", MATH_DECIMAL, DECIMAL_REF, EXACTLY(1), "on: flag", "math.decimal 1",
             "decimal point (default 1); 0: decimal comma, lists with ;"),
    PROPERTY("digit", DIGIT, DIGIT_REF, EXACTLY(1), "grouped: number", "math.digit 1",
             "whole numbers print in groups of three digits (default 0)"),
    PROPERTY("leading", LEADING, LEADING_REF, EXACTLY(1), "count: number", "math.leading 0",
             "kept, without effect on printing"),
    PROPERTY("trailing", TRAILING, TRAILING_REF, EXACTLY(1), "count: number", "math.trailing 0",
             "kept, without effect on printing"),
    PROPERTY("degree", DEGREE, DEGREE_REF, EXACTLY(1), "on: flag", "math.degree 1",
             "kept, without effect: angles are in radians"),
    PROPERTY("vector", VECTORS, VECTORS_REF, EXACTLY(1), "on: flag", "math.vector 0",
             "text files of lines write points in brackets (default 0)"),
    PROPERTY("matrix", MATRICES, MATRICES_REF, EXACTLY(1), "on: flag", "math.matrix 0",
             "kept, without effect on printing"),
    FUNCTION("minnorm", (EACH_REF<Extreme<true>>), AT_LEAST(1), "vector: hyper ...",
             "a := math.minnorm <2, 4, 6>", "divided by the smallest component"),
    FUNCTION("norm", EACH_REF<Norm>, AT_LEAST(1), "vector: hyper ...", "a := math.norm <0, 3, 4>",
             "divided by the length"),
    FUNCTION("maxnorm", (EACH_REF<Extreme<false>>), AT_LEAST(1), "vector: hyper ...",
             "a := math.maxnorm <1, 2, 4>", "divided by the largest component"),
    FUNCTION("length", EACH_REF<Length>, AT_LEAST(1), "vector: hyper ...",
             "a := math.length <3, 4>", "length of vectors"),
    FUNCTION("angle", MATH_ANGLE_REF, EXACTLY(2), "a: hyper, b: hyper",
             "a := math.angle <1, 0> <0, 1>", "angle of two vectors in radians"),
};
static_assert(ROWS_ARE_SOUND(MATH_ROWS));
} // namespace

const COMMAND_SET MATH_SET{"math.", MATH_ROWS};

void TMACRO::USE_MATH() {
    REGISTER(MATH_SET);
    REGISTER(STACK_SET);
    REGISTER(QUAT_SET);
    REGISTER(MATRIX_SET);
    STACK.CLEAR();
    // Known before the run begins, so no CLEAR takes them away.
    for (const NAMED_ANGLE &angle : ANGLES)
        PUTCONSTANT(angle.name, AngleText(angle.value));
}
} // namespace morvane
