#include "script/engine/macro.hpp"

#include <algorithm>

namespace morvane {
namespace {
constexpr NAT MOST_CONSTANTS = 1'000'000;
constexpr NAT LAST_ELEMENT = LONGEST_TEXT + 2; // elements behind it lie beyond the longest value

// The value with its n-th tab-separated element replaced; missing elements are added empty.
UTF16 ReplaceElement(UTF16 value, NAT n, const UTF16 &element) {
    UTF16 joined;
    bool more = true;
    for (NAT i = 1; i <= n || more; ++i) {
        more = POS("\t", value) > 0;
        const UTF16 old = SPLIT(value, "\t");
        if (i > 1) joined += "\t";
        joined += i == n ? element : old;
    }
    return joined;
}
} // namespace

void TMACRO::_CHECKFIELD(UTF16 &name, UTF16 &value) const {
    const NAT open = POS("[", name);
    if (open == 0 || !(name.GETCHAR(name.LENGTH()) == UTF16CHAR{']', 0})) return;
    const NAT n = GETNAT(COPY(name, open, LONGEST_TEXT));
    name = COPY(name, 1, open - 1);
    if (n > 0) value = ReplaceElement(GETCONSTANTVALUE(name), std::min(n, LAST_ELEMENT), value);
}

UTF16 TMACRO::GETCONSTANTVALUE(const UTF16 &name) const {
    const NAT index = constants.SEARCH(name);
    return index > 0 ? constants.GET(index).value.GET() : UTF16();
}

void TMACRO::PUTCONSTANT(const UTF16 &name, const UTF16 &value) {
    PutValue(name, value, scopeLevel);
}

void TMACRO::PUTCONSTANT_SCOPE(const UTF16 &name, const UTF16 &value, NAT scope) {
    PutValue(name, value, scope);
}

void TMACRO::PutValue(const UTF16 &name, const UTF16 &value, NAT scope) {
    UTF16 whole = name, stored = value;
    _CHECKFIELD(whole, stored);
    const NAME_REF node = names.INTERN(CUT_TEXT(GETREPLACE(whole, ' ', '.')));
    // Deliberate: a constant may not have the exact name of a command of any kind.
    if (node->command > 0) return ERROR("overloaded identifier: " + node->text);
    PutNamed(node, stored, scope);
}

// Deliberate: an assignment inside a block changes an outer constant of that name.
void TMACRO::PutNamed(const NAME_REF &name, const UTF16 &value, NAT scope) {
    if (name->constant > 0) return constants.CHANGE(name->constant, CUT_TEXT(value));
    if (constants.LENGTH() >= MOST_CONSTANTS) return ERROR("too many variables");
    const NAT count = constants.LENGTH();
    if (count == 0 || constants.GET(count).scope <= scope)
        constants.APPEND(name, CUT_TEXT(value), scope);
    else
        constants.INSERT(name, CUT_TEXT(value), scope);
}

NAT TMACRO::PUTCONSTANT_NEXTSCOPE(const UTF16 &name, const UTF16 &value) {
    return PUTCONSTANT_NEXTSCOPE(names.INTERN(CUT_TEXT(name)), CUT_TEXT(value));
}

NAT TMACRO::PUTCONSTANT_NEXTSCOPE(const NAME_REF &name, CONSTANT_VALUE value) {
    constants.APPEND(name, std::move(value), scopeLevel + 1);
    return name->constantRows;
}
} // namespace morvane
