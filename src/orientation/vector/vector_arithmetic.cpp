#include "orientation/vector/vector_arithmetic.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/console/console.hpp"
#include "orientation/vector/vector_box.hpp"
#include "orientation/vector/vector_store.hpp"

// Vector fields with constants, with each other and with masks.
namespace morvane {
namespace {
bool Prepare(T3D_VECTOR_ANALYSIS &target, const VECTORNAT &size, const FRAME &frame) {
    if (target.ISNOTEMPTY()) {
        WRITELN("Attention, target vector field seems not to be empty!");
        return true;
    }
    if (!PREPARE_TARGET(target, size)) return false;
    target.SETFRAME(frame);
    return true;
}

// Every voxel of the target becomes f(x, y, z).
template <class F> void Fill(T3D_VECTOR_ANALYSIS &target, const UTF16 &label, F f) {
    const VECTORNAT size = target.SIZE();
    PROGRESS(label, 0);
    for (NAT z = 1; z <= size.z; ++z) {
        for (NAT y = 1; y <= size.y; ++y)
            for (NAT x = 1; x <= size.x; ++x)
                target.PUT(x, y, z, f(x, y, z));
        PROGRESS(label, static_cast<REAL>(z) / static_cast<REAL>(size.z));
    }
    PROGRESS();
}

template <class F>
bool Combine(T3D_VECTOR_ANALYSIS &target, const T3D_VECTOR_ANALYSIS &a,
             const T3D_VECTOR_ANALYSIS &b, const UTF16 &label, F f) {
    if (!CHECK_SOURCE(a) || !CHECK_SOURCE(b)) return false;
    if (!Prepare(target, MAX(a.SIZE(), b.SIZE()), a.GETFRAME())) return false;
    Fill(target, label, [&](NAT x, NAT y, NAT z) { return f(a.GET(x, y, z), b.GET(x, y, z)); });
    return true;
}
} // namespace

void ADD(T3D_VECTOR_ANALYSIS &field, const VECTOR &value) {
    MAP_VECTORS(field, [&](const VECTOR &v) { return v + value; });
}

void MUL(T3D_VECTOR_ANALYSIS &field, const VECTOR &value) {
    // Adding 0.0 turns a negative zero into zero: a zero vector stays zero in every byte.
    MAP_VECTORS(field, [&](const VECTOR &v) { return v * value + 0.0; });
}

bool ADD(T3D_VECTOR_ANALYSIS &target, const T3D_VECTOR_ANALYSIS &a, const T3D_VECTOR_ANALYSIS &b) {
    return Combine(target, a, b, "  Summation",
                   [](const VECTOR &v, const VECTOR &w) { return v + w; });
}

bool SUB(T3D_VECTOR_ANALYSIS &target, const T3D_VECTOR_ANALYSIS &a, const T3D_VECTOR_ANALYSIS &b) {
    return Combine(target, a, b, "  Subtraction",
                   [](const VECTOR &v, const VECTOR &w) { return v - w; });
}

bool MEAN(T3D_VECTOR_ANALYSIS &target, const T3D_VECTOR_ANALYSIS &a, const T3D_VECTOR_ANALYSIS &b) {
    return Combine(target, a, b, "  Averaging",
                   [](const VECTOR &v, const VECTOR &w) { return (v + w) / 2.0; });
}

bool MASK(T3D_VECTOR_ANALYSIS &target, const T3D_VECTOR_ANALYSIS &source,
          const T3D_SCALAR_ANALYSIS &mask, const TPOLYNAT &values) {
    if (!CHECK_SOURCE(source) || !Prepare(target, source.SIZE(), source.GETFRAME())) return false;
    Fill(target, "  Masking", [&](NAT x, NAT y, NAT z) {
        return values.SEARCH(mask.GET(x, y, z)) > 0 ? source.GET(x, y, z) : VZERO;
    });
    return true;
}
} // namespace morvane
