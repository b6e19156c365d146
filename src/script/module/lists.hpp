#pragma once

#include "script/module/list.hpp"
#include "script/workspace/workspace.hpp"

// The lists of a script; the one in use is LISTS.CURRENT(). Made by USE_LIST with one empty list
// "DEFAULT"; before it, and for another engine's tests, INIT_LISTS does the same. A list keeps its
// kind: who fills it with texts, or with vectors, sets it first, with SETKIND.
namespace morvane {
extern TWORKSPACE<TLIST> LISTS; // DEFAULTKIND is one of LIST_REAL..LIST_CHARS
extern REAL OUTLIER_FACTOR;     // an outlier is further from the mean than factor * SD
UTF16 LISTKIND(BYTE kind);      // its word: "real", "nat" and so on
void INIT_LISTS();              // one list of reals, the outlier factor 3
} // namespace morvane
