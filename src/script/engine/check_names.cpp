#include "script/engine/check_names.hpp"

#include "script/engine/keywords_table.hpp"

namespace morvane {
namespace {
constexpr std::size_t MOST_NAMES = 3;
constexpr NAT LONGEST_REST = 4096; // units; cutting takes time with the square of the length
// Set by the engine itself.
constexpr std::string_view ENGINE_NAMES[] = {"true",
                                             "false",
                                             "condition",
                                             "for.length",
                                             "for.rest",
                                             "for.count",
                                             "for.relativ",
                                             "for.relative",
                                             "parallel.length",
                                             "parallel.count",
                                             "parallel.relativ",
                                             "parameter",
                                             "result"};

// The name of a variable: lower case, points for blanks, without the index of an element.
std::string VariableName(const UTF16 &name) {
    UTF16 text = LOWERCASE(GETREPLACE(name, ' ', '.'));
    const NAT open = POS("[", text);
    if (open > 0 && text.IS(text.LENGTH(), ']')) text = COPY(text, 1, open - 1);
    return GETUTF8(CUT_TEXT(text));
}
} // namespace

CHECK_NAMES::CHECK_NAMES(const CHECK_PROGRAM &program) {
    engine.INIT();
    for (const COMMAND_SET *set : program.sets) {
        engine.REGISTER(*set);
        nameSpaces.emplace(set->nameSpace.substr(0, set->nameSpace.find('.')));
    }
    for (NAT i = 1; i <= engine.COMMANDLENGTH(); ++i)
        exact.insert(GETUTF8(engine.GETCOMMAND(i).TEXT()));
    for (const std::string_view name : program.constants)
        variables.emplace(name);
    for (const std::string_view name : ENGINE_NAMES)
        variables.emplace(name);
}

bool CHECK_NAMES::IS_TAKEN(const std::string &name, std::size_t order) const {
    const auto own = declared.find(name);
    return IS_COMMAND(name) || (own != declared.end() && own->second < order);
}

void CHECK_NAMES::DECLARE(const UTF16 &name, BYTE kind, std::size_t order) {
    COMMAND_ENTRY entry;
    entry.kind = kind;
    entry.startLine = 1;
    const UTF16 whole = GETREPLACE(LOWERCASE(name), ' ', '.');
    if (order != NEVER) declared.try_emplace(GETUTF8(whole), order);
    // A name of the same kind again is another scope's: one entry stands for all of them.
    const COMMAND_ENTRY *known = kind == KIND_FUNCTION ? FUNCTION(whole) : PROCEDURE(whole);
    if (known && !known->open && known->TEXT() == CUT_TEXT(whole)) return;
    engine._PUTCOMMAND(whole, 1, std::move(entry));
}

void CHECK_NAMES::ASSIGN(const UTF16 &name) {
    if (POS("@", name) == 0) variables.insert(VariableName(name));
}

bool CHECK_NAMES::IS_VARIABLE(const UTF16 &name) const {
    const std::string text = VariableName(name);
    return variables.contains(text) || text.starts_with("parameter.");
}

bool CHECK_NAMES::IN_NAMESPACE(const std::string &name) const {
    const std::size_t point = name.find('.');
    return point != std::string::npos && point > 0 && nameSpaces.contains(name.substr(0, point));
}

// A script with very many prefixes is not followed into its bodies.
void CHECK_NAMES::WITH(const std::string &prefix) {
    constexpr std::size_t MOST_PREFIXES = 100;
    if (prefixes.size() < MOST_PREFIXES)
        prefixes.insert(prefix);
    else
        prefixUnknown = true;
}

template <class SEARCH>
const COMMAND_ENTRY *CHECK_NAMES::Entry(SEARCH search, const UTF16 &name) const {
    const NAT index = search(name);
    return index > 0 ? &engine.GETCOMMAND(index) : nullptr;
}

const COMMAND_ENTRY *CHECK_NAMES::PROCEDURE(const UTF16 &name) const {
    return Entry([&](UTF16 text) { return engine.SEARCH_BLOCK_PROCEDURE_COMMAND(text, false); },
                 name);
}
const COMMAND_ENTRY *CHECK_NAMES::FUNCTION(const UTF16 &name) const {
    return Entry([&](const UTF16 &text) { return engine.SEARCH_FUNCTION_COMMAND(text); }, name);
}
const COMMAND_ENTRY *CHECK_NAMES::LAMBDA(const UTF16 &name) const {
    return Entry([&](const UTF16 &text) { return engine.SEARCH_LAMBDA_COMMAND(text); }, name);
}

bool CHECK_NAMES::WITH_PROCEDURE(const UTF16 &name) const {
    if (prefixUnknown) return true;
    for (const std::string &prefix : prefixes)
        if (PROCEDURE(UTF16(prefix) + "." + name)) return true;
    return false;
}

bool CHECK_NAMES::WITH_FUNCTION(const UTF16 &name) const {
    if (prefixUnknown) return true;
    for (const std::string &prefix : prefixes)
        if (FUNCTION(UTF16(prefix) + "." + name)) return true;
    return false;
}

void CHECK_NAMES::BuildIndex(std::optional<NAME_INDEX> &index, unsigned groups) const {
    if (index) return;
    std::vector<std::string> texts;
    for (NAT i = 1; i <= engine.COMMANDLENGTH(); ++i)
        if (groups >> engine.GETCOMMAND(i).GROUP() & 1U)
            texts.push_back(GETUTF8(engine.GETCOMMAND(i).TEXT()));
    std::vector<std::string_view> known(texts.begin(), texts.end());
    if (groups == PROCEDURES) {
        for (const KEYWORD &keyword : KEYWORDS())
            known.push_back(keyword.word);
        for (const KEYWORD &keyword : PREFIX_KEYWORDS())
            known.push_back(keyword.word);
    }
    index.emplace(known);
}

std::string CHECK_NAMES::PROCEDURE_HINT(const UTF16 &name) {
    const std::string text = GETUTF8(LOWERCASE(name));
    const auto [place, isNew] = hints.try_emplace(text);
    if (!isNew) return place->second;
    std::string &hint = place->second;
    if (const COMMAND_ENTRY *entry = FUNCTION(name))
        return hint = "; " + OTHER_KIND_TEXT(GETUTF8(entry->TEXT()), FUNCTIONS);
    if (const COMMAND_ENTRY *entry = LAMBDA(name))
        return hint = "; " + OTHER_KIND_TEXT(GETUTF8(entry->TEXT()), LAMBDAS);
    BuildIndex(procedures, PROCEDURES);
    for (const std::string &nearest : procedures->NEAREST(text, MOST_NAMES))
        hint += (hint.empty() ? "; nearest: " : ", ") + nearest;
    return hint;
}

std::vector<std::string> CHECK_NAMES::NEAREST_VALUES(const std::string &name) {
    BuildIndex(values, FUNCTIONS | LAMBDAS);
    return values->NEAREST(name, MOST_NAMES);
}

std::vector<TOKEN> CHECK_NAMES::TOKENS_OF(const LINE_PART &part) const {
    if (part.rest.LENGTH() > LONGEST_REST) return {};
    return engine._WRITTENTOKENS(part);
}

bool CHECK_NAMES::IS_CERTAIN(const LINE_PART &part) {
    return !part.atRest && part.rest.LENGTH() <= LONGEST_REST;
}

bool CHECK_NAMES::IS_LITERAL(const TOKEN &token) const {
    if (POS("@", token.text) > 0) return false;
    return token.kind == 2 || (token.kind == 0 && !IS_VARIABLE(token.text));
}
} // namespace morvane
