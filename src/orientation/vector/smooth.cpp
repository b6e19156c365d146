#include "foundation/container/matrix.hpp"
#include "foundation/thread/run_slices.hpp"
#include "orientation/vector/vector_store.hpp"

// The 3 x 3 x 3 means. Three planes are added first, then the rows of that sum, so a voxel costs
// some twelve additions; the order is the same for every voxel and every thread.
namespace morvane {
namespace {
const char *LabelOf(VECTOR_SMOOTHING kind) {
    if (kind == VECTOR_SMOOTHING::SOFT) return "  Softsmooth";
    return kind == VECTOR_SMOOTHING::HARD ? "  Hardsmooth" : "  Smooth";
}

VECTOR Added(const VECTOR &a, const VECTOR &b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }

// (x, y) of slices z-1, z and z+1 added, at (x + 1, y + 1) of a matrix with a rim of zeros.
template <class STORE>
void AddPlanes(const T3D_VECTOR_ANALYSIS &field, const STORE &store, NAT z, TMATRIXVECTOR &sum) {
    const VECTORNAT size = field.SIZE();
    const NAT plane = size.x * size.y;
    for (NAT y = 1; y <= size.y; ++y)
        for (NAT x = 1; x <= size.x; ++x) {
            const NAT offset = field._OFFSET(x, y, z);
            VECTOR v = z > 1 ? store._GET(offset - plane) : VZERO;
            v = Added(v, store._GET(offset));
            if (z < size.z) v = Added(v, store._GET(offset + plane));
            sum._PUT(x + 1, y + 1, v);
        }
}

template <class STORE>
VECTOR EndsOf(const T3D_VECTOR_ANALYSIS &field, const STORE &store, NAT offset, NAT z) {
    const NAT plane = field._GETSIZEX() * field._GETSIZEY();
    const VECTOR below = z > 1 ? store._GET(offset - plane) : VZERO;
    return z < field._GETSIZEZ() ? Added(below, store._GET(offset + plane)) : below;
}

// The three entries of a row around x, which counts from the rim.
VECTOR RowOf(const TMATRIXVECTOR &sum, NAT x, NAT y) {
    return Added(Added(sum._GET(x - 1, y), sum._GET(x, y)), sum._GET(x + 1, y));
}

template <class STORE>
VECTOR Smoothed(const T3D_VECTOR_ANALYSIS &field, const STORE &store, const TMATRIXVECTOR &sum,
                VECTOR_SMOOTHING kind, const VECTORNAT &p) {
    const NAT x = p.x + 1, y = p.y + 1; // in the matrix with its rim
    const VECTOR before = RowOf(sum, x, y - 1), behind = RowOf(sum, x, y + 1);
    if (kind == VECTOR_SMOOTHING::PLAIN)
        return Added(Added(before, RowOf(sum, x, y)), behind) / 27.0;
    const NAT offset = field._OFFSET(p.x, p.y, p.z);
    const VECTOR sides = Added(sum._GET(x - 1, y), sum._GET(x + 1, y));
    const VECTOR around =
        Added(Added(Added(before, sides), behind), EndsOf(field, store, offset, p.z));
    if (kind == VECTOR_SMOOTHING::HARD) return around / 26.0;
    return Added(store._GET(offset), around / 26.0) / 2.0;
}
} // namespace

void T3D_VECTOR_ANALYSIS::SMOOTH(NAT z, VECTOR_SMOOTHING kind, TSPACEVECTOR &target) const {
    if (z < 1 || z > sizeZ || target.NX != sizeX || target.NY != sizeY || target.NZ != sizeZ)
        return;
    TMATRIXVECTOR sum(sizeX + 2, sizeY + 2);
    if (sum.WIDTH < 1) return;
    DISPATCH(*this, [&](const auto &store) {
        AddPlanes(*this, store, z, sum);
        for (NAT y = 1; y <= sizeY; ++y)
            for (NAT x = 1; x <= sizeX; ++x)
                target._PUT(x, y, z, Smoothed(*this, store, sum, kind, {x, y, z}));
    });
}

void T3D_VECTOR_ANALYSIS::PutBack(TSPACEVECTOR &source) {
    if (typeTag == VECTOR_FLOAT) {
        if (floatStore.SWAP(source)) floats = static_cast<VECTOR *>(floatStore.DATA);
        return;
    }
    const VECTOR *from = static_cast<const VECTOR *>(source.DATA);
    NAT offset = 0;
    MAP_VECTORS(*this, [&](const VECTOR &) { return from[offset++]; });
}

void T3D_VECTOR_ANALYSIS::Smooth(VECTOR_SMOOTHING kind, NAT count, NAT threadLimit) {
    if (sizeX < 1) return;
    TSPACEVECTOR next;
    for (NAT pass = 1; pass <= count; ++pass) {
        if (pass == 1) next.INIT(sizeX, sizeY, sizeZ);
        if (next.NX != sizeX) return; // memory ran out, which the container has told
        RUN_SLICES(LabelOf(kind), 1, sizeZ, threadLimit, [&](NAT z) { SMOOTH(z, kind, next); });
        PutBack(next);
    }
}

void T3D_VECTOR_ANALYSIS::SOFTSMOOTH(NAT count, NAT threadLimit) {
    Smooth(VECTOR_SMOOTHING::SOFT, count, threadLimit);
}
void T3D_VECTOR_ANALYSIS::SMOOTH(NAT count, NAT threadLimit) {
    Smooth(VECTOR_SMOOTHING::PLAIN, count, threadLimit);
}
void T3D_VECTOR_ANALYSIS::HARDSMOOTH(NAT count, NAT threadLimit) {
    Smooth(VECTOR_SMOOTHING::HARD, count, threadLimit);
}
} // namespace morvane
