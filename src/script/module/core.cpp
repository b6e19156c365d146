#include "script/module/use_all.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "script/engine/macro.hpp"

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <ctime>

namespace morvane {
namespace {
void DEBUG(TMACRO *engine) { engine->verbose = true; }
void DEBUG_NO(TMACRO *engine) { engine->verbose = false; }
void NOP(TMACRO *) {}

// wait s: seconds, as milliseconds of the 64-bit range. What is no finite time is no wait.
void WAIT(TMACRO *engine) {
    const REAL seconds = GETREAL(engine->GETPARAMETER(1));
    if (!std::isfinite(seconds)) return;
    const NAT milliseconds = ROUND(seconds * 1000);
    if (milliseconds <= 0) return;
    timespec rest{};
    rest.tv_sec = milliseconds / 1000;
    rest.tv_nsec = milliseconds % 1000 * 1000000;
    while (nanosleep(&rest, &rest) != 0 && errno == EINTR) {
    }
}

void STOP_SCRIPT(TMACRO *engine) { engine->STOPSCRIPT("Script stop."); }

UTF16 JOINED_PARAMETERS(TMACRO *engine) { return engine->_JOINPARAMETERS(1, {}); }

// To the open output file, else to the console, there in `colour` (an escape code or empty).
void PRINT_TEXT(TMACRO *engine, const UTF16 &text, std::string_view end,
                std::string_view colour = {}) {
    std::string line = GETUTF8(text);
    if (engine->IFOUTPUT()) {
        FILE_TEXT &file = engine->OUTPUTFILE();
        file.WRITE(line + std::string(end));
        file.FLUSH();
        return;
    }
    if (!colour.empty() && COLOURS()) line = std::string(colour) + line + "\x1b[0m";
    WRITE(line + std::string(end));
}

void WRITE_PARAMETERS(TMACRO *engine) { PRINT_TEXT(engine, JOINED_PARAMETERS(engine), ""); }
void WRITE_TAB(TMACRO *engine) { PRINT_TEXT(engine, "\t", ""); }
void PRINT(TMACRO *engine) { PRINT_TEXT(engine, JOINED_PARAMETERS(engine), "\n"); }
void PRINT_RED(TMACRO *engine) { PRINT_TEXT(engine, JOINED_PARAMETERS(engine), "\n", "\x1b[91m"); }
void PRINT_GREEN(TMACRO *engine) {
    PRINT_TEXT(engine, JOINED_PARAMETERS(engine), "\n", "\x1b[32m");
}
void PRINT_BLUE(TMACRO *engine) { PRINT_TEXT(engine, JOINED_PARAMETERS(engine), "\n", "\x1b[34m"); }
void PRINT_YELLOW(TMACRO *engine) {
    PRINT_TEXT(engine, JOINED_PARAMETERS(engine), "\n", "\x1b[33m");
}
void PRINT_CYAN(TMACRO *engine) { PRINT_TEXT(engine, JOINED_PARAMETERS(engine), "\n", "\x1b[36m"); }
void PRINT_PURPLE(TMACRO *engine) {
    PRINT_TEXT(engine, JOINED_PARAMETERS(engine), "\n", "\x1b[35m");
}
void ECHO_TEXT(TMACRO *engine) { WRITELN(JOINED_PARAMETERS(engine)); }

// progress: ends the display. progress value text: a share of 0 to 1 under a title.
void PROGRESS_LINE(TMACRO *engine) {
    if (engine->PARAMETERLENGTH() > 2) return engine->MAX_PARAMETERERROR(2);
    if (engine->PARAMETERLENGTH() == 0) return PROGRESS();
    if (engine->PARAMETERLENGTH() == 1) return engine->MIN_PARAMETERERROR(2);
    PROGRESS(engine->GETPARAMETER(2), GETREAL(engine->GETPARAMETER(1)));
}

// run file: a second engine without commands that may do what ours may; a missing file does
// nothing. Its failure is ours.
void RUN_FILE(TMACRO *engine) {
    const UTF16 name = engine->GETPARAMETER(1);
    if (!engine->switches.FILES || !FILEEXISTS(name)) return;
    WRITELN(">>>> Sub program");
    TMACRO inner;
    inner.INIT();
    inner.switches = engine->switches;
    inner.LOAD(name);
    inner.RUN();
    WRITELN("<<<<< End of sub program");
    if (inner.STATUS.EMPTY()) return;
    engine->STATUS = inner.STATUS;
    engine->stop = true;
}

template <bool SMALLEST> void EXTREME_REF(TMACRO *engine) {
    REAL result = GETREAL(engine->GETPARAMETER(1));
    for (NAT i = 2; i <= engine->PARAMETERLENGTH(); ++i) {
        const REAL value = GETREAL(engine->GETPARAMETER(i));
        result = SMALLEST ? std::min(result, value) : std::max(result, value);
    }
    engine->COMMAND_RESULT = GETSTRING(result);
}

// minmax v lo hi: the map of lo..hi onto itself, which limits v.
void MINMAX_REF(TMACRO *engine) {
    const REAL low = GETREAL(engine->GETPARAMETER(2)), high = GETREAL(engine->GETPARAMETER(3));
    const REAL value = GETREAL(engine->GETPARAMETER(1));
    engine->COMMAND_RESULT = GETSTRING(MINMAX(value, low, high, low, high));
}

constexpr std::string_view TEXTS = "[text: text ...]";

constexpr COMMAND_ROW CORE_ROWS[] = {
    PROCEDURE("debug", DEBUG, OWN_COUNT, "", "debug", "trace every command (default)"),
    PROCEDURE("debug.no", DEBUG_NO, OWN_COUNT, "", "debug.no", "no trace"),
    PROCEDURE("wait", WAIT, EXACTLY(1), "time: real [s]", "wait 0.01", "wait some seconds"),
    PROCEDURE("sleep", WAIT, EXACTLY(1), "time: real [s]", "sleep 0.01", "wait some seconds"),
    PROCEDURE("delay", WAIT, EXACTLY(1), "time: real [s]", "delay 0.01", "wait some seconds"),
    PROCEDURE("nop", NOP, OWN_COUNT, "", "nop", "do nothing"),
    PROCEDURE("stop", STOP_SCRIPT, OWN_COUNT, "", "stop", "end the script"),
    PROCEDURE("write", WRITE_PARAMETERS, OWN_COUNT, TEXTS, "write \"length: \" 5",
              "write without a line end"),
    PROCEDURE("write.tab", WRITE_TAB, OWN_COUNT, "", "write.tab", "write a tab"),
    PROCEDURE("writeln", PRINT, OWN_COUNT, TEXTS, "writeln \"length: \" 5", "write a line"),
    PROCEDURE("print", PRINT, OWN_COUNT, TEXTS, "print \"length: \" 5", "write a line"),
    PROCEDURE("print.red", PRINT_RED, OWN_COUNT, TEXTS, "print.red hot", "write a red line"),
    PROCEDURE("print.green", PRINT_GREEN, OWN_COUNT, TEXTS, "print.green good",
              "write a green line"),
    PROCEDURE("print.blue", PRINT_BLUE, OWN_COUNT, TEXTS, "print.blue cold", "write a blue line"),
    PROCEDURE("print.yellow", PRINT_YELLOW, OWN_COUNT, TEXTS, "print.yellow note",
              "write a yellow line"),
    PROCEDURE("print.cyan", PRINT_CYAN, OWN_COUNT, TEXTS, "print.cyan note", "write a cyan line"),
    PROCEDURE("print.purple", PRINT_PURPLE, OWN_COUNT, TEXTS, "print.purple note",
              "write a purple line"),
    PROCEDURE("echo", ECHO_TEXT, OWN_COUNT, TEXTS, "echo \"on the console\"",
              "write a line on the console"),
    PROCEDURE("progress", PROGRESS_LINE, OWN_COUNT, "[share: real, title: text]",
              "progress 0.5 Filter", "show a share of work; without parameters its end"),
    PROCEDURE("run", RUN_FILE, EXACTLY(1), "file: file", "run sub.macro",
              "run a script of its own"),
    FUNCTION("min", EXTREME_REF<true>, AT_LEAST(1), "value: real ...", "a := min 3 1 2",
             "smallest number"),
    FUNCTION("max", EXTREME_REF<false>, AT_LEAST(1), "value: real ...", "a := max 3 1 2",
             "largest number"),
    FUNCTION("minmax", MINMAX_REF, EXACTLY(3), "value: real, low: real, high: real",
             "a := minmax 300 0 255", "number limited to a range"),
};
static_assert(ROWS_ARE_SOUND(CORE_ROWS));
} // namespace

const COMMAND_SET CORE_SET{"", CORE_ROWS};

void TMACRO::USE_CORE() {
    REGISTER(CORE_SET);
    REGISTER(RANDOM_SET);
}
} // namespace morvane
