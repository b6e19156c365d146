#include "field3d/field/scalar_analysis.hpp"
#include "foundation/base/matrix3.hpp"
#include "foundation/base/record_operators.hpp"
#include "foundation/console/console.hpp"
#include "foundation/thread/run_slices.hpp"
#include "orientation/scan/scan.hpp"
#include "orientation/scan/scan_slice.hpp"
#include "orientation/vector/vector_analysis.hpp"

namespace morvane {
namespace {
bool IsLengthRight(const VECTORNAT &size, NAT r) {
    return r >= 1 && r <= 65535 && size.x > 2 * r && size.y > 2 * r && size.z > 2 * r;
}

// False when memory runs out, which the field has told.
// Deliberate: a reduced field fits only when its size times the factor is the scalar's, so with a
// rest it is made anew each time.
bool AssignField(const VECTORNAT &size, T3D_VECTOR_ANALYSIS &field, NAT factor) {
    if (field.SIZE() * factor == size) return true;
    const VECTORNAT cells = DIV(size, factor);
    field.NEW(cells.x, cells.y, cells.z);
    if (!field.ISNOTEMPTY() && cells.x > 0 && cells.y > 0 && cells.z > 0) return false;
    WRITELN("  Assigned vector field (" + GETSTRING(cells.x) + "x" + GETSTRING(cells.y) + "x" +
            GETSTRING(cells.z) + ") updated.");
    return true;
}

void AssignFrame(const T3D_SCALAR_ANALYSIS &scalar, T3D_VECTOR_ANALYSIS &field, NAT factor) {
    FRAME frame = scalar.GETFRAME();
    if (factor > 1) {
        MATRIX3 matrix = frame.MATRIX();
        for (VECTOR &row : matrix.rows)
            row = row * static_cast<REAL>(factor);
        frame.SETMATRIX(matrix);
    }
    field.SETFRAME(frame);
}

void WriteMethod(const SCAN_SETTINGS &settings, NAT r) {
    const UTF16 share = GETSTRING(settings.max * 100, 2) + " %";
    const UTF16 cone = GETSTRING(settings.angle * 180 / PI, 2) + "°), only for " + share;
    switch (settings.method) {
    case SCAN_METHOD::BRENK2013: return WRITELN("Method: brenk2013 = only the single best vector");
    case SCAN_METHOD::BRENK2014A:
        return WRITELN("Method: brenk2014a = mean the two best vectors, if distance < " +
                       GETSTRING(static_cast<REAL>(r) * 0.5));
    case SCAN_METHOD::BRENK2014B:
        return WRITELN("Method: brenk2014b = mean (same SD) best vectors, only for " + share);
    case SCAN_METHOD::BRENK2015A:
        return WRITELN("Method: brenk2015a = mean (same SD) best vectors (around " + cone);
    case SCAN_METHOD::BRENK2019:
        return WRITELN("Method: brenk2019 = mean (same SD) best vectors (around " + cone);
    default: return WRITELN("Method: brenk2015b = mean the best vectors (around " + cone);
    }
}
} // namespace

bool DIFFUSION_FIELD(const T3D_SCALAR_ANALYSIS &scalar, T3D_VECTOR_ANALYSIS &field, NAT r,
                     NAT factor, bool adaptive, NAT threadLimit) {
    const VECTORNAT size = scalar.SIZE();
    if (!IsLengthRight(size, r)) {
        WRITELN("Wrong scan size (" + GETSTRING(r) + ")!");
        return false;
    }
    if (!AssignField(size, field, factor)) return false;
    AssignFrame(scalar, field, factor);
    const SCAN_PLAN plan(GETSETTINGS(scalar), r, factor, size.x / factor);
    WriteMethod(plan.settings, r);
    const SCAN_SLICE slice{plan, GETVOLUME(scalar), field};
    RUN_SLICES("  Calculate vectorfield", 1, size.z / factor, threadLimit, [&](NAT k) {
        if (adaptive)
            slice.RUN_ADAPTIVE(k * factor);
        else
            slice.RUN(k * factor);
    });
    return true;
}
} // namespace morvane
