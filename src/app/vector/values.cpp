#include "app/range_parameters.hpp"
#include "app/vector/vector_handlers.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "orientation/vector/vector_arithmetic.hpp"
#include "orientation/vector/vector_measure.hpp"
#include "script/workspace/setting_handlers.hpp"

#include <algorithm>

// Values of vector fields: arithmetic, lengths, smoothing, and what scalar fields and lines take
// from them.
namespace morvane {
void VECTOR_ADD(TMACRO *engine) { ADD(VECTORS.CURRENT(), GETVECTOR(engine->GETPARAMETER(1))); }

void VECTOR_MUL(TMACRO *engine) { MUL(VECTORS.CURRENT(), GETVECTOR(engine->GETPARAMETER(1))); }

namespace {
using JOINER = bool (*)(T3D_VECTOR_ANALYSIS &, const T3D_VECTOR_ANALYSIS &,
                        const T3D_VECTOR_ANALYSIS &);

// new := vector.add old1 old2, and its like.
void Join(TMACRO *engine, JOINER join) {
    T3D_VECTOR_ANALYSIS *target = VECTORS.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    const T3D_VECTOR_ANALYSIS *a = VECTORS.ASSIGN_WITH(engine, engine->GETPARAMETER(1));
    if (!a) return;
    const T3D_VECTOR_ANALYSIS *b = VECTORS.ASSIGN_WITH(engine, engine->GETPARAMETER(2));
    if (!b) return;
    static_cast<void>(join(*target, *a, *b));
    engine->COMMAND_RESULT_VAR = UTF16();
}
} // namespace

void VECTOR_ADD_REF(TMACRO *engine) { Join(engine, ADD); }
void VECTOR_SUB_REF(TMACRO *engine) { Join(engine, SUB); }
void VECTOR_MEAN_REF(TMACRO *engine) { Join(engine, MEAN); }

// new := vector.mask old mask v...
void VECTOR_MASK_REF(TMACRO *engine) {
    T3D_VECTOR_ANALYSIS *target = VECTORS.ASSIGN_TO(engine, engine->COMMAND_RESULT_VAR);
    if (!target) return;
    const T3D_VECTOR_ANALYSIS *source = VECTORS.ASSIGN_WITH(engine, engine->GETPARAMETER(1));
    if (!source) return;
    const T3D_SCALAR_ANALYSIS *mask = SCALARS.ASSIGN_WITH(engine, engine->GETPARAMETER(2));
    if (!mask) return;
    TPOLYNAT values;
    GETVALUES(engine, 3, values);
    static_cast<void>(MASK(*target, *source, *mask, values));
    engine->COMMAND_RESULT_VAR = UTF16();
}

void VECTOR_SETLENGTH(TMACRO *engine) {
    VECTORS.CURRENT().SETLENGTH(GETREAL(engine->GETPARAMETER(1)));
}

void VECTOR_SETLENGTH_RELATIVE(TMACRO *engine) {
    VECTORS.CURRENT().SETLENGTH_RELATIVE(GETREAL(engine->GETPARAMETER(1)));
}

void VECTOR_ERASE_MIN(TMACRO *engine) {
    VECTORS.CURRENT().ERASELENGTH_MIN(GETREAL(engine->GETPARAMETER(1)));
}

void VECTOR_ERASE_MAX(TMACRO *engine) {
    VECTORS.CURRENT().ERASELENGTH_MAX(GETREAL(engine->GETPARAMETER(1)));
}

namespace {
// The optional count of passes: one without a parameter.
NAT Passes(TMACRO *engine) {
    return engine->PARAMETERLENGTH() == 0 ? 1 : GETNAT(engine->GETPARAMETER(1));
}
} // namespace

void VECTOR_SOFTSMOOTH(TMACRO *engine) {
    VECTORS.CURRENT().SOFTSMOOTH(Passes(engine), THREAD_LIMIT(engine));
}

void VECTOR_SMOOTH(TMACRO *engine) {
    VECTORS.CURRENT().SMOOTH(Passes(engine), THREAD_LIMIT(engine));
}

void VECTOR_HARDSMOOTH(TMACRO *engine) {
    VECTORS.CURRENT().HARDSMOOTH(Passes(engine), THREAD_LIMIT(engine));
}

// remove.outliers [factor]: without a factor the usual 1.5 quartile distances.
void VECTOR_REMOVE_OUTLIERS(TMACRO *engine) {
    const REAL factor = engine->PARAMETERLENGTH() == 0 ? 1.5 : GETREAL(engine->GETPARAMETER(1));
    const NAT changed = VECTORS.CURRENT().REMOVE_OUTLIERS(factor);
    WRITELN("  Changed " + GETSTRING(changed) + " vectors.");
}

void VECTOR_GET_X(TMACRO *) { static_cast<void>(GET_X(VECTORS.CURRENT(), SCALARS.CURRENT())); }
void VECTOR_GET_Y(TMACRO *) { static_cast<void>(GET_Y(VECTORS.CURRENT(), SCALARS.CURRENT())); }
void VECTOR_GET_Z(TMACRO *) { static_cast<void>(GET_Z(VECTORS.CURRENT(), SCALARS.CURRENT())); }

void VECTOR_GET_LENGTH(TMACRO *) {
    static_cast<void>(GET_LENGTH(VECTORS.CURRENT(), SCALARS.CURRENT()));
}

void VECTOR_GET_ANGLE(TMACRO *engine) {
    static_cast<void>(
        GET_ANGLE(VECTORS.CURRENT(), GETVECTOR(engine->GETPARAMETER(1)), SCALARS.CURRENT()));
}

void VECTOR_GET_FULLANGLE(TMACRO *engine) {
    static_cast<void>(GET_FULLANGLE(VECTORS.CURRENT(), GETVECTOR(engine->GETPARAMETER(1)),
                                    GETVECTOR(engine->GETPARAMETER(2)), SCALARS.CURRENT()));
}

void VECTOR_FACTOR_DISTANCE_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = GETSTRING(FACTOR_DISTANCE(VECTORS.CURRENT()));
}

void VECTOR_LINE_MAKE(TMACRO *) {
    static_cast<void>(VECTOR_LINE(VECTORS.CURRENT(), LINES.CURRENT()));
}
} // namespace morvane
