#include "field3d/field/scalar_analysis.hpp"
#include "foundation/base/matrix3.hpp"
#include "foundation/base/record_operators.hpp"
#include "foundation/console/console.hpp"
#include "foundation/thread/run_slices.hpp"
#include "orientation/scan/scan.hpp"
#include "orientation/scan/scan_messages.hpp"
#include "orientation/scan/scan_slice.hpp"
#include "orientation/vector/vector_analysis.hpp"

#include <algorithm>

namespace morvane {
namespace {
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
} // namespace

bool DIFFUSION_FIELD(const T3D_SCALAR_ANALYSIS &scalar, T3D_VECTOR_ANALYSIS &field, NAT r,
                     NAT factor, bool adaptive, NAT threadLimit) {
    const VECTORNAT size = scalar.SIZE();
    if (!IS_SCAN_LENGTH(r, std::min({size.x, size.y, size.z}))) return false;
    if (!AssignField(size, field, factor)) return false;
    AssignFrame(scalar, field, factor);
    const SCAN_PLAN plan(GETSETTINGS(scalar), r, factor, size.x / factor);
    WRITE_SCAN_METHOD(plan.settings, r);
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
