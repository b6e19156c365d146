#include "script/engine/macro.hpp"

#include <algorithm>
#include <array>

namespace morvane {
namespace {
constexpr UTF16CHAR Unit(char c) { return {static_cast<BYTE>(c), 0}; }

// The first character, 0 for none and for one outside the 8-bit range.
char FirstOf(const UTF16 &text) {
    const UTF16CHAR unit = text.GETCHAR(1);
    return unit.high == 0 ? static_cast<char>(unit.low) : '\0';
}

bool EndsWith(const UTF16 &text, char c) {
    return !text.EMPTY() && text.GETCHAR(text.LENGTH()) == Unit(c);
}

UTF16 Trim(const UTF16 &text) { return KILLLAST(KILLFIRST(text, ' '), ' '); }

// Takes a delimiter from the front and its partner from the end; a lone one stays.
void Strip(UTF16 &token, char close) {
    if (token.LENGTH() == 1) return;
    DELETE(token, 1, 1);
    if (EndsWith(token, close)) DELETE(token, token.LENGTH(), 1);
}

// The digits of a base from the last character to the second; other characters are passed over.
UTF16 ReadDigits(const UTF16 &token, std::uint64_t base) {
    std::uint64_t sum = 0, power = 1;
    const UTF16 lower = LOWERCASE(token);
    for (NAT i = lower.LENGTH(); i >= 2; --i) {
        const UTF16CHAR unit = lower.GETCHAR(i);
        std::uint64_t digit = base;
        if (unit.high == 0 && unit.low >= '0' && unit.low <= '9') digit = unit.low - '0';
        if (unit.high == 0 && unit.low >= 'a' && unit.low <= 'f') digit = unit.low - 'a' + 10;
        if (digit >= base) continue;
        sum += digit * power;
        power *= base;
    }
    return std::to_string(static_cast<NAT>(sum));
}

UTF16 ReadCharacter(const UTF16 &token) {
    const NAT code = GETNAT(CUT_TEXT(token));
    if (code < 0 || code > 0xFFFF) return UTF16CHAR{};
    return UTF16CHAR{static_cast<BYTE>(code & 255), static_cast<BYTE>(code >> 8)};
}

bool HasAngle(const UTF16 &line) {
    const std::string_view low = line.LOWBYTES.VIEW();
    return low.find('<') != std::string_view::npos || low.find('>') != std::string_view::npos;
}
} // namespace

void TMACRO::ClassifyWord(TOKEN &token, bool first) {
    if (EndsWith(token.text, ']')) {
        token.kind = 4;
        return;
    }
    if (first) token.command = SEARCH_FUNCTION_COMMAND(token.text);
    if (token.command > 0)
        token.kind = 8;
    else if ((token.command = SEARCH_LAMBDA_COMMAND(token.text)) > 0)
        token.kind = 9;
}

// False when the token adds no parameter. `line` is what stands behind it.
bool TMACRO::Classify(TOKEN &token, UTF16 &line, bool raw, bool first) {
    const char start = FirstOf(token.text);
    switch (start) {
    case '"':
    case '\'':
        token.kind = 2;
        Strip(token.text, start);
        // Deliberate: doubled quotes collapse in the text behind the token, not in the token.
        REPLACE(line, UTF16(Unit(start)) + UTF16(Unit(start)), Unit(start));
        return !token.text.EMPTY();
    case '#':
        token.kind = 2;
        token.text = ReadCharacter(token.text);
        return true;
    case '$':
    case '%':
        token.kind = 3;
        if (token.text.LENGTH() > 1) token.text = ReadDigits(token.text, start == '$' ? 16 : 2);
        return true;
    case '<':
        if (raw) break;
        [[fallthrough]];
    case '(':
    case '[':
    case '{':
        token.kind = 3;
        Strip(token.text, start == '(' ? ')' : start == '<' ? '>' : start == '[' ? ']' : '}');
        return !token.text.EMPTY();
    default: break;
    }
    if (start == '-' || (start >= '0' && start <= '9'))
        token.kind = 1;
    else
        ClassifyWord(token, first);
    return true;
}

void TMACRO::CutTokens(UTF16 line, bool raw, TOKENS &tokens, bool keepNames) {
    std::vector<TOKEN> &list = raw ? tokens.raw : tokens.cut;
    while (!line.EMPTY()) {
        line = Trim(line);
        TOKEN token;
        token.text = raw ? SOFTSPLIT_RAW(line, " ") : SOFTSPLIT(line, " ");
        if (token.text.EMPTY() || !Classify(token, line, raw, list.empty())) continue;
        token.text = CUT_TEXT(token.text);
        if (keepNames && (token.kind == 0 || token.kind == 8))
            token.name = names.INTERN(token.text);
        tokens.anyCommand = tokens.anyCommand || token.command > 0;
        list.push_back(std::move(token));
    }
}

// Without angle brackets both sets of rules cut alike.
void TMACRO::CutText(const UTF16 &line, TOKENS &tokens, bool keepNames) {
    tokens = {};
    CutTokens(line, false, tokens, keepNames);
    if (HasAngle(line)) return CutTokens(line, true, tokens, keepNames);
    tokens.shared = true;
    for (const TOKEN &token : tokens.cut) {
        if (token.command > 0) ++commands.GET(token.command).useCount;
        if (token.kind == 9) tokens.shared = false;
    }
    if (!tokens.shared) tokens.raw = tokens.cut;
}

void TMACRO::CountUses(const TOKENS &tokens) {
    if (!tokens.anyCommand) return;
    for (const TOKEN &token : tokens.cut)
        if (token.command > 0) commands.GET(token.command).useCount += tokens.shared ? 2 : 1;
    for (const TOKEN &token : tokens.raw)
        if (token.command > 0) ++commands.GET(token.command).useCount;
}

UTF16 TMACRO::ReplaceElements(const UTF16 &text) const {
    UTF16 rest = text, result, separator;
    while (!rest.EMPTY()) {
        const NAT comma = POS(",", rest), semicolon = POS(";", rest);
        const NAT cut =
            comma > 0 && semicolon > 0 ? std::min(comma, semicolon) : std::max(comma, semicolon);
        const UTF16 element = Trim(cut > 0 ? COPY(rest, 1, cut - 1) : rest);
        if (!element.EMPTY()) {
            result += separator;
            result += _REPLACE_CONSTANTS(element);
            separator = cut > 0 ? COPY(rest, cut, 1) : UTF16();
        }
        rest = cut > 0 ? COPY(rest, cut + 1, rest.LENGTH()) : UTF16();
    }
    return result;
}

// name[index]: an element of a tab-separated value; index 0 is the count of elements.
UTF16 TMACRO::ReadElement(const UTF16 &text) const {
    const NAT open = POS("[", text);
    if (open == 0) return text;
    const NAT close = POS("]", text);
    UTF16 index = close > open + 1 ? Trim(COPY(text, open + 1, close - open - 1)) : UTF16();
    if (!index.EMPTY()) index = _REPLACE_CONSTANTS(index);
    const NAT n = GETNAT(index);
    if (n < 0) return text;
    UTF16 value = GETCONSTANTVALUE(COPY(text, 1, open - 1));
    if (n == 0) {
        const std::string_view low = value.LOWBYTES.VIEW();
        NAT count = 1;
        for (NAT i = 1; i <= value.LENGTH(); ++i)
            if (low[static_cast<std::size_t>(i - 1)] == '\t' && value.GETCHAR(i).high == 0) ++count;
        return std::to_string(count);
    }
    for (NAT i = 1; i < n && !value.EMPTY(); ++i)
        SPLIT(value, "\t");
    return GETSPLIT(value, "\t");
}

UTF16 TMACRO::ReplaceToken(const TOKEN &token) {
    switch (token.kind) {
    case 3: return ReplaceElements(token.text);
    case 4: return ReadElement(token.text);
    case 9:
        if (stop) return {}; // an earlier one has failed and told it
        if (_LAMBDA_CHECK_LISTE(LOWERCASE(token.text))) return COMMAND_RESULT;
        return _REPLACE_CONSTANTS(token.text);
    case 0:
    case 8:
        return token.name ? constants.REPLACE(token.text, token.name.GET())
                          : _REPLACE_CONSTANTS(token.text);
    default: return token.text;
    }
}

void TMACRO::ReplaceAll(const TOKENS &tokens) {
    parameters.clear();
    rawParameters.clear();
    rawShared = tokens.shared;
    for (const TOKEN &token : tokens.cut)
        parameters.push_back({CUT_TEXT(ReplaceToken(token)), token.kind});
    // Deliberate: the raw list is evaluated too, so a lambda is called twice.
    for (const TOKEN &token : tokens.raw)
        rawParameters.push_back({CUT_TEXT(ReplaceToken(token)), token.kind});
}

void TMACRO::_GETPARAMETER_WITH_CONSTANTS(const UTF16 &line) {
    TOKENS tokens;
    CutText(_REPLACE_AT_CONSTANTS(line), tokens, false);
    ReplaceAll(tokens);
}

void TMACRO::_EVALUATE(const LINE_PART &part) {
    if (part.atRest) return _GETPARAMETER_WITH_CONSTANTS(part.rest);
    LINE_PART::CACHE &cache = part.cache;
    if (cache.tokensVersion == commands.VERSION()) {
        CountUses(cache.tokens);
    } else {
        CutText(part.rest, cache.tokens, true);
        cache.tokensVersion = commands.VERSION();
    }
    ReplaceAll(cache.tokens);
}

std::vector<TOKEN> TMACRO::_WRITTENTOKENS(const LINE_PART &part) {
    TOKENS tokens;
    CutTokens(part.atRest ? _REPLACE_AT_CONSTANTS(part.rest) : part.rest, false, tokens, false);
    return std::move(tokens.cut);
}

std::vector<UTF16> TMACRO::_WRITTENNAMES(const LINE_PART &part) {
    std::vector<UTF16> written;
    for (TOKEN &token : _WRITTENTOKENS(part))
        written.push_back(std::move(token.text));
    return written;
}

UTF16 TMACRO::_JOINPARAMETERS(NAT first, const UTF16 &separator) const {
    UTF16 joined;
    for (NAT i = first; i <= PARAMETERLENGTH(); ++i) {
        if (i > first) joined += separator;
        joined += parameters[static_cast<std::size_t>(i - 1)].text;
    }
    return joined;
}
} // namespace morvane
