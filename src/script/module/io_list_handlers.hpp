#pragma once

#include "script/module/io_lists.hpp"

// Handlers of the two name lists. Those that look at the disk do nothing while the engine's
// switch FILES is off.
namespace morvane {
class TMACRO;

// The moves and sorts that both lists have, as handlers of one of them.
template <auto LIST> struct IO_LIST_HANDLERS {
    static void LENGTH_LAMD(TMACRO *engine);
    static void REST_LAMD(TMACRO *engine);
    static void GET_LAMD(TMACRO *engine);
    static void CLEAR(TMACRO *engine);
    static void SUB(TMACRO *engine);
    static void SUBWEAK(TMACRO *engine);
    static void FIRST(TMACRO *engine);
    static void NEXT(TMACRO *engine);
    static void BEFORE(TMACRO *engine);
    static void LAST(TMACRO *engine);
    static void NUMBER(TMACRO *engine);
    static void SORT(TMACRO *engine);
    static void SORT_REAL(TMACRO *engine);
    static void SORT_SIZE(TMACRO *engine);
    static void SORT_DATE(TMACRO *engine);
    static void FLIP(TMACRO *engine);
    static void TO_LIST(TMACRO *engine);
    static void FROM_LIST(TMACRO *engine);
};
using IO_FILES_LIST = IO_LIST_HANDLERS<&IO_STATE::FILES>;
using IO_DIRS_LIST = IO_LIST_HANDLERS<&IO_STATE::DIRS>;

void IO_FILES(TMACRO *engine);     // each mask as it stands
void IO_FILES_NEW(TMACRO *engine); // in the directories of the directory list, when there are some
void IO_FILES_ADD(TMACRO *engine);
void IO_FILES_FROMFILE(TMACRO *engine);
void IO_FILES_ADD_FROMFILE(TMACRO *engine);
void IO_FILES_REPLACETXT(TMACRO *engine);
void IO_FILES_GETPREC_LAMD(TMACRO *engine);
void IO_FILES_GETSUCC_LAMD(TMACRO *engine);
void IO_FILES_GETDIR_LAMD(TMACRO *engine);
void IO_FILES_GETFILE_LAMD(TMACRO *engine);
void IO_FILES_GETNAME_LAMD(TMACRO *engine);
void IO_FILES_GETSHORT_LAMD(TMACRO *engine);
void IO_FILES_GETFILEEXTENSION_LAMD(TMACRO *engine);
void IO_FILES_GETEXTENSION_LAMD(TMACRO *engine);

void IO_DIRS_NEW(TMACRO *engine);
void IO_DIRS_ADD(TMACRO *engine);
void IO_DIRS_COMPLETE(TMACRO *engine);
void IO_DIRS_COMPLETE_ADD(TMACRO *engine);
void IO_DIRS_RNEW(TMACRO *engine);
void IO_DIRS_RADD(TMACRO *engine);
} // namespace morvane
