#include "app/scalar/scalar_handlers.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "script/engine/macro.hpp"

// Names of voxel values.
namespace morvane {
void SCALAR_LABELS_CLEAR(TMACRO *) { SCALARS.CURRENT().LABELS_CLEAR(); }

void SCALAR_LABELS_LENGTH_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(SCALARS.CURRENT().LABELS_LENGTH());
}

void SCALAR_LOAD_LABELS(TMACRO *engine) { SCALARS.CURRENT().LABELS_LOAD(engine->GETPARAMETER(1)); }

void SCALAR_SAVE_LABELS(TMACRO *engine) {
    static_cast<void>(SCALARS.CURRENT().LABELS_SAVE(engine->GETPARAMETER(1)));
}

void SCALAR_LABEL(TMACRO *engine) {
    SCALARS.CURRENT().LABELS_PUT(GETNAT(engine->GETPARAMETER(1)), engine->GETPARAMETER(2));
}

// a := scalar.label value
void SCALAR_LABEL_REF(TMACRO *engine) {
    if (engine->PARAMETERLENGTH() != 1) return engine->PARAMETERERROR(1);
    engine->COMMAND_RESULT = SCALARS.CURRENT().LABELS_GET(GETNAT(engine->GETPARAMETER(1)));
}

// One line per value that has a name of its own or from the value below.
void SCALAR_LABELS_DUMP(TMACRO *) {
    const T3D_SCALAR_ANALYSIS &field = SCALARS.CURRENT();
    for (NAT value = 0; value < field.LABELS_LENGTH(); ++value) {
        const UTF16 label = field.LABELS_GET(value);
        if (!label.EMPTY()) WRITELN("  " + GETSTRING(value) + ": " + label);
    }
}
} // namespace morvane
