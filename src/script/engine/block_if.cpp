#include "script/engine/blocks.hpp"

#include "foundation/base/geometry.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/record_operators.hpp"
#include "foundation/console/paths.hpp"
#include "script/engine/keywords_table.hpp"
#include "script/engine/macro.hpp"

#include <glob.h>
#include <string>
#include <unordered_map>

namespace morvane {
namespace {
using COLOUR = TMACRO::TRACE_COLOUR;

UTF16 Parameter(TMACRO &engine, NAT index) { return engine.GETPARAMETER_ERRORFREE(index); }

// Counts the parameters from `first` on for which f holds.
template <class F> NAT Count(TMACRO &engine, NAT first, F f) {
    NAT count = 0;
    for (NAT i = first; i <= engine.PARAMETERLENGTH(); ++i)
        if (f(Parameter(engine, i))) ++count;
    return count;
}
template <class F> bool All(TMACRO &engine, NAT first, F f) {
    return Count(engine, first, f) == std::max<NAT>(0, engine.PARAMETERLENGTH() - first + 1);
}
// Whether f holds for each parameter and the next one.
template <class READ, class F> bool Chain(TMACRO &engine, READ read, F f) {
    for (NAT i = 1; i < engine.PARAMETERLENGTH(); ++i)
        if (!f(read(Parameter(engine, i)), read(Parameter(engine, i + 1)))) return false;
    return true;
}

bool IsTrue(const UTF16 &text) { return GETREAL(text) >= 1; }
REAL Length(const UTF16 &text) { return GETLENGTH(GETHYPER(text)); }
bool IsSame(const HYPER &a, const HYPER &b) {
    return a.x == b.x && a.y == b.y && a.z == b.z && a.w == b.w;
}
NAT Containing(TMACRO &engine) { // later parameters that contain the first
    const UTF16 first = Parameter(engine, 1);
    return Count(engine, 2, [&](const UTF16 &text) { return POS(first, text) > 0; });
}
NAT Contained(TMACRO &engine) { // later parameters that the first contains
    const UTF16 first = Parameter(engine, 1);
    return Count(engine, 2, [&](const UTF16 &text) { return POS(text, first) > 0; });
}
NAT Later(TMACRO &engine) { return engine.PARAMETERLENGTH() - 1; }

bool HasMatches(const UTF16 &mask) {
    glob_t found{};
    const bool any = glob(GETUTF8(mask).c_str(), GLOB_NOSORT, nullptr, &found) == 0;
    globfree(&found);
    return any;
}
bool Exists(const UTF16 &name) {
    const UTF16 path = FILENAMELOAD(name);
    return FILEEXISTS(path) || DIRECTORYEXISTS(path) || HasMatches(path);
}
bool AllExist(TMACRO &engine) { return engine.switches.FILES && All(engine, 1, Exists); }

bool IfAll(TMACRO &engine) { return All(engine, 1, IsTrue); }
bool IfOne(TMACRO &engine) { return Count(engine, 1, IsTrue) > 0; }
bool IfZero(TMACRO &engine) {
    return All(engine, 1, [](const UTF16 &text) { return Length(text) == 0; });
}
bool IfNotZero(TMACRO &engine) {
    return All(engine, 1, [](const UTF16 &text) { return Length(text) != 0; });
}
bool IfSmaller(TMACRO &engine) { return Chain(engine, Length, std::less<REAL>()); }
bool IfEqual(TMACRO &engine) {
    return Chain(
        engine, [](const UTF16 &text) { return GETHYPER(text); }, IsSame);
}
bool IfAbsEqual(TMACRO &engine) { return Chain(engine, Length, std::equal_to<REAL>()); }
bool IfBigger(TMACRO &engine) { return Chain(engine, Length, std::greater<REAL>()); }
bool IfEmpty(TMACRO &engine) {
    return All(engine, 1, [](const UTF16 &text) { return text.EMPTY(); });
}
bool IfSame(TMACRO &engine) {
    return Chain(
        engine, [](const UTF16 &text) { return text; }, std::equal_to<UTF16>());
}
bool IfAllContain(TMACRO &engine) { return Containing(engine) == Later(engine); }
bool IfOneContains(TMACRO &engine) { return Containing(engine) > 0; }
bool IfAllPart(TMACRO &engine) { return Contained(engine) == Later(engine); }
bool IfOnePart(TMACRO &engine) { return Contained(engine) > 0; }

// A word of the if family: how many parameters it needs, its test, and the sense that it takes.
struct IF_WORD {
    std::string_view word;
    NAT minimum;
    bool (*test)(TMACRO &engine);
    bool sense;
};
constexpr IF_WORD IF_WORDS[] = {
    {"if", 1, IfAll, true},
    {"ifall", 1, IfAll, true},
    {"ifand", 1, IfAll, true},
    {"ifnot", 1, IfAll, false},
    {"ifnotall", 1, IfAll, false},
    {"ifnand", 1, IfAll, false},
    {"ifone", 1, IfOne, true},
    {"ifor", 1, IfOne, true},
    {"ifnotone", 1, IfOne, false},
    {"ifnor", 1, IfOne, false},
    {"ifzero", 1, IfZero, true},
    {"ifnotzero", 1, IfNotZero, true},
    {"ifsmaller", 2, IfSmaller, true},
    {"ifequal", 2, IfEqual, true},
    {"ifabsequal", 2, IfAbsEqual, true},
    {"ifbigger", 2, IfBigger, true},
    {"ifempty", 0, IfEmpty, true},
    {"ifnotempty", 0, IfEmpty, false},
    {"ifsame", 0, IfSame, true},
    {"ifnotsame", 0, IfSame, false},
    {"ifcontain", 2, IfAllContain, true},
    {"ifallcontain", 2, IfAllContain, true},
    {"ifnotcontain", 2, IfAllContain, false},
    {"ifnotallcontain", 2, IfAllContain, false},
    {"ifonecontain", 2, IfOneContains, true},
    {"ifnotonecontain", 2, IfOneContains, false},
    {"ifpart", 2, IfAllPart, true},
    {"ifallpart", 2, IfAllPart, true},
    {"ifnotpart", 2, IfAllPart, false},
    {"ifnotallpart", 2, IfAllPart, false},
    {"ifonepart", 2, IfOnePart, true},
    {"ifnotonepart", 2, IfOnePart, false},
    {"ifexists", 1, AllExist, true},
    {"ifnotexists", 1, AllExist, false},
};

const IF_WORD &FindIfWord(std::string_view word) {
    static const auto index = [] {
        std::unordered_map<std::string_view, const IF_WORD *> words;
        for (const IF_WORD &row : IF_WORDS)
            words.emplace(row.word, &row);
        return words;
    }();
    const auto found = index.find(word);
    return found == index.end() ? IF_WORDS[0] : *found->second;
}

// Runs the block when `process`, else skips it; its end line is taken over.
void RunOrSkip(TMACRO &engine, BLOCK_FRAME &frame, bool process, std::string_view kind,
               std::string_view ignoredKind) {
    engine._OPENBLOCK(process ? kind : ignoredKind);
    frame.line = engine._RUNBLOCK(frame.line, process);
}

void RunOf(TMACRO &engine, BLOCK_FRAME &frame, bool sense, std::string_view kind,
           std::string_view ignoredKind) {
    engine._EVALUATE(*frame.part);
    if (engine.PARAMETERLENGTH() < 1) return engine.MIN_PARAMETERERROR(1);
    const auto isCase = [&](const UTF16 &text) { return text == frame.caseValue; };
    RunOrSkip(engine, frame, (Count(engine, 1, isCase) > 0) == sense, kind, ignoredKind);
}
} // namespace

void RUN_IF(TMACRO &engine, BLOCK_FRAME &frame) {
    const IF_WORD &word = FindIfWord(frame.part->keyword->word);
    engine._EVALUATE(*frame.part);
    engine._TRACE(frame.part->word, COLOUR::PROCEDURE);
    // Deliberate: a word of the if family that needs two parameters asks for one in its report.
    if (engine.PARAMETERLENGTH() < word.minimum) return engine.MIN_PARAMETERERROR(1);
    frame.condition = word.test(engine) == word.sense;
}

// Deliberate: the words for file sizes only clear the flag, so that they join an earlier test.
void RUN_IF_FILESIZE(TMACRO &engine, BLOCK_FRAME &frame) {
    const std::string_view word = frame.part->keyword->word;
    const NAT needed = word == "ifzero.filesize" ? 1 : 2;
    engine._EVALUATE(*frame.part);
    engine._TRACE(frame.part->word, COLOUR::PROCEDURE);
    if (engine.PARAMETERLENGTH() != needed) return engine.PARAMETERERROR(needed);
    const REAL size = engine.switches.FILES
                          ? static_cast<REAL>(FILESIZE(FILENAMELOAD(Parameter(engine, 1))))
                          : -1;
    const REAL number = needed == 1 ? 0 : GETREAL(Parameter(engine, 2));
    const bool holds = word == "ifsmaller.filesize"  ? size < number
                       : word == "ifbigger.filesize" ? size > number
                                                     : size == number;
    if (!holds) frame.condition = false;
}

void RUN_THEN(TMACRO &engine, BLOCK_FRAME &frame) {
    if (frame.condition) engine._TRACE("if.then", COLOUR::PROCEDURE, {});
    RunOrSkip(engine, frame, frame.condition, "if.then", "if.then.ignore");
}

void RUN_ELSE(TMACRO &engine, BLOCK_FRAME &frame) {
    if (!frame.condition) engine._TRACE("if.else", COLOUR::PROCEDURE, {});
    RunOrSkip(engine, frame, !frame.condition, "if.else", "if.else.ignore");
}

void RUN_CASE(TMACRO &engine, BLOCK_FRAME &frame) {
    engine._EVALUATE(*frame.part);
    if (engine.PARAMETERLENGTH() != 1) return engine.PARAMETERERROR(1);
    frame.caseValue = Parameter(engine, 1);
}

void RUN_OF(TMACRO &engine, BLOCK_FRAME &frame) { RunOf(engine, frame, true, "of", "of.ignore"); }
void RUN_OFNOT(TMACRO &engine, BLOCK_FRAME &frame) {
    RunOf(engine, frame, false, "ofnot", "ofnot.ignore");
}
} // namespace morvane
