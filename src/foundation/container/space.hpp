#pragma once

#include "foundation/container/poly_types.hpp"

namespace morvane {
// A point that walks from one voxel to another in fixed point with 16 fraction bits.
class FIXED_WALK {
public:
    FIXED_WALK(VECTORNAT from, VECTORNAT to);
    NAT STEPS() const { return steps; } // the rounded distance
    void NEXT();                        // one step on
    VECTORNAT POINT() const { return {position.x >> 16, position.y >> 16, position.z >> 16}; }

private:
    NAT steps;
    VECTORNAT position, step;
};

// NX*NY*NZ, or NATMAX when the product is out of range; 0 for a side below 1.
NAT VOXEL_COUNT(NAT nx, NAT ny, NAT nz);

// A list seen as voxels; (x, y, z) from 1 is position x + (y-1)*NX + (z-1)*NX*NY.
template <class T, char CODE> class TSPACE_OF : public TPOLY_OF<T> {
    using LIST = TPOLY_OF<T>;

public:
    T DEFAULT{}; // what a read outside the field gives
    T WRITE{};
    NAT NX = 0, NY = 0, NZ = 0;

    TSPACE_OF() = default;
    TSPACE_OF(NAT nx, NAT ny, NAT nz) { INIT(nx, ny, nz); }
    TSPACE_OF(TSPACE_OF &&other) noexcept { *this = std::move(other); }
    TSPACE_OF &operator=(TSPACE_OF &&other) noexcept;

    void INIT();                       // dynamic, dimensions 0
    void INIT(NAT nx, NAT ny, NAT nz); // static; on failure all dimensions are 0
    void DONE();

    bool INTO(NAT x, NAT y, NAT z) const {
        return x >= 1 && y >= 1 && z >= 1 && x <= NX && y <= NY && z <= NZ;
    }
    NAT POSITION(NAT x, NAT y, NAT z) const { return x + (y - 1) * NX + (z - 1) * NX * NY; }
    using LIST::_GET;
    using LIST::_PUT;
    using LIST::GET;
    T GET(NAT x, NAT y, NAT z) const { return INTO(x, y, z) ? _GET(x, y, z) : DEFAULT; }
    T _GET(NAT x, NAT y, NAT z) const { return LIST::_GET(POSITION(x, y, z)); }
    void PUT(NAT x, NAT y, NAT z, const T &value); // ignored outside
    void _PUT(NAT x, NAT y, NAT z, const T &value) { LIST::_PUT(POSITION(x, y, z), value); }
    void PUTINDEX(NAT index, const T &value) { LIST::PUT(index, value); } // linear position
    void FILL(const T &value);
    void INVERT(); // complements every bit of every element

    // Sets component 1, 2 or 3 of an element; other parts do nothing.
    template <class X> void PUT(NAT x, NAT y, NAT z, NAT part, X value) requires SPACE_RECORD<T>;
    // The n elements behind each of the n steps from the first to the second point, n the rounded
    // distance; entry n/2 is the middle. The walk ends slightly short of the far point.
    void GETLINE(NAT x1, NAT y1, NAT z1, NAT x2, NAT y2, NAT z2,
                 LIST &list) const requires SPACE_RECORD<T>;
    NAT COUNT(REAL low, REAL high) const requires SPACE_RECORD<T>; // length in low..high
    NAT COUNT(const T &value) const requires SPACE_RECORD<T>;      // equal elements
};

using TSPACENAT = TSPACE_OF<NAT, 'R'>;
using TSPACEWORD = TSPACE_OF<WORD, 'S'>;
using TSPACEBYTE = TSPACE_OF<BYTE, 'T'>;
using TSPACEVECTOR = TSPACE_OF<VECTOR, 'X'>;
using TSPACEVECTORNAT = TSPACE_OF<VECTORNAT, 'Y'>;

// A mask of voxels, one bit each. The 1-based position of a voxel is used as it is as a position
// of the list that counts from 0: bit 0 stays free, and GET of the last voxel reads DEFAULT.
class TSPACEBOOL : public TPOLYBOOL {
public:
    NAT NX = 0, NY = 0, NZ = 0;

    TSPACEBOOL() = default;
    TSPACEBOOL(NAT nx, NAT ny, NAT nz) { INIT(nx, ny, nz); }
    TSPACEBOOL(TSPACEBOOL &&other) noexcept { *this = std::move(other); }
    TSPACEBOOL &operator=(TSPACEBOOL &&other) noexcept;

    void INIT();
    void INIT(NAT nx, NAT ny, NAT nz); // static, all false when it had another count of voxels
    void DONE();

    bool INTO(NAT x, NAT y, NAT z) const {
        return x >= 1 && y >= 1 && z >= 1 && x <= NX && y <= NY && z <= NZ;
    }
    NAT POSITION(NAT x, NAT y, NAT z) const { return x + (y - 1) * NX + (z - 1) * NX * NY; }
    bool GET(NAT x, NAT y, NAT z) const {
        return INTO(x, y, z) ? TPOLYBOOL::GET(POSITION(x, y, z)) : DEFAULT;
    }
    bool GET(const VECTORNAT &point) const { return GET(point.x, point.y, point.z); }
    bool _GET(NAT x, NAT y, NAT z) const { return TPOLYBOOL::_GET(POSITION(x, y, z)); }
    void PUT(NAT x, NAT y, NAT z, bool value); // ignored outside
    void PUT(const VECTORNAT &point, bool value) { PUT(point.x, point.y, point.z, value); }
    void _PUT(NAT x, NAT y, NAT z, bool value) { TPOLYBOOL::_PUT(POSITION(x, y, z), value); }
    void PUTINDEX(NAT index, bool value) { TPOLYBOOL::PUT(index, value); }
    void FILL(bool value);
    void INVERT();
    // Both ends and every step between; the walk ends slightly short of the far point.
    void LINE(const VECTORNAT &from, const VECTORNAT &to, bool value);
};
} // namespace morvane

#include "foundation/container/space_of.hpp"
