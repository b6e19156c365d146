#include "generated_files.hpp"
#include "text_forms.hpp"

// The reference as a page: a table for each namespace and subject.
namespace morvane {
namespace {
std::string SEQUENCE_CELL(const PARAMETER_SEQUENCE &sequence);

std::string CHOICES_CELL(const std::vector<PARAMETER_SEQUENCE> &choices) {
    std::vector<std::string> cells;
    for (const PARAMETER_SEQUENCE &choice : choices)
        cells.push_back(SEQUENCE_CELL(choice));
    return JOINED(cells, " or ");
}

std::string PART_CELL(const PARAMETER_PART &part) {
    const std::string more = part.repeated ? " ..." : "";
    if (part.GROUP()) return "\\[" + CHOICES_CELL(part.choices) + "\\]" + more;
    const std::string unit = part.unit.empty() ? "" : " " + MARKDOWN_TEXT(part.unit);
    return "*" + MARKDOWN_TEXT(part.name) + "*: " + part.kind + unit + more;
}

std::string SEQUENCE_CELL(const PARAMETER_SEQUENCE &sequence) {
    std::vector<std::string> cells;
    for (const PARAMETER_PART &part : sequence)
        cells.push_back(PART_CELL(part));
    return JOINED(cells, ", ");
}

std::string NAME_CELL(const REFERENCE_ENTRY &entry) {
    std::string cell = MARKDOWN_CODE(entry.name);
    for (const std::string &synonym : entry.synonyms)
        cell += "<br>" + MARKDOWN_CODE(synonym);
    return cell;
}

std::string TABLE_ROW(const REFERENCE_ENTRY &entry, bool isKeyword) {
    std::string row = "| " + NAME_CELL(entry) + " | ";
    if (!isKeyword) row += std::string(KIND_WORD(entry.kind)) + " | ";
    row += CHOICES_CELL(entry.parameters.choices) + " | " + MARKDOWN_TEXT(entry.note) + " | ";
    if (!entry.usage.empty()) row += MARKDOWN_CODE(entry.usage);
    return row + " |\n";
}

std::string TABLE(const std::vector<REFERENCE_ENTRY> &entries, bool isKeyword) {
    std::string table =
        isKeyword
            ? "| Keyword | Parameters | What it does | Example |\n|---|---|---|---|\n"
            : "| Command | Kind | Parameters | What it does | Example |\n|---|---|---|---|---|\n";
    for (const REFERENCE_ENTRY &entry : entries)
        table += TABLE_ROW(entry, isKeyword);
    return table;
}

// The address of a heading on the page.
std::string ANCHOR(const std::string &title) {
    std::string anchor;
    for (const char c : title) {
        if (c >= 'A' && c <= 'Z')
            anchor += static_cast<char>(c - 'A' + 'a');
        else if (c == ' ')
            anchor += '-';
        else if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-')
            anchor += c;
    }
    return anchor;
}

std::size_t NAMES_IN(const std::vector<REFERENCE_ENTRY> &entries) {
    std::size_t count = 0;
    for (const REFERENCE_ENTRY &entry : entries)
        count += 1 + entry.synonyms.size();
    return count;
}

std::string CONTENTS_LINE(const std::string &title, const std::string &nameSpace,
                          std::size_t count) {
    const std::string place = nameSpace.empty() ? "" : ", " + MARKDOWN_CODE(nameSpace);
    return "- [" + title + "](#" + ANCHOR(title) + ")" + place + " (" + std::to_string(count) +
           ")\n";
}

constexpr std::string_view INTRODUCTION =
    "Every keyword and command, from the table that the program itself works with. What the\n"
    "language does with a line is told in [language.md](language.md); `morvane help NAME` shows\n"
    "one entry in the terminal.\n"
    "\n"
    "Kinds:\n"
    "\n"
    "- **procedure**: stands first on its line, its parameters behind it.\n"
    "- **function**: stands behind `:=` and gives the target its value, or makes the field named\n"
    "  there.\n"
    "- **value**: a word without parameters, used wherever a parameter may stand.\n"
    "- **property**: a procedure that sets and a function that reads: `a := NAME`.\n"
    "\n"
    "Parameters are parted by blanks on the line. Each is shown as *name*: kind and unit; those "
    "in\n"
    "\\[brackets\\] may be left out, \"...\" stands for any number more of the one before. Kinds:\n"
    "`text`, `file` (a path), `name` (of a field, a list or a variable), `number` (whole), "
    "`real`,\n"
    "`flag` (0 or 1), `vector` (`<x,y,z>`), `point` (a position in a field: 0 the middle, a\n"
    "fraction below 1, absolute from 1, negative from the far end), `range` (`<low,high>`), "
    "`pair`\n"
    "(`<x,y>`) and `hyper` (`<x,y,z,w>`). Names in one cell are one command.\n";
} // namespace

std::string COMMANDS_PAGE(const REFERENCE &reference) {
    std::string page = "<!-- Made by tools/reference_writer; edit the rows, not this page. -->\n"
                       "# Commands of morvane " +
                       reference.version + "\n\n" + std::string(INTRODUCTION) + "\n## Contents\n\n";
    page += CONTENTS_LINE("Keywords", "", NAMES_IN(reference.keywords));
    for (const REFERENCE_SECTION &section : reference.sections)
        page += CONTENTS_LINE(section.title, section.nameSpace, NAMES_IN(section.entries));
    page += "\n## Keywords\n\n" + TABLE(reference.keywords, true);
    page += "\nAny word that begins with `" + JOINED(reference.prefixes, "`, `") +
            "` is that keyword.\n";
    for (const REFERENCE_SECTION &section : reference.sections)
        page += "\n## " + section.title + "\n\n" + TABLE(section.entries, false);
    return page;
}
} // namespace morvane
