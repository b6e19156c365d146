#include "app/help.hpp"

#include "app/help_entries.hpp"
#include "app/help_layout.hpp"
#include "app/help_page.hpp"
#include "foundation/console/console.hpp"
#include "script/engine/nearest.hpp"

#include <algorithm>
#include <cctype>

namespace morvane {
namespace {
using ENTRIES = std::vector<const HELP_ENTRY *>;

std::string Lower(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(),
                           [](char c) { return c >= 'A' && c <= 'Z' ? char(c + 32) : c; });
    return lower;
}

template <class TEST> ENTRIES Entries(TEST test) {
    ENTRIES found;
    for (const HELP_ENTRY &entry : HELP_ENTRIES())
        if (test(entry)) found.push_back(&entry);
    return found;
}

void WriteEntries(const ENTRIES &entries) {
    std::vector<HELP_LINE> lines;
    for (const HELP_ENTRY *entry : entries)
        lines.push_back({entry->name, std::string(entry->note)});
    WRITE_COLUMNS(lines);
}

std::string Count(std::size_t count, std::string_view one, std::string_view many) {
    return std::to_string(count) + " " + std::string(count == 1 ? one : many);
}

void WriteOverview() {
    WRITE_HEADING("Help");
    WRITE_COLUMNS({{"morvane help NAME", "one command or keyword: morvane help scalar.load"},
                   {"morvane help PART", "the commands of one part below: morvane help scalar"},
                   {"morvane help WORD", "what holds a word: morvane help skeleton"},
                   {"morvane -h", "the options of the program"},
                   {"morvane --check FILE", "look a script through without running it"},
                   {"morvane FILE", "run a script"}});
    WRITELN();
    WRITE_HEADING("Parts of the language");
    std::vector<HELP_LINE> lines;
    for (const HELP_GROUP &group : HELP_GROUPS()) {
        const auto rows =
            Entries([&](const HELP_ENTRY &entry) { return entry.group == group.name; });
        if (rows.empty()) continue;
        const std::string count = std::to_string(rows.size());
        lines.push_back({std::string(group.name) +
                             std::string(16 - group.name.size() - count.size(), ' ') + count,
                         std::string(group.note)});
    }
    WRITE_COLUMNS(lines);
}

// The commands of a part, or of a namespace inside one; false when there are none.
bool WritePart(std::string_view name) {
    const std::string prefix = std::string(name) + ".";
    const auto found = Entries([&](const HELP_ENTRY &entry) {
        return entry.group == name || entry.name.starts_with(prefix);
    });
    if (found.empty()) return false;
    const auto group = std::ranges::find(HELP_GROUPS(), name, &HELP_GROUP::name);
    const std::string note =
        group == HELP_GROUPS().end() ? std::string() : ": " + std::string(group->note);
    WRITE_HEADING(std::string(name) + note);
    WriteEntries(found);
    return true;
}

// Every row of the exact name, and the part of the same name if there is one.
bool WritePages(const std::string &name) {
    const auto pages = Entries([&](const HELP_ENTRY &entry) { return entry.name == name; });
    for (const HELP_ENTRY *entry : pages) {
        if (entry != pages.front()) WRITELN();
        WRITE_HELP_PAGE(*entry);
    }
    if (pages.empty()) return false;
    const std::string prefix = name + ".";
    const auto inside = Entries(
        [&](const HELP_ENTRY &entry) { return !entry.keyword && entry.name.starts_with(prefix); });
    if (inside.empty()) return true;
    WRITELN();
    WRITELN(Count(inside.size(), "name begins", "names begin") + " with " + prefix +
            ": morvane help " + prefix);
    return true;
}

// The word begins one of the words of the text; points and blanks part them.
bool BeginsAWord(const std::string &text, const std::string &word) {
    for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1))
        if (at == 0 || !(std::isalnum(static_cast<unsigned char>(text[at - 1])))) return true;
    return false;
}

// In a name a word may begin anywhere, as in getskeleton; a short one only behind a point.
bool Holds(const HELP_ENTRY &entry, std::span<const std::string> words) {
    constexpr std::size_t SHORT = 2;
    return std::ranges::all_of(words, [&](const std::string &word) {
        const bool isInside = word.size() > SHORT && entry.name.find(word) != std::string::npos;
        return isInside || BeginsAWord(entry.name, word) || BeginsAWord(Lower(entry.note), word);
    });
}

bool WriteSearch(std::span<const std::string> words, const std::string &text) {
    const auto found = Entries([&](const HELP_ENTRY &entry) { return Holds(entry, words); });
    if (found.empty()) return false;
    if (found.size() == 1) return WRITE_HELP_PAGE(*found.front()), true;
    WRITE_HEADING(Count(found.size(), "entry holds", "entries hold") + " \"" + text + "\"");
    WriteEntries(found);
    return true;
}

void WriteUnknown(const std::string &text, const std::string &name) {
    std::vector<std::string_view> names;
    for (const HELP_ENTRY &entry : HELP_ENTRIES())
        names.push_back(entry.name);
    WRITELN("There is no help on \"" + text + "\".");
    const std::vector<std::string> nearest = NEAREST_NAMES(name, names, 3);
    if (!nearest.empty()) WRITELN(NEAREST_LINE(nearest));
}

std::string Joined(std::span<const std::string> words, std::string_view between) {
    std::string text;
    for (const std::string &word : words)
        text += (text.empty() ? "" : std::string(between)) + word;
    return text;
}
} // namespace

void HELP(std::span<const std::string> words) {
    std::vector<std::string> lower;
    for (const std::string &word : words)
        if (!word.empty()) lower.push_back(Lower(word));
    if (lower.empty()) return WriteOverview();
    std::string name = Joined(lower, "."); // "help line save" means line.save
    const bool isPart = name.size() > 1 && name.ends_with('.');
    if (isPart) name.pop_back();
    if (!isPart && WritePages(name)) return;
    if (WritePart(name)) return;
    const std::string text = Joined(lower, " ");
    if (!WriteSearch(lower, text)) WriteUnknown(text, name);
}
} // namespace morvane
