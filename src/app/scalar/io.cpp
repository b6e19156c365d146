#include "app/scalar/scalar_handlers.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "script/engine/macro.hpp"

// Files of scalar fields. The readers and writers tell their own failures; the line counts as done.
namespace morvane {
// load.filter [offset [factor]]: without numbers samples are scaled to the voxel range.
void SCALAR_LOAD_FILTER(TMACRO *engine) {
    SCALARS.CURRENT().loadFilterOffset = GETNAT(engine->GETPARAMETER_ERRORFREE(1));
    SCALARS.CURRENT().loadFilterFactor = GETNAT(engine->GETPARAMETER_ERRORFREE(2));
}

void SCALAR_LOAD(TMACRO *engine) {
    SCALARS.CURRENT().LOAD(SCALARS.DEFAULTKIND, engine->GETPARAMETER_ERRORFREE(1));
}

void SCALAR_LOAD_PROPERTIES(TMACRO *engine) {
    static_cast<void>(SCALARS.CURRENT().LOAD_PROPERTIES(engine->GETPARAMETER(1)));
}

void SCALAR_LOAD_FRAMEWORK(TMACRO *engine) {
    static_cast<void>(
        SCALARS.CURRENT().LOAD_FRAMEWORK(SCALARS.DEFAULTKIND, engine->GETPARAMETER(1)));
}

namespace {
using LOADER = void (T3D_SCALAR_ANALYSIS::*)(BYTE, const UTF16 &, NAT);

// load.nii file [stack]: the first stack without a number, -1 is the last.
void LoadStack(TMACRO *engine, LOADER load) {
    const NAT count = engine->PARAMETERLENGTH();
    if (count > 2) return engine->MAX_PARAMETERERROR(2);
    const NAT stack = count == 2 ? GETNAT(engine->GETPARAMETER(2)) : 1;
    (SCALARS.CURRENT().*load)(SCALARS.DEFAULTKIND, engine->GETPARAMETER_ERRORFREE(1), stack);
}
} // namespace

void SCALAR_LOADNII(TMACRO *engine) { LoadStack(engine, &T3D_SCALAR_ANALYSIS::LOADNII); }
void SCALAR_LOADNII_GZ(TMACRO *engine) { LoadStack(engine, &T3D_SCALAR_ANALYSIS::LOADNII_GZ); }

void SCALAR_SAVE(TMACRO *engine) {
    static_cast<void>(SCALARS.CURRENT().SAVE(engine->GETPARAMETER(1)));
}

void SCALAR_SAVE_PROPERTIES(TMACRO *engine) {
    static_cast<void>(SCALARS.CURRENT().SAVE_PROPERTIES(engine->GETPARAMETER(1)));
}
} // namespace morvane
