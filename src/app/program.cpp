#include "app/program.hpp"

#include "app/first_run.hpp"
#include "app/first_words.hpp"
#include "app/image/image_commands.hpp"
#include "app/image/image_filter_rows.hpp"
#include "app/image/image_scan_rows.hpp"
#include "app/line/line_commands.hpp"
#include "app/options_table.hpp"
#include "app/program_words.hpp"
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
constexpr std::string_view STANDARD_MACRO = "morvane.macro";

// What the options ask of the run itself.
struct RUN_WISHES {
    bool isFirst = false;  // write the reference instead of running a script
    bool isStatus = false; // the exit status tells of a failed script
    UTF16 macroFile;
};

std::vector<const COMMAND_SET *> JOINED_SETS() {
    const auto modules = MODULE_SETS();
    std::vector<const COMMAND_SET *> sets(modules.begin(), modules.end());
    sets.insert(sets.end(), {&PROGRAM_SET, &IMAGE_SET, &IMAGE_GROUP_SET, &IMAGE_VALUE_SET,
                             &IMAGE_FILTER_SET, &IMAGE_ANALYSIS_SET, &IMAGE_SCAN_SET, &SCALAR_SET,
                             &VECTOR_SET, &TENSOR_SET, &MESH_SET, &LINE_SET});
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

// An image library is in use unless its option switches it off.
void READ_LIBRARY(const TPARAMETER &options, const OPTION_ROW &row) {
    const IMAGE_LIBRARY *library = ANSWERING_LIBRARY(row.need);
    if (library && !options.GETBOOLEAN(row.name, true, library->title())) library->switchOff();
}

void READ_ROW(TPARAMETER &options, TMACRO &engine, const OPTION_ROW &row, RUN_WISHES &wishes) {
    switch (row.kind) {
    case OPTION_KIND::TOPIC: return options.TOPIC(GETUTF16(row.name));
    case OPTION_KIND::LEGEND: return options.LEGEND(GETUTF16(row.name));
    case OPTION_KIND::LIBRARY: return READ_LIBRARY(options, row);
    case OPTION_KIND::STATUS:
        wishes.isStatus = options.GETBOOLEAN(row.name, false, row.legend);
        return;
    default: engine.PUTCONSTANT(row.constant, READ_OPTION(options, row));
    }
}

RUN_WISHES READ_OPTIONS(TPARAMETER &options, TMACRO &engine) {
    RUN_WISHES wishes;
    wishes.isFirst = options.GETFLAG("first", "Write first macro file example");
    wishes.macroFile = WITHOUT_QUOTES(options.GETLASTSTRING("macro", STANDARD_MACRO, "macro file"));
    for (const OPTION_ROW &row : OPTIONS)
        if (OPTION_IS_THERE(row)) READ_ROW(options, engine, row, wishes);
    options.EXAMPLE("morvane -image.input=*.ppm -image.type=png");
    return wishes;
}

// Every option given, known or not, as "parameter." and its name.
// Deliberate: of an option given twice the first counts, its parameter is the last.
void PUT_PARAMETERS(const TPARAMETER &options, TMACRO &engine) {
    UTF16 name, value;
    for (NAT i = 1; options.GETPAIR(i, name, value); ++i)
        engine.PUTCONSTANT("parameter." + name, value);
    const UTF16 last = options.GETUNKNOWN();
    if (!last.EMPTY()) engine.PUTCONSTANT("parameter.last", last);
}

// The run behind the options: commands, script, shutdown. False when a script was asked for and
// could not be run to its end.
bool RUN_SCRIPT(TMACRO &engine, const RUN_WISHES &wishes, const PROGRAM_WORDS &words) {
    engine.PUTCONSTANT("thread.max", GETSTRING(GETTHREADS()));
    engine.USE_ALL();
    for (const COMMAND_SET *set : COMMAND_SETS().subspan(MODULE_SETS().size()))
        engine.REGISTER(*set);
    engine.RESETNAMESPACE();
    bool isLoaded = wishes.isFirst || wishes.macroFile == UTF16(STANDARD_MACRO);
    if (!wishes.isFirst && FILEEXISTS(wishes.macroFile))
        isLoaded = engine.LOAD(wishes.macroFile);
    else
        FIRST_RUN(words, COMMAND_SETS());
    engine.SINGLERUN();
    return isLoaded && engine.STATUS.EMPTY();
}

int END_PROGRAM(TMACRO &engine, int status) {
    DONE_WORKSPACES();
    engine.DONE();
    CONSOLE_DONE();
    return status;
}
} // namespace

std::span<const COMMAND_SET *const> COMMAND_SETS() {
    static const std::vector<const COMMAND_SET *> sets = JOINED_SETS();
    return sets;
}

int RUN_PROGRAM(int argc, const char *const *argv) {
    CONSOLE_START();
    if (const auto status = FIRST_WORDS({argv, argv + argc})) return *status;
    TMACRO engine;
    engine.INIT();
    INIT_WORKSPACES();
    TPARAMETER options(argc, argv);
    if (options.INIT(PROGRAM_NAME, MAKER, FIRST_YEAR, ADDRESS)) return END_PROGRAM(engine, 0);
    options.USAGE("morvane [<options>]");
    const RUN_WISHES wishes = READ_OPTIONS(options, engine);
    PUT_PARAMETERS(options, engine);
    const PROGRAM_WORDS words{options.GETVERSION(), options.GETADDRESS(), options.GETMAKER()};
    if (options.DONE()) return END_PROGRAM(engine, 1);
    const bool isWell = RUN_SCRIPT(engine, wishes, words);
    return END_PROGRAM(engine, wishes.isStatus && !isWell ? 1 : 0);
}
} // namespace morvane
