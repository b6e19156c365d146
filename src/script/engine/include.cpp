#include "script/engine/macro.hpp"

#include "foundation/console/console.hpp"
#include "script/engine/blocks.hpp"
#include "script/engine/import_file.hpp"

namespace morvane {
namespace {
constexpr NAT MOST_INCLUDES = 1'000; // in one run
} // namespace

// Deliberate: the first line of an included file is not carried out.
void TMACRO::_INCLUDE(NAT line, const UTF16 &file) {
    if (!switches.FILES || !FILEEXISTS(file)) {
        WRITELN("  Include file (" + file + ") not found!");
        return;
    }
    if (++includes > MOST_INCLUDES) return ERROR("too many include files");
    _TRACE("include", TRACE_COLOUR::PROCEDURE, file);
    const NAT before = script.LENGTH();
    if (!script.LOADINSERT(line, file)) {
        ERROR("include file (" + file + ") not loaded");
        return;
    }
    lines.INSERTED(line, script.LENGTH() - before + 1);
}

// What lies behind a line that grew by `count` lines: blocks that wait for a call to come back, and
// the script's own commands.
void TMACRO::Shift(NAT line, NAT count) {
    for (BLOCK_FRAME *frame : frames)
        if (frame->line > line) frame->line += count;
    for (NAT i = commands.LENGTH(); i >= 1 && commands.GET(i).scope > 0; --i)
        if (commands.GET(i).startLine > line) commands.GET(i).startLine += count;
}

void TMACRO::_IMPORT(BLOCK_FRAME &frame, const UTF16 &file) {
    const NAT line = frame.line;
    const UTF16 path = switches.FILES ? IMPORT_PATH(script.GETREALFILE(line), file) : UTF16();
    if (path.EMPTY()) return ERROR("import file (" + file + ") not found");
    const std::vector<UTF16> chain = script.GETCHAIN(line);
    if (IS_CIRCLE(chain, path)) return ERROR("import in a circle: " + CIRCLE_TEXT(chain, path));
    if (++includes > MOST_INCLUDES) return ERROR("too many import files");
    _TRACE("import", TRACE_COLOUR::PROCEDURE, file);
    const NAT before = script.LENGTH();
    if (!script.LOADINSERT(line, path)) return ERROR("import file (" + file + ") not loaded");
    const NAT count = script.LENGTH() - before;
    lines.INSERTED(line, count + 1, true);
    Shift(line, count);
    frame.line = line - 1;
}

// Behind `then` or `of` the condition would be lost with the line at the first pass.
void RUN_IMPORT(TMACRO &engine, BLOCK_FRAME &frame) {
    if (frame.part->behind)
        return engine.ERROR("import stands alone on its line; put it into a block");
    engine._EVALUATE(*frame.part);
    if (engine.stop) return;
    if (engine.PARAMETERLENGTH() < 1) return engine.MIN_PARAMETERERROR(1);
    engine._IMPORT(frame, engine.GETPARAMETER(1));
}
} // namespace morvane
