#include "orientation/vector/vector_copy.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/console/console.hpp"
#include "orientation/vector/vector_box.hpp"
#include "orientation/vector/vector_store.hpp"

#include <algorithm>

// Copies of the same resolution: whole fields, boxes, moves and new fields on a given grid.
namespace morvane {
bool PREPARE_TARGET(T3D_VECTOR_ANALYSIS &target, const VECTORNAT &size) {
    target.NEW(size.x, size.y, size.z);
    if (target.ISNOTEMPTY()) return true;
    WRITELN("Error! Empty vectorfield (result)!");
    return false;
}

bool CHECK_SOURCE(const T3D_VECTOR_ANALYSIS &source) {
    if (source.ISNOTEMPTY()) return true;
    WRITELN("Error! Empty vectorfield!");
    return false;
}

void COPY_BOX(const T3D_VECTOR_ANALYSIS &source, const VECTORNAT &a, const VECTORNAT &b,
              T3D_VECTOR_ANALYSIS &target, const VECTORNAT &to) {
    const bool whole =
        source._GETID() == VECTOR_INTEGER && target._GETID() == VECTOR_INTEGER; // exact above 2^53
    for (NAT z = a.z; z <= b.z; ++z)
        for (NAT y = a.y; y <= b.y; ++y) {
            const NAT targetY = to.y + y - a.y, targetZ = to.z + z - a.z, shift = to.x - a.x;
            if (whole)
                for (NAT x = a.x; x <= b.x; ++x)
                    target.PUT(x + shift, targetY, targetZ, source.GETNAT(x, y, z));
            else
                for (NAT x = a.x; x <= b.x; ++x)
                    target.PUT(x + shift, targetY, targetZ, source.GET(x, y, z));
        }
}

namespace {
// The box as a field of its own: the frame moves so that global positions stay.
bool CutBox(const T3D_VECTOR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target, const VECTORNAT &a,
            const VECTORNAT &b) {
    FRAME frame = source.GETFRAME();
    frame.SETMOVE(frame.L2G(TO_REAL(a)));
    if (!PREPARE_TARGET(target, b - a + 1)) return false;
    target.SETFRAME(frame);
    COPY_BOX(source, a, b, target, VNORMNAT);
    return true;
}

bool CropBox(const T3D_VECTOR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target, const VECTORNAT &a,
             const VECTORNAT &b) {
    WRITELN("  New size: " + GETSTRING(a) + " .. " + GETSTRING(b) + " -> " + GETSTRING(b - a + 1));
    return CutBox(source, target, a, b);
}
} // namespace

bool COPY(const T3D_VECTOR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target) {
    if (!CHECK_SOURCE(source)) return false;
    if (!CutBox(source, target, VNORMNAT, source.SIZE())) return false;
    target.SETFRAME(source.GETFRAME());
    target.BACKGROUND = source.BACKGROUND;
    return true;
}

bool SUBSTACK(const T3D_VECTOR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target, const VECTOR &a,
              const VECTOR &b) {
    if (!CHECK_SOURCE(source)) return false;
    const VECTORNAT first = source.COORD(a), last = source.COORD(b);
    const VECTORNAT low = MIN(first, last), high = MAX(first, last);
    WRITELN("  New substack:  () " + GETSTRING(low) + "–" + GETSTRING(high) + " -> " +
            GETSTRING(high - low + 1));
    return CutBox(source, target, MAX(low, VNORMNAT), MAX(high, VNORMNAT));
}

bool CROP(const T3D_VECTOR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target, RANGE range) {
    if (!CHECK_SOURCE(source)) return false;
    VECTORNAT a, b;
    if (source.GETCROP(range, a, b)) return CropBox(source, target, a, b);
    WRITELN("  No vector has a length in the range!");
    return false;
}

bool CROP(const T3D_VECTOR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target,
          const T3D_SCALAR_ANALYSIS &mask, RANGENAT range) {
    if (!CHECK_SOURCE(source)) return false;
    const VECTORNAT size = MIN(source.SIZE(), mask.SIZE());
    VECTORNAT low = size, high = VZERONAT;
    for (NAT z = 1; z <= size.z; ++z)
        for (NAT y = 1; y <= size.y; ++y)
            for (NAT x = 1; x <= size.x; ++x) {
                if (!INTO(mask.GET(x, y, z), range.min, range.max)) continue;
                low = MIN(low, VECTORNAT{x, y, z});
                high = MAX(high, VECTORNAT{x, y, z});
            }
    if (high.x > 0) return CropBox(source, target, low, high);
    WRITELN("  No voxel of the mask has a value in the range!");
    return false;
}

void MOVE(T3D_VECTOR_ANALYSIS &field, const VECTOR &a, const VECTOR &b, const VECTORNAT &shift) {
    if (!field.ISNOTEMPTY()) return;
    const VECTORNAT first = field.COORD(a), last = field.COORD(b);
    const VECTORNAT low = MAX(MIN(first, last), VNORMNAT), high = MAX(MAX(first, last), VNORMNAT);
    T3D_VECTOR_ANALYSIS box(field._GETID());
    if (!PREPARE_TARGET(box, high - low + 1)) return;
    COPY_BOX(field, low, high, box, VNORMNAT);
    // A shift beyond the field writes nothing; limited, it can't overflow.
    const VECTORNAT size = field.SIZE();
    const VECTORNAT reach{LIMIT(shift.x, -size.x, size.x), LIMIT(shift.y, -size.y, size.y),
                          LIMIT(shift.z, -size.z, size.z)};
    COPY_BOX(box, VNORMNAT, box.SIZE(), field, low + reach);
}

bool MAKE(const T3D_VECTOR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target) {
    if (!CHECK_SOURCE(source) || !PREPARE_TARGET(target, source.SIZE())) return false;
    target.SETFRAME(source.GETFRAME());
    return true;
}

bool MAKE(const T3D_SCALAR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target) {
    if (!source.ISNOTEMPTY() || !PREPARE_TARGET(target, source.SIZE())) return false;
    target.SETFRAME(source.GETFRAME());
    return true;
}

bool MAKE(const T3D_VECTOR_ANALYSIS &source, T3D_SCALAR_ANALYSIS &target) {
    if (!CHECK_SOURCE(source)) return false;
    const VECTORNAT size = source.SIZE();
    target.NEW(size.x, size.y, size.z);
    target.SETFRAME(source.GETFRAME());
    return target.ISNOTEMPTY();
}
} // namespace morvane
