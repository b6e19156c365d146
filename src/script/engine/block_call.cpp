#include "script/engine/blocks.hpp"

#include "foundation/base/number_text.hpp"
#include "script/engine/loop_pass.hpp"

namespace morvane {
using namespace loops;
using COLOUR = TMACRO::TRACE_COLOUR;

namespace {
// Runs the block once and takes its end line.
void RunOnce(TMACRO &engine, BLOCK_FRAME &frame, std::string_view kind) {
    Pass(engine, frame, kind, true);
}

// Registers a script command that starts at this line, and passes over its body.
void Declare(TMACRO &engine, BLOCK_FRAME &frame, BYTE group, std::string_view kind,
             bool needsName) {
    const std::vector<UTF16> names = engine._WRITTENNAMES(*frame.part);
    if (names.empty() && needsName) return engine.MIN_PARAMETERERROR(1);
    if (!names.empty()) {
        COMMAND_ENTRY entry;
        entry.kind = group;
        entry.startLine = engine.CURRENTLINE();
        engine._PUTCOMMAND(names[0], engine.SCOPELEVEL(), std::move(entry));
    }
    Skip(engine, frame, kind);
}

UTF16 Instance(const TMACRO &engine) {
    return "(instance " + GETSTRING(engine.SCOPELEVEL()) + ") :=";
}

// name v...: the name as written and the later parameters' values, joined. False after a report.
bool ReadDeclaration(TMACRO &engine, BLOCK_FRAME &frame, UTF16 &name, UTF16 &value) {
    const std::vector<UTF16> names = engine._WRITTENNAMES(*frame.part);
    if (names.empty()) return engine.MIN_PARAMETERERROR(1), false;
    engine._EVALUATE(*frame.part);
    name = names[0];
    value = engine._JOINPARAMETERS(2, {});
    return !engine.stop;
}
} // namespace

void RUN_IGNORE(TMACRO &engine, BLOCK_FRAME &frame) { Skip(engine, frame, "ignore"); }
void RUN_PROCESS(TMACRO &engine, BLOCK_FRAME &frame) { RunOnce(engine, frame, "process"); }

void RUN_WITH(TMACRO &engine, BLOCK_FRAME &frame) {
    engine._EVALUATE(*frame.part);
    if (engine.PARAMETERLENGTH() > 0) engine.PUTWITH(engine.GETPARAMETER(1));
    RunOnce(engine, frame, "with");
}

void RUN_MODULE(TMACRO &engine, BLOCK_FRAME &frame) {
    engine.PUTMODULE();
    RunOnce(engine, frame, "module");
}

void DECLARE_PROCEDURE(TMACRO &engine, BLOCK_FRAME &frame) {
    Declare(engine, frame, KIND_PROCEDURE, "procedure", false);
}
void DECLARE_FUNCTION(TMACRO &engine, BLOCK_FRAME &frame) {
    Declare(engine, frame, KIND_FUNCTION, "function", false);
}
void DECLARE_SUB(TMACRO &engine, BLOCK_FRAME &frame) {
    Declare(engine, frame, KIND_PROCEDURE, "sub.ignore", true);
}

// Deliberate: var empties an outer constant of that name.
void DECLARE_VAR(TMACRO &engine, BLOCK_FRAME &frame) {
    const std::vector<UTF16> names = engine._WRITTENNAMES(*frame.part);
    if (names.empty()) return engine.MIN_PARAMETERERROR(1);
    UTF16 joined;
    for (const UTF16 &name : names) {
        if (!joined.EMPTY()) joined += "|";
        joined += name;
    }
    engine._TRACE(joined, COLOUR::ASSIGNMENT, Instance(engine));
    for (const UTF16 &name : names)
        engine.PUTCONSTANT(name, {});
}

void DECLARE_LOCAL(TMACRO &engine, BLOCK_FRAME &frame) {
    UTF16 name, value;
    if (!ReadDeclaration(engine, frame, name, value)) return;
    engine._TRACE(name, COLOUR::ASSIGNMENT, Instance(engine) + "|" + value);
    engine.PUTCONSTANT(name, value);
}

void DECLARE_GLOBAL(TMACRO &engine, BLOCK_FRAME &frame) {
    UTF16 name, value;
    if (!ReadDeclaration(engine, frame, name, value)) return;
    engine._TRACE(name, COLOUR::ASSIGNMENT, "(global) :=|" + value);
    engine.PUTCONSTANT_SCOPE(name, value, 1);
}
} // namespace morvane
