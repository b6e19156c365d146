#pragma once

#include "script/engine/macro.hpp"
#include "script/module/lists.hpp"

// Handlers of the list commands, named after them. They act on the list in use.
namespace morvane {
// The kind of lists made from now on, and of the list in use as long as it is empty.
void LIST_SETKIND(BYTE kind);
template <BYTE KIND> void LIST_KIND_HANDLER(TMACRO *) { LIST_SETKIND(KIND); }
// Calls a method of the list without parameters.
template <auto METHOD> void LIST_ACTION(TMACRO *) {
    static_cast<void>((LISTS.CURRENT().*METHOD)());
}

// State.
void LIST_VALUE(TMACRO *engine);
void LIST_VALUE_REF(TMACRO *engine);
void LIST_BACKGROUND(TMACRO *engine);
void LIST_BACKGROUND_REF(TMACRO *engine);
void LIST_KIND_LAMD(TMACRO *engine);
void LIST_IFLIST_REF(TMACRO *engine);
void LIST_LENGTH_LAMD(TMACRO *engine);
void LIST_POSITION(TMACRO *engine);
void LIST_POSITION_REF(TMACRO *engine);

// Contents.
void LIST_CLEAR(TMACRO *engine);
void LIST_NEW(TMACRO *engine);
void LIST_COPY_REF(TMACRO *engine);
void LIST_PUSH(TMACRO *engine);
void LIST_POP_REF(TMACRO *engine);
void LIST_GET_REF(TMACRO *engine);
void LIST_PUT(TMACRO *engine);
void LIST_INSERT(TMACRO *engine);
void LIST_DELETE(TMACRO *engine);

// Files.
void LIST_LOAD(TMACRO *engine);
void LIST_SAVE(TMACRO *engine);
void LIST_SAVE_TABLE(TMACRO *engine);

// Statistics.
void LIST_MIN_REF(TMACRO *engine);
void LIST_MAX_REF(TMACRO *engine);
void LIST_SHORTEST_REF(TMACRO *engine);
void LIST_LONGEST_REF(TMACRO *engine);
void LIST_MEAN_REF(TMACRO *engine);
void LIST_SD_REF(TMACRO *engine);
void LIST_SMOOTH(TMACRO *engine);
void LIST_OUTLIER_FACTOR(TMACRO *engine);
void LIST_OUTLIER_FACTOR_REF(TMACRO *engine);
void LIST_OUTLIER_REF(TMACRO *engine);
void LIST_OUTLIER_BASELINE_REF(TMACRO *engine);
} // namespace morvane
