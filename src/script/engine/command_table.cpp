#include "script/engine/command_table.hpp"

#include <span>
#include <string>

namespace morvane {
namespace {
// One candidate of an English number form: the name without its last `cut` letters, and `ending`.
struct NUMBER_FORM {
    NAT cut;
    std::string_view ending;
};

constexpr NUMBER_FORM ENDS_A[] = {{0, "e"}, {1, "um"}};
constexpr NUMBER_FORM ENDS_E[] = {{2, "ves"}, {1, ""}};
constexpr NUMBER_FORM ENDS_F[] = {{1, "ves"}};
constexpr NUMBER_FORM ENDS_I[] = {{1, "us"}};
constexpr NUMBER_FORM ENDS_M[] = {{2, "a"}};
constexpr NUMBER_FORM ENDS_S[] = {{2, "es"}, {2, "i"}, {3, "fe"}, {3, "f"}, {1, "os"}, {2, "oes"},
                                  {2, "is"}, {2, "y"}, {3, "y"},  {1, ""},  {2, ""}};
constexpr NUMBER_FORM ENDS_Y[] = {{0, "s"}, {1, "ies"}};
constexpr NUMBER_FORM ENDS_OTHER[] = {{0, "s"}, {0, "es"}};

std::span<const NUMBER_FORM> FormsOf(char last) {
    switch (last) {
    case 'a': return ENDS_A;
    case 'e': return ENDS_E;
    case 'f': return ENDS_F;
    case 'i': return ENDS_I;
    case 'm': return ENDS_M;
    case 's': return ENDS_S;
    case 'y': return ENDS_Y;
    default: return ENDS_OTHER; // `o` too
    }
}
} // namespace

bool COMMAND_TABLE::PUT(COMMAND_ENTRY entry) {
    entry.previous = entry.name->command;
    for (NAT i = entry.previous; i > 0; i = GET(i).previous)
        if (GET(i).scope == entry.scope && GET(i).GROUP() == entry.GROUP()) return false;
    NAME_NODE *name = entry.name.GET();
    entries.push_back(std::move(entry));
    name->command = LENGTH();
    ++version;
    return true;
}

void COMMAND_TABLE::CUT(NAT scope) {
    while (!entries.empty() && entries.back().scope >= scope) {
        entries.back().name->command = entries.back().previous;
        entries.pop_back();
        ++version;
    }
}

NAT COMMAND_TABLE::Exact(std::string_view low, std::string_view high, unsigned groups) const {
    const NAME_NODE *name = names.FIND(low, high);
    if (!name) return 0;
    for (NAT i = name->command; i > 0; i = GET(i).previous)
        if (groups >> GET(i).GROUP() & 1U) return i;
    return 0;
}

NAT COMMAND_TABLE::NumberForm(const UTF16 &name, unsigned groups) const {
    const std::string_view low = name.LOWBYTES.VIEW(), high = name.HIGHBYTES.VIEW();
    if (low.empty()) return 0;
    const UTF16CHAR unit = name.GETCHAR(name.LENGTH());
    char last = unit.high == 0 ? static_cast<char>(unit.low) : '\0';
    if (last >= 'A' && last <= 'Z') last = static_cast<char>(last + ('a' - 'A'));
    std::string candidate;
    for (const NUMBER_FORM &form : FormsOf(last)) {
        const NAT kept = std::max<NAT>(0, name.LENGTH() - form.cut);
        candidate.assign(low.substr(0, static_cast<std::size_t>(kept)));
        candidate += form.ending;
        const NAT index = Exact(candidate, high.substr(0, static_cast<std::size_t>(kept)), groups);
        if (index > 0) return index;
    }
    return 0;
}

NAT COMMAND_TABLE::SEARCHEXACT(const UTF16 &name, unsigned groups) {
    const NAT index = Exact(name.LOWBYTES.VIEW(), name.HIGHBYTES.VIEW(), groups);
    if (index > 0) ++GET(index).useCount;
    return index;
}

NAT COMMAND_TABLE::SEARCH(const UTF16 &name, unsigned groups) {
    if (const NAT index = SEARCHEXACT(name, groups); index > 0) return index;
    const NAT index = NumberForm(name, groups);
    if (index > 0) ++GET(index).useCount;
    return index;
}

std::string OTHER_KIND_TEXT(const std::string &name, unsigned groups) {
    if (groups & FUNCTIONS) return name + " is a function: name := " + name;
    if (groups & LAMBDAS) return name + " is a value: print " + name;
    return name + " is a procedure: it stands first on its line";
}
} // namespace morvane
