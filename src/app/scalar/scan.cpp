#include "orientation/scan/scan.hpp"
#include "app/range_parameters.hpp"
#include "app/scalar/scalar_handlers.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "geometry/mapping/skeleton_trace.hpp"
#include "orientation/scan/diagnostics.hpp"
#include "orientation/scan/diagnostics_files.hpp"
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

// What a diagnostic of one voxel works on: file [radius] [point [shift]].
struct DIAGNOSIS {
    UTF16 file;
    NAT radius = 16;
    VECTORNAT voxel;
};

// False after the report. A radius is read only where the command takes one.
bool GetDiagnosis(TMACRO *engine, const char *title, bool hasRadius, DIAGNOSIS &diagnosis) {
    const NAT count = engine->PARAMETERLENGTH(), most = hasRadius ? 4 : 3;
    if (count < 1) engine->MIN_PARAMETERERROR(1);
    if (count > most) engine->MAX_PARAMETERERROR(most);
    if (count < 1 || count > most) return false;
    diagnosis.file = engine->GETPARAMETER(1);
    NAT next = 2;
    if (hasRadius && next <= count && !IsVector(engine->GETPARAMETER(next)))
        diagnosis.radius = GETNAT(engine->GETPARAMETER(next++));
    const VECTORNAT point = GETVECTORNAT(engine->GETPARAMETER_ERRORFREE(next));
    const VECTORNAT shift = GETVECTORNAT(engine->GETPARAMETER_ERRORFREE(next + 1));
    const T3D_SCALAR_ANALYSIS &field = SCALARS.CURRENT();
    // A longer line only leaves the field.
    const NAT longest = std::max({field.SIZEX(), field.SIZEY(), field.SIZEZ()});
    if (!hasRadius) diagnosis.radius = std::min(diagnosis.radius, longest);
    if (diagnosis.radius < 1 || diagnosis.radius > longest) {
        WRITELN("Wrong scan size (" + GETSTRING(diagnosis.radius) + ")!");
        return false;
    }
    diagnosis.voxel =
        SCAN_POINT(field, title, next <= count ? &point : nullptr, next < count ? &shift : nullptr);
    return true;
}
} // namespace

// diffusion.dump file [radius] [point [shift]]: radius 16 and the middle of the field by default.
void SCALAR_DIFFUSION_DUMP(TMACRO *engine) {
    DIAGNOSIS at;
    if (!GetDiagnosis(engine, "Diffusion dump at: ", true, at)) return;
    static_cast<void>(
        DIFFUSION_DUMP(SCALARS.CURRENT(), at.voxel.x, at.voxel.y, at.voxel.z, at.radius, at.file));
}

void SCALAR_DIFFUSION_MAP(TMACRO *engine) {
    DIAGNOSIS at;
    if (!GetDiagnosis(engine, "Diffusion map at: ", true, at)) return;
    static_cast<void>(SAVE_DIFFUSION_MAP(SCALARS.CURRENT(), at.voxel, at.radius, at.file));
}

void SCALAR_DIFFUSION_COLORMAP(TMACRO *engine) {
    DIAGNOSIS at;
    if (!GetDiagnosis(engine, "Diffusion colormap at: ", true, at)) return;
    static_cast<void>(SAVE_DIFFUSION_COLORMAP(SCALARS.CURRENT(), at.voxel, at.radius, at.file));
}

// diffusion.histogram and .sd file [point [shift]].
void SCALAR_DIFFUSION_HISTOGRAM(TMACRO *engine) {
    DIAGNOSIS at;
    if (!GetDiagnosis(engine, "Diffusion histogram at: ", false, at)) return;
    static_cast<void>(SAVE_DIFFUSION_HISTOGRAM(SCALARS.CURRENT(), at.voxel, at.file));
}

void SCALAR_DIFFUSION_SD(TMACRO *engine) {
    DIAGNOSIS at;
    if (!GetDiagnosis(engine, "Diffusion SD's at: ", false, at)) return;
    static_cast<void>(SAVE_DIFFUSION_SD(SCALARS.CURRENT(), at.voxel, at.file));
}

// line.skeleton [range]: every voxel above 0 belongs to the skeleton without a range.
void SCALAR_LINE_SKELETON(TMACRO *engine) {
    const T3D_SCALAR_ANALYSIS &field = SCALARS.CURRENT();
    COMPLEXNAT range{1, field.VOXELMAX()};
    if (engine->PARAMETERLENGTH() == 1) range = GETRANGE(engine->GETPARAMETER(1));
    static_cast<void>(SKELETON_TRACE(field, range, LINES.CURRENT()));
}
} // namespace morvane
