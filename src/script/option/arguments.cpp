#include "script/option/arguments.hpp"

#include "script/option/parameter.hpp"

// How the process arguments become name and value pairs.
namespace morvane {
UTF16 UNQUOTE(UTF16 text) {
    if (!BEGINS_WITH(text, '"') && !BEGINS_WITH(text, '\'')) return text;
    const UTF16CHAR quote = text.GETCHAR(1);
    DELETE(text, 1, 1);
    if (text.GETCHAR(text.LENGTH()) == quote) DELETE(text, text.LENGTH(), 1);
    REPLACE(text, UTF16(quote) + UTF16(quote), UTF16(quote));
    return text;
}

void TPARAMETER::_READARGUMENTS() {
    std::string joined;
    for (std::size_t i = 1; i < arguments.size(); ++i)
        joined += (i > 1 ? "\t" : "") + arguments[i];
    UTF16 rest(joined);
    bool isReplaceable = false; // the token before was "-name" alone
    while (!rest.EMPTY()) {
        const UTF16 token = TRIM(GETREPLACE(SOFTSPLIT(rest, "\t"), '\t', ' '));
        if (!token.EMPTY()) _READTOKEN(token, isReplaceable);
    }
}

void TPARAMETER::_READTOKEN(const UTF16 &token, bool &isReplaceable) {
    const bool wasReplaceable = isReplaceable;
    isReplaceable = false;
    const NAT sign = POS("=", token);
    if (BEGINS_WITH(token, '-') && sign >= 2) {
        pairs.push_back({KILLFIRST(COPY(token, 1, sign - 1), '-'),
                         UNQUOTE(COPY(token, sign + 1, token.LENGTH()))});
    } else if (BEGINS_WITH(token, '-')) {
        pairs.push_back({KILLFIRST(token, '-'), "false", true});
        isReplaceable = true;
    } else if (BEGINS_WITH(token, '+')) {
        pairs.push_back({COPY(token, 2, token.LENGTH()), "true"});
    } else if (wasReplaceable) {
        pairs.back().value = UNQUOTE(token);
        pairs.back().bare = false;
    } else {
        pairs.push_back({UTF16CHARS7(), UNQUOTE(token)});
    }
}
} // namespace morvane
