#include "foundation/base/geometry.hpp"
#include "foundation/console/console.hpp"
#include "orientation/vector/vector_store.hpp"

#include <algorithm>

// The background vector and what is measured against it; outliers.
namespace morvane {
namespace {
// "At most 2 pi", turned round, so that a vector without an angle is near too.
// Deliberate: an angle is never above pi, so every vector is near the background and cleanup
// changes nothing.
bool _IFNEAR(const VECTOR &v, const VECTOR &background) {
    return !(2 * PI < GETANGLE(v, background));
}

// The vectors of the six faces; rows inside give only their two ends.
void GetFaces(const T3D_VECTOR_ANALYSIS &field, TPOLYVECTOR &list) {
    const VECTORNAT size = field.SIZE();
    for (NAT z = 1; z <= size.z; ++z)
        for (NAT y = 1; y <= size.y; ++y) {
            const bool whole = y == 1 || z == 1 || y == size.y || z == size.z;
            const NAT step = whole ? 1 : std::max<NAT>(size.x - 1, 1);
            for (NAT x = 1; x <= size.x; x += step)
                list.PUSH(field.GET(x, y, z));
        }
}

// A total order, also when components are no numbers: those come last.
bool Below(REAL a, REAL b) { return a < b || (a == a && b != b); }
bool Ordered(const VECTOR &a, const VECTOR &b) {
    if (Below(a.x, b.x) || Below(b.x, a.x)) return Below(a.x, b.x);
    if (Below(a.y, b.y) || Below(b.y, a.y)) return Below(a.y, b.y);
    return Below(a.z, b.z);
}

// The quartile of 27 sorted values, as the typed lists take it for an odd length.
constexpr std::size_t Q1_OF_27 = 27 / 4, MEDIAN_OF_27 = 27 / 2, Q3_OF_27 = 27 / 4 * 3;

// The value of a component that replaces the centre of 27 values, or the centre itself.
REAL Repaired(std::array<REAL, 27> &values, REAL centre, REAL factor) {
    std::sort(values.begin(), values.end(), Below);
    const REAL median = values[MEDIAN_OF_27];
    const REAL reach = std::abs(values[Q1_OF_27] - values[Q3_OF_27]) * factor;
    return INTO(centre, median - reach, median + reach) ? centre : median;
}

VECTOR RepairedVoxel(const T3D_VECTOR_ANALYSIS &field, NAT x, NAT y, NAT z, REAL factor) {
    std::array<REAL, 27> partX{}, partY{}, partZ{};
    std::size_t count = 0;
    for (NAT dz = -1; dz <= 1; ++dz)
        for (NAT dy = -1; dy <= 1; ++dy)
            for (NAT dx = -1; dx <= 1; ++dx, ++count) {
                const VECTOR v = field.GET(x + dx, y + dy, z + dz);
                partX[count] = v.x;
                partY[count] = v.y;
                partZ[count] = v.z;
            }
    const VECTOR v = field.GET(x, y, z);
    return {Repaired(partX, v.x, factor), Repaired(partY, v.y, factor),
            Repaired(partZ, v.z, factor)};
}
} // namespace

void T3D_VECTOR_ANALYSIS::CLEANUP() {
    DISPATCH(*this, [&](const auto &store) {
        const NAT count = _VOXELS();
        for (NAT offset = 0; offset < count; ++offset)
            if (!_IFNEAR(store._GET(offset), BACKGROUND)) store._PUT(offset, BACKGROUND);
    });
}

void T3D_VECTOR_ANALYSIS::GETBACKGROUND() {
    if (sizeX < 1) return;
    TPOLYVECTOR faces;
    faces.INIT();
    GetFaces(*this, faces);
    if (faces.LENGTH < 1) return;
    VECTOR *first = static_cast<VECTOR *>(faces.DATA), *last = first + faces.LENGTH;
    std::sort(first, last, Ordered);
    std::ptrdiff_t most = 0;
    while (first != last) {
        VECTOR *end =
            std::find_if(first, last, [&](const VECTOR &v) { return Ordered(*first, v); });
        if (end - first > most) {
            most = end - first;
            BACKGROUND = *first;
        }
        first = end;
    }
}

NAT T3D_VECTOR_ANALYSIS::REMOVE_OUTLIERS(REAL factor) {
    if (sizeX < 3 || sizeY < 3 || sizeZ < 3) return 0;
    const UTF16 label = "  Remove outliers";
    T3D_VECTOR_ANALYSIS old;
    old.CLONE(*this);
    if (!old.ISNOTEMPTY()) return 0;
    NAT changed = 0;
    PROGRESS(label, 0);
    for (NAT z = 2; z < sizeZ; ++z) {
        for (NAT y = 2; y < sizeY; ++y)
            for (NAT x = 2; x < sizeX; ++x) {
                const VECTOR repaired = RepairedVoxel(old, x, y, z, factor);
                if (repaired == old.GET(x, y, z)) continue;
                PUT(x, y, z, repaired);
                ++changed;
            }
        PROGRESS(label, static_cast<REAL>(z) / static_cast<REAL>(sizeZ));
    }
    PROGRESS();
    return changed;
}
} // namespace morvane
