#include "app/help_entries.hpp"

#include "app/program.hpp"

#include <algorithm>

namespace morvane {
namespace {
// Heads of blocks that the scan of skipped lines doesn't know.
constexpr std::string_view OTHER_BLOCKS[] = {"sub",      "for.part", "for.random",
                                             "minimize", "maximize", "ofnot"};

std::vector<HELP_ENTRY> Collect() {
    std::vector<HELP_ENTRY> entries;
    for (const COMMAND_SET *set : COMMAND_SETS())
        for (const COMMAND_ROW &row : set->rows)
            entries.push_back({std::string(set->nameSpace) + std::string(row.name),
                               HELP_GROUP_OF(*set), row.parameters, row.usage, row.note, &row});
    for (const auto &keywords : {KEYWORDS(), PREFIX_KEYWORDS()})
        for (const KEYWORD &word : keywords)
            entries.push_back({std::string(word.word), "keywords", word.parameters, word.usage,
                               word.note, nullptr, &word});
    return entries;
}
} // namespace

bool HELP_ENTRY::ISSYNONYM(const HELP_ENTRY &other) const {
    if (name == other.name || group != other.group) return false;
    if (keyword && other.keyword) return keyword->run == other.keyword->run && note == other.note;
    return row && other.row && row->kind == other.row->kind && row->handler == other.row->handler &&
           row->getter == other.row->getter;
}

bool HELP_ENTRY::ISBLOCK() const {
    return keyword && (keyword->opensSkipped ||
                       std::ranges::find(OTHER_BLOCKS, name) != std::end(OTHER_BLOCKS));
}

const std::vector<HELP_ENTRY> &HELP_ENTRIES() {
    static const std::vector<HELP_ENTRY> entries = Collect();
    return entries;
}
} // namespace morvane
