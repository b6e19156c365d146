#include "script/engine/macro.hpp"

#include "script/engine/expression.hpp"
#include "script/engine/keywords_table.hpp"
#include "script/engine/store_block.hpp"

#include <optional>

namespace morvane {
namespace {
constexpr NAT DEEPEST_SCOPE = 10'000; // blocks that the script's end left open count too
constexpr NAT DEEPEST_CALL = 1'000;   // runs of a block in each other, in all engines together
NAT activeBlocks = 0;

// One run of a block on the processor's stack.
struct ACTIVE_BLOCK {
    ACTIVE_BLOCK() { ++activeBlocks; }
    ~ACTIVE_BLOCK() { --activeBlocks; }
    ACTIVE_BLOCK(const ACTIVE_BLOCK &) = delete;
    ACTIVE_BLOCK &operator=(const ACTIVE_BLOCK &) = delete;
};

// The frame of a block among those in progress.
struct ACTIVE_FRAME {
    ACTIVE_FRAME(std::vector<BLOCK_FRAME *> &list, BLOCK_FRAME &frame) : frames(list) {
        frames.push_back(&frame);
    }
    ~ACTIVE_FRAME() { frames.pop_back(); }
    ACTIVE_FRAME(const ACTIVE_FRAME &) = delete;
    ACTIVE_FRAME &operator=(const ACTIVE_FRAME &) = delete;
    std::vector<BLOCK_FRAME *> &frames;
};
} // namespace

bool TMACRO::EnterScope() {
    if (scopeLevel >= DEEPEST_SCOPE || activeBlocks >= DEEPEST_CALL) {
        if (!stop) ERROR("too many nested blocks");
        return false;
    }
    if (!SpendLine()) return false;
    ++scopeLevel;
    return true;
}

// A line, and the opening of a block, of the budget; false after the report of its end.
bool TMACRO::SpendLine() {
    if (linesLeft == 0 || --linesLeft > 0) return true;
    ERROR("too many lines");
    return false;
}

NAT TMACRO::_RUNBLOCK(NAT line, bool process) {
    if (!EnterScope()) return line;
    const ACTIVE_BLOCK active;
    return process ? ProcessBlock(line) : SkipBlock(line);
}

// Takes the next line into the frame, after includes and inline forms; false when nothing of it is
// left to carry out.
bool TMACRO::NextLine(BLOCK_FRAME &frame) {
    if (lineHook) lineHook(script);
    currentLine = ++frame.line;
    if (!SpendLine()) return false;
    frame.part = lines.GET(script, frame.line);
    if (!frame.part) return false;
    COMMAND_RESULT_VAR = {};
    COMMAND_RESULT = {};
    if (const KEYWORD *keyword = frame.part->keyword) {
        if (keyword->role == KEYWORD_ROLE::INCLUDE) {
            COMMAND = frame.part->word;
            _EVALUATE(*frame.part);
            if (PARAMETERLENGTH() < 1)
                MIN_PARAMETERERROR(1);
            else
                _INCLUDE(frame.line, GETPARAMETER(1));
            if (stop) return false;
        } else if (!Inline(frame)) {
            return false;
        }
    }
    COMMAND = frame.part->word;
    return !frame.part->word.EMPTY();
}

// The word behind an inline `then`, `else` or `of` takes the line when its condition holds.
bool TMACRO::Inline(BLOCK_FRAME &frame) {
    const auto role = [&] {
        return frame.part->keyword ? frame.part->keyword->role : KEYWORD_ROLE::BLOCK;
    };
    if (role() == KEYWORD_ROLE::THEN && !frame.part->rest.EMPTY() &&
        !TakeCondition(frame, frame.condition, *frame.part))
        return false;
    if (role() == KEYWORD_ROLE::ELSE && !frame.part->rest.EMPTY() &&
        !TakeCondition(frame, !frame.condition, *frame.part))
        return false;
    if (role() == KEYWORD_ROLE::OF && frame.part->blankInRest) {
        const LINE_PART &value = frame.part->NEXT();
        return TakeCondition(frame, value.rawWord == frame.caseValue, value);
    }
    return true;
}

// Deliberate: then halt halts whatever the condition says.
bool TMACRO::TakeCondition(BLOCK_FRAME &frame, bool holds, const LINE_PART &line) {
    if (!holds && !(line.rest == "halt") && !(line.rest == "break")) return false;
    frame.part = &line.NEXT();
    return true;
}

void TMACRO::EndBlock(const LINE_PART &part) {
    COMMAND_RESULT = part.rest.EMPTY() ? UTF16() : _REPLACE_CONSTANTS(part.rest);
    LEAVESCOPE();
}

NAT TMACRO::ProcessBlock(NAT line) {
    BLOCK_FRAME frame;
    const ACTIVE_FRAME active(frames, frame);
    frame.line = line;
    while (frame.line < script.LENGTH() && !stop) {
        if (!NextLine(frame)) continue;
        const KEYWORD *keyword = frame.part->keyword;
        if (keyword && keyword->role == KEYWORD_ROLE::END) {
            EndBlock(*frame.part);
            return frame.line;
        }
        if (keyword && keyword->role == KEYWORD_ROLE::BEGIN) continue;
        if (keyword && keyword->run)
            keyword->run(*this, frame);
        else if (frame.part->assignment)
            Assign(frame);
        else
            CallProcedure(frame);
    }
    // Deliberate: a block that the script's end leaves open keeps its scope.
    return frame.line;
}

// Whether the block in progress stands directly in a `store` or `append` with an open file.
bool TMACRO::IsStored() const {
    const std::size_t opener = static_cast<std::size_t>(scopeLevel - 1);
    if (!IFOUTPUT() || opener >= scopeKinds.size()) return false;
    return scopeKinds[opener] == "store" || scopeKinds[opener] == "append";
}

// Only the nesting is followed. Inside a store block a line is text, unless it opens a block; of a
// nested block its end line alone is text.
NAT TMACRO::SkipBlock(NAT line) {
    BLOCK_FRAME frame;
    frame.line = line;
    NAT nested = 0;
    std::optional<STORE_BLOCK> store;
    if (IsStored()) store.emplace(*this);
    while (frame.line < script.LENGTH() && !stop) {
        if (!NextLine(frame)) continue;
        const LINE_PART &part = *frame.part;
        const KEYWORD_ROLE role = part.keyword ? part.keyword->role : KEYWORD_ROLE::BLOCK;
        // Deliberate: halt and break act inside skipped code.
        if (role == KEYWORD_ROLE::LEAVE)
            part.keyword->run(*this, frame);
        else if (role == KEYWORD_ROLE::BEGIN)
            continue;
        else if (role == KEYWORD_ROLE::END) {
            if (nested == 0) {
                EndBlock(part);
                return frame.line;
            }
            COMMAND_RESULT = part.rest.EMPTY() ? UTF16() : _REPLACE_CONSTANTS(part.rest);
            --nested;
            if (nested == 0 && store) store->WRITELINE(frame.line);
        } else if (OpensSkipped(part))
            ++nested;
        else if (nested == 0 && store)
            store->WRITELINE(frame.line);
    }
    if (nested > 0 && store && !stop) store->WRITELINE(frame.line);
    scopeLevel = std::min(scopeLevel + nested, DEEPEST_SCOPE);
    return frame.line;
}

// The word behind the command is the operator; a function that dealt with the target itself has
// cleared COMMAND_RESULT_VAR.
void TMACRO::Assign(BLOCK_FRAME &frame) {
    const LINE_PART &part = *frame.part;
    const LINE_PART &operation = part.NEXT();
    COMMAND_RESULT_VAR = part.atWord ? _REPLACE_AT_CONSTANTS(part.word) : part.word;
    COMMAND = operation.word;
    if (stop) return;
    if (operation.word == ":=") {
        AssignValue(operation);
    } else {
        _EVALUATE(operation);
        COMMAND_RESULT = ASSIGNMENT_RESULT(*this, operation.word);
        _TRACE(COMMAND_RESULT_VAR, TRACE_COLOUR::ASSIGNMENT, COMMAND + "|" + COMMAND_RESULT);
    }
    StoreResult(part);
}

// The target's name is looked up once; only a change of the command table asks again.
void TMACRO::StoreResult(const LINE_PART &part) {
    if (COMMAND_RESULT_VAR.EMPTY()) return;
    LINE_PART::CACHE &cache = part.cache;
    const bool known = cache.targetVersion == commands.VERSION() && !part.atWord;
    if (known && COMMAND_RESULT_VAR == part.word)
        return PutNamed(cache.target, COMMAND_RESULT, scopeLevel);
    PUTCONSTANT(COMMAND_RESULT_VAR, COMMAND_RESULT);
    const bool plain = part.word.GETCHAR(part.word.LENGTH()) != UTF16CHAR{']', 0};
    if (stop || part.atWord || !plain) return;
    cache.target = names.INTERN(CUT_TEXT(part.word));
    cache.targetVersion = commands.VERSION();
}
} // namespace morvane
