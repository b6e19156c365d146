#include "script/engine/check_blocks.hpp"

#include "script/engine/keywords_table.hpp"

#include <algorithm>

namespace morvane {
namespace {
bool OneOf(std::string_view word, std::initializer_list<std::string_view> words) {
    return std::find(words.begin(), words.end(), word) != words.end();
}
bool IsSearch(std::string_view word) { return OneOf(word, {"minimize", "maximize"}); }
bool IsDeclaration(std::string_view word) { return OneOf(word, {"procedure", "function", "sub"}); }
// Always passed over once: when they are declared, or when the loop has ended.
bool IsPassed(std::string_view word) {
    return IsDeclaration(word) || OneOf(word, {"while", "repeat"});
}
// Passed over when the condition, the case or the count says so.
bool IsConditional(std::string_view word) {
    return OneOf(word,
                 {"then", "if.then", "if.true", "else", "if.else", "if.false", "of", "ofnot"});
}
// Blocks that the scan of skipped code does not know.
bool IsUnknownToSkip(std::string_view word) {
    return OneOf(word, {"for.part", "for.random", "ofnot", "sub"});
}

// "for of line 3", with the file when it is another one.
std::string Named(const std::string &word, const CHECK_LINE &head, const CHECK_LINE &from) {
    const auto split = [](const std::string &place) {
        const std::size_t end = place.size() - 1, colon = place.rfind(':', end - 1);
        return std::pair(place.substr(0, colon), place.substr(colon + 1, end - colon - 1));
    };
    const auto [file, line] = split(head.place);
    const bool same = split(from.place).first == file;
    return word + " of line " + line + (same ? "" : " (" + file + ")");
}
} // namespace

bool CHECK_BLOCKS::OPENS(const LINE_PART &part) {
    if (!part.keyword) return false;
    const std::string_view word = part.keyword->word;
    if (part.keyword->role == KEYWORD_ROLE::OF) return !part.blankInRest;
    return part.keyword->opensSkipped || IsUnknownToSkip(word) || IsSearch(word);
}

CHECK_BLOCKS::BLOCK &CHECK_BLOCKS::Push(const CHECK_LINE &line, bool text) {
    BLOCK block;
    block.word = std::string(line.part->keyword->word);
    block.head = PLACE_OF(line);
    block.context = CONTEXT();
    block.context.inBlock = true;
    block.text = text;
    const std::size_t here = stack.size() + 1;
    const bool passed = text || IsConditional(block.word) || IsDeclaration(block.word) ||
                        (block.word.starts_with("for") && line.part->rest == "0");
    block.passed = passed ? here : stack.empty() ? 0 : stack.back().passed;
    block.passedOrLoop = passed || IsPassed(block.word) ? here
                         : stack.empty()                ? 0
                                                        : stack.back().passedOrLoop;
    stack.push_back(std::move(block));
    return stack.back();
}

void CHECK_BLOCKS::OPEN(const CHECK_LINE &line) {
    const std::string word(line.part->keyword->word);
    if (line.part->behind && !IsConditional(word))
        findings.PUT(line, word + " behind a word of its line: when the condition fails its block "
                                  "is not passed over and its end closes the block around it");
    if (IsUnknownToSkip(word)) TellNesting(line);
    BLOCK &block = Push(line, OneOf(word, {"store", "append", "ignore"}));
    block.search = IsSearch(word);
    block.context.inBody = block.context.inBody || IsDeclaration(word);
    block.stores = OneOf(word, {"store", "append"});
}

void CHECK_BLOCKS::OPEN_TEXT(const CHECK_LINE &line) {
    BLOCK &around = stack.back();
    if (around.stores && !around.opener)
        around.opener.emplace(PLACE_OF(line), std::string(line.part->keyword->word));
    Push(line, true);
}

// The scan of skipped code passes over these heads, so that their end closes what is around them.
void CHECK_BLOCKS::TellNesting(const CHECK_LINE &line) {
    if (stack.empty() || stack.back().passedOrLoop == 0) return;
    const BLOCK &block = stack[stack.back().passedOrLoop - 1];
    const std::string when = IsPassed(block.word) ? "" : " when that is not carried out";
    findings.PUT(line, std::string(line.part->keyword->word) +
                           " does not nest where code is passed over: its end closes the " +
                           Named(block.word, block.head, line) + when);
}

void CHECK_BLOCKS::CLOSE(const CHECK_LINE &line) {
    if (stack.empty()) {
        findings.PUT(line, GETUTF8(line.part->word) + " closes no block; the script ends here");
        return;
    }
    const BLOCK block = std::move(stack.back());
    stack.pop_back();
    if (block.word == "repeat" && !block.text && line.part->rest.EMPTY())
        findings.PUT(line, "the end of " + Named("repeat", block.head, line) +
                               " needs at least 1 parameter");
    if (block.text && !block.stores && block.word != "ignore") return;
    if (!block.closedBy.empty())
        searchFindings.PUT(line, "closes a block more than it seems: the end of " + block.closedBy +
                                     " has closed " + Named(block.word, block.head, line));
    if (!block.search) return;
    const std::string name = Named(block.word, block.head, line);
    if (stack.empty()) {
        scriptClosedBy = name;
    } else {
        ++searchEnds;
        stack.back().closedBy = name;
    }
}

void CHECK_BLOCKS::RUNS(const CHECK_LINE &line) {
    if (scriptClosedBy.empty() || !stack.empty()) return;
    findings.PUT(line, "is not carried out: the end of " + scriptClosedBy + " ends the script");
    scriptClosedBy.clear();
}

// halt and break act where code is passed over, too.
void CHECK_BLOCKS::LEAVE(const CHECK_LINE &line) {
    const std::string word = GETUTF8(line.part->word);
    if (line.part->behind && line.part->rest.EMPTY())
        return findings.PUT(line,
                            word + " is carried out whatever the condition says; stop is not");
    if (line.part->behind) return;
    if (stack.empty() || stack.back().passed == 0) return;
    const BLOCK &block = stack[stack.back().passed - 1];
    const std::string around = Named(block.word, block.head, line);
    findings.PUT(line, block.text ? word + " is carried out in the text of the " + around + " too"
                                  : word + " is carried out even where the " + around +
                                        " is passed over; stop is not");
}

bool CHECK_BLOCKS::IN_PASSED() const {
    return std::any_of(stack.begin(), stack.end(),
                       [](const BLOCK &block) { return block.text || IsDeclaration(block.word); });
}

void CHECK_BLOCKS::WITH(const std::string &prefix) {
    std::string &whole = stack.back().context.prefix;
    whole += (whole.empty() ? "" : ".") + prefix;
}

void CHECK_BLOCKS::WITH_UNKNOWN() { stack.back().context.prefixUnknown = true; }

// A script may be written for the engine's count: then the end of a search is that of the block
// around it, and as many blocks stay open here as searches have ended.
void CHECK_BLOCKS::FINISH() {
    const bool enginesCount = searchEnds > 0 && stack.size() == searchEnds;
    if (enginesCount) return;
    findings.MERGE(searchFindings);
    for (const BLOCK &block : stack) {
        if (block.opener)
            findings.PUT(block.opener->first, block.opener->second + " begins a line of text and "
                                                                     "opens a block there");
        if (!block.text || block.stores || block.word == "ignore")
            findings.PUT(block.head, block.word + " has no end");
    }
}
} // namespace morvane
