#include "app/range_parameters.hpp"
#include "app/vector/vector_handlers.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "orientation/stream/stream_variants.hpp"
#include "script/engine/macro.hpp"

// Streamlines through the vector field in use, into the line cloud in use.
namespace morvane {
STREAM_SETTINGS VECTOR_STREAM;

void VECTOR_STREAM_SEEDS(TMACRO *engine) {
    VECTOR_STREAM.PUTSEEDS(GETNAT(engine->GETPARAMETER(1)));
}

void VECTOR_STREAM_SNAKES(TMACRO *engine) {
    VECTOR_STREAM.PUTSNAKES(GETNAT(engine->GETPARAMETER(1)));
}

void VECTOR_STREAM_STEPS(TMACRO *engine) {
    VECTOR_STREAM.PUTSTEPS(GETREAL(engine->GETPARAMETER(1)));
}

void VECTOR_STREAM_ANGLES(TMACRO *engine) {
    VECTOR_STREAM.PUTANGLES(GETREAL(engine->GETPARAMETER(1)));
}

void VECTOR_STREAM_STOP_ANGLE(TMACRO *engine) {
    VECTOR_STREAM.PUTSTOPANGLE(GETREAL(engine->GETPARAMETER(1)));
}

void VECTOR_STREAM_STOP_LENGTH(TMACRO *engine) {
    VECTOR_STREAM.PUTSTOPLENGTH(GETREAL(engine->GETPARAMETER(1)));
}

void VECTOR_STREAM_STOP_CONTRAST(TMACRO *engine) {
    VECTOR_STREAM.PUTSTOPCONTRAST(GETNAT(engine->GETPARAMETER(1)));
}

namespace {
STREAM_JOB Job() { return {VECTORS.CURRENT(), LINES.CURRENT(), &SCALARS.CURRENT(), VECTOR_STREAM}; }

// Calls run(mask) with the scalar field named by parameter `place` and the values behind it.
template <class RUN> void WithMask(TMACRO *engine, NAT place, RUN &&run) {
    const T3D_SCALAR_ANALYSIS *scalar = SCALARS.ASSIGN_WITH(engine, engine->GETPARAMETER(place));
    if (!scalar) return;
    TPOLYNAT values;
    GETVALUES(engine, place + 1, values);
    run(STREAM_MASK{*scalar, values});
}

// The plane across one axis (1, 2 or 3) through the position in parameter 1.
VECTOR AxisPoint(TMACRO *engine, NAT axis) {
    const REAL position = GETREAL(engine->GETPARAMETER(1));
    return {axis == 1 ? position : 0, axis == 2 ? position : 0, axis == 3 ? position : 0};
}

VECTOR AxisNormal(NAT axis) {
    return {axis == 1 ? 1.0 : 0.0, axis == 2 ? 1.0 : 0.0, axis == 3 ? 1.0 : 0.0};
}

void AxisSlice(TMACRO *engine, NAT axis) {
    _VECTOR_STREAM_SLICE(Job(), AxisPoint(engine, axis), AxisNormal(axis));
}

void AxisSliceMask(TMACRO *engine, NAT axis) {
    WithMask(engine, 2, [&](const STREAM_MASK &mask) {
        _VECTOR_STREAM_SLICE_MASK(Job(), AxisPoint(engine, axis), AxisNormal(axis), mask);
    });
}
} // namespace

void VECTOR_STREAM_NODES(TMACRO *) { _VECTOR_STREAM_NODES(Job(), SCALARS.CURRENT()); }

void VECTOR_STREAM_UNIFORM(TMACRO *) { _VECTOR_STREAM_UNIFORM(Job()); }

void VECTOR_STREAM_UNIFORM_RANDOM(TMACRO *engine) {
    _VECTOR_STREAM_UNIFORM_RANDOM(Job(), GETNAT(engine->GETPARAMETER(1)));
}

void VECTOR_STREAM_MASK(TMACRO *engine) {
    WithMask(engine, 1, [&](const STREAM_MASK &mask) { _VECTOR_STREAM_MASK(Job(), mask); });
}

void VECTOR_STREAM_MASK_RANDOM(TMACRO *engine) {
    WithMask(engine, 2, [&](const STREAM_MASK &mask) {
        _VECTOR_STREAM_MASK_RANDOM(Job(), GETNAT(engine->GETPARAMETER(1)), mask);
    });
}

void VECTOR_STREAM_MUSCLE(TMACRO *) { _VECTOR_STREAM_MUSCLE(Job()); }

void VECTOR_STREAM_MUSCLE_RANDOM(TMACRO *engine) {
    _VECTOR_STREAM_MUSCLE_RANDOM(Job(), GETNAT(engine->GETPARAMETER(1)));
}

void VECTOR_STREAM_MUSCLE_MASK(TMACRO *engine) {
    WithMask(engine, 1, [&](const STREAM_MASK &mask) { _VECTOR_STREAM_MUSCLE_MASK(Job(), mask); });
}

void VECTOR_STREAM_MUSCLE_MASK_RANDOM(TMACRO *engine) {
    WithMask(engine, 2, [&](const STREAM_MASK &mask) {
        _VECTOR_STREAM_MUSCLE_MASK_RANDOM(Job(), GETNAT(engine->GETPARAMETER(1)), mask);
    });
}

void VECTOR_STREAM_SLICE(TMACRO *engine) {
    _VECTOR_STREAM_SLICE(Job(), GETVECTOR(engine->GETPARAMETER(1)),
                         GETVECTOR(engine->GETPARAMETER(2)));
}

void VECTOR_STREAM_SLICEX(TMACRO *engine) { AxisSlice(engine, 1); }
void VECTOR_STREAM_SLICEY(TMACRO *engine) { AxisSlice(engine, 2); }
void VECTOR_STREAM_SLICEZ(TMACRO *engine) { AxisSlice(engine, 3); }

void VECTOR_STREAM_SLICE_MASK(TMACRO *engine) {
    WithMask(engine, 3, [&](const STREAM_MASK &mask) {
        _VECTOR_STREAM_SLICE_MASK(Job(), GETVECTOR(engine->GETPARAMETER(1)),
                                  GETVECTOR(engine->GETPARAMETER(2)), mask);
    });
}

void VECTOR_STREAM_SLICEX_MASK(TMACRO *engine) { AxisSliceMask(engine, 1); }
void VECTOR_STREAM_SLICEY_MASK(TMACRO *engine) { AxisSliceMask(engine, 2); }
void VECTOR_STREAM_SLICEZ_MASK(TMACRO *engine) { AxisSliceMask(engine, 3); }
} // namespace morvane
