#include "foundation/base/number_parse.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/random.hpp"
#include "foundation/base/rounding.hpp"

#include <cstdlib>
#include <string>

#include <doctest/doctest.h>

using namespace morvane;

// The described steps of reading written down one by one, slowly, to compare the real reader with.
namespace described {
REAL TERM(std::string &text) {
    if (text.empty()) return 0;
    std::string token;
    std::size_t at = 0;
    if (text[0] == '-') {
        token = "-";
        at = 1;
    }
    while (at < text.size() && std::string("0123456789.,ei").find(text[at]) != std::string::npos) {
        if (text[at] == 'i')
            token += "e-";
        else
            token += text[at] == ',' ? '.' : text[at];
        ++at;
    }
    text.erase(0, at);
    REAL value = 0;
    NAT code = 0;
    VAL(token, value, code);
    return code == 0 ? value : 0;
}

REAL EXPRESSION(std::string text);

// The value in front of the rest once more.
REAL AGAIN(REAL value, const std::string &rest) {
    return rest.empty() ? value : EXPRESSION(GETUTF8(GETSTRING(value)) + rest);
}

REAL EXPRESSION(std::string text) {
    REAL value = TERM(text);
    if (text.size() <= 1) return value;
    const std::string two = text.substr(0, 2);
    const char op = text[0];
    if (op == '+' || op == '-') {
        const std::string remainder = text.substr(1);
        text.erase(0, 1);
        REAL right = TERM(text);
        if (!text.empty()) right = EXPRESSION(remainder);
        return op == '+' ? value + right : value - right;
    }
    if (two == "<=" || two == "<>" || two == ">=") {
        text.erase(0, 2);
        if (text.empty()) return 0;
        const REAL right = TERM(text);
        const bool holds = two == "<="   ? value <= right
                           : two == "<>" ? value != right
                                         : value >= right;
        return AGAIN(holds ? 1 : 0, text);
    }
    if (std::string("*/&|<>=").find(op) == std::string::npos) return value;
    text.erase(0, 1);
    const REAL right = TERM(text);
    switch (op) {
    case '*': value = value * right; break;
    case '/': value = right == 0 ? 0 : value / right; break;
    case '&': value = static_cast<REAL>(TRUNC(value) & TRUNC(right)); break;
    case '|': value = static_cast<REAL>(TRUNC(value) | TRUNC(right)); break;
    case '<': value = value < right ? 1 : 0; break;
    case '>': value = value > right ? 1 : 0; break;
    default: value = value == right ? 1 : 0; break;
    }
    return AGAIN(value, text);
}

std::string REPLACED(std::string text, const std::string &find, const std::string &replacement) {
    REPLACE(text, find, replacement);
    return text;
}

// The rewritten token: "1e-2" with its exponent kept together, then the four rewrites.
REAL TOKEN(std::string token) {
    if (token.empty() || token == ".") return 0;
    for (char digit : std::string("0123456789."))
        for (char behind : std::string("0123456789")) {
            const std::string d(1, digit), b(1, behind);
            // twice, because occurrences may share their digit
            token = REPLACED(token, d + "e-" + b, d + "i" + b);
            token = REPLACED(token, d + "e-" + b, d + "i" + b);
        }
    token = REPLACED(token, "-", "++");
    token = REPLACED(token, "++", "+-");
    token = REPLACED(token, "e-", "i");
    token = REPLACED(token, "e+", "e");
    return EXPRESSION(token);
}

std::string CUT(std::string &text) {
    const auto at = [&](std::size_t i, const char *set) {
        return std::string(set).find(text[i]) != std::string::npos;
    };
    std::size_t start = 0;
    while (start < text.size() && !at(start, "0123456789-."))
        ++start;
    text.erase(0, start);
    start = 0;
    while (start + 1 < text.size() && !at(start, "0123456789-"))
        ++start;
    std::string token;
    while (start < text.size() && at(start, "&*+-./0123456789<=>e|"))
        token += text[start++];
    text.erase(0, start);
    return token;
}

std::string REWRITTEN(const UTF16 &source) {
    std::string text = GETUTF8(LOWERCASE(source));
    text = REPLACED(text, "°", "*0.01745329251994329509");
    text = REPLACED(text, "%", "*0.01");
    return REPLACED(text, "π", "3.141592653589793116");
}

// Cuts a number from the front of lower-cased, rewritten units.
REAL REALOF(std::string &units) {
    const std::string token = CUT(units);
    REAL value = 0;
    NAT code = 0;
    VAL(token, value, code);
    return code == 0 ? value : TOKEN(token);
}

NAT NATOF(std::string &units) {
    const std::string token = CUT(units);
    NAT value = 0, code = 0;
    VAL(token, value, code);
    return code == 0 ? value : ROUND(TOKEN(token));
}

// One byte for a unit: what is not ASCII stands for itself only in its place.
std::string UNITS(const UTF16 &text) {
    std::string units;
    for (NAT i = 1; i <= text.LENGTH(); ++i) {
        const UTF16CHAR unit = text.GETCHAR(i);
        units += unit.high == 0 && unit.low < 128 ? static_cast<char>(unit.low) : '\x01';
    }
    return units;
}
} // namespace described

