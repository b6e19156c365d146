#include "app/vector/vector_handlers.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "script/engine/macro.hpp"

// Files of vector fields. The readers and writers tell their own failures; the line counts as done.
namespace morvane {
void VECTOR_LOAD(TMACRO *engine) {
    static_cast<void>(VECTORS.CURRENT().LOAD(VECTORS.DEFAULTKIND, engine->GETPARAMETER(1)));
}

void VECTOR_LOAD_PROPERTIES(TMACRO *engine) {
    static_cast<void>(VECTORS.CURRENT().LOAD_PROPERTIES(engine->GETPARAMETER(1)));
}

void VECTOR_LOAD_FRAMEWORK(TMACRO *engine) {
    static_cast<void>(
        VECTORS.CURRENT().LOAD_FRAMEWORK(VECTORS.DEFAULTKIND, engine->GETPARAMETER(1)));
}

void VECTOR_LOADNII(TMACRO *engine) {
    static_cast<void>(VECTORS.CURRENT().LOADNII(VECTORS.DEFAULTKIND, engine->GETPARAMETER(1)));
}

void VECTOR_LOADNII_GZ(TMACRO *engine) {
    static_cast<void>(VECTORS.CURRENT().LOADNII_GZ(VECTORS.DEFAULTKIND, engine->GETPARAMETER(1)));
}

void VECTOR_LOADTXT(TMACRO *engine) {
    static_cast<void>(VECTORS.CURRENT().LOADTXT(VECTORS.DEFAULTKIND, engine->GETPARAMETER(1)));
}

// save file [scale]: with a scale the written text holds scaled vectors.
void VECTOR_SAVE(TMACRO *engine) {
    const NAT count = engine->PARAMETERLENGTH();
    if (count < 1 || count > 2) return engine->PARAMETERERROR(1);
    const T3D_VECTOR_ANALYSIS &field = VECTORS.CURRENT();
    if (count == 1)
        static_cast<void>(field.SAVE(engine->GETPARAMETER(1)));
    else
        static_cast<void>(field.SAVE(engine->GETPARAMETER(1), GETVECTOR(engine->GETPARAMETER(2))));
}

void VECTOR_SAVE_PROPERTIES(TMACRO *engine) {
    static_cast<void>(VECTORS.CURRENT().SAVE_PROPERTIES(engine->GETPARAMETER(1)));
}

namespace {
using APPENDER = bool (T3D_VECTOR_ANALYSIS::*)(const UTF16 &, const UTF16 &);

// append file [header]
void Append(TMACRO *engine, APPENDER append) {
    const NAT count = engine->PARAMETERLENGTH();
    if (count < 1 || count > 2) return engine->PARAMETERERROR(1);
    static_cast<void>(
        (VECTORS.CURRENT().*append)(engine->GETPARAMETER(1), engine->GETPARAMETER_ERRORFREE(2)));
}
} // namespace

void VECTOR_APPEND(TMACRO *engine) { Append(engine, &T3D_VECTOR_ANALYSIS::APPEND); }
void VECTOR_APPEND_ZERO(TMACRO *engine) { Append(engine, &T3D_VECTOR_ANALYSIS::APPEND0); }
void VECTOR_APPEND_BEST(TMACRO *engine) { Append(engine, &T3D_VECTOR_ANALYSIS::APPEND_BEST); }
} // namespace morvane
