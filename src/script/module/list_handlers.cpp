#include "script/module/list_handlers.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"

#include <vector>

namespace morvane {
namespace {
void TellPosition(NAT index) {
    WRITELN("  No position (" + GETSTRING(index) + ") in list[" +
            LISTS.GETNAME(LISTS.CURRENTINDEX()) + "]!");
}
} // namespace

void LIST_SETKIND(BYTE kind) {
    LISTS.DEFAULTKIND = kind;
    if (LISTS.CURRENT().LENGTH() == 0) LISTS.CURRENT().SETKIND(kind);
}

void LIST_VALUE(TMACRO *engine) { LISTS.CURRENT().SETVALUE(engine->GETPARAMETER(1)); }
void LIST_VALUE_REF(TMACRO *engine) { engine->COMMAND_RESULT = LISTS.CURRENT().VALUE(); }
void LIST_BACKGROUND(TMACRO *engine) { LISTS.CURRENT().SETBACKGROUND(engine->GETPARAMETER(1)); }
void LIST_BACKGROUND_REF(TMACRO *engine) { engine->COMMAND_RESULT = LISTS.CURRENT().BACKGROUND(); }
void LIST_KIND_LAMD(TMACRO *engine) { engine->COMMAND_RESULT = LISTKIND(LISTS.CURRENT().KIND()); }

void LIST_IFLIST_REF(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(LISTS.ISNOTEMPTY(LISTS.GET(LISTS.CURRENTINDEX())));
}

void LIST_LENGTH_LAMD(TMACRO *engine) {
    const TLIST *list = LISTS.GET(LISTS.CURRENTINDEX());
    engine->COMMAND_RESULT = GETSTRING(list ? list->LENGTH() : NAT{-1});
}

void LIST_POSITION(TMACRO *engine) { LISTS.CURRENT().SETPOSITION(GETNAT(engine->GETPARAMETER(1))); }
void LIST_POSITION_REF(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(LISTS.CURRENT().POSITION());
}

void LIST_CLEAR(TMACRO *) {
    LISTS.CURRENT().DONE();
    LISTS.CURRENT().INIT(LISTS.DEFAULTKIND);
}

// new [count]: so many entries with the list's value.
void LIST_NEW(TMACRO *engine) {
    TLIST &list = LISTS.CURRENT();
    list.SETKIND(LISTS.DEFAULTKIND);
    static_cast<void>(list.RESIZE(GETNAT(engine->GETPARAMETER_ERRORFREE(1))));
}

void LIST_COPY_REF(TMACRO *engine) {
    TLIST *target = LISTS.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    target->REPLACE(LISTS.CURRENT());
    engine->COMMAND_RESULT_VAR = UTF16();
}

// push [v ...]: each parameter, or the list's value when there is none.
void LIST_PUSH(TMACRO *engine) {
    TLIST &list = LISTS.CURRENT();
    if (engine->PARAMETERLENGTH() == 0) list.PUSH();
    for (NAT i = 1; i <= engine->PARAMETERLENGTH(); ++i)
        if (!list.PUSH(engine->GETPARAMETER(i))) return;
}

void LIST_POP_REF(TMACRO *engine) { engine->COMMAND_RESULT = LISTS.CURRENT().POP(); }

// get [index [part]]: the entry at the list's position, at an index, or one part of it.
void LIST_GET_REF(TMACRO *engine) {
    const TLIST &list = LISTS.CURRENT();
    const NAT count = engine->PARAMETERLENGTH();
    const NAT index = count == 0 ? list.POSITION() : GETNAT(engine->GETPARAMETER(1));
    engine->COMMAND_RESULT =
        count < 2 ? list.GET(index) : list.GET(index, GETNAT(engine->GETPARAMETER(2)));
}

namespace {
// store(index, value) for each value behind the first parameter, at rising positions; without one
// the list's value. The first that has no place is told.
template <class STORE> void StoreEach(TMACRO *engine, STORE &&store) {
    const NAT index = GETNAT(engine->GETPARAMETER(1));
    const NAT values = engine->PARAMETERLENGTH() - 1;
    if (values == 0 && !store(index, LISTS.CURRENT().VALUE())) return TellPosition(index);
    for (NAT i = 0; i < values; ++i)
        if (!store(index + i, engine->GETPARAMETER(i + 2))) return TellPosition(index + i);
}
} // namespace

void LIST_PUT(TMACRO *engine) {
    StoreEach(engine,
              [](NAT index, const UTF16 &value) { return LISTS.CURRENT().PUT(index, value); });
}

void LIST_INSERT(TMACRO *engine) {
    StoreEach(engine,
              [](NAT index, const UTF16 &value) { return LISTS.CURRENT().INSERT(index, value); });
}

void LIST_DELETE(TMACRO *engine) {
    const NAT index = GETNAT(engine->GETPARAMETER(1));
    if (!LISTS.CURRENT().ERASE(index)) TellPosition(index);
}

// Without files nothing is touched.
void LIST_LOAD(TMACRO *engine) {
    if (!engine->switches.FILES) return;
    TLIST &list = LISTS.CURRENT();
    list.SETKIND(LISTS.DEFAULTKIND);
    static_cast<void>(list.LOAD(engine->GETPARAMETER(1)));
}

void LIST_SAVE(TMACRO *engine) {
    if (engine->switches.FILES)
        static_cast<void>(LISTS.CURRENT().SAVE(engine->GETPARAMETER(1))); // tells its failure
}

// save.table file [list ...]: the lists named, or the one in use.
void LIST_SAVE_TABLE(TMACRO *engine) {
    std::vector<LIST_COLUMN> columns;
    const auto add = [&columns](NAT index) {
        columns.push_back({LISTS.GETNAME(index), LISTS.GET(index)});
    };
    if (engine->PARAMETERLENGTH() == 1) add(LISTS.CURRENTINDEX());
    for (NAT i = 2; i <= engine->PARAMETERLENGTH(); ++i) {
        const UTF16 name = engine->GETPARAMETER(i);
        const NAT index = LISTS.SEARCH(name);
        if (LISTS.GET(index))
            add(index);
        else
            WRITELN("Unknown list (" + name + ") ignored");
    }
    if (!columns.empty() && engine->switches.FILES)
        static_cast<void>(SAVE_TABLE(engine->GETPARAMETER(1), columns));
}

void LIST_MIN_REF(TMACRO *engine) { engine->COMMAND_RESULT = LISTS.CURRENT().MIN(); }
void LIST_MAX_REF(TMACRO *engine) { engine->COMMAND_RESULT = LISTS.CURRENT().MAX(); }

void LIST_SHORTEST_REF(TMACRO *engine) {
    const TLIST &list = LISTS.CURRENT();
    if (list.LENGTH() > 0) engine->COMMAND_RESULT = list.GET(list.SHORTEST());
}

void LIST_LONGEST_REF(TMACRO *engine) {
    const TLIST &list = LISTS.CURRENT();
    if (list.LENGTH() > 0) engine->COMMAND_RESULT = list.GET(list.LONGEST());
}

void LIST_MEAN_REF(TMACRO *engine) {
    const TLIST &list = LISTS.CURRENT();
    if (list.LENGTH() > 0) engine->COMMAND_RESULT = list.SHOW(list.MEAN());
}

void LIST_SD_REF(TMACRO *engine) {
    const TLIST &list = LISTS.CURRENT();
    if (list.LENGTH() > 0) engine->COMMAND_RESULT = list.SHOW(list.SD());
}

void LIST_SMOOTH(TMACRO *engine) {
    const NAT passes = engine->PARAMETERLENGTH() == 0 ? 1 : GETNAT(engine->GETPARAMETER(1));
    if (!LISTS.CURRENT().SMOOTH(passes)) WRITELN("  A list of texts has nothing to smooth!");
}

void LIST_OUTLIER_FACTOR(TMACRO *engine) { OUTLIER_FACTOR = GETREAL(engine->GETPARAMETER(1)); }
void LIST_OUTLIER_FACTOR_REF(TMACRO *engine) { engine->COMMAND_RESULT = GETSTRING(OUTLIER_FACTOR); }

void LIST_OUTLIER_REF(TMACRO *engine) {
    TLIST *target = LISTS.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    target->KEEP_INLIERS(LISTS.CURRENT(), LISTS.CURRENT(), OUTLIER_FACTOR);
    engine->COMMAND_RESULT_VAR = UTF16();
}

// outlier.baseline name: mean and deviation of that list, which must have values.
void LIST_OUTLIER_BASELINE_REF(TMACRO *engine) {
    const UTF16 name = engine->GETPARAMETER(1);
    const TLIST *baseline = LISTS.ASSIGN_WITH(engine, name);
    if (!baseline) return;
    if (baseline->LENGTH() == 0) return engine->ERROR("Empty list[" + name + "]");
    TLIST *target = LISTS.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    target->KEEP_INLIERS(LISTS.CURRENT(), *baseline, OUTLIER_FACTOR);
    engine->COMMAND_RESULT_VAR = UTF16();
}
} // namespace morvane
