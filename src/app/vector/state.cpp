#include "app/vector/vector_handlers.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "orientation/vector/vector_copy.hpp"
#include "script/engine/macro.hpp"

// Queries of the vector field in use, and its making.
namespace morvane {
void VECTOR_IFVECTOR_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(VECTORS.CURRENT().ISNOTEMPTY());
}

namespace {
NAT Voxels(const T3D_VECTOR_ANALYSIS &field) {
    const VECTORNAT size = field.SIZE();
    return size.x * size.y * size.z;
}
} // namespace

void VECTOR_IFPLAIN_LAMD(TMACRO *engine) {
    const T3D_VECTOR_ANALYSIS &field = VECTORS.CURRENT();
    engine->COMMAND_RESULT =
        GETSTRING(field.ISNOTEMPTY() && field.COUNT(field.GET(1, 1, 1)) == Voxels(field));
}

void VECTOR_MIN_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(VECTORS.CURRENT().MIN());
}

void VECTOR_MAX_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(VECTORS.CURRENT().MAX());
}

// a := vector.count low high, by length; a := vector.count <x, y, z>, the vectors equal to it.
void VECTOR_COUNT_REF(TMACRO *engine) {
    const T3D_VECTOR_ANALYSIS &field = VECTORS.CURRENT();
    if (engine->PARAMETERLENGTH() == 1)
        engine->COMMAND_RESULT = GETSTRING(field.COUNT(GETVECTOR(engine->GETPARAMETER(1))));
    else if (engine->PARAMETERLENGTH() == 2)
        engine->COMMAND_RESULT = GETSTRING(
            field.COUNT(GETREAL(engine->GETPARAMETER(1)), GETREAL(engine->GETPARAMETER(2))));
    else
        engine->PARAMETERERROR(2);
}

void VECTOR_COUNT_ALL_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(Voxels(VECTORS.CURRENT()));
}

// new := vector.make: a zero field with the size and frame of the one in use.
void VECTOR_MAKE_REF(TMACRO *engine) {
    T3D_VECTOR_ANALYSIS *target = VECTORS.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    static_cast<void>(MAKE(VECTORS.CURRENT(), *target));
    engine->COMMAND_RESULT_VAR = UTF16();
}

// As a procedure it fills the scalar field in use, as a function the named one.
void VECTOR_MAKE_SCALAR(TMACRO *) { static_cast<void>(MAKE(VECTORS.CURRENT(), SCALARS.CURRENT())); }

void VECTOR_MAKE_SCALAR_REF(TMACRO *engine) {
    T3D_SCALAR_ANALYSIS *target = SCALARS.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    static_cast<void>(MAKE(VECTORS.CURRENT(), *target));
    engine->COMMAND_RESULT_VAR = UTF16();
}
} // namespace morvane
