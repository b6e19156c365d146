#include "script/engine/keywords_table.hpp"

#include "script/engine/blocks.hpp"

#include <array>
#include <unordered_map>

namespace morvane {
namespace {
using enum KEYWORD_ROLE;

// Deliberate: minimize, maximize, for.part, for.random, ofnot and sub open no skipped block.
constexpr KEYWORD TABLE[] = {
    {"include", INCLUDE, false, nullptr},
    {"if.then", THEN, true, RUN_THEN},
    {"then", THEN, true, RUN_THEN},
    {"if.true", THEN, true, RUN_THEN},
    {"if.else", ELSE, true, RUN_ELSE},
    {"else", ELSE, true, RUN_ELSE},
    {"if.false", ELSE, true, RUN_ELSE},
    {"of", OF, true, RUN_OF},
    {"halt", LEAVE, false, RUN_HALT},
    {"break", LEAVE, false, RUN_BREAK},
    {"end", END, false, nullptr},
    {"until", END, false, nullptr},
    {"begin", BEGIN, false, nullptr},
    {"ignore", BLOCK, true, RUN_IGNORE},
    {"process", BLOCK, true, RUN_PROCESS},
    {"with", BLOCK, true, RUN_WITH},
    {"procedure", BLOCK, true, DECLARE_PROCEDURE},
    {"function", BLOCK, true, DECLARE_FUNCTION},
    {"module", BLOCK, true, RUN_MODULE},
    {"sub", BLOCK, false, DECLARE_SUB},
    {"if", BLOCK, false, RUN_IF},
    {"ifall", BLOCK, false, RUN_IF},
    {"ifand", BLOCK, false, RUN_IF},
    {"ifnot", BLOCK, false, RUN_IF},
    {"ifnotall", BLOCK, false, RUN_IF},
    {"ifnand", BLOCK, false, RUN_IF},
    {"ifone", BLOCK, false, RUN_IF},
    {"ifor", BLOCK, false, RUN_IF},
    {"ifnotone", BLOCK, false, RUN_IF},
    {"ifnor", BLOCK, false, RUN_IF},
    {"ifzero", BLOCK, false, RUN_IF},
    {"ifnotzero", BLOCK, false, RUN_IF},
    {"ifsmaller", BLOCK, false, RUN_IF},
    {"ifequal", BLOCK, false, RUN_IF},
    {"ifabsequal", BLOCK, false, RUN_IF},
    {"ifbigger", BLOCK, false, RUN_IF},
    {"ifempty", BLOCK, false, RUN_IF},
    {"ifnotempty", BLOCK, false, RUN_IF},
    {"ifsame", BLOCK, false, RUN_IF},
    {"ifnotsame", BLOCK, false, RUN_IF},
    {"ifcontain", BLOCK, false, RUN_IF},
    {"ifallcontain", BLOCK, false, RUN_IF},
    {"ifnotcontain", BLOCK, false, RUN_IF},
    {"ifnotallcontain", BLOCK, false, RUN_IF},
    {"ifonecontain", BLOCK, false, RUN_IF},
    {"ifnotonecontain", BLOCK, false, RUN_IF},
    {"ifpart", BLOCK, false, RUN_IF},
    {"ifallpart", BLOCK, false, RUN_IF},
    {"ifnotpart", BLOCK, false, RUN_IF},
    {"ifnotallpart", BLOCK, false, RUN_IF},
    {"ifonepart", BLOCK, false, RUN_IF},
    {"ifnotonepart", BLOCK, false, RUN_IF},
    {"ifexists", BLOCK, false, RUN_IF},
    {"ifnotexists", BLOCK, false, RUN_IF},
    {"ifzero.filesize", BLOCK, false, RUN_IF_FILESIZE},
    {"ifsmaller.filesize", BLOCK, false, RUN_IF_FILESIZE},
    {"ifequal.filesize", BLOCK, false, RUN_IF_FILESIZE},
    {"iffilesize", BLOCK, false, RUN_IF_FILESIZE},
    {"ifbigger.filesize", BLOCK, false, RUN_IF_FILESIZE},
    {"case", BLOCK, false, RUN_CASE},
    {"ofnot", BLOCK, false, RUN_OFNOT},
    {"for", BLOCK, true, RUN_FOR},
    {"parallel", BLOCK, true, RUN_PARALLEL},
    {"for.part", BLOCK, false, RUN_FOR_PART},
    {"for.random", BLOCK, false, RUN_FOR_RANDOM},
    {"minimize", BLOCK, false, RUN_MINIMIZE},
    {"maximize", BLOCK, false, RUN_MAXIMIZE},
    {"repeat", BLOCK, true, RUN_REPEAT},
    {"while", BLOCK, true, RUN_WHILE},
    {"execute", BLOCK, false, RUN_EXECUTE},
    {"output.store", BLOCK, true, RUN_OUTPUT_STORE},
    {"output.append", BLOCK, true, RUN_OUTPUT_APPEND},
    {"store.space", BLOCK, false, RUN_STORE_SPACE},
    {"store", BLOCK, true, RUN_STORE},
    {"append.space", BLOCK, false, RUN_STORE_SPACE},
    {"append", BLOCK, true, RUN_APPEND},
};
// Deliberate: any word that begins with var, local or global is that keyword.
constexpr KEYWORD PREFIX_TABLE[] = {
    {"var", BLOCK, false, DECLARE_VAR},
    {"local", BLOCK, false, DECLARE_LOCAL},
    {"global", BLOCK, false, DECLARE_GLOBAL},
};

std::unordered_map<std::string_view, const KEYWORD *> MakeIndex() {
    std::unordered_map<std::string_view, const KEYWORD *> index;
    for (const KEYWORD &keyword : TABLE)
        index.emplace(keyword.word, &keyword);
    return index;
}
} // namespace

std::span<const KEYWORD> KEYWORDS() { return TABLE; }

const KEYWORD *FIND_KEYWORD(const UTF16 &word) {
    static const std::unordered_map<std::string_view, const KEYWORD *> index = MakeIndex();
    const std::string_view low = word.LOWBYTES.VIEW();
    const std::string_view high = word.HIGHBYTES.VIEW();
    const std::size_t plain = high.find_first_not_of('\0');
    if (plain == std::string_view::npos)
        if (const auto found = index.find(low); found != index.end()) return found->second;
    for (const KEYWORD &keyword : PREFIX_TABLE)
        if (low.starts_with(keyword.word) && plain >= keyword.word.size()) return &keyword;
    return nullptr;
}
} // namespace morvane
