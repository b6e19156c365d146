#pragma once

#include "script/engine/command_row.hpp"
#include "script/engine/row_parameters.hpp"

#include <string>
#include <vector>

// What the generated files say, collected from the tables of the program and from nowhere else.
namespace morvane {
// A command or a keyword under its full name, with the other names that do the same.
struct REFERENCE_ENTRY {
    std::string name;
    COMMAND_KIND kind = COMMAND_KIND::PROCEDURE; // BLOCK: a keyword
    PARAMETER_TEXT parameters;
    std::string usage, note;
    std::vector<std::string> synonyms;
};

// The commands of one namespace and subject, in registration order.
struct REFERENCE_SECTION {
    std::string nameSpace; // "scalar.", or empty
    std::string title;
    std::vector<REFERENCE_ENTRY> entries;
};

// An option of the command line.
struct REFERENCE_OPTION {
    std::string name, legend, standard, topic;
    bool isSwitch = false;           // +name and -name=off
    std::string range;               // "0-100" of a limited number
    std::string files;               // mask of the files that it takes, empty when it takes none
    std::vector<std::string> values; // the known ones
};

// A word that counts only as the first argument, or an option without a value.
struct REFERENCE_WORD {
    std::string word, argument, note;
};

struct REFERENCE {
    std::string version, maker;
    std::vector<REFERENCE_ENTRY> keywords; // those of a beginning, as "var", come last
    std::vector<std::string> prefixes;     // words that count by their beginning
    std::vector<REFERENCE_SECTION> sections;
    std::vector<REFERENCE_OPTION> options;
    std::vector<REFERENCE_WORD> words;
    std::vector<std::string> operators; // of assignment
    std::vector<std::string> variables; // that the program sets
    std::vector<std::string> groups;    // of commands, as the help names them

    // Every name of a command once, synonyms too, sorted.
    std::vector<std::string> COMMAND_NAMES() const;
    // The same under one namespace, without it; "" for the names of no namespace.
    std::vector<std::string> NAMES_UNDER(const std::string &nameSpace) const;
    std::vector<std::string> KEYWORD_NAMES() const;
    std::vector<std::string> NAMESPACES() const; // each once, in registration order
    // What `morvane help` takes: commands, keywords and groups, each once, sorted.
    std::vector<std::string> HELP_NAMES() const;
};

REFERENCE MAKE_REFERENCE();

// "procedure", "function", "value" of a lambda, "property", "keyword".
std::string_view KIND_WORD(COMMAND_KIND kind);
} // namespace morvane
