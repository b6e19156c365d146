#include "script/engine/expression.hpp"

#include "foundation/base/geometry.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/record_operators.hpp"
#include "foundation/base/rounding.hpp"
#include "script/engine/macro.hpp"

#include <algorithm>
#include <cmath>

namespace morvane {
namespace {
UTF16 Parameter(TMACRO &engine, NAT index) { return engine.GETPARAMETER_ERRORFREE(index); }
HYPER Number(TMACRO &engine, NAT index) { return GETHYPER(Parameter(engine, index)); }

// Folds the parameters from the first on, in order.
template <class VALUE, class READ, class FOLD>
VALUE Fold(TMACRO &engine, VALUE value, READ read, FOLD fold) {
    if (engine.PARAMETERLENGTH() > 0) value = read(Parameter(engine, 1));
    for (NAT i = 2; i <= engine.PARAMETERLENGTH(); ++i)
        value = fold(value, read(Parameter(engine, i)));
    return value;
}
template <class FOLD> UTF16 FoldHyper(TMACRO &engine, FOLD fold) {
    const auto read = [](const UTF16 &text) { return GETHYPER(text); };
    return GETSHORT(Fold(engine, HZERO, read, fold));
}

// Deliberate: no numeric operator reads the old value of its target.
UTF16 Add(TMACRO &engine) {
    return FoldHyper(engine, [](const HYPER &a, const HYPER &b) { return a + b; });
}
UTF16 Subtract(TMACRO &engine) {
    return FoldHyper(engine, [](const HYPER &a, const HYPER &b) { return a - b; });
}
UTF16 Multiply(TMACRO &engine) {
    return FoldHyper(engine, [](const HYPER &a, const HYPER &b) { return a * b; });
}
UTF16 Divide(TMACRO &engine) {
    return FoldHyper(engine, [](const HYPER &a, const HYPER &b) { return a / b; });
}
UTF16 Scalar(TMACRO &engine) {
    return FoldHyper(engine, [](const HYPER &a, const HYPER &b) {
        return HYPER{SCALAR(a, b), 0, 0, 0};
    });
}
UTF16 Cross(TMACRO &engine) {
    const auto read = [](const UTF16 &text) { return GETVECTOR(text); };
    return GETSHORT(
        Fold(engine, VZERO, read, [](const VECTOR &a, const VECTOR &b) { return CROSS(a, b); }));
}

// f of each parameter from `first` on, joined with a blank.
template <class F> UTF16 JoinEach(TMACRO &engine, NAT first, F f) {
    UTF16 joined;
    for (NAT i = first; i <= engine.PARAMETERLENGTH(); ++i) {
        if (i > first) joined += " ";
        joined += f(Parameter(engine, i));
    }
    return joined;
}

UTF16 InFront(TMACRO &engine) {
    UTF16 joined;
    for (NAT i = engine.PARAMETERLENGTH(); i >= 1; --i)
        joined += Parameter(engine, i);
    return joined;
}
UTF16 Join(TMACRO &engine) { return engine._JOINPARAMETERS(1, " "); }

// Rounded to n decimals, half to even, where a double holds so many.
REAL RoundDigits(REAL value, NAT n) {
    if (n > 15 || std::abs(value) > 1e15) return value;
    const REAL scale = std::pow(10.0, static_cast<REAL>(n));
    const REAL scaled = value * scale;
    return std::abs(scaled) < 1e18 ? static_cast<REAL>(ROUND(scaled)) / scale : value;
}

// The short form of a hyper with n decimals in each component.
UTF16 ShortDigits(const HYPER &h, NAT n) {
    const auto part = [n](REAL value) { return GETSTRING(RoundDigits(value, n), n); };
    const UTF16 comma = FORMAT.DECIMAL ? ", " : "; ";
    if (h.w != 0)
        return "<" + part(h.x) + comma + part(h.y) + comma + part(h.z) + comma + part(h.w) + ">";
    if (h.z != 0) return "<" + part(h.x) + comma + part(h.y) + comma + part(h.z) + ">";
    if (h.y != 0) return "<" + part(h.x) + comma + part(h.y) + ">";
    return part(h.x);
}

UTF16 Round(TMACRO &engine) {
    constexpr NAT MOST_DECIMALS = 1100, WIDEST = 1024; // a value keeps fewer characters
    if (engine.PARAMETERLENGTH() < 1) return {};
    if (engine.PARAMETERLENGTH() == 1) return GETSHORT(ROUND(Number(engine, 1)));
    const NAT n = std::clamp(GETNAT(Parameter(engine, 1)), -WIDEST, MOST_DECIMALS);
    return JoinEach(engine, 2, [n](const UTF16 &text) {
        const HYPER value = GETHYPER(text);
        return n >= 0 ? ShortDigits(value, n) : FILLBEFORE(GETSHORT(value), -n, "0");
    });
}

UTF16 Norm(TMACRO &engine) {
    if (engine.PARAMETERLENGTH() < 1) return engine.MIN_PARAMETERERROR(1), UTF16();
    return JoinEach(engine, 1, [](const UTF16 &text) { return GETSHORT(MAXNORM(GETHYPER(text))); });
}

// Deliberate: of several texts only the last one's cut remains.
UTF16 Keep(TMACRO &engine) {
    const NAT count = engine.PARAMETERLENGTH();
    if (count < 2) return Parameter(engine, 1);
    const NAT n = std::clamp(GETNAT(Parameter(engine, 1)), -LONGEST_TEXT, LONGEST_TEXT);
    const UTF16 text = Parameter(engine, count);
    if (n >= 1) return COPY(text, 1, n);
    return COPY(text, std::max<NAT>(1, text.LENGTH() + n + 1), -n);
}

UTF16 Drop(TMACRO &engine) {
    const NAT count = engine.PARAMETERLENGTH();
    if (count < 2) return Parameter(engine, 1);
    const NAT n = std::clamp(GETNAT(Parameter(engine, 1)), -LONGEST_TEXT, LONGEST_TEXT);
    const UTF16 text = Parameter(engine, count);
    if (n >= 1) return COPY(text, n + 1, text.LENGTH());
    return COPY(text, 1, std::max<NAT>(0, text.LENGTH() + n));
}

UTF16 Head(TMACRO &engine) {
    if (engine.PARAMETERLENGTH() < 2) return Parameter(engine, 1);
    const UTF16 separator = Parameter(engine, 1);
    return JoinEach(engine, 2, [&](const UTF16 &text) { return GETSPLIT(text, separator); });
}

UTF16 Exchange(TMACRO &engine) {
    if (engine.PARAMETERLENGTH() < 3) return engine.MIN_PARAMETERERROR(3), UTF16();
    const UTF16 find = Parameter(engine, 1), replacement = Parameter(engine, 2);
    return JoinEach(engine, 3, [&](UTF16 text) {
        REPLACE(text, find, replacement);
        return text;
    });
}

UTF16 Remove(TMACRO &engine) {
    if (engine.PARAMETERLENGTH() < 1) return engine.MIN_PARAMETERERROR(1), UTF16();
    UTF16 value = engine.GETCONSTANTVALUE(engine.COMMAND_RESULT_VAR);
    for (NAT i = 1; i <= engine.PARAMETERLENGTH(); ++i)
        REPLACE(value, Parameter(engine, i), {});
    return value;
}

struct OPERATOR {
    std::string_view word;
    UTF16 (*value)(TMACRO &engine);
};
constexpr OPERATOR OPERATORS[] = {
    {"~=", InFront}, {"|=", Join},   {"+=", Add},   {"-=", Subtract}, {"*=", Multiply},
    {"/=", Divide},  {"o=", Scalar}, {"x=", Cross}, {"#=", Round},    {"%=", Norm},
    {"$=", Keep},    {"d=", Drop},   {"s=", Head},  {"r=", Exchange}, {"!=", Remove},
};
} // namespace

UTF16 ASSIGNMENT_RESULT(TMACRO &engine, const UTF16 &operation) {
    const std::string word = GETUTF8(operation);
    for (const OPERATOR &row : OPERATORS)
        if (row.word == word) return row.value(engine);
    return {};
}

std::vector<std::string_view> ASSIGNMENT_OPERATORS() {
    std::vector<std::string_view> words;
    for (const OPERATOR &row : OPERATORS)
        words.push_back(row.word);
    return words;
}
} // namespace morvane
