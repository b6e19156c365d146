#include "foundation/base/number_parse.hpp"

#include "foundation/base/byte_scan.hpp"
#include "foundation/base/number_print.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/base/utf16.hpp"

#include <charconv>
#include <vector>

namespace morvane {
namespace {
constexpr std::array<REAL, 23> TENS{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                    1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                    1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr NAT EXACT_TENS = 22;   // the last power of ten that a real holds exactly
constexpr NAT EXACT_DIGITS = 15; // so many digits are exact in a real

// The parts of a number while it is scanned.
struct SCANNED {
    std::size_t start = 0, at = 0; // of the unsigned number; behind what was read
    bool negative = false;
    std::uint64_t digits = 0; // as one number, right as long as count is small
    NAT count = 0;            // of digits behind leading zeros
    NAT anyDigits = 0;
    NAT scale = 0; // power of ten of `digits`
};

void SkipSign(std::string_view text, SCANNED &s) {
    while (s.at < text.size() && (text[s.at] == ' ' || text[s.at] == '\t'))
        ++s.at;
    if (s.at < text.size() && (text[s.at] == '-' || text[s.at] == '+'))
        s.negative = text[s.at++] == '-';
    s.start = s.at;
}

void ScanDigits(std::string_view text, SCANNED &s, NAT scaleStep) {
    for (; s.at < text.size() && IS_DIGIT(text[s.at]); ++s.at) {
        s.digits = s.digits * 10 + static_cast<std::uint64_t>(text[s.at] - '0');
        s.count += s.count > 0 || text[s.at] != '0';
        ++s.anyDigits;
        s.scale -= scaleStep;
    }
}

// The exponent, if one stands here; false when it has no digits.
bool ScanExponent(std::string_view text, SCANNED &s) {
    if (s.at >= text.size() || (text[s.at] != 'e' && text[s.at] != 'E')) return true;
    bool negative = false;
    ++s.at;
    if (s.at < text.size() && (text[s.at] == '-' || text[s.at] == '+'))
        negative = text[s.at++] == '-';
    if (s.at >= text.size() || !IS_DIGIT(text[s.at])) return false;
    NAT exponent = 0;
    for (; s.at < text.size() && IS_DIGIT(text[s.at]); ++s.at)
        exponent = std::min<NAT>(exponent * 10 + (text[s.at] - '0'), 1000000);
    s.scale += negative ? -exponent : exponent;
    return true;
}

// Few digits and a small power of ten are exact and need one rounded operation; the rest goes to
// the library. False when the number is too large for a real.
bool Value(std::string_view text, const SCANNED &s, REAL &value) {
    if (s.count <= EXACT_DIGITS && s.scale >= -EXACT_TENS && s.scale <= EXACT_TENS) {
        const REAL whole = static_cast<REAL>(s.digits);
        value = s.scale < 0 ? whole / TENS[static_cast<std::size_t>(-s.scale)]
                            : whole * TENS[static_cast<std::size_t>(s.scale)];
    } else {
        const auto [end, error] = std::from_chars(text.data() + s.start, text.data() + s.at, value);
        if (error != std::errc()) {
            if (s.count + s.scale > 0) return false;
            value = 0; // too small for a real
        }
    }
    if (s.negative) value = -value;
    return true;
}
} // namespace

NAT PARSE_REAL(std::string_view text, REAL &value) {
    SCANNED s;
    value = 0;
    SkipSign(text, s);
    ScanDigits(text, s, 0);
    if (s.at < text.size() && text[s.at] == '.') {
        ++s.at;
        ScanDigits(text, s, 1);
    }
    const bool sound = s.anyDigits > 0 && ScanExponent(text, s);
    if (!sound || s.at < text.size()) return static_cast<NAT>(s.at) + 1;
    return Value(text, s, value) ? 0 : static_cast<NAT>(text.size());
}

NAT PARSE_NAT(std::string_view text, NAT &value) {
    SCANNED s;
    SkipSign(text, s);
    value = 0;
    if (s.at >= text.size()) return static_cast<NAT>(s.at) + 1;
    const std::uint64_t limit = static_cast<std::uint64_t>(NATMAX) + (s.negative ? 1 : 0);
    if (text.size() - s.at <= 18) { // cannot overflow
        ScanDigits(text, s, 0);
        if (s.at < text.size()) return static_cast<NAT>(s.at) + 1;
    }
    for (; s.at < text.size(); ++s.at) {
        const std::uint64_t digit = static_cast<std::uint64_t>(text[s.at] - '0');
        if (!IS_DIGIT(text[s.at]) || s.digits > (limit - digit) / 10)
            return static_cast<NAT>(s.at) + 1;
        s.digits = s.digits * 10 + digit;
    }
    value = static_cast<NAT>(s.negative ? 0 - s.digits : s.digits);
    return 0;
}

REAL CUTTERM(std::string_view &rest) {
    std::string number;
    std::size_t at = 0;
    if (!rest.empty() && rest[0] == '-') number += rest[at++];
    for (; at < rest.size(); ++at) {
        const char c = rest[at];
        if (IS_DIGIT(c) || c == '.' || c == 'e')
            number += c;
        else if (c == ',')
            number += '.';
        else if (c == 'i')
            number += "e-";
        else
            break;
    }
    rest.remove_prefix(at);
    REAL value = 0;
    PARSE_REAL(number, value); // a failure leaves 0
    return value;
}

namespace {
// An intermediate value is printed and read again, which cuts it to what GETSTRING shows.
REAL Printed(REAL value) {
    if (value == std::trunc(value) && std::abs(value) < 1e15) return value + 0; // -0 becomes 0
    std::string text;
    PRINT_PLAIN(text, value);
    PARSE_REAL(text, value);
    return value;
}

struct OPERATOR {
    char first = 0, second = 0; // second: the "=" or ">" of a comparison
};

// A two-character comparison, or one character.
OPERATOR CutOperator(std::string_view &rest) {
    OPERATOR op{rest[0], 0};
    rest.remove_prefix(1);
    if (rest.empty()) return op;
    const bool orEqual = (op.first == '<' || op.first == '>') && rest[0] == '=';
    if (orEqual || (op.first == '<' && rest[0] == '>')) {
        op.second = rest[0];
        rest.remove_prefix(1);
    }
    return op;
}

REAL Compare(const OPERATOR &op, REAL a, REAL b) {
    bool holds = a == b;
    if (op.first == '<') holds = op.second == '>' ? a != b : op.second == '=' ? a <= b : a < b;
    if (op.first == '>') holds = op.second == '=' ? a >= b : a > b;
    return holds ? 1 : 0;
}

REAL Apply(const OPERATOR &op, REAL a, REAL b) {
    switch (op.first) {
    case '*': return a * b;
    case '/': return DIVIDE(a, b);
    case '&': return static_cast<REAL>(TRUNC(a) & TRUNC(b));
    case '|': return static_cast<REAL>(TRUNC(a) | TRUNC(b));
    default: return Compare(op, a, b);
    }
}

bool IsLeftBinding(char c) { return std::string_view("*/&|<>=").find(c) != std::string_view::npos; }
} // namespace

REAL CUTEXPRESSION(std::string_view rest) {
    // The left operands of "+" and "-", which wait for all that stands to their right. A list in
    // place of a recursion, so that a long text cannot exhaust the stack.
    std::vector<std::pair<REAL, char>> waiting;
    REAL value = CUTTERM(rest);
    // Deliberate: a lone operator at the end of an expression is ignored.
    while (rest.size() > 1) {
        if (rest[0] == '+' || rest[0] == '-') {
            waiting.emplace_back(value, rest[0]);
            rest.remove_prefix(1);
            value = CUTTERM(rest);
        } else if (IsLeftBinding(rest[0])) {
            const OPERATOR op = CutOperator(rest);
            value = rest.empty() ? 0 : Apply(op, value, CUTTERM(rest));
            if (!rest.empty()) value = Printed(value);
        } else {
            break;
        }
    }
    for (; !waiting.empty(); waiting.pop_back())
        value = waiting.back().second == '+' ? waiting.back().first + value
                                             : waiting.back().first - value;
    return value;
}

namespace {
// "e-" becomes "i" where it stands between a number and its exponent.
std::string MarkExponents(std::string_view token) {
    std::string text;
    for (std::size_t at = 0; at < token.size(); ++at) {
        const bool number = at > 0 && (IS_DIGIT(token[at - 1]) || token[at - 1] == '.');
        if (number && at + 2 < token.size() && token.substr(at, 2) == "e-" &&
            IS_DIGIT(token[at + 2])) {
            text += 'i';
            ++at;
        } else {
            text += token[at];
        }
    }
    return text;
}
} // namespace

REAL EVALUATE(std::string_view token) {
    if (token.empty() || token == ".") return 0;
    std::string text = MarkExponents(token);
    REPLACE(text, "-", "++");
    REPLACE(text, "++", "+-");
    REPLACE(text, "e-", "i");
    REPLACE(text, "e+", "e");
    return CUTEXPRESSION(text);
}
} // namespace morvane
