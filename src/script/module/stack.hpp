#pragma once

#include "foundation/container/poly_types.hpp"

#include <span>
#include <string_view>

namespace morvane {
// Components up to the last one that is not 0, at least one: those that a short text shows.
constexpr NAT USED_COMPONENTS(const HYPER &a) {
    return a.w != 0 ? 4 : a.z != 0 ? 3 : a.y != 0 ? 2 : 1;
}

// A word of the calculator: it takes its entries from the top of the list and leaves its result.
struct STACK_WORD {
    std::string_view word; // UTF-8, lower case
    NAT needs;             // entries that must be there, at least
    void (*run)(TPOLYHYPER &entries);
    bool grows = false; // leaves one entry more than it takes
};
std::span<const STACK_WORD> STACK_WORDS();
const STACK_WORD *FIND_STACK_WORD(std::string_view word); // null: the word is a value

// The calculator of the language: entries of four components, of which a number uses the first.
// Entry 1 is the bottom, entry LENGTH the top.
class TSTACK {
public:
    static constexpr NAT MOST = 10'000'000; // entries, 320 MB

    NAT LENGTH() const { return entries.LENGTH; }
    HYPER GET(NAT index) const { return entries.GET(index); } // zero outside 1..LENGTH
    // False when there is no place or no memory for one more.
    [[nodiscard]] bool PUSH(const HYPER &value);
    // Like PUSH false without place; `word.needs` entries must be there.
    [[nodiscard]] bool APPLY(const STACK_WORD &word);
    HYPER POP() { return entries.POP(); } // zero when empty
    void CLEAR() { entries.DONE(); }
    void FLIP() { entries.FLIP(); } // the top becomes the bottom

private:
    TPOLYHYPER entries;
};

extern TSTACK STACK; // the one of the script
} // namespace morvane
