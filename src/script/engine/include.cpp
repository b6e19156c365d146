#include "script/engine/macro.hpp"

#include "foundation/console/console.hpp"

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
} // namespace morvane
