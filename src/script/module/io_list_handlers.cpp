#include "script/module/io_list_handlers.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/console/paths.hpp"
#include "script/engine/macro.hpp"
#include "script/module/lists.hpp"

namespace morvane {
template <auto LIST> void IO_LIST_HANDLERS<LIST>::LENGTH_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING((IO.*LIST).LENGTH());
}
template <auto LIST> void IO_LIST_HANDLERS<LIST>::REST_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING((IO.*LIST).REST());
}
template <auto LIST> void IO_LIST_HANDLERS<LIST>::GET_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = (IO.*LIST).GET();
}
template <auto LIST> void IO_LIST_HANDLERS<LIST>::FIRST(TMACRO *) { (IO.*LIST).GOTO(1); }
template <auto LIST> void IO_LIST_HANDLERS<LIST>::NEXT(TMACRO *) { (IO.*LIST).NEXT(); }
template <auto LIST> void IO_LIST_HANDLERS<LIST>::BEFORE(TMACRO *) { (IO.*LIST).BEFORE(); }
template <auto LIST> void IO_LIST_HANDLERS<LIST>::LAST(TMACRO *) { (IO.*LIST).GOTO(-1); }
template <auto LIST> void IO_LIST_HANDLERS<LIST>::NUMBER(TMACRO *engine) {
    (IO.*LIST).GOTO(GETNAT(engine->GETPARAMETER(1)));
}

// What changes the order or takes entries away leads back to the first entry.
template <auto LIST> void IO_LIST_HANDLERS<LIST>::CLEAR(TMACRO *) {
    (IO.*LIST).names.CLEAR();
    (IO.*LIST).GOTO(1);
}
template <auto LIST> void IO_LIST_HANDLERS<LIST>::SUB(TMACRO *engine) {
    for (NAT i = 1; i <= engine->PARAMETERLENGTH(); ++i)
        (IO.*LIST).names.SUB(engine->GETPARAMETER(i));
    (IO.*LIST).GOTO(1);
}
template <auto LIST> void IO_LIST_HANDLERS<LIST>::SUBWEAK(TMACRO *engine) {
    for (NAT i = 1; i <= engine->PARAMETERLENGTH(); ++i)
        (IO.*LIST).names.SUBWEAK(engine->GETPARAMETER(i));
    (IO.*LIST).GOTO(1);
}
template <auto LIST> void IO_LIST_HANDLERS<LIST>::SORT(TMACRO *) {
    (IO.*LIST).names.SORT();
    (IO.*LIST).GOTO(1);
}
template <auto LIST> void IO_LIST_HANDLERS<LIST>::SORT_REAL(TMACRO *) {
    (IO.*LIST).names.SORTREAL();
    (IO.*LIST).GOTO(1);
}
template <auto LIST> void IO_LIST_HANDLERS<LIST>::SORT_SIZE(TMACRO *engine) {
    if (!engine->switches.FILES) return;
    (IO.*LIST).names.SORTSIZE();
    (IO.*LIST).GOTO(1);
}
template <auto LIST> void IO_LIST_HANDLERS<LIST>::SORT_DATE(TMACRO *engine) {
    if (!engine->switches.FILES) return;
    (IO.*LIST).names.SORTDATE();
    (IO.*LIST).GOTO(1);
}
template <auto LIST> void IO_LIST_HANDLERS<LIST>::FLIP(TMACRO *) {
    (IO.*LIST).names.FLIP();
    (IO.*LIST).GOTO(1);
}

template <auto LIST> void IO_LIST_HANDLERS<LIST>::TO_LIST(TMACRO *) {
    TLIST &target = LISTS.CURRENT();
    target.SETKIND(LIST_CHARS);
    for (NAT i = 1; i <= (IO.*LIST).LENGTH(); ++i)
        if (!target.PUSH((IO.*LIST).names.GET(i).GET())) return; // told
}
template <auto LIST> void IO_LIST_HANDLERS<LIST>::FROM_LIST(TMACRO *engine) {
    const TLIST &source = LISTS.CURRENT();
    CLEAR(engine);
    for (NAT i = 1; i <= source.LENGTH(); ++i)
        (IO.*LIST).names.PUSH(source.GET(i));
}

template struct IO_LIST_HANDLERS<&IO_STATE::FILES>;
template struct IO_LIST_HANDLERS<&IO_STATE::DIRS>;

