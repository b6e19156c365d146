#include "foundation/base/geometry.hpp"
#include "foundation/base/rounding.hpp"
#include "script/module/stack.hpp"

#include <cmath>

// The words of the calculator. In the comments a and b stand for the second entry and the top.
namespace morvane {
namespace {
// As everywhere in the system, what has no finite value is 0.
REAL Finite(REAL x) { return std::isfinite(x) ? x : 0; }

void Push(TPOLYHYPER &entries, const HYPER &value) {
    entries.PUSH(components::MAP<HYPER>(Finite, value));
}

// f of the top. Components behind the last one that is not 0 stay 0, so that a number stays a
// number where f(0) is not 0.
template <REAL (*F)(REAL)> void Each(TPOLYHYPER &entries) {
    const HYPER a = entries.POP();
    const NAT used = USED_COMPONENTS(a);
    Push(entries, {F(a.x), used > 1 ? F(a.y) : 0, used > 2 ? F(a.z) : 0, used > 3 ? F(a.w) : 0});
}

// f of a and b, component by component; f(0, 0) is 0.
template <REAL (*F)(REAL, REAL)> void Pair(TPOLYHYPER &entries) {
    const HYPER b = entries.POP(), a = entries.POP();
    Push(entries, components::MAP<HYPER>(F, a, b));
}

REAL Add(REAL a, REAL b) { return a + b; }
REAL Subtract(REAL a, REAL b) { return a - b; }
REAL Multiply(REAL a, REAL b) { return a * b; }
REAL Divide(REAL a, REAL b) { return DIVIDE(a, b); }
// The values of POWER, to the last digit also for roots: 25 to the power of 0.5 is 5.
REAL Power(REAL a, REAL b) { return a > 0 ? std::pow(a, b) : POWER(a, b); }
REAL Least(REAL a, REAL b) { return std::min(a, b); }
REAL Most(REAL a, REAL b) { return std::max(a, b); }
REAL Rest(REAL a, REAL b) { return static_cast<REAL>(MOD(a, b)); }
REAL Quotient(REAL a, REAL b) { return std::floor(DIVIDE(a, b)); }

REAL Square(REAL a) { return a * a; }
REAL Cube(REAL a) { return a * a * a; }
REAL Size(REAL a) { return std::abs(a); }
// The two signs behind a number mean the same as behind one of the language: 50% and 90°.
REAL Percent(REAL a) { return a * 0.01; }
REAL Negative(REAL a) { return -a; }
REAL Inverse(REAL a) { return DIVIDE(1, a); }
// The decimal logarithm with the signs of LN: 0 for 0, minus that of -a below 0. Powers of ten give
// whole numbers, which a quotient of two logarithms would miss.
REAL Logarithm(REAL a) { return a == 0 ? 0 : COPYSIGN(1, a) * std::log10(std::abs(a)); }
REAL Sine(REAL a) { return std::sin(a); }
REAL Cosine(REAL a) { return std::cos(a); }
REAL Arctangent(REAL a) { return std::atan(a); }

void Flip(TPOLYHYPER &entries) { entries.FLIP(); }
void Empty(TPOLYHYPER &entries) { entries.DONE(); }

// "o", "x" and "d" are the products of the operators o= and x=, and the distance of two points.
void Scalar(TPOLYHYPER &entries) {
    const HYPER b = entries.POP(), a = entries.POP();
    Push(entries, {SCALAR(a, b), 0, 0, 0});
}
void Cross(TPOLYHYPER &entries) {
    const HYPER b = entries.POP(), a = entries.POP();
    const VECTOR c = CROSS(VECTOR{a.x, a.y, a.z}, VECTOR{b.x, b.y, b.z});
    Push(entries, {c.x, c.y, c.z, 0});
}
void Distance(TPOLYHYPER &entries) {
    const HYPER b = entries.POP(), a = entries.POP();
    Push(entries, {GETLENGTH(a - b), 0, 0, 0});
}

// Statistics take the whole stack and leave one entry, component by component.
void Statistic(TPOLYHYPER &entries, const HYPER &value) {
    entries.DONE();
    Push(entries, value);
}
void Sum(TPOLYHYPER &entries) { Statistic(entries, entries.SUM()); }
void Mean(TPOLYHYPER &entries) { Statistic(entries, entries.MEAN()); }
void Variance(TPOLYHYPER &entries) { Statistic(entries, entries.VARIANCE()); }
void Deviation(TPOLYHYPER &entries) { Statistic(entries, entries.SD()); }

// a b -- rest quotient
void RestAndQuotient(TPOLYHYPER &entries) {
    const HYPER b = entries.POP(), a = entries.POP();
    Push(entries, components::MAP<HYPER>(Rest, a, b));
    Push(entries, components::MAP<HYPER>(Quotient, a, b));
}

// a -- a a
void Duplicate(TPOLYHYPER &entries) { entries.PUSH(entries.GET(entries.LENGTH)); }
// a --
void Drop(TPOLYHYPER &entries) { entries.POP(); }
// a b -- b a
void Swap(TPOLYHYPER &entries) {
    std::swap(*entries._INDEX(entries.LENGTH), *entries._INDEX(entries.LENGTH - 1));
}
// a b -- a b a
void Over(TPOLYHYPER &entries) { entries.PUSH(entries.GET(entries.LENGTH - 1)); }
// a b c -- b c a
void Rotate(TPOLYHYPER &entries) {
    HYPER *third = entries._INDEX(entries.LENGTH - 2);
    std::rotate(third, third + 1, third + 3);
}

constexpr STACK_WORD WORDS[] = {
    {":", 0, Empty},
    {"§", 0, Flip},
    {"+", 2, Pair<Add>},
    {"-", 2, Pair<Subtract>},
    {"*", 2, Pair<Multiply>},
    {"/", 2, Pair<Divide>},
    {"²", 1, Each<Square>},
    {"³", 1, Each<Cube>},
    {"^", 2, Pair<Power>},
    {"|", 1, Each<Size>},
    {"%", 1, Each<Percent>},
    {"°", 1, Each<GETRAD>},
    {"o", 2, Scalar},
    {"x", 2, Cross},
    {"d", 2, Distance},
    {"sd", 1, Deviation},
    {"neg", 1, Each<Negative>},
    {"inv", 1, Each<Inverse>},
    {"log", 1, Each<Logarithm>},
    {"sin", 1, Each<Sine>},
    {"cos", 1, Each<Cosine>},
    {"tan", 1, Each<TAN>},
    {"min", 2, Pair<Least>},
    {"max", 2, Pair<Most>},
    {"sum", 1, Sum},
    {"var", 1, Variance},
    {"mod", 2, Pair<Rest>},
    {"dup", 1, Duplicate, true},
    {"rot", 3, Rotate},
    {"mean", 1, Mean},
    {"/mod", 2, RestAndQuotient},
    {"swap", 2, Swap},
    {"over", 2, Over, true},
    {"drop", 1, Drop},
    {"arcsin", 1, Each<ARCSIN>},
    {"arccos", 1, Each<ARCCOS>},
    {"arctan", 1, Each<Arctangent>},
};
} // namespace

std::span<const STACK_WORD> STACK_WORDS() { return WORDS; }

const STACK_WORD *FIND_STACK_WORD(std::string_view word) {
    for (const STACK_WORD &row : WORDS)
        if (row.word == word) return &row;
    return nullptr;
}
} // namespace morvane
