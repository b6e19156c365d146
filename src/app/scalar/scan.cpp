#include "orientation/scan/scan.hpp"
#include "app/range_parameters.hpp"
#include "app/scalar/scalar_handlers.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "geometry/mapping/skeleton_trace.hpp"
#include "orientation/scan/diagnostics.hpp"
#include "script/workspace/setting_handlers.hpp"

#include <algorithm>

// The scan of directions, from the scalar field in use into the vector field in use.
namespace morvane {
namespace {
void Scan(TMACRO *engine, NAT factor, bool adaptive) {
    static_cast<void>(DIFFUSION_FIELD(SCALARS.CURRENT(), VECTORS.CURRENT(),
                                      GETNAT(engine->GETPARAMETER(1)), factor, adaptive,
                                      THREAD_LIMIT(engine)));
}
} // namespace

void SCALAR_DIFFUSION(TMACRO *engine) { Scan(engine, 1, false); }
void SCALAR_DIFFUSION_X2(TMACRO *engine) { Scan(engine, 2, false); }
void SCALAR_DIFFUSION_X3(TMACRO *engine) { Scan(engine, 3, false); }
void SCALAR_DIFFUSION_X4(TMACRO *engine) { Scan(engine, 4, false); }
void SCALAR_DIFFUSION_X5(TMACRO *engine) { Scan(engine, 5, false); }
void SCALAR_DIFFUSION_ADAPTIVE_X2(TMACRO *engine) { Scan(engine, 2, true); }
void SCALAR_DIFFUSION_ADAPTIVE_X3(TMACRO *engine) { Scan(engine, 3, true); }
void SCALAR_DIFFUSION_ADAPTIVE_X4(TMACRO *engine) { Scan(engine, 4, true); }
void SCALAR_DIFFUSION_ADAPTIVE_X5(TMACRO *engine) { Scan(engine, 5, true); }

namespace {
bool IsVector(const UTF16 &text) { return POS(",", text) > 0 || POS(";", text) > 0; }
} // namespace

// diffusion.dump file [radius] [point [shift]]: radius 16 and the middle of the field by default.
void SCALAR_DIFFUSION_DUMP(TMACRO *engine) {
    const NAT count = engine->PARAMETERLENGTH();
    if (count < 1) return engine->MIN_PARAMETERERROR(1);
    if (count > 4) return engine->MAX_PARAMETERERROR(4);
    NAT next = 2;
    NAT radius = 16;
    if (next <= count && !IsVector(engine->GETPARAMETER(next)))
        radius = GETNAT(engine->GETPARAMETER(next++));
    const VECTORNAT point = GETVECTORNAT(engine->GETPARAMETER_ERRORFREE(next));
    const VECTORNAT shift = GETVECTORNAT(engine->GETPARAMETER_ERRORFREE(next + 1));
    const T3D_SCALAR_ANALYSIS &field = SCALARS.CURRENT();
    // A longer line only leaves the field.
    if (radius < 1 || radius > std::max({field.SIZEX(), field.SIZEY(), field.SIZEZ()}))
        return WRITELN("Wrong scan size (" + GETSTRING(radius) + ")!");
    const VECTORNAT voxel =
        SCAN_POINT(field, "Diffusion dump at: ", next <= count ? &point : nullptr,
                   next < count ? &shift : nullptr);
    static_cast<void>(
        DIFFUSION_DUMP(field, voxel.x, voxel.y, voxel.z, radius, engine->GETPARAMETER(1)));
}

// line.skeleton [range]: every voxel above 0 belongs to the skeleton without a range.
void SCALAR_LINE_SKELETON(TMACRO *engine) {
    const T3D_SCALAR_ANALYSIS &field = SCALARS.CURRENT();
    COMPLEXNAT range{1, field.VOXELMAX()};
    if (engine->PARAMETERLENGTH() == 1) range = GETRANGE(engine->GETPARAMETER(1));
    static_cast<void>(SKELETON_TRACE(field, range, LINES.CURRENT()));
}
} // namespace morvane
