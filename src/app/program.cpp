#include "app/program.hpp"

#include "app/first_run.hpp"
#include "app/line/line_commands.hpp"
#include "app/options_table.hpp"
#include "app/scalar/scalar_commands.hpp"
#include "app/vector/vector_commands.hpp"
#include "app/workspace_commands.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/random.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "foundation/console/log.hpp"
#include "foundation/thread/processor.hpp"
#include "script/engine/macro.hpp"
#include "script/module/use_all.hpp"
#include "script/option/parameter.hpp"

#include <vector>

namespace morvane {
namespace {
constexpr std::string_view PROGRAM_NAME = "Morvane";
constexpr std::string_view MAKER = "The morvane developers";
constexpr std::string_view ADDRESS = "https://morvane.invalid";
constexpr NAT FIRST_YEAR = 2017;

std::vector<const COMMAND_SET *> JOINED_SETS() {
    const auto modules = MODULE_SETS();
    std::vector<const COMMAND_SET *> sets(modules.begin(), modules.end());
    sets.insert(sets.end(), {&PROGRAM_SET, &IMAGE_SET, &SCALAR_SET, &VECTOR_SET, &TENSOR_SET,
                             &MESH_SET, &LINE_SET});
    return sets;
}

void INIT_WORKSPACES() {
    RESETKINDS();
    IMAGE_INIT();
    SCALAR_INIT();
    VECTOR_INIT();
    TENSOR_INIT();
    MESH_INIT();
    LINE_INIT();
}

void DONE_WORKSPACES() {
    LINE_DONE();
    MESH_DONE();
    TENSOR_DONE();
    VECTOR_DONE();
    SCALAR_DONE();
    IMAGE_DONE();
}

UTF16 WITHOUT_QUOTES(const UTF16 &name) {
    return KILLFIRST(KILLLAST(KILLFIRST(KILLLAST(name, '"'), '"'), '\''), '\'');
}

// The seed of all random numbers, shown in the listing and readable as a constant.
UTF16 READ_SEED(const TPARAMETER &options, const OPTION_ROW &row) {
    const NAT drawn = static_cast<NAT>(SYSTEM_SEED() & static_cast<std::uint64_t>(NATMAX));
    const NAT seed = options.GETNAT(row.name, drawn, row.min, row.max, row.legend);
    RESTART_RANDOM(static_cast<std::uint64_t>(seed));
    return GETSTRING(seed);
}

UTF16 READ_OPTION(const TPARAMETER &options, const OPTION_ROW &row) {
    switch (row.kind) {
    case OPTION_KIND::NATURAL:
        return GETSTRING(
            options.GETNAT(row.name, GETNAT(row.standard), row.min, row.max, row.legend));
    case OPTION_KIND::VECTOR:
        return GETSTRING(options.GETVECTOR(row.name, GETVECTOR(row.standard), row.legend));
    case OPTION_KIND::LOWERSTRING:
        return LOWERCASE(options.GETSTRING(row.name, row.standard, row.legend));
    case OPTION_KIND::SEED: return READ_SEED(options, row);
    default: return options.GETSTRING(row.name, row.standard, row.legend);
    }
}

void READ_OPTIONS(TPARAMETER &options, TMACRO &engine) {
    for (const OPTION_ROW &row : OPTIONS) {
        if (row.kind == OPTION_KIND::TOPIC)
            options.TOPIC(row.name);
        else if (row.kind == OPTION_KIND::LEGEND)
            options.LEGEND(row.name);
        else
            engine.PUTCONSTANT(row.constant, READ_OPTION(options, row));
    }
}

// Every option given, known or not, as "parameter." and its name.
void PUT_PARAMETERS(const TPARAMETER &options, TMACRO &engine) {
    UTF16 name, value;
    for (NAT i = 1; options.GETPAIR(i, name, value); ++i)
        engine.PUTCONSTANT("parameter." + name, value);
    const UTF16 last = options.GETUNKNOWN();
    if (!last.EMPTY()) engine.PUTCONSTANT("parameter.last", last);
}

// The run behind the options: commands, script, shutdown.
void RUN_SCRIPT(TMACRO &engine, const UTF16 &macroFile, const PROGRAM_WORDS *firstRun) {
    engine.PUTCONSTANT("thread.max", GETSTRING(GETTHREADS()));
    engine.USE_ALL();
    for (const COMMAND_SET *set : COMMAND_SETS().subspan(MODULE_SETS().size()))
        engine.REGISTER(*set);
    engine.RESETNAMESPACE();
    if (firstRun)
        FIRST_RUN(*firstRun, COMMAND_SETS());
    else
        engine.LOAD(macroFile);
    engine.SINGLERUN();
}
} // namespace

std::span<const COMMAND_SET *const> COMMAND_SETS() {
    static const std::vector<const COMMAND_SET *> sets = JOINED_SETS();
    return sets;
}

int RUN_PROGRAM(int argc, const char *const *argv) {
    CONSOLE_START();
    TMACRO engine;
    engine.INIT();
    INIT_WORKSPACES();
    TPARAMETER options(argc, argv);
    options.INIT(PROGRAM_NAME, MAKER, FIRST_YEAR, ADDRESS);
    options.USAGE("morvane [<options>]");
    const bool isFirst = options.GETFLAG("first", "Write first macro file example");
    const UTF16 macroFile =
        WITHOUT_QUOTES(options.GETLASTSTRING("macro", "morvane.macro", "macro file"));
    READ_OPTIONS(options, engine);
    options.EXAMPLE("morvane -image.input=*.ppm -image.type=png");
    PUT_PARAMETERS(options, engine);
    const PROGRAM_WORDS words{options.GETVERSION(), options.GETADDRESS(), options.GETMAKER()};
    const bool isHelp = options.DONE();
    if (!isHelp) {
        const bool isRun = !isFirst && FILEEXISTS(macroFile);
        RUN_SCRIPT(engine, macroFile, isRun ? nullptr : &words);
    }
    DONE_WORKSPACES();
    engine.DONE();
    CONSOLE_DONE();
    return isHelp ? 1 : 0;
}
} // namespace morvane
