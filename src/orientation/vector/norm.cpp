#include "foundation/base/geometry.hpp"
#include "orientation/vector/vector_store.hpp"

// The norm family: every vector is replaced by a function of itself.
namespace morvane {
namespace {
// Adding 0.0 below turns a negative zero into zero: a zero vector stays zero in every byte.

// f(vector) times the store's norm length.
// Deliberate: NORM scales an integer field by 2^64, so that most components end at the limit.
template <class F> void MapScaled(T3D_VECTOR_ANALYSIS &field, F f) {
    DISPATCH(field, [&](const auto &store) {
        const NAT count = field._VOXELS();
        for (NAT offset = 0; offset < count; ++offset)
            store._PUT(offset, f(store._GET(offset)) * store.NORMFACTOR);
    });
}
} // namespace

void T3D_VECTOR_ANALYSIS::NORM() {
    MapScaled(*this, [](const VECTOR &v) { return morvane::NORM(v); });
}

void T3D_VECTOR_ANALYSIS::MINNORM() {
    MapScaled(*this, [](const VECTOR &v) { return morvane::MINNORM(v); });
}

void T3D_VECTOR_ANALYSIS::MAXNORM() {
    MapScaled(*this, [](const VECTOR &v) { return morvane::MAXNORM(v); });
}

void T3D_VECTOR_ANALYSIS::NORM_RELATIVE() {
    const REAL longest = MAX();
    MapScaled(*this, [longest](const VECTOR &v) { return RELATIVENORM(v, longest); });
}

void T3D_VECTOR_ANALYSIS::SETLENGTH(REAL length) {
    MAP_VECTORS(*this, [length](const VECTOR &v) { return morvane::NORM(v) * length + 0.0; });
}

void T3D_VECTOR_ANALYSIS::SETLENGTH_RELATIVE(REAL length) {
    const REAL longest = MAX();
    MAP_VECTORS(*this, [=](const VECTOR &v) { return RELATIVENORM(v, longest) * length + 0.0; });
}

void T3D_VECTOR_ANALYSIS::ERASELENGTH_MIN(REAL length) {
    ERASE_VECTORS(*this, [length](const VECTOR &v) { return length > GETLENGTH(v); });
}

void T3D_VECTOR_ANALYSIS::ERASELENGTH_MAX(REAL length) {
    ERASE_VECTORS(*this, [length](const VECTOR &v) { return GETLENGTH(v) > length; });
}

void T3D_VECTOR_ANALYSIS::DIRECTION() {
    DISPATCH(*this, [&](const auto &store) {
        const NAT count = _VOXELS();
        for (NAT offset = 0; offset < count; ++offset)
            if (INV(store._GET(offset), VNORM)) store._NEGATE(offset);
    });
}

void T3D_VECTOR_ANALYSIS::INVERSE() {
    if (typeTag != VECTOR_FLOAT) return;
    MAP_VECTORS(*this, [](const VECTOR &v) { return v == VZERO ? v : VNORM / v; });
}
} // namespace morvane
