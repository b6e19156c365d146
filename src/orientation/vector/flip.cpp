#include "foundation/console/console.hpp"
#include "orientation/vector/vector_store.hpp"

#include <utility>

// Mirroring of a vector field along one axis.
namespace morvane {
namespace {
constexpr const char *LABELS[] = {"Flip x", "Flip y", "Flip z"};

template <class RECORD> void NegateAxis(RECORD &v, NAT axis) {
    auto &part = axis == 1 ? v.x : axis == 2 ? v.y : v.z;
    using PART = std::remove_reference_t<decltype(part)>;
    if constexpr (std::is_same_v<PART, NAT>)
        part = part == NATMIN ? NATMAX : -part;
    else
        part = 0 - part; // not -part: a zero vector stays zero in every byte
}

// The vectors of two voxels change places and turn over along the axis.
// Deliberate: a flip of a 24-bit field swaps the voxels but negates no component.
template <class STORE> void SwapPair(const STORE &store, NAT a, NAT b, NAT axis) {
    if constexpr (STORE::IS_BYTE) {
        std::swap(store.red[a], store.red[b]);
        std::swap(store.green[a], store.green[b]);
        std::swap(store.blue[a], store.blue[b]);
    } else {
        std::swap(store.data[a], store.data[b]);
        NegateAxis(store.data[a], axis);
        NegateAxis(store.data[b], axis);
    }
}

// One slice of a flip along x or y, or the pair of slices z and its mirror.
template <class STORE>
void FlipSlice(const T3D_VECTOR_ANALYSIS &field, const STORE &store, NAT axis, NAT z) {
    const VECTORNAT size = field.SIZE();
    const NAT lastX = axis == 1 ? size.x / 2 : size.x, lastY = axis == 2 ? size.y / 2 : size.y;
    for (NAT y = 1; y <= lastY; ++y)
        for (NAT x = 1; x <= lastX; ++x) {
            const NAT mirrorX = axis == 1 ? size.x + 1 - x : x;
            const NAT mirrorY = axis == 2 ? size.y + 1 - y : y;
            const NAT mirrorZ = axis == 3 ? size.z + 1 - z : z;
            SwapPair(store, field._OFFSET(x, y, z), field._OFFSET(mirrorX, mirrorY, mirrorZ), axis);
        }
}
} // namespace

// Deliberate: the middle plane of an odd size is not touched by a flip and keeps its signs.
void T3D_VECTOR_ANALYSIS::Flip(NAT axis) {
    if (sizeX < 1) return;
    const UTF16 label = LABELS[axis - 1];
    const NAT lastZ = axis == 3 ? sizeZ / 2 : sizeZ;
    PROGRESS(label, 0);
    DISPATCH(*this, [&](const auto &store) {
        for (NAT z = 1; z <= lastZ; ++z) {
            FlipSlice(*this, store, axis, z);
            PROGRESS(label, static_cast<REAL>(z) / static_cast<REAL>(lastZ));
        }
    });
    PROGRESS();
}

void T3D_VECTOR_ANALYSIS::FLIPX() { Flip(1); }
void T3D_VECTOR_ANALYSIS::FLIPY() { Flip(2); }
void T3D_VECTOR_ANALYSIS::FLIPZ() { Flip(3); }
} // namespace morvane
