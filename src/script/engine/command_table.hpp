#pragma once

#include "script/engine/command_row.hpp"
#include "script/engine/names.hpp"

#include <array>
#include <string>

namespace morvane {
// The two forms of a handler; at most one of them is set.
struct CALLABLE {
    HANDLER withEngine = nullptr;
    void (*plain)() = nullptr;

    explicit operator bool() const { return withEngine || plain; }
    void CALL(TMACRO *engine) const { withEngine ? withEngine(engine) : plain(); }
};

// The low four bits of a kind byte; WITH_ENGINE is the bit for handlers that get the engine.
inline constexpr BYTE KIND_BLOCK = 1, KIND_PROCEDURE = 2, KIND_FUNCTION = 3, KIND_LAMBDA = 4;
inline constexpr BYTE KIND_MASK = 15, KIND_WITH_ENGINE = 16;
// The groups that a look-up accepts, bit n for group n.
inline constexpr unsigned PROCEDURES = 1U << KIND_BLOCK | 1U << KIND_PROCEDURE;
inline constexpr unsigned FUNCTIONS = 1U << KIND_FUNCTION, LAMBDAS = 1U << KIND_LAMBDA;

// How a name of these groups is used, as a sentence: "a.b is a function: name := a.b".
std::string OTHER_KIND_TEXT(const std::string &name, unsigned groups);

// One registered name. Built-in when a handler is set; script-defined when none is set and the
// start line is not 0.
struct COMMAND_ENTRY {
    NAME_REF name;
    BYTE kind = 0;
    CALLABLE open, close; // close: only of a block procedure
    NAT startLine = 0;    // line of the declaration in the script, 0 for a built-in
    NAT useCount = 0;     // successful look-ups
    NAT scope = 0;        // scope level of the declaration, 0 for a built-in
    std::array<UTF16, 3> reserved;
    const COMMAND_ROW *row = nullptr; // the row it was registered from, null without one
    NAT previous = 0;                 // the next older entry of the same name, 0 for none

    const UTF16 &TEXT() const { return name->text; }
    BYTE GROUP() const { return kind & KIND_MASK; }
};

// All commands in registration order; entries count from 1, the newest of a name wins.
class COMMAND_TABLE {
public:
    explicit COMMAND_TABLE(NAME_TABLE &nameTable) : names(nameTable) {}

    NAT LENGTH() const { return static_cast<NAT>(entries.size()); }
    COMMAND_ENTRY &GET(NAT index) { return entries[static_cast<std::size_t>(index - 1)]; }
    const COMMAND_ENTRY &GET(NAT index) const {
        return entries[static_cast<std::size_t>(index - 1)];
    }
    // Changes with every entry added or cut; what was looked up before is then out of date.
    NAT VERSION() const { return version; }

    // False, and nothing added, when the name is there with the same scope and group.
    bool PUT(COMMAND_ENTRY entry);
    void CUT(NAT scope); // from the first entry of that scope or more
    // The newest entry of the exact name in one of the groups (bit n of `groups` is group n), or of
    // one of its English number forms; 0 for none. A hit raises the use count.
    NAT SEARCH(const UTF16 &name, unsigned groups);
    NAT SEARCHEXACT(const UTF16 &name, unsigned groups); // the same without number forms

private:
    NAT Exact(std::string_view low, std::string_view high, unsigned groups) const;
    NAT NumberForm(const UTF16 &name, unsigned groups) const;

    NAME_TABLE &names;
    std::vector<COMMAND_ENTRY> entries;
    NAT version = 0;
};
} // namespace morvane