namespace {
// Calls `add` for each parameter, on an emptied list when `isNew` is set.
template <class LIST, class ADD> void Fill(TMACRO *engine, LIST &list, bool isNew, ADD add) {
    if (!engine->switches.FILES) return;
    if (isNew) list.names.CLEAR();
    if (isNew) list.GOTO(1);
    for (NAT i = 1; i <= engine->PARAMETERLENGTH(); ++i)
        add(engine->GETPARAMETER(i));
}

void FillFiles(TMACRO *engine, bool isNew) {
    Fill(engine, IO.FILES, isNew, [](const UTF16 &mask) {
        if (IO.DIRS.LENGTH() > 0)
            IO.FILES.names.GETFILE(IO.DIRS.names, mask);
        else
            IO.FILES.names.GETFILE(mask);
    });
}

void FillDirs(TMACRO *engine, bool isNew, void (TDIRLIST::*add)(const UTF16 &mask)) {
    Fill(engine, IO.DIRS, isNew, [add](const UTF16 &mask) { (IO.DIRS.names.*add)(mask); });
}
} // namespace

void IO_FILES(TMACRO *engine) {
    Fill(engine, IO.FILES, true, [](const UTF16 &mask) { IO.FILES.names.GETFILE(mask); });
}
void IO_FILES_NEW(TMACRO *engine) { FillFiles(engine, true); }
void IO_FILES_ADD(TMACRO *engine) { FillFiles(engine, false); }
void IO_FILES_FROMFILE(TMACRO *engine) {
    Fill(engine, IO.FILES, true, [](const UTF16 &name) { IO.FILES.names.GETLINES(name); });
}
void IO_FILES_ADD_FROMFILE(TMACRO *engine) {
    Fill(engine, IO.FILES, false, [](const UTF16 &name) { IO.FILES.names.GETLINES(name); });
}

// replacetxt find [replacement]: in every name of the list; the disk is left alone.
void IO_FILES_REPLACETXT(TMACRO *engine) {
    if (engine->PARAMETERLENGTH() > 2) return engine->MAX_PARAMETERERROR(2);
    const UTF16 find = engine->GETPARAMETER(1);
    IO.FILES.names.REPLACETXT(find, engine->GETPARAMETER_ERRORFREE(2));
}

void IO_FILES_GETPREC_LAMD(TMACRO *engine) { engine->COMMAND_RESULT = IO.FILES.GET(-1); }
void IO_FILES_GETSUCC_LAMD(TMACRO *engine) { engine->COMMAND_RESULT = IO.FILES.GET(1); }
void IO_FILES_GETDIR_LAMD(TMACRO *engine) { engine->COMMAND_RESULT = GETDIR(IO.FILES.GET()); }
void IO_FILES_GETFILE_LAMD(TMACRO *engine) { engine->COMMAND_RESULT = GETFILE(IO.FILES.GET()); }
void IO_FILES_GETNAME_LAMD(TMACRO *engine) { engine->COMMAND_RESULT = GETFILENAME(IO.FILES.GET()); }
void IO_FILES_GETSHORT_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GET_SHORTFILENAME(IO.FILES.GET());
}
void IO_FILES_GETFILEEXTENSION_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETFILEEXTENSION(IO.FILES.GET());
}
void IO_FILES_GETEXTENSION_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GET_FULLFILEEXTENSION(IO.FILES.GET());
}

void IO_DIRS_NEW(TMACRO *engine) { FillDirs(engine, true, &TDIRLIST::GETDIR); }
void IO_DIRS_ADD(TMACRO *engine) { FillDirs(engine, false, &TDIRLIST::GETDIR); }
void IO_DIRS_COMPLETE(TMACRO *engine) { FillDirs(engine, true, &TDIRLIST::GETDIRCOMPLETE); }
void IO_DIRS_COMPLETE_ADD(TMACRO *engine) { FillDirs(engine, false, &TDIRLIST::GETDIRCOMPLETE); }
void IO_DIRS_RNEW(TMACRO *engine) { FillDirs(engine, true, &TDIRLIST::GETDIRRECURSIVE); }
void IO_DIRS_RADD(TMACRO *engine) { FillDirs(engine, false, &TDIRLIST::GETDIRRECURSIVE); }
} // namespace morvane
