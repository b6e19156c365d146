#include "script/engine/blocks.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "script/engine/macro.hpp"

#include <cstdio>
#include <ctime>

namespace morvane {
namespace {
UTF16 Quoted(const UTF16 &text) { return "\"" + text + "\""; }

// Standard output and error are empty before the child writes.
void FlushAndRest() {
    std::fflush(stdout);
    std::fflush(stderr);
    constexpr timespec REST{0, 100'000'000};
    nanosleep(&REST, nullptr);
}
} // namespace

void RUN_EXECUTE(TMACRO &engine, BLOCK_FRAME &frame) {
    engine._EVALUATE(*frame.part);
    if (engine.stop) return;
    if (engine.PARAMETERLENGTH() < 1) return engine.PARAMETERERROR(1);
    if (!engine.switches.EXECUTE) return engine.ERROR("execute is switched off");
    UTF16 program = engine.GETPARAMETER(1), arguments;
    if (POS(".exe", program) > 0) {
        arguments = Quoted(program);
        for (NAT i = 2; i <= engine.PARAMETERLENGTH(); ++i)
            arguments += " " + Quoted(engine.GETPARAMETER(i));
        program = "wine64";
    } else {
        arguments = engine._JOINPARAMETERS(2, " ");
    }
    WRITELN(">>>> Sub program (" + program + ")");
    FlushAndRest();
    EXEC(GETEXECUTE(program), arguments);
    WRITELN();
    WRITELN("<<<<< End of sub program");
}

void RUN_HALT(TMACRO &engine, BLOCK_FRAME &frame) {
    engine._EVALUATE(*frame.part);
    HALT(engine);
}

void RUN_BREAK(TMACRO &engine, BLOCK_FRAME &frame) {
    engine._EVALUATE(*frame.part);
    BREAK(engine);
}

void HALT(TMACRO &engine) {
    const NAT status = GETNAT(engine.GETPARAMETER_ERRORFREE(1));
    engine.STOPSCRIPT("Script & program halt. Terminate everything.");
    TMACRO::EXIT(static_cast<int>(status & 0xFF));
}

void BREAK(TMACRO &engine) { engine.STOPSCRIPT("Script break. Terminate everything."); }
} // namespace morvane
