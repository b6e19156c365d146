#include "script/module/list_handlers.hpp"
#include "script/module/use_all.hpp"
#include "script/workspace/setting_handlers.hpp"

// The contents page of the list commands: rows in the order of their registration. A synonym is a
// row of its own with the same handler.
namespace morvane {
namespace {
constexpr COMMAND_ROW LIST_ROWS[] = {
    // Kinds and properties.
    PROCEDURE("nat", LIST_KIND_HANDLER<LIST_NAT>, OWN_COUNT, "", "list.nat",
              "new lists hold whole numbers"),
    PROCEDURE("real", LIST_KIND_HANDLER<LIST_REAL>, OWN_COUNT, "", "list.real",
              "new lists hold numbers (default)"),
    PROCEDURE("complex", LIST_KIND_HANDLER<LIST_COMPLEX>, OWN_COUNT, "", "list.complex",
              "new lists hold pairs <x,y>"),
    PROCEDURE("vector", LIST_KIND_HANDLER<LIST_VECTOR>, OWN_COUNT, "", "list.vector",
              "new lists hold vectors <x,y,z>"),
    PROCEDURE("hyper", LIST_KIND_HANDLER<LIST_HYPER>, OWN_COUNT, "", "list.hyper",
              "new lists hold four components <x,y,z,w>"),
    PROCEDURE("chars", LIST_KIND_HANDLER<LIST_CHARS>, OWN_COUNT, "", "list.chars",
              "new lists hold texts"),
    LAMBDA("kind", LIST_KIND_LAMD, "print list.kind", "kind of the list in use"),
    PROPERTY("value", LIST_VALUE, LIST_VALUE_REF, EXACTLY(1), "value: text", "list.value 1",
             "what an entry gets when no value is given"),
    PROPERTY("background", LIST_BACKGROUND, LIST_BACKGROUND_REF, EXACTLY(1), "value: text",
             "list.background -1", "what a read outside the list gives"),

    // The lists.
    PROCEDURE("use", USE_HANDLER<&LISTS>, OWN_COUNT, "list: name", "list.use areas",
              "work on this list, a new one when there is none"),
    PROCEDURE("swap", SWAP_HANDLER<&LISTS>, OWN_COUNT, "first: name, second: name",
              "list.swap areas default", "exchange the names of two lists"),
    PROCEDURE("name", NAME_HANDLER<&LISTS>, OWN_COUNT, "new: name", "list.name areas",
              "rename the list"),
    PROCEDURE("dump", DUMP_HANDLER<&LISTS>, OWN_COUNT, "", "list.dump", "show all lists"),
    FUNCTION("iflist", LIST_IFLIST_REF, EXACTLY(0), "", "a := list.iflist",
             "true: the list has values"),
    LAMBDA("length", LIST_LENGTH_LAMD, "print list.length", "number of values, -1 without a list"),
    LAMBDA("size", LIST_LENGTH_LAMD, "print list.size", "number of values, -1 without a list"),
    PROCEDURE("clear", LIST_CLEAR, EXACTLY(0), "", "list.clear",
              "an empty list of the kind set last"),
    PROCEDURE("clean", LIST_CLEAR, EXACTLY(0), "", "list.clean",
              "an empty list of the kind set last"),
    PROCEDURE("new", LIST_NEW, AT_MOST(1), "[count: number]", "list.new 10",
              "so many entries of the kind set last, each with the list's value"),

    // Files.
    PROCEDURE("load", LIST_LOAD, EXACTLY(1), "values: file", "list.load areas.txt",
              "read values of the kind set last, one a line"),
    PROCEDURE("save", LIST_SAVE, EXACTLY(1), "values: file", "list.save areas.txt",
              "write one value a line"),
    PROCEDURE("save.table", LIST_SAVE_TABLE, AT_LEAST(1), "table: file, [list: name ...]",
              "list.save.table table.txt default areas",
              "write lists side by side, tabs between, names on top"),

    // Values.
    FUNCTION("copy", LIST_COPY_REF, EXACTLY(0), "", "new := list.copy", "copy of the list"),
    PROCEDURE("flip", LIST_ACTION<&TLIST::FLIP>, EXACTLY(0), "", "list.flip", "reverse the order"),
    PROCEDURE("sort", LIST_ACTION<&TLIST::SORT>, EXACTLY(0), "", "list.sort",
              "smallest first, or last after io.sorting no"),
    PROCEDURE("sort.real", LIST_ACTION<&TLIST::SORTREAL>, EXACTLY(0), "", "list.sort.real",
              "texts by the number that they hold"),
    PROCEDURE("push", LIST_PUSH, OWN_COUNT, "[value: text ...]", "list.push 3 1 2",
              "append values; without one the list's value"),
    FUNCTION("pop", LIST_POP_REF, EXACTLY(0), "", "a := list.pop",
             "take the last; the background of an empty list"),
    PROCEDURE("put", LIST_PUT, AT_LEAST(1), "position: number, [value: text ...]", "list.put 2 7 8",
              "write values from a position on, also behind the end"),
    PROCEDURE("insert", LIST_INSERT, AT_LEAST(1), "position: number, [value: text ...]",
              "list.insert 1 7 8", "make room at a position for values"),
    PROCEDURE("delete", LIST_DELETE, EXACTLY(1), "position: number", "list.delete 1",
              "take out the value at a position"),
    FUNCTION("get", LIST_GET_REF, AT_MOST(2), "[index: number, part: number]", "a := list.get 1",
             "value at the position or at an index, or a part of it"),

    // The list's own position.
    PROCEDURE("first", LIST_ACTION<&TLIST::FIRST>, EXACTLY(0), "", "list.first",
              "position to the first value"),
    PROCEDURE("next", LIST_ACTION<&TLIST::NEXT>, EXACTLY(0), "", "list.next",
              "position one on, at most behind the last value"),
    PROCEDURE("before", LIST_ACTION<&TLIST::BEFORE>, EXACTLY(0), "", "list.before",
              "position one back, at most before the first value"),
    PROCEDURE("last", LIST_ACTION<&TLIST::LAST>, EXACTLY(0), "", "list.last",
              "position to the last value"),
    PROPERTY("position", LIST_POSITION, LIST_POSITION_REF, EXACTLY(1), "position: number",
             "list.position 1", "the position, from 0 to the length and one"),

    // Statistics.
    FUNCTION("min", LIST_MIN_REF, EXACTLY(0), "", "a := list.min", "smallest value"),
    FUNCTION("max", LIST_MAX_REF, EXACTLY(0), "", "a := list.max", "largest value"),
    FUNCTION("shortest", LIST_SHORTEST_REF, EXACTLY(0), "", "a := list.shortest",
             "value of least length"),
    FUNCTION("longest", LIST_LONGEST_REF, EXACTLY(0), "", "a := list.longest",
             "value of greatest length"),
    FUNCTION("mean", LIST_MEAN_REF, EXACTLY(0), "", "a := list.mean", "mean"),
    FUNCTION("sd", LIST_SD_REF, EXACTLY(0), "", "a := list.sd", "sample standard deviation"),
    PROCEDURE("smooth", LIST_SMOOTH, AT_MOST(1), "[passes: number]", "list.smooth 2",
              "smooth along the list, once or several times"),
    PROPERTY("outlier.factor", LIST_OUTLIER_FACTOR, LIST_OUTLIER_FACTOR_REF, EXACTLY(1),
             "factor: real", "list.outlier.factor 2.5",
             "outliers lie further from the mean than so many deviations (3)"),
    FUNCTION("outlier", LIST_OUTLIER_REF, EXACTLY(0), "", "new := list.outlier",
             "the list without its outliers"),
    FUNCTION("outlier.baseline", LIST_OUTLIER_BASELINE_REF, EXACTLY(1), "list: name",
             "new := list.outlier.baseline areas",
             "the list without outliers, mean and deviation of another list"),
};
static_assert(ROWS_ARE_SOUND(LIST_ROWS));
} // namespace

const COMMAND_SET LIST_SET{"list.", LIST_ROWS};

void TMACRO::USE_LIST() {
    INIT_LISTS();
    REGISTER(LIST_SET);
}
} // namespace morvane
