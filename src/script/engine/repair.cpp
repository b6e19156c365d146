#include "script/engine/macro.hpp"

#include "foundation/console/console.hpp"
#include "script/file/file_text.hpp"

namespace morvane {
namespace {
// A line typed as empty stands for the line's own file as it is on the disk now.
UTF16 LineOnDisk(const TFILECOMMAND &script, NAT line) {
    TFILETEXT text;
    if (!text.LOAD(script.GETREALFILE(line))) return {};
    return text.GET(script.GETREALLINE(line));
}
} // namespace

bool TMACRO::REPAIR_COMMAND(UTF16 &name) {
    const UTF16 report = "Syntax error (" + name + ") in line " + LINEPLACE() + "!";
    WRITELN(COLOURS() ? "\033[91m" + report + "\033[0m" : report);
    WRITELN(script.GET(currentLine));
    WRITELN("Would you like to change the whole command line?");
    WRITELN("  leave blank – reload command (with the same line numbering!)");
    WRITELN("  ... – new comannd (without parameters)");
    WRITELN("  nop – for ignore it");
    WRITELN("  stop, break, halt – for a stop with ascending enforcement");
    WRITE(COLOURS() ? "\033[91m>>\033[0m " : ">> ");
    UTF16 answer = READLN();
    if (answer.EMPTY()) answer = switches.FILES ? LineOnDisk(script, currentLine) : UTF16();
    const LINE_PART part = PREPARE_PART(CUT_COMMENT(answer));
    _GETPARAMETER_WITH_CONSTANTS(part.rest);
    name = WITHLENGTH() > 0 ? GETALLWITH(WITHLENGTH()) + "." + part.word : part.word;
    COMMAND = name;
    return true;
}
} // namespace morvane
