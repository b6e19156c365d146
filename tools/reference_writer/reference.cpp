#include "reference.hpp"

#include "app/help_entries.hpp"
#include "app/program.hpp"
#include "program_words.hpp"
#include "script/engine/expression.hpp"
#include "script/engine/keywords_table.hpp"
#include "script/module/use_all.hpp"

#include <algorithm>
#include <iterator>
#include <set>

namespace morvane {
namespace {
// The subjects of the sets that share a namespace; the others are named after theirs.
struct SET_TITLE {
    const COMMAND_SET *set;
    std::string_view title;
};
const SET_TITLE TITLES[] = {
    {&CORE_SET, "Printing, waiting, sub programs"},
    {&RANDOM_SET, "Random numbers"},
    {&CLOCK_SET, "Time and date"},
    {&LIST_SET, "Lists"},
    {&MATH_SET, "Numbers and angles"},
    {&STACK_SET, "Calculator"},
    {&QUAT_SET, "Quaternions"},
    {&MATRIX_SET, "Matrices"},
    {&IO_SET, "Names of files and directories"},
    {&IO_FILES_SET, "The list of files"},
    {&IO_FILE_SET, "Files"},
    {&IO_DIRS_SET, "The list of directories"},
    {&IO_DIR_SET, "Directories"},
    {&IO_LISTS_SET, "Files and directories from lists"},
    {&BINARY_SET, "Binary files as text"},
    {&TEXT_SET, "Line filters over text files"},
    {&TXT_SET, "Line filters, short names"},
    {&BLOB_SET, "Files as bytes"},
    {&XML_SET, "XML tags"},
    {&TABLE_SET, "Tables"},
    {&DUMP_SET, "The engine's own tables"},
};

constexpr std::pair<std::string_view, std::string_view> NAMESPACE_TITLES[] = {
    {"", "All fields"},           {"image.", "Images"},         {"scalar.", "Scalar fields"},
    {"vector.", "Vector fields"}, {"tensor.", "Tensor fields"}, {"mesh.", "Meshes"},
    {"line.", "Lines"},
};

std::string TITLE_OF(const COMMAND_SET &set) {
    for (const SET_TITLE &row : TITLES)
        if (row.set == &set) return std::string(row.title);
    for (const auto &[nameSpace, title] : NAMESPACE_TITLES)
        if (nameSpace == set.nameSpace) return std::string(title);
    std::string title(set.nameSpace.substr(0, set.nameSpace.size() - 1));
    if (title.front() >= 'a' && title.front() <= 'z') title.front() -= 'a' - 'A';
    return title;
}

bool ONE_BEGINS_WITH_THE_OTHER(std::string_view a, std::string_view b) {
    return a.starts_with(b) || b.starts_with(a);
}

// Two rows that do the same: one handler and one wording.
bool IS_SYNONYM(const COMMAND_ROW &a, const COMMAND_ROW &b) {
    return a.kind == b.kind && a.handler == b.handler && a.getter == b.getter &&
           a.count.kind == b.count.kind && a.count.count == b.count.count &&
           a.parameters == b.parameters && ONE_BEGINS_WITH_THE_OTHER(a.note, b.note);
}

REFERENCE_ENTRY ENTRY_OF(const COMMAND_SET &set, const COMMAND_ROW &row) {
    return {std::string(set.nameSpace) + std::string(row.name),
            row.kind,
            PARSE_PARAMETERS(row.parameters),
            std::string(row.usage),
            std::string(row.note),
            {}};
}

REFERENCE_SECTION SECTION_OF(const COMMAND_SET &set) {
    REFERENCE_SECTION section{std::string(set.nameSpace), TITLE_OF(set), {}};
    std::vector<const COMMAND_ROW *> firsts;
    for (const COMMAND_ROW &row : set.rows) {
        const auto first = std::find_if(firsts.begin(), firsts.end(), [&](const COMMAND_ROW *old) {
            return IS_SYNONYM(*old, row);
        });
        if (first == firsts.end()) {
            firsts.push_back(&row);
            section.entries.push_back(ENTRY_OF(set, row));
        } else {
            const auto place = static_cast<std::size_t>(first - firsts.begin());
            section.entries[place].synonyms.push_back(ENTRY_OF(set, row).name);
        }
    }
    return section;
}

// Sets of one namespace and subject are one section, at the place of the first.
void ADD_SECTION(REFERENCE_SECTION section, std::vector<REFERENCE_SECTION> &sections) {
    const auto same = std::ranges::find_if(sections, [&](const REFERENCE_SECTION &other) {
        return other.title == section.title && other.nameSpace == section.nameSpace;
    });
    if (same == sections.end()) return sections.push_back(std::move(section));
    same->entries.insert(same->entries.end(), std::make_move_iterator(section.entries.begin()),
                         std::make_move_iterator(section.entries.end()));
}

REFERENCE_ENTRY ENTRY_OF(const KEYWORD &keyword) {
    return {
        std::string(keyword.word),  COMMAND_KIND::BLOCK,       PARSE_PARAMETERS(keyword.parameters),
        std::string(keyword.usage), std::string(keyword.note), {}};
}

std::vector<REFERENCE_ENTRY> KEYWORD_ENTRIES() {
    std::vector<REFERENCE_ENTRY> entries;
    std::vector<const KEYWORD *> firsts;
    const auto put = [&](const KEYWORD &keyword) {
        const auto first = std::find_if(firsts.begin(), firsts.end(), [&](const KEYWORD *old) {
            return old->run == keyword.run && old->role == keyword.role && !keyword.note.empty() &&
                   old->parameters == keyword.parameters && old->note == keyword.note;
        });
        if (first == firsts.end()) {
            firsts.push_back(&keyword);
            entries.push_back(ENTRY_OF(keyword));
        } else {
            entries[static_cast<std::size_t>(first - firsts.begin())].synonyms.emplace_back(
                keyword.word);
        }
    };
    for (const KEYWORD &keyword : KEYWORDS())
        put(keyword);
    for (const KEYWORD &keyword : PREFIX_KEYWORDS())
        put(keyword);
    return entries;
}

// Names that the engine or the program sets for a script, besides the options' own.
constexpr std::string_view VARIABLES[] = {
    "true",       "false",           "condition",      "result",           "parameter",
    "for.length", "for.rest",        "for.count",      "for.relative",     "for.relativ",
    "thread.max", "parallel.length", "parallel.count", "parallel.relativ",
};

std::vector<std::string> SORTED(const std::set<std::string> &names) {
    return {names.begin(), names.end()};
}
} // namespace

REFERENCE MAKE_REFERENCE() {
    REFERENCE reference;
    READ_PROGRAM_WORDS(reference);
    reference.keywords = KEYWORD_ENTRIES();
    for (const KEYWORD &keyword : PREFIX_KEYWORDS())
        reference.prefixes.emplace_back(keyword.word);
    for (const COMMAND_SET *set : COMMAND_SETS())
        if (!set->rows.empty()) ADD_SECTION(SECTION_OF(*set), reference.sections);
    for (const HELP_GROUP &group : HELP_GROUPS())
        if (std::ranges::find(HELP_ENTRIES(), group.name, &HELP_ENTRY::group) !=
            HELP_ENTRIES().end())
            reference.groups.emplace_back(group.name);
    reference.operators.emplace_back(":=");
    for (const std::string_view word : ASSIGNMENT_OPERATORS())
        reference.operators.emplace_back(word);
    reference.variables.insert(reference.variables.end(), std::begin(VARIABLES),
                               std::end(VARIABLES));
    return reference;
}

std::string_view KIND_WORD(COMMAND_KIND kind) {
    switch (kind) {
    case COMMAND_KIND::PROCEDURE: return "procedure";
    case COMMAND_KIND::FUNCTION: return "function";
    case COMMAND_KIND::LAMBDA: return "value";
    case COMMAND_KIND::PROPERTY: return "property";
    default: return "keyword";
    }
}

std::vector<std::string> REFERENCE::COMMAND_NAMES() const {
    std::set<std::string> names;
    for (const REFERENCE_SECTION &section : sections)
        for (const REFERENCE_ENTRY &entry : section.entries) {
            names.insert(entry.name);
            names.insert(entry.synonyms.begin(), entry.synonyms.end());
        }
    return SORTED(names);
}

std::vector<std::string> REFERENCE::NAMES_UNDER(const std::string &nameSpace) const {
    std::set<std::string> names;
    for (const REFERENCE_SECTION &section : sections) {
        if (section.nameSpace != nameSpace) continue;
        for (const REFERENCE_ENTRY &entry : section.entries) {
            names.insert(entry.name.substr(nameSpace.size()));
            for (const std::string &synonym : entry.synonyms)
                names.insert(synonym.substr(nameSpace.size()));
        }
    }
    return SORTED(names);
}

std::vector<std::string> REFERENCE::KEYWORD_NAMES() const {
    std::set<std::string> names;
    for (const REFERENCE_ENTRY &entry : keywords) {
        names.insert(entry.name);
        names.insert(entry.synonyms.begin(), entry.synonyms.end());
    }
    return SORTED(names);
}

std::vector<std::string> REFERENCE::HELP_NAMES() const {
    std::set<std::string> names(groups.begin(), groups.end());
    for (const auto &more : {COMMAND_NAMES(), KEYWORD_NAMES()})
        names.insert(more.begin(), more.end());
    return SORTED(names);
}

std::vector<std::string> REFERENCE::NAMESPACES() const {
    std::vector<std::string> names;
    for (const REFERENCE_SECTION &section : sections)
        if (std::find(names.begin(), names.end(), section.nameSpace) == names.end())
            names.push_back(section.nameSpace);
    return names;
}
} // namespace morvane
