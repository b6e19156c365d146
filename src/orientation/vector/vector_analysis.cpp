#include "orientation/vector/vector_analysis.hpp"

#include "foundation/console/console.hpp"
#include "orientation/vector/vector_store.hpp"

#include <algorithm>
#include <utility>

// Storage, frame and single voxels of a vector field.
namespace morvane {
void T3D_VECTOR_ANALYSIS::DONE() {
    floatStore.DONE();
    natStore.DONE();
    byteStore.reset();
    floats = nullptr;
    sizeX = sizeY = sizeZ = 0;
    typeTag = 0;
    frame.RESET();
    BACKGROUND = VZERO;
}

void T3D_VECTOR_ANALYSIS::INIT(BYTE tag) {
    DONE();
    if (tag != VECTOR_FLOAT && tag != VECTOR_INTEGER && tag != VECTOR_24BIT)
        return WRITELN("Unknown vectorfield!");
    typeTag = tag;
    if (tag == VECTOR_24BIT) byteStore = std::make_unique<T3DRGB>();
}

void T3D_VECTOR_ANALYSIS::INIT(BYTE tag, NAT x, NAT y, NAT z) {
    INIT(tag);
    if (typeTag == 0 || x < 1 || y < 1 || z < 1) return;
    VECTORNAT made = VZERONAT;
    if (typeTag == VECTOR_FLOAT) {
        floatStore.INIT(x, y, z);
        made = {floatStore.NX, floatStore.NY, floatStore.NZ};
        floats = made.x > 0 ? static_cast<VECTOR *>(floatStore.DATA) : nullptr;
    } else if (typeTag == VECTOR_INTEGER) {
        natStore.INIT(x, y, z);
        made = {natStore.NX, natStore.NY, natStore.NZ};
    } else {
        byteStore->INIT(x, y, z);
        made = byteStore->SIZE();
    }
    if (made.x < 1) return; // memory ran out, which the container has told
    sizeX = x;
    sizeY = y;
    sizeZ = z;
}

void T3D_VECTOR_ANALYSIS::NEW(NAT x, NAT y, NAT z) {
    if (typeTag != 0) INIT(typeTag, x, y, z);
}

void T3D_VECTOR_ANALYSIS::NEW() {
    if (typeTag != 0) INIT(typeTag);
}

void T3D_VECTOR_ANALYSIS::SWAP(T3D_VECTOR_ANALYSIS &other) {
    std::swap(frame, other.frame);
    std::swap(BACKGROUND, other.BACKGROUND);
    std::swap(floatStore, other.floatStore);
    std::swap(natStore, other.natStore);
    std::swap(byteStore, other.byteStore);
    std::swap(floats, other.floats);
    std::swap(sizeX, other.sizeX);
    std::swap(sizeY, other.sizeY);
    std::swap(sizeZ, other.sizeZ);
    std::swap(typeTag, other.typeTag);
}

void T3D_VECTOR_ANALYSIS::CLONE(const T3D_VECTOR_ANALYSIS &other) {
    if (&other == this) return;
    if (other.typeTag == 0) return DONE();
    INIT(other.typeTag, other.sizeX, other.sizeY, other.sizeZ);
    frame = other.frame;
    BACKGROUND = other.BACKGROUND;
    if (sizeX < 1) return;
    const NAT count = _VOXELS();
    if (floats)
        std::copy_n(other.floats, count, floats);
    else if (typeTag == VECTOR_INTEGER)
        natStore.REPLACE(other.natStore);
    else {
        std::copy_n(other.byteStore->red.VOXELS(), count, byteStore->red.VOXELS());
        std::copy_n(other.byteStore->green.VOXELS(), count, byteStore->green.VOXELS());
        std::copy_n(other.byteStore->blue.VOXELS(), count, byteStore->blue.VOXELS());
    }
}

void T3D_VECTOR_ANALYSIS::SETFRAME(const FRAME &value) {
    if (typeTag != 0) frame = value;
}

void T3D_VECTOR_ANALYSIS::_SETMATRIX(const MATRIX3 &value) {
    if (typeTag != 0) frame.SETMATRIX(value);
}

void T3D_VECTOR_ANALYSIS::_SETMOVE(const VECTOR &value) {
    if (typeTag != 0) frame.SETMOVE(value);
}

NAT T3D_VECTOR_ANALYSIS::COORD(REAL position, NAT axis) const {
    const NAT size = axis == 1 ? sizeX : axis == 2 ? sizeY : axis == 3 ? sizeZ : 0;
    return morvane::COORD(position, size);
}

VECTORNAT T3D_VECTOR_ANALYSIS::COORD(const VECTOR &position) const {
    return morvane::COORD(position, SIZE());
}

VECTOR T3D_VECTOR_ANALYSIS::_GETOTHER(NAT offset) const {
    return DISPATCH(*this, [&](const auto &store) { return store._GET(offset); });
}

void T3D_VECTOR_ANALYSIS::_PUTOTHER(NAT offset, const VECTOR &value) {
    DISPATCH(*this, [&](const auto &store) { store._PUT(offset, value); });
}

VECTORNAT T3D_VECTOR_ANALYSIS::GETNAT(NAT x, NAT y, NAT z) const {
    if (typeTag == VECTOR_INTEGER) return natStore.GET(x, y, z);
    return ROUND(GET(x, y, z));
}

void T3D_VECTOR_ANALYSIS::PUT(NAT x, NAT y, NAT z, const VECTORNAT &value) {
    if (typeTag == VECTOR_INTEGER)
        natStore.PUT(x, y, z, value);
    else
        PUT(x, y, z, TO_REAL(value));
}

void T3D_VECTOR_ANALYSIS::PUT(NAT x, NAT y, NAT z, BYTE component, REAL value) {
    VECTOR whole = GET(x, y, z);
    if (component == 1)
        whole.x = value;
    else if (component == 2)
        whole.y = value;
    else if (component == 3)
        whole.z = value;
    else
        return;
    // The other components of an integer store may not fit a real: only ours is rounded.
    if (typeTag == VECTOR_INTEGER)
        natStore.PUT(x, y, z, NAT{component}, ROUND(value));
    else
        PUT(x, y, z, whole);
}

void T3D_VECTOR_ANALYSIS::PUT(NAT x, NAT y, NAT z, BYTE component, NAT value) {
    if (typeTag == VECTOR_INTEGER)
        natStore.PUT(x, y, z, NAT{component}, value);
    else
        PUT(x, y, z, component, static_cast<REAL>(value));
}

void T3D_VECTOR_ANALYSIS::GETLINE(NAT x1, NAT y1, NAT z1, NAT x2, NAT y2, NAT z2,
                                  TPOLYVECTOR &list) const {
    if (typeTag == VECTOR_FLOAT) return floatStore.GETLINE(x1, y1, z1, x2, y2, z2, list);
    FIXED_WALK walk({x1, y1, z1}, {x2, y2, z2});
    const NAT steps = std::max<NAT>(walk.STEPS(), 0);
    if (list.LENGTH != steps) {
        list.DONE();
        list.INIT(steps);
    }
    for (NAT step = 1; step <= list.LENGTH && step <= steps; ++step) {
        walk.NEXT();
        const VECTORNAT point = walk.POINT();
        list._PUT(step, GET(point.x, point.y, point.z));
    }
}
} // namespace morvane
