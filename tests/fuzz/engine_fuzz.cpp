#include "fuzz_folder.hpp"

#include "foundation/base/geometry.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/random.hpp"
#include "foundation/console/console.hpp"
#include "image2d/colour/colormap.hpp"
#include "script/engine/macro.hpp"
#include "script/module/lists.hpp"
#include "script/module/stack.hpp"
#include "script/module/tables.hpp"
#include "script/module/use_all.hpp"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

// The script engine with the modules that know no field: any bytes run as a script and end in
// values or reports. Nothing reaches the disk or another process; a run is bounded by its lines.
namespace {
using namespace morvane;

void ShowRaw(TMACRO *engine) {
    if (engine->PARAMETERLENGTH() > 0) WRITELN(engine->GETPARAMETER_RAW(1));
}
void Show(TMACRO *engine) { WRITELN(engine->_JOINPARAMETERS(1, " ")); }
void SumRef(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(GETREAL(engine->GETPARAMETER(1)));
}
void FieldRef(TMACRO *engine) { engine->COMMAND_RESULT_VAR = {}; }
void OneLamd(TMACRO *engine) { engine->COMMAND_RESULT = "1"; }
void Discard(std::string_view, void *) {}

// Shapes of commands that no module has.
constexpr COMMAND_ROW ROWS[] = {
    PROCEDURE("raw", ShowRaw, AT_LEAST(1), "a: text", "raw 1", "shows"),
    PROCEDURE("image.crop", Show, EXACTLY(2), "a: number, b: number", "image.crop 1 2", "shows"),
    FUNCTION("sum", SumRef, OWN_COUNT, "a: number", "a := sum 1", "a number"),
    FUNCTION("image.copy", FieldRef, OWN_COUNT, "", "a := image.copy", "a field"),
    LAMBDA("one", OneLamd, "print one", "a number"),
};
constexpr COMMAND_SET SET{"", ROWS};

// Commands whose numbers are sizes or passes: large ones only take memory and time.
constexpr std::string_view SIZED[] = {"list.new", "list.put", "list.smooth", "table.new",
                                      "table.put"};
HANDLER sizedHandlers[std::size(SIZED)];

bool IsSmall(const UTF16 &text) {
    constexpr NAT LARGEST = 1000;
    const NAT number = GETNAT(text);
    return number >= -LARGEST && number <= LARGEST && GETLENGTH(GETHYPER(text)) <= LARGEST;
}

template <std::size_t OFFSET> void RunSmall(TMACRO *engine) {
    for (NAT i = 1; i <= engine->PARAMETERLENGTH(); ++i)
        if (!IsSmall(engine->GETPARAMETER(i))) return;
    sizedHandlers[OFFSET](engine);
}
constexpr HANDLER SMALL[] = {RunSmall<0>, RunSmall<1>, RunSmall<2>, RunSmall<3>, RunSmall<4>};

bool IsWaiting(std::string_view name) {
    return name == "wait" || name == "sleep" || name == "delay";
}

// The rows of a set without those that wait, the sized ones behind their guard.
std::vector<COMMAND_ROW> QuickRows(const COMMAND_SET &set) {
    std::vector<COMMAND_ROW> rows;
    for (COMMAND_ROW row : set.rows) {
        if (IsWaiting(row.name)) continue;
        const std::string name = std::string(set.nameSpace) + std::string(row.name);
        const auto sized = std::find(std::begin(SIZED), std::end(SIZED), name);
        if (sized != std::end(SIZED)) {
            const auto offset = sized - std::begin(SIZED);
            sizedHandlers[offset] = row.handler;
            row.handler = SMALL[offset];
        }
        rows.push_back(row);
    }
    return rows;
}

struct QUICK_SET {
    std::string_view nameSpace;
    std::vector<COMMAND_ROW> rows;
};

const std::vector<QUICK_SET> &QuickSets() {
    static const std::vector<QUICK_SET> sets = [] {
        std::vector<QUICK_SET> made;
        for (const COMMAND_SET *set :
             {&CORE_SET, &RANDOM_SET, &CLOCK_SET, &LIST_SET, &MATH_SET, &STACK_SET, &QUAT_SET,
              &MATRIX_SET, &TABLE_SET, &COLOR_MAP_SET, &COLOR_ALPHA_SET, &COLOR_SET, &DUMP_SET})
            made.push_back({set->nameSpace, QuickRows(*set)});
        return made;
    }();
    return sets;
}

// What one script leaves behind for the next is put back: lists, tables, stack, colours, formats,
// numbers.
void StartAnew() {
    SETSINK(Discard, nullptr);
    INTERACTION = false;
    FORMAT = TFORMAT();
    RESTART_RANDOM(1);
    STACK.CLEAR();
    BUILD_FAMILY(CURRENTMAP(), COLOUR_FAMILY::DEFAULTMAP, 1, 256);
    INIT_LISTS();
    TABLES.INIT();
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    const FUZZ_FOLDER folder;
    StartAnew();
    TMACRO::EXIT = [](int) {};
    TMACRO engine;
    engine.REGISTER(SET);
    for (const QUICK_SET &set : QuickSets())
        engine.REGISTER(COMMAND_SET{set.nameSpace, set.rows});
    engine.RESETNAMESPACE();
    engine.switches = {.EXECUTE = false, .FILES = false, .LINES = 2000};
    engine.PUTCONSTANT("option", "one,two");
    engine.LOADTEXT({reinterpret_cast<const char *>(data), size}, "fuzz");
    engine.SINGLERUN();
    if (engine.RUNNING()) std::abort();
    engine.CLEAR();
    if (engine.SCOPELEVEL() != 0 || engine.GETCONSTANTVALUE("option") != "one,two") std::abort();
    if (FUZZ_FOLDER::ENTRIES() != 0) std::abort();
    return 0;
}