namespace {
// A text of such pieces as scripts and header files hold.
std::string RandomText(RANDOM_STREAM &random) {
    static const std::array<const char *, 40> PIECES{
        "0",  "1",  "2",  "7",  "9", "12", "3.25", ".", "-", "+", "*", "/", "&",   "|",
        "<",  ">",  "=",  "e",  "E", "e-", "e+",   "%", "°", "π", " ", ",", "<1,", "2>",
        "<=", "<>", ">=", "--", "x", "é",  "1e-2", "i", "€", ";", "(", "00"};
    std::string text;
    for (NAT i = random.BELOW(12); i >= 0; --i)
        text += PIECES[static_cast<std::size_t>(random.BELOW(PIECES.size()))];
    return text;
}

bool Same(REAL a, REAL b) { return a == b || (a != a && b != b); }
} // namespace

TEST_CASE("reading equals the described steps on many texts") {
    RESTART_RANDOM(1);
    RANDOM_STREAM random(1, 1);
    for (int round = 0; round < 60000; ++round) {
        const UTF16 text = RandomText(random);
        CAPTURE(GETUTF8(text));
        std::string units = described::UNITS(described::REWRITTEN(text));
        const REAL value = described::REALOF(units);
        REQUIRE(Same(GETREAL(text), value));
        UTF16 cut = text;
        REQUIRE(Same(CUTREAL(cut), value));
        REQUIRE(described::UNITS(cut) == units);
        REQUIRE(Same(GETCOMPLEX(text).y, described::REALOF(units)));
        std::string bytes = GETUTF8(text), expected = described::REWRITTEN(text);
        REQUIRE(Same(CUTREAL(bytes), described::REALOF(expected)));
        REQUIRE(bytes == expected);
    }
}

TEST_CASE("reading whole numbers equals the described steps on many texts") {
    RESTART_RANDOM(2);
    RANDOM_STREAM random(1, 1);
    for (int round = 0; round < 60000; ++round) {
        const UTF16 text = RandomText(random);
        CAPTURE(GETUTF8(text));
        std::string units = described::UNITS(LOWERCASE(text));
        const NAT value = described::NATOF(units);
        REQUIRE(GETNAT(text) == value);
        UTF16 cut = text;
        REQUIRE(CUTNAT(cut) == value);
        REQUIRE(described::UNITS(cut) == units);
        REQUIRE(GETCOMPLEXNAT(text).y == described::NATOF(units));
        std::string bytes = GETUTF8(text), expected = GETUTF8(LOWERCASE(text));
        REQUIRE(CUTNAT(bytes) == described::NATOF(expected));
        REQUIRE(bytes == expected);
    }
}

TEST_CASE("numbers read as the C library reads them") {
    RESTART_RANDOM(3);
    RANDOM_STREAM random(1, 1);
    for (int round = 0; round < 60000; ++round) {
        std::string text = random.BELOW(2) ? "-" : "";
        for (NAT i = random.BELOW(20); i >= 0; --i)
            text += static_cast<char>('0' + random.BELOW(10));
        if (random.BELOW(2)) text += '.';
        for (NAT i = random.BELOW(20); text.find('.') != text.npos && i > 0; --i)
            text += static_cast<char>('0' + random.BELOW(10));
        if (random.BELOW(3) == 0) text += "e" + std::to_string(random.BELOW(600) - 330);
        CAPTURE(text);
        REAL value = 0;
        const REAL expected = std::strtod(text.c_str(), nullptr);
        const NAT code = PARSE_REAL(text, value);
        if (std::isinf(expected))
            REQUIRE(code > 0);
        else
            REQUIRE((code == 0 && value == expected));
    }
}

TEST_CASE("a number too small for a real is 0 and one too large is no number") {
    REAL value = 1;
    CHECK(PARSE_REAL("1e-400", value) == 0);
    CHECK(value == 0);
    CHECK(PARSE_REAL("0." + std::string(500, '0') + "1", value) == 0);
    CHECK(value == 0);
    CHECK(PARSE_REAL("1e400", value) == 5);
    CHECK(PARSE_REAL("0e400", value) == 0);
    CHECK(PARSE_REAL("1e99999999999999999999", value) != 0);
    CHECK(PARSE_REAL("1e-99999999999999999999", value) == 0);
}

TEST_CASE("blanks and a sign may stand before a number, nothing behind it") {
    REAL value = 0;
    NAT whole = 0;
    CHECK(PARSE_REAL("  +1.5", value) == 0);
    CHECK(value == 1.5);
    CHECK(PARSE_REAL("1.5 ", value) == 4);
    CHECK(PARSE_REAL("1e", value) == 3);
    CHECK(PARSE_REAL("inf", value) == 1);
    CHECK(PARSE_REAL("nan", value) == 1);
    CHECK(PARSE_REAL("-", value) == 2);
    CHECK(PARSE_NAT(" -12", whole) == 0);
    CHECK(whole == -12);
    CHECK(PARSE_NAT("9223372036854775808", whole) == 19);
    CHECK(whole == 0);
    CHECK(PARSE_NAT("-", whole) == 2);
    CHECK(PARSE_NAT("0000000000000000000000000000001", whole) == 0);
    CHECK(whole == 1);
}
