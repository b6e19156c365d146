#include "app/help_page.hpp"

#include "app/help_entries.hpp"
#include "app/help_layout.hpp"

#include <algorithm>

namespace morvane {
namespace {
constexpr std::size_t LABEL_WIDTH = 10;

// What a value of each kind looks like in a script.
struct KIND_ROW {
    std::string_view kind, form;
};
constexpr KIND_ROW KINDS[] = {
    {"text", "text"},           {"file", "file name"},  {"name", "name"},
    {"number", "whole number"}, {"real", "number"},     {"flag", "true or false"},
    {"vector", "<x,y,z>"},      {"point", "<x,y,z>"},   {"range", "<low,high>"},
    {"pair", "<a,b>"},          {"hyper", "<a,b,c,d>"},
};

std::string_view FormOf(std::string_view kind) {
    const auto row = std::ranges::find(KINDS, kind, &KIND_ROW::kind);
    return row == std::end(KINDS) ? kind : row->form;
}

std::string_view KindText(const HELP_ENTRY &entry) {
    if (entry.keyword) return entry.ISBLOCK() ? "keyword with a block" : "keyword";
    switch (entry.row->kind) {
    case COMMAND_KIND::FUNCTION: return "function: stands behind := and gives a value or a field";
    case COMMAND_KIND::LAMBDA: return "lambda: a value that may stand wherever a parameter stands";
    case COMMAND_KIND::PROPERTY: return "property: set like a procedure, read like a function";
    default: return "procedure: stands first on its line";
    }
}

std::vector<std::string> UsageLines(const HELP_ENTRY &entry, const std::string &syntax) {
    const std::string line = entry.name + (syntax.empty() ? "" : " " + syntax);
    const bool isCase = entry.keyword && entry.keyword->role == KEYWORD_ROLE::OF;
    if (entry.keyword && entry.keyword->role != KEYWORD_ROLE::BLOCK && entry.ISBLOCK())
        return {line, "or alone, with a block", entry.name + (isCase ? " value" : ""), "...",
                "end"};
    if (entry.ISBLOCK()) return {line, "...", entry.name == "repeat" ? "until number ..." : "end"};
    if (entry.keyword) return {line};
    switch (entry.row->kind) {
    case COMMAND_KIND::FUNCTION: return {"a := " + line};
    case COMMAND_KIND::LAMBDA: return {"a := " + entry.name};
    case COMMAND_KIND::PROPERTY: return {line, "a := " + entry.name};
    default: return {line};
    }
}

void WriteUsage(const std::vector<std::string> &lines) {
    for (std::size_t i = 0; i < lines.size(); ++i)
        WRITE_FIXED(i == 0 ? "Usage" : "", LABEL_WIDTH, lines[i]);
}

void WriteParameters(const std::vector<HELP_PARAMETER> &parameters) {
    std::size_t nameWidth = 0, formWidth = 0;
    for (const HELP_PARAMETER &parameter : parameters) {
        nameWidth = std::max(nameWidth, TEXT_WIDTH(parameter.name));
        formWidth = std::max(formWidth, TEXT_WIDTH(FormOf(parameter.kind)));
    }
    const auto padded = [](std::string_view text, std::size_t width) {
        return std::string(text) + std::string(width - TEXT_WIDTH(text) + 2, ' ');
    };
    bool first = true;
    for (const HELP_PARAMETER &parameter : parameters) {
        if (parameter.isAlternative) WRITE_FIXED("", LABEL_WIDTH, "or");
        std::string rest = parameter.unit.empty() ? "" : "in " + parameter.unit;
        if (parameter.isRepeated) rest += rest.empty() ? "one or more" : ", one or more";
        if (parameter.isOptional) rest += rest.empty() ? "may be left out" : ", may be left out";
        std::string line =
            padded(parameter.name, nameWidth) + padded(FormOf(parameter.kind), formWidth) + rest;
        line.erase(line.find_last_not_of(' ') + 1);
        WRITE_FIXED(first ? "Parameters" : "", LABEL_WIDTH, line);
        first = false;
    }
}

std::string OtherNames(const HELP_ENTRY &entry) {
    std::string names;
    for (const HELP_ENTRY &other : HELP_ENTRIES())
        if (entry.ISSYNONYM(other)) names += (names.empty() ? "" : ", ") + other.name;
    return names;
}
} // namespace

void WRITE_HELP_PAGE(const HELP_ENTRY &entry) {
    const std::vector<HELP_PARAMETER> parameters = HELP_PARAMETERS(entry.parameters);
    WRITE_HEADING(entry.name);
    WRITE_COLUMN("Note", LABEL_WIDTH, entry.note);
    WriteUsage(UsageLines(entry, HELP_SYNTAX(entry.parameters)));
    WRITE_COLUMN("Kind", LABEL_WIDTH, KindText(entry));
    WriteParameters(parameters);
    WRITE_FIXED("Example", LABEL_WIDTH, entry.usage);
    if (entry.keyword && entry.name.starts_with("if") && entry.keyword->role == KEYWORD_ROLE::BLOCK)
        WRITE_COLUMN("See", LABEL_WIDTH, "then, else");
    if (const std::string names = OtherNames(entry); !names.empty())
        WRITE_COLUMN("Also", LABEL_WIDTH, names);
}
} // namespace morvane
