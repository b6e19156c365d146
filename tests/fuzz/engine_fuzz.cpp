#include "foundation/console/console.hpp"
#include "script/engine/macro.hpp"

#include <cstdint>
#include <cstdlib>

// The script engine: any bytes run as a script and end in values or reports. Nothing reaches the
// disk or another process, and a run is bounded by its lines.
namespace {
using namespace morvane;

void Show(TMACRO *engine) { WRITELN(engine->_JOINPARAMETERS(1, " ")); }
void ShowRaw(TMACRO *engine) {
    if (engine->PARAMETERLENGTH() > 0) WRITELN(engine->GETPARAMETER_RAW(1));
}
void SumRef(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(GETREAL(engine->GETPARAMETER(1)));
}
void FieldRef(TMACRO *engine) { engine->COMMAND_RESULT_VAR = {}; }
void OneLamd(TMACRO *engine) { engine->COMMAND_RESULT = "1"; }
void SetVerbose(TMACRO *engine) { engine->verbose = engine->PARAMETERLENGTH() > 0; }
void Discard(std::string_view, void *) {}

constexpr COMMAND_ROW ROWS[] = {
    PROCEDURE("print", Show, OWN_COUNT, "", "print 1", "shows"),
    PROCEDURE("raw", ShowRaw, AT_LEAST(1), "a: text", "raw 1", "shows"),
    PROCEDURE("image.crop", Show, EXACTLY(2), "a: number, b: number", "image.crop 1 2", "shows"),
    PROCEDURE("verbose", SetVerbose, AT_MOST(1), "[a: flag]", "verbose", "trace"),
    FUNCTION("sum", SumRef, OWN_COUNT, "a: number", "a := sum 1", "a number"),
    FUNCTION("image.copy", FieldRef, OWN_COUNT, "", "a := image.copy", "a field"),
    LAMBDA("one", OneLamd, "print one", "a number"),
};
constexpr COMMAND_SET SET{"", ROWS};
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    SETSINK(Discard, nullptr);
    INTERACTION = false;
    FORMAT = TFORMAT();
    TMACRO::EXIT = [](int) {};
    TMACRO engine;
    engine.REGISTER(SET);
    engine.switches = {.EXECUTE = false, .FILES = false, .LINES = 2000};
    engine.PUTCONSTANT("option", "one,two");
    engine.LOADTEXT({reinterpret_cast<const char *>(data), size}, "fuzz");
    engine.SINGLERUN();
    if (engine.RUNNING()) std::abort();
    engine.CLEAR();
    if (engine.SCOPELEVEL() != 0 || engine.GETCONSTANTVALUE("option") != "one,two") std::abort();
    return 0;
}
