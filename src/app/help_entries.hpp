#pragma once

#include "script/engine/command_row.hpp"
#include "script/engine/keywords_table.hpp"

#include <string>
#include <vector>

// What the help knows: every command row and every keyword under its full name.
namespace morvane {
struct HELP_ENTRY {
    std::string name;       // with its namespace
    std::string_view group; // a row of HELP_GROUPS
    std::string_view parameters, usage, note;
    const COMMAND_ROW *row = nullptr; // null for a keyword
    const KEYWORD *keyword = nullptr; // null for a command

    bool ISSYNONYM(const HELP_ENTRY &other) const; // another name of the same thing
    bool ISBLOCK() const;                          // a keyword whose block needs an `end`
};
// In registration order, the keywords behind the commands.
const std::vector<HELP_ENTRY> &HELP_ENTRIES();

// A part of the language: a namespace, or words that belong together.
struct HELP_GROUP {
    std::string_view name; // what `morvane help` takes
    std::string_view note;
};
std::span<const HELP_GROUP> HELP_GROUPS();
// The group of a set: the first part of its namespace, or the name given to a set without one.
std::string_view HELP_GROUP_OF(const COMMAND_SET &set);

// One parameter of a row, in the order in which they stand.
struct HELP_PARAMETER {
    std::string name, kind, unit;
    bool isOptional = false, isRepeated = false;
    bool isAlternative = false; // another way to call begins with it
};
std::vector<HELP_PARAMETER> HELP_PARAMETERS(std::string_view parameters);
// How a line with these parameters is written: "report [radius point ...]".
std::string HELP_SYNTAX(std::string_view parameters);
} // namespace morvane
