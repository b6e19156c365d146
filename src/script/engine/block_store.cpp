#include "script/engine/blocks.hpp"

#include "script/engine/loop_pass.hpp"

namespace morvane {
namespace {
using COLOUR = TMACRO::TRACE_COLOUR;

// How an output keyword opens its file and what it does with its lines.
struct OUTPUT_WORD {
    std::string_view word, ignored; // kinds of the block; `ignored` when the file was not opened
    bool append, process;
};

void RunOutput(TMACRO &engine, BLOCK_FRAME &frame, const OUTPUT_WORD &output) {
    engine._EVALUATE(*frame.part);
    if (engine.stop) return;
    if (engine.PARAMETERLENGTH() < 1) return engine.MIN_PARAMETERERROR(1);
    const UTF16 file = engine.GETPARAMETER(1);
    engine._TRACE(output.word, COLOUR::PROCEDURE, file);
    const bool open = engine.PUTOUTPUT(file, output.append);
    engine._OPENBLOCK(open ? output.word : output.ignored);
    frame.line = engine._RUNBLOCK(frame.line, output.process);
}
} // namespace

void RUN_OUTPUT_STORE(TMACRO &engine, BLOCK_FRAME &frame) {
    RunOutput(engine, frame, {"output.store", "output.store.ignore", false, true});
}
void RUN_OUTPUT_APPEND(TMACRO &engine, BLOCK_FRAME &frame) {
    RunOutput(engine, frame, {"output.append", "output.append.ignore", true, true});
}
void RUN_STORE(TMACRO &engine, BLOCK_FRAME &frame) {
    RunOutput(engine, frame, {"store", "store.ignore", false, false});
}
void RUN_APPEND(TMACRO &engine, BLOCK_FRAME &frame) {
    RunOutput(engine, frame, {"append", "append.ignore", true, false});
}

void RUN_STORE_SPACE(TMACRO &engine, BLOCK_FRAME &frame) {
    engine._EVALUATE(*frame.part);
    engine.outputSeparator = engine.GETPARAMETER_ERRORFREE(1);
    engine._TRACE("store/append.space", COLOUR::PROCEDURE,
                  engine.outputSeparator.EMPTY() ? UTF16("empty") : engine.outputSeparator);
}
} // namespace morvane
