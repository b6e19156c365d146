#include "script/module/use_all.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "script/engine/macro.hpp"

// The engine's own tables as text, for finding faults in a script.
namespace morvane {
namespace {
// One dump: its lines, framed, for the open output, else the console.
class DUMP_TEXT {
public:
    DUMP_TEXT(TMACRO *macro, const char *name) : engine(macro), frame(UTF16("***** dump.") + name) {
        ADD(frame + " *****");
    }
    ~DUMP_TEXT() {
        ADD(frame + " end *****");
        if (engine->IFOUTPUT()) {
            engine->OUTPUTFILE().WRITE(text);
            engine->OUTPUTFILE().FLUSH();
        } else {
            WRITE(text);
        }
    }
    DUMP_TEXT(const DUMP_TEXT &) = delete;
    DUMP_TEXT &operator=(const DUMP_TEXT &) = delete;

    void ADD(const UTF16 &line) { text += GETUTF8(line) + "\n"; }
    void ADD(NAT number, const UTF16 &line) { ADD("  (" + GETSTRING(number) + ") " + line); }

private:
    TMACRO *engine;
    UTF16 frame;
    std::string text;
};

std::string_view KindWord(BYTE group) {
    switch (group) {
    case KIND_BLOCK: return "block procedure";
    case KIND_PROCEDURE: return "procedure";
    case KIND_FUNCTION: return "function";
    case KIND_LAMBDA: return "lambda";
    default: return "unknown";
    }
}

// The commands for which `wanted` holds, in registration order.
template <class WANTED> void DumpCommands(TMACRO *engine, const char *name, WANTED wanted) {
    DUMP_TEXT dump(engine, name);
    for (NAT i = 1; i <= engine->COMMANDLENGTH(); ++i) {
        const COMMAND_ENTRY &entry = engine->GETCOMMAND(i);
        if (wanted(entry))
            dump.ADD("  (" + GETSTRING(entry.useCount) + ")+[" + UTF16(KindWord(entry.GROUP())) +
                     "] " + entry.TEXT());
    }
}

bool IsOfScript(const COMMAND_ENTRY &entry) { return entry.startLine > 0; }

// The variables of the scope `least` and deeper ones.
void DumpConstants(TMACRO *engine, NAT least) {
    DUMP_TEXT dump(engine, "vars");
    for (NAT i = 1; i <= engine->CONSTANTLENGTH(); ++i) {
        const CONSTANT_ENTRY &entry = engine->GETCONSTANT(i);
        if (entry.scope >= least)
            dump.ADD(entry.scope, entry.name->text + " := \"" + entry.value.GET() + "\"");
    }
}

void DUMP_LINE(TMACRO *engine) {
    DUMP_TEXT dump(engine, "lines");
    const TFILECOMMAND &script = engine->SCRIPT();
    for (NAT i = 1; i <= script.LENGTH(); ++i)
        dump.ADD("  " + GETSTRING(i) + " (" + GETSTRING(script.GETREALLINE(i)) +
                 "): " + script.GET(i));
}

void DUMP_USED(TMACRO *engine) {
    DumpCommands(engine, "used", [](const COMMAND_ENTRY &entry) { return entry.useCount > 0; });
}

void DUMP_PROG(TMACRO *engine) { DumpCommands(engine, "progs", IsOfScript); }

void DUMP_FUNC(TMACRO *engine) {
    DumpCommands(engine, "progs", [](const COMMAND_ENTRY &entry) {
        return IsOfScript(entry) && entry.GROUP() == KIND_FUNCTION;
    });
}

void DUMP_MODULUS(TMACRO *engine) {
    DUMP_TEXT dump(engine, "modulus");
    for (NAT i = 1; i <= engine->MODULELENGTH(); ++i)
        dump.ADD(engine->GETMODULE(i).y, GETSTRING(engine->GETMODULE(i).x));
}

void DUMP_VAR(TMACRO *engine) { DumpConstants(engine, 0); }
void DUMP_VAR_SCOPE(TMACRO *engine) { DumpConstants(engine, engine->SCOPELEVEL()); }

void DUMP_WITH(TMACRO *engine) {
    DUMP_TEXT dump(engine, "withs");
    for (NAT i = 1; i <= engine->WITHLENGTH(); ++i)
        dump.ADD(engine->GETWITHSCOPE(i), engine->GETWITH(i));
}

void DUMP_OUTPUT(TMACRO *engine) {
    DUMP_TEXT dump(engine, "outputs");
    for (NAT i = 1; i <= engine->OUTPUTLENGTH(); ++i)
        dump.ADD(engine->GETOUTPUTSCOPE(i), engine->GETOUTPUT(i));
}

// The kinds of the open blocks, the outermost first; the script itself is level 0 and has none.
void DUMP_STACK(TMACRO *engine) {
    DUMP_TEXT dump(engine, "stack");
    for (NAT level = 1; level < engine->SCOPELEVEL(); ++level)
        dump.ADD(level, engine->GETSCOPEKIND(level));
}

void DUMP_REDO_UNDO(TMACRO *engine) {
    DUMP_TEXT dump(engine, "redo & undo");
    for (NAT i = 1; i <= engine->REDOLENGTH(); ++i)
        dump.ADD(i, engine->GETREDO(i));
    for (NAT i = 1; i <= engine->UNDOLENGTH(); ++i)
        dump.ADD(i, engine->GETUNDO(i));
}

void DUMP_EVERYTHING(TMACRO *engine) {
    for (const HANDLER dump : {DUMP_LINE, DUMP_USED, DUMP_PROG, DUMP_FUNC, DUMP_MODULUS, DUMP_VAR,
                               DUMP_VAR_SCOPE, DUMP_WITH, DUMP_OUTPUT, DUMP_STACK, DUMP_REDO_UNDO})
        dump(engine);
}

constexpr COMMAND_ROW ROWS[] = {
    PROCEDURE("line", DUMP_LINE, OWN_COUNT, "", "dump.line", "the lines of the script"),
    PROCEDURE("used", DUMP_USED, OWN_COUNT, "", "dump.used", "commands in use, with counts"),
    PROCEDURE("prog", DUMP_PROG, OWN_COUNT, "", "dump.prog", "commands that the script defines"),
    PROCEDURE("func", DUMP_FUNC, OWN_COUNT, "", "dump.func", "functions that the script defines"),
    PROCEDURE("modulus", DUMP_MODULUS, OWN_COUNT, "", "dump.modulus", "open modules"),
    PROCEDURE("modul", DUMP_MODULUS, OWN_COUNT, "", "dump.modul", "open modules"),
    PROCEDURE("var", DUMP_VAR, OWN_COUNT, "", "dump.var", "all variables with their scopes"),
    PROCEDURE("var.scope", DUMP_VAR_SCOPE, OWN_COUNT, "", "dump.var.scope",
              "variables of this block"),
    PROCEDURE("vars.scope", DUMP_VAR_SCOPE, OWN_COUNT, "", "dump.vars.scope",
              "variables of this block"),
    PROCEDURE("with", DUMP_WITH, OWN_COUNT, "", "dump.with", "open with prefixes"),
    PROCEDURE("output", DUMP_OUTPUT, OWN_COUNT, "", "dump.output", "open output files"),
    PROCEDURE("stack", DUMP_STACK, OWN_COUNT, "", "dump.stack", "kinds of the open blocks"),
    PROCEDURE("undo", DUMP_REDO_UNDO, OWN_COUNT, "", "dump.undo", "the two history lists"),
    PROCEDURE("redo", DUMP_REDO_UNDO, OWN_COUNT, "", "dump.redo", "the two history lists"),
    PROCEDURE("all", DUMP_EVERYTHING, OWN_COUNT, "", "dump.all",
              "all the dumps of the engine in order"),
};
static_assert(ROWS_ARE_SOUND(ROWS));
} // namespace

const COMMAND_SET DUMP_SET{"dump.", ROWS};

void TMACRO::USE_DUMP() { REGISTER(DUMP_SET); }
} // namespace morvane
