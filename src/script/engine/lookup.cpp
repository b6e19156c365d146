#include "script/engine/macro.hpp"

#include "foundation/console/console.hpp"
#include "script/engine/keywords_table.hpp"

namespace morvane {
NAT TMACRO::SEARCH_BLOCK_PROCEDURE_COMMAND(UTF16 &name, bool repair) {
    const NAT index = commands.SEARCH(name, PROCEDURES);
    if (index > 0 || !repair || !verbose || !REPAIR_COMMAND(name)) return index;
    return commands.SEARCHEXACT(name, PROCEDURES);
}

NAT TMACRO::SEARCH_FUNCTION_COMMAND(const UTF16 &name) { return commands.SEARCH(name, FUNCTIONS); }
NAT TMACRO::SEARCH_LAMBDA_COMMAND(const UTF16 &name) { return commands.SEARCH(name, LAMBDAS); }

// The same for the word of a prepared line; asks the table only when it has changed.
NAT TMACRO::Lookup(const LINE_PART &part, unsigned groups) {
    LINE_PART::CACHE &cache = part.cache;
    if (cache.commandVersion != commands.VERSION() || cache.commandGroups != groups) {
        cache.command = commands.SEARCH(part.word, groups);
        cache.commandVersion = commands.VERSION();
        cache.commandGroups = groups;
    } else if (cache.command > 0) {
        ++commands.GET(cache.command).useCount;
    }
    return cache.command;
}

bool TMACRO::OpensSkipped(const LINE_PART &part) {
    if (part.keyword && part.keyword->opensSkipped) return true;
    const NAT index = Lookup(part, PROCEDURES);
    return index > 0 && commands.GET(index).GROUP() == KIND_BLOCK;
}
} // namespace morvane
