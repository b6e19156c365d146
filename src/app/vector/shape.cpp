#include "app/range_parameters.hpp"
#include "app/vector/vector_handlers.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "orientation/vector/vector_copy.hpp"
#include "script/engine/macro.hpp"

// Crop, move and copies of vector fields.
namespace morvane {
BYTE VECTOR_COPY_METHOD = 1;

void VECTOR_COPY_METHOD_SET(TMACRO *engine) {
    VECTOR_COPY_METHOD = GETBYTE(engine->GETPARAMETER(1));
}

void VECTOR_CROP(TMACRO *engine) { VECTORS.CURRENT().CROP(GETREALRANGE(engine->GETPARAMETER(1))); }

// new := vector.crop old length, or new := vector.crop old mask value.
void VECTOR_CROP_REF(TMACRO *engine) {
    const NAT count = engine->PARAMETERLENGTH();
    if (count != 2 && count != 3) return engine->PARAMETERERROR(2);
    T3D_VECTOR_ANALYSIS *target = VECTORS.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    const T3D_VECTOR_ANALYSIS *source = VECTORS.ASSIGN_WITH(engine, engine->GETPARAMETER(1));
    if (!source) return;
    engine->COMMAND_RESULT_VAR = UTF16();
    if (count == 2) {
        static_cast<void>(CROP(*source, *target, GETREALRANGE(engine->GETPARAMETER(2))));
        return;
    }
    const T3D_SCALAR_ANALYSIS *mask = SCALARS.ASSIGN_WITH(engine, engine->GETPARAMETER(2));
    if (!mask) return;
    const COMPLEXNAT range = GETRANGE(engine->GETPARAMETER(3));
    static_cast<void>(CROP(*source, *target, *mask, RANGENAT{range.x, range.y}));
}

void VECTOR_MOVE(TMACRO *engine) {
    MOVE(VECTORS.CURRENT(), GETVECTOR(engine->GETPARAMETER(1)), GETVECTOR(engine->GETPARAMETER(2)),
         GETVECTORNAT(engine->GETPARAMETER(3)));
}

// new := vector.copy [factor | <fx, fy, fz>]
void VECTOR_COPY_REF(TMACRO *engine) {
    T3D_VECTOR_ANALYSIS *target = VECTORS.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    const VECTOR factor = GETFACTORS(engine->GETPARAMETER_ERRORFREE(1));
    static_cast<void>(COPY(VECTORS.CURRENT(), *target, factor, VECTOR_COPY_METHOD));
    engine->COMMAND_RESULT_VAR = UTF16();
}

void VECTOR_RESIZE_REF(TMACRO *engine) {
    T3D_VECTOR_ANALYSIS *target = VECTORS.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    static_cast<void>(RESIZE(VECTORS.CURRENT(), *target, GETVECTORNAT(engine->GETPARAMETER(1)),
                             VECTOR_COPY_METHOD));
    engine->COMMAND_RESULT_VAR = UTF16();
}

void VECTOR_SUBSTACK_REF(TMACRO *engine) {
    T3D_VECTOR_ANALYSIS *target = VECTORS.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    static_cast<void>(SUBSTACK(VECTORS.CURRENT(), *target, GETVECTOR(engine->GETPARAMETER(1)),
                               GETVECTOR(engine->GETPARAMETER(2))));
    engine->COMMAND_RESULT_VAR = UTF16();
}
} // namespace morvane
