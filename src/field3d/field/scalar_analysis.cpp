#include "field3d/field/scalar_analysis.hpp"

#include "field3d/raster/values.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/console.hpp"
#include "foundation/container/space.hpp"

#include <algorithm>

namespace morvane {
namespace {
template <class RASTER_TYPE> using VOXEL_OF = typename std::remove_cvref_t<RASTER_TYPE>::TYPE;

template <class VOXEL> NAT BITS_OF(const RASTER<VOXEL> &) { return VOXEL_KIND<VOXEL>::BITS; }
template <class VOXEL> NAT MAXIMUM_OF(const RASTER<VOXEL> &) { return VOXEL_KIND<VOXEL>::MAXIMUM; }

// A number as a voxel: limited to the range; one bit is set from 1 on.
template <class RASTER_TYPE> auto VOXEL_FROM(const RASTER_TYPE &, NAT value) {
    return static_cast<VOXEL_OF<RASTER_TYPE>>(LIMIT(value, NAT{0}, RASTER_TYPE::KIND::MAXIMUM));
}
} // namespace

T3D_SCALAR_ANALYSIS::T3D_SCALAR_ANALYSIS() = default;

void T3D_SCALAR_ANALYSIS::Default() {
    loadFilterOffset = loadFilterFactor = 0;
    copyMethod = 1;
    subMethod = 2;
    diffusionMethod = connectionMethod = 0;
    fullScan = false;
    diffusionAngle = GETRAD(5);
    diffusionMax = 0.25;
    fileName = UTF16CHARS7();
}

bool T3D_SCALAR_ANALYSIS::Construct(BYTE tag, NAT x, NAT y, NAT z) {
    _PREDONE();
    Default();
    switch (tag) {
    case TAG_MONO: owned.emplace<T3DMONO>(); break;
    case TAG_GRAY: owned.emplace<T3DGRAY>(); break;
    case TAG_FULLGRAY: owned.emplace<T3DFULLGRAY>(); break;
    default: WRITELN("Unknown imagefield!"); return false;
    }
    active = &owned;
    _DISPATCH([&](auto &raster) { raster.INIT(x, y, z); });
    return true;
}

void T3D_SCALAR_ANALYSIS::INIT(BYTE tag) { Construct(tag, 0, 0, 0); }

void T3D_SCALAR_ANALYSIS::INIT(BYTE tag, NAT x, NAT y, NAT z) {
    const bool isSize = x > 0 && y > 0 && z > 0;
    Construct(isSize ? tag : BYTE{0}, x, y, z);
}

void T3D_SCALAR_ANALYSIS::NEW() { INIT(_GETID()); }

void T3D_SCALAR_ANALYSIS::NEW(NAT x, NAT y, NAT z) {
    if (x < 1 || y < 1 || z < 1) return NEW();
    INIT(_GETID(), x, y, z);
}

void T3D_SCALAR_ANALYSIS::_PREDONE() {
    if (active == &owned) _DISPATCH([](auto &raster) { raster.DONE(); });
    active = nullptr;
    labels.DONE();
}

void T3D_SCALAR_ANALYSIS::DONE() {
    _PREDONE();
    owned.emplace<std::monostate>();
}

void T3D_SCALAR_ANALYSIS::BORROW(T3D_SCALAR_ANALYSIS &owner) {
    if (&owner == this) return;
    DONE();
    active = owner.active;
}

void T3D_SCALAR_ANALYSIS::CLONE(const T3D_SCALAR_ANALYSIS *other) {
    if (other == this) return;
    if (!other) return INIT(_GETID());
    const BYTE tag = other->_GETID() != 0 ? other->_GETID() : _GETID();
    Construct(tag, other->SIZEX(), other->SIZEY(), other->SIZEZ());
    _DISPATCH([&](auto &target) {
        using RASTER_TYPE = std::remove_cvref_t<decltype(target)>;
        const auto *source = other->active ? std::get_if<RASTER_TYPE>(other->active) : nullptr;
        if (!source) return;
        target.frame = source->frame;
        if (!target.EMPTY() && target.ELEMENTS() == source->ELEMENTS())
            std::copy_n(source->VOXELS(), source->ELEMENTS(), target.VOXELS());
    });
    LABELS_CLONE(*other);
    fileName = other->fileName;
    loadFilterOffset = other->loadFilterOffset;
    loadFilterFactor = other->loadFilterFactor;
    copyMethod = other->copyMethod;
    subMethod = other->subMethod;
    fullScan = other->fullScan;
    diffusionMethod = other->diffusionMethod;
    connectionMethod = other->connectionMethod;
    diffusionAngle = other->diffusionAngle;
    diffusionMax = other->diffusionMax;
}

NAT T3D_SCALAR_ANALYSIS::BITS() const {
    return _DISPATCH([](const auto &raster) { return BITS_OF(raster); });
}

NAT T3D_SCALAR_ANALYSIS::VOXELMAX() const {
    return _DISPATCH([](const auto &raster) { return MAXIMUM_OF(raster); });
}

VECTORNAT T3D_SCALAR_ANALYSIS::SIZE() const {
    return _DISPATCH([](const auto &raster) { return raster.SIZE(); });
}

NAT T3D_SCALAR_ANALYSIS::BACKGROUND() const {
    return _DISPATCH([](const auto &raster) -> NAT { return raster.BACKGROUND; });
}

void T3D_SCALAR_ANALYSIS::PUTBACKGROUND(REAL value) {
    _DISPATCH([&](auto &raster) { raster.BACKGROUND = VOXEL_FROM(raster, PropertyOf(value)); });
}

NAT T3D_SCALAR_ANALYSIS::VALUE() const {
    return _DISPATCH([](const auto &raster) -> NAT { return raster.VALUE; });
}

void T3D_SCALAR_ANALYSIS::PUTVALUE(REAL value) {
    _DISPATCH([&](auto &raster) { raster.VALUE = VOXEL_FROM(raster, PropertyOf(value)); });
}

// One bit is set by anything above 0, wider voxels by the rounded number.
NAT T3D_SCALAR_ANALYSIS::PropertyOf(REAL value) const {
    return _GETID() == TAG_MONO ? NAT{value > 0} : ROUND(value);
}

const FRAME &T3D_SCALAR_ANALYSIS::GETFRAME() const {
    static const FRAME none;
    const FRAME *frame = _DISPATCH([](const auto &raster) { return &raster.frame; });
    return frame ? *frame : none;
}

void T3D_SCALAR_ANALYSIS::SETFRAME(const FRAME &value) {
    _DISPATCH([&](auto &raster) { raster.frame = value; });
}

void T3D_SCALAR_ANALYSIS::_SETMATRIX(const MATRIX3 &value) {
    _DISPATCH([&](auto &raster) { raster.frame.SETMATRIX(value); });
}

void T3D_SCALAR_ANALYSIS::_SETMOVE(const VECTOR &value) {
    _DISPATCH([&](auto &raster) { raster.frame.SETMOVE(value); });
}

NAT T3D_SCALAR_ANALYSIS::COORD(REAL position, NAT axis) const {
    const VECTORNAT size = SIZE();
    return morvane::COORD(position, axis == 1 ? size.x : axis == 2 ? size.y : size.z);
}

VECTORNAT T3D_SCALAR_ANALYSIS::COORD(const VECTOR &position) const {
    return morvane::COORD(position, SIZE());
}

NAT T3D_SCALAR_ANALYSIS::GET(NAT x, NAT y, NAT z) const {
    return _DISPATCH([&](const auto &raster) -> NAT { return raster.GET(x, y, z); });
}

void T3D_SCALAR_ANALYSIS::PutNat(NAT x, NAT y, NAT z, NAT value) {
    _DISPATCH([&](auto &raster) { raster.PUT(x, y, z, VOXEL_FROM(raster, value)); });
}

void T3D_SCALAR_ANALYSIS::PutReal(NAT x, NAT y, NAT z, REAL value) {
    const bool bit = _GETID() == TAG_MONO;
    PutNat(x, y, z, bit ? NAT{value >= 1} : ROUND(value));
}

void T3D_SCALAR_ANALYSIS::PUT(NAT x, NAT y, NAT z) {
    _DISPATCH([&](auto &raster) { raster.PUT(x, y, z); });
}

// Deliberate: a point between voxels gives the nearest voxel, nothing is interpolated.
NAT T3D_SCALAR_ANALYSIS::GET_TRILINEAR(const VECTOR &global) const {
    return _DISPATCH([&](const auto &raster) -> NAT {
        const VECTORNAT p = raster.frame.G2L_ROUND(global);
        return raster.GET(p.x, p.y, p.z);
    });
}

void T3D_SCALAR_ANALYSIS::GETLINE(NAT x1, NAT y1, NAT z1, NAT x2, NAT y2, NAT z2,
                                  TPOLYNAT &line) const {
    FIXED_WALK walk({x1, y1, z1}, {x2, y2, z2});
    if (line.LENGTH != walk.STEPS()) line.NEWLENGTH(walk.STEPS());
    const NAT length = std::min(line.LENGTH, walk.STEPS());
    _DISPATCH([&](const auto &raster) {
        for (NAT i = 1; i <= length; ++i) {
            walk.NEXT();
            const VECTORNAT p = walk.POINT();
            line._PUT(i, raster.GET(p.x, p.y, p.z));
        }
    });
}
} // namespace morvane
