#include "app/range_parameters.hpp"
#include "app/scalar/scalar_handlers.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "script/engine/macro.hpp"

// Queries of the scalar field in use, its making, and its values.
namespace morvane {
void SCALAR_IFSCALAR_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(SCALARS.CURRENT().ISNOTEMPTY());
}

void SCALAR_IFPLAIN_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(SCALARS.CURRENT().IFPLAIN());
}

// new := scalar.make: a zero field with the size and frame of the one in use.
void SCALAR_MAKE_REF(TMACRO *engine) {
    T3D_SCALAR_ANALYSIS *target = SCALARS.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    const T3D_SCALAR_ANALYSIS &source = SCALARS.CURRENT();
    target->NEW(source.SIZEX(), source.SIZEY(), source.SIZEZ());
    target->SETFRAME(source.GETFRAME());
    engine->COMMAND_RESULT_VAR = UTF16();
}

namespace {
void MakeVector(T3D_VECTOR_ANALYSIS &target) {
    const T3D_SCALAR_ANALYSIS &source = SCALARS.CURRENT();
    target.NEW(source.SIZEX(), source.SIZEY(), source.SIZEZ());
    target.SETFRAME(source.GETFRAME());
}
} // namespace

// As a procedure it fills the vector field in use, as a function the named one.
void SCALAR_MAKE_VECTOR(TMACRO *) { MakeVector(VECTORS.CURRENT()); }

void SCALAR_MAKE_VECTOR_REF(TMACRO *engine) {
    T3D_VECTOR_ANALYSIS *target = VECTORS.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    MakeVector(*target);
    engine->COMMAND_RESULT_VAR = UTF16();
}

void SCALAR_VALUE(TMACRO *engine) { SCALARS.CURRENT().PUTVALUE(GETREAL(engine->GETPARAMETER(1))); }

void SCALAR_BACKGROUND(TMACRO *engine) {
    SCALARS.CURRENT().PUTBACKGROUND(GETREAL(engine->GETPARAMETER(1)));
}

void SCALAR_MIN_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(SCALARS.CURRENT().MIN());
}

void SCALAR_MAX_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(SCALARS.CURRENT().MAX());
}

namespace {
// A range as one parameter <low, high>, or as two numbers.
COMPLEXNAT RangeOfLine(TMACRO *engine) {
    if (engine->PARAMETERLENGTH() == 1) return GETRANGE(engine->GETPARAMETER(1));
    return {GETNAT(engine->GETPARAMETER(1)), GETNAT(engine->GETPARAMETER(2))};
}

bool IsRange(TMACRO *engine) {
    if (engine->PARAMETERLENGTH() == 1 || engine->PARAMETERLENGTH() == 2) return true;
    engine->PARAMETERERROR(2);
    return false;
}
} // namespace

void SCALAR_COUNT_REF(TMACRO *engine) {
    if (!IsRange(engine)) return;
    const COMPLEXNAT range = RangeOfLine(engine);
    engine->COMMAND_RESULT = GETSTRING(SCALARS.CURRENT().OBJECT_COUNT(range.x, range.y));
}

void SCALAR_SUM_REF(TMACRO *engine) {
    if (!IsRange(engine)) return;
    const COMPLEXNAT range = RangeOfLine(engine);
    engine->COMMAND_RESULT = GETSTRING(SCALARS.CURRENT().OBJECT_SUM(range.x, range.y));
}

// setlower limit new, sethigher limit new, setvalue <low, high> new.
void SCALAR_SETLOWER(TMACRO *engine) {
    SCALARS.CURRENT().SETLOWER(GETNAT(engine->GETPARAMETER(1)), GETNAT(engine->GETPARAMETER(2)));
}

void SCALAR_SETVALUE(TMACRO *engine) {
    SCALARS.CURRENT().SETVALUE(GETRANGE(engine->GETPARAMETER(1)), GETNAT(engine->GETPARAMETER(2)));
}

void SCALAR_SETHIGHER(TMACRO *engine) {
    SCALARS.CURRENT().SETHIGHER(GETNAT(engine->GETPARAMETER(1)), GETNAT(engine->GETPARAMETER(2)));
}
} // namespace morvane
