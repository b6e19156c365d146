#pragma once

#include "field3d/raster/frame.hpp"
#include "field3d/raster/rgb.hpp"
#include "foundation/base/utf16.hpp"
#include "foundation/container/poly_types.hpp"
#include "foundation/container/space.hpp"

#include <memory>
#include <span>

namespace morvane {
// The kinds of a vector field; any other tag byte means "no storage".
inline constexpr BYTE VECTOR_FLOAT = 88;   // three doubles a voxel, 24 bytes
inline constexpr BYTE VECTOR_INTEGER = 89; // three signed 64-bit integers
inline constexpr BYTE VECTOR_24BIT = 170;  // three unsigned bytes

// Which mean of the 3 x 3 x 3 neighbourhood a smoothing pass takes.
enum class VECTOR_SMOOTHING { SOFT, PLAIN, HARD };

// One vector a voxel on the grid of a FRAME. Coordinates start at 1, x runs fastest. Reads outside
// the field give the zero vector, writes outside are dropped. A facade over one of three stores;
// whole-field operations return at once on an empty field.
class T3D_VECTOR_ANALYSIS {
public:
    VECTOR BACKGROUND = VZERO; // the background vector, see GETBACKGROUND

    T3D_VECTOR_ANALYSIS() = default;
    explicit T3D_VECTOR_ANALYSIS(BYTE tag) { INIT(tag); }
    T3D_VECTOR_ANALYSIS(BYTE tag, NAT x, NAT y, NAT z) { INIT(tag, x, y, z); }
    ~T3D_VECTOR_ANALYSIS() { DONE(); }
    T3D_VECTOR_ANALYSIS(const T3D_VECTOR_ANALYSIS &) = delete;
    T3D_VECTOR_ANALYSIS &operator=(const T3D_VECTOR_ANALYSIS &) = delete;

    // An empty field of that kind; an unknown tag prints "Unknown vectorfield!" and leaves none.
    void INIT(BYTE tag);
    // A zero field of that kind and size. A product that is not positive, or memory that runs out,
    // gives the empty field.
    void INIT(BYTE tag, NAT x, NAT y, NAT z);
    void NEW(NAT x, NAT y, NAT z);                // keeps the kind; contents and frame start anew
    void NEW();                                   // the same, empty
    void DONE();                                  // no storage; INIT may follow
    void SWAP(T3D_VECTOR_ANALYSIS &other);        // exchanges everything, no vector is copied
    void CLONE(const T3D_VECTOR_ANALYSIS &other); // kind, size, vectors, frame, background

    BYTE _GETID() const { return typeTag; } // 88, 89, 170, or 0 without storage
    BYTE ID() const { return typeTag; }
    NAT _GETSIZEX() const { return sizeX; }
    NAT _GETSIZEY() const { return sizeY; }
    NAT _GETSIZEZ() const { return sizeZ; }
    NAT SIZEX() const { return sizeX; }
    NAT SIZEY() const { return sizeY; }
    NAT SIZEZ() const { return sizeZ; }
    VECTORNAT SIZE() const { return {sizeX, sizeY, sizeZ}; }
    bool ISNOTEMPTY() const { return sizeX > 0; }
    NAT _VOXELS() const { return sizeX * sizeY * sizeZ; }

    // The frame. A setter without storage is ignored.
    const FRAME &GETFRAME() const { return frame; }
    void SETFRAME(const FRAME &value);
    const MATRIX3 &MATRIX() const { return frame.MATRIX(); }
    void _SETMATRIX(const MATRIX3 &value);
    const VECTOR &MOVE() const { return frame.MOVE(); }
    void _SETMOVE(const VECTOR &value);
    VECTOR _GETSCALE() const { return frame.SCALE(); } // lengths of the rows of the matrix
    VECTOR SCALE() const { return frame.SCALE(); }
    NAT COORD(REAL position, NAT axis) const; // the rule of positions; axis 1, 2 or 3
    VECTORNAT COORD(const VECTOR &position) const;

    VECTOR GET(NAT x, NAT y, NAT z) const {
        if (!_INSIDE(x, y, z)) return VZERO;
        const NAT offset = _OFFSET(x, y, z);
        return floats ? floats[offset] : _GETOTHER(offset);
    }
    VECTORNAT GETNAT(NAT x, NAT y, NAT z) const;         // a float store rounds
    void PUT(NAT x, NAT y, NAT z, const VECTOR &value) { // other stores round and limit
        if (!_INSIDE(x, y, z)) return;
        const NAT offset = _OFFSET(x, y, z);
        if (floats)
            floats[offset] = value;
        else
            _PUTOTHER(offset, value);
    }
    void PUT(NAT x, NAT y, NAT z, const VECTORNAT &value);
    void PUT(NAT x, NAT y, NAT z, BYTE component, REAL value); // component 1, 2 or 3
    void PUT(NAT x, NAT y, NAT z, BYTE component, NAT value);
    void PUTZERO(NAT x, NAT y, NAT z) { PUT(x, y, z, VZERO); }
    // The vectors on the line between two voxels, in fixed-point steps; see TSPACEVECTOR.GETLINE.
    void GETLINE(NAT x1, NAT y1, NAT z1, NAT x2, NAT y2, NAT z2, TPOLYVECTOR &list) const;
    // The vectors of a float store, contiguous, x fastest; null for the other kinds.
    VECTOR *FLOATS() { return floats; }
    const VECTOR *FLOATS() const { return floats; }

    // The blend of the eight voxels around a global point, in the order x, y, z. Outside corners
    // count as zero, so the field fades towards its border. A point that is no number gives zero.
    VECTOR GET_TRILINEAR(const VECTOR &global) const;
    // The same of a position in voxels.
    VECTOR _TRILINEAR(const VECTOR &local) const;
    // The Lanczos blend of radius 4 of the 8 x 8 x 8 voxels around, along x, then y, then z, over
    // the sum of the weights. Outside voxels count as zero.
    VECTOR GET_TRILANCZOS(const VECTOR &global) const;
    VECTOR _TRILANCZOS(const VECTOR &local) const;

    // Mirrors the grid along an axis. Float and integer stores negate that component as well.
    void FLIPX();
    void FLIPY();
    void FLIPZ();

    // The box around all vectors whose length lies in the range; false when there is none.
    [[nodiscard]] bool GETCROP(RANGE range, VECTORNAT &a, VECTORNAT &b) const;
    // Cuts the field down to that box; global positions stay. Prints "  New size: ...".
    void CROP(RANGE range);
    REAL MIN() const;                     // the shortest length; 0 on an empty field
    REAL MAX() const;                     // the longest length; 0 on an empty field
    NAT COUNT(REAL low, REAL high) const; // vectors whose length lies in low..high
    NAT COUNT(const VECTOR &value) const; // vectors equal to `value`
    // Position i+1 counts the vectors whose rounded length is i, up to 65535; the list ends with
    // the longest length found.
    void HISTOGRAM(TPOLYNAT &list) const;

    // Unit length. An integer store takes it times 2^64, a 24-bit store times 255.
    void NORM();
    void MINNORM();              // divided by the smallest component, scaled as NORM
    void MAXNORM();              // divided by the largest component, scaled as NORM
    void NORM_RELATIVE();        // divided by the largest length of the field, scaled as NORM
    void SETLENGTH(REAL length); // unit length, then times `length`; not scaled
    void SETLENGTH_RELATIVE(REAL length); // over the largest length of the field, times `length`
    void ERASELENGTH_MIN(REAL length);    // shorter vectors become zero
    void ERASELENGTH_MAX(REAL length);    // longer vectors become zero
    void DIRECTION();                     // every vector into the half space of (1,1,1)
    void INVERSE();                       // 1 / v by components, float store only
    void CLEANUP(); // the background in place of vectors that are not near it; see the source
    // BACKGROUND := the most frequent vector on the six faces of the field; of several the lowest.
    void GETBACKGROUND();
    // Component by component: a value of an inner voxel outside median ± factor * |q1 - q3| of its
    // 27 neighbours becomes their median. Voxels on the faces stay. The number of changed voxels.
    NAT REMOVE_OUTLIERS(REAL factor);

    // `count` passes over the 3 x 3 x 3 neighbourhood; outside counts as zero. The result is the
    // same for every thread limit.
    void SOFTSMOOTH(NAT count, NAT threadLimit); // (v + sum of the 26 / 26) / 2
    void SMOOTH(NAT count, NAT threadLimit);     // sum of all 27 / 27
    void HARDSMOOTH(NAT count, NAT threadLimit); // sum of the 26 / 26
    // One slice of such a pass: reads this field, writes slice z of `target`, of the same size.
    void SMOOTH(NAT z, VECTOR_SMOOTHING kind, TSPACEVECTOR &target) const;

    // Readers: the field becomes one of kind `tag`. A failure prints one line and leaves it empty.
    bool LOAD(BYTE tag, const UTF16 &name); // by extension, see vector_formats_table.hpp
    bool LOADNII(BYTE tag, const UTF16 &name);
    bool LOADNII_GZ(BYTE tag, const UTF16 &name);
    bool LOADTXT(const UTF16 &name); // keeps the kind; "Unknown vectorfield!" without
    bool LOADTXT(BYTE tag, const UTF16 &name);
    // Several files become one field, one above the other along z; the first sets the frame and
    // the size of x and y. A file that can't be read leaves the field empty.
    bool LOADSTACK(BYTE tag, std::span<const UTF16> names);
    // A second file into this field, by its frame; with `header` the frame comes from that file.
    // APPEND0 takes non-zero vectors only, APPEND_BEST of these the ones longer than ours.
    bool APPEND(const UTF16 &name, const UTF16 &header = UTF16());
    bool APPEND0(const UTF16 &name, const UTF16 &header = UTF16());
    bool APPEND_BEST(const UTF16 &name, const UTF16 &header = UTF16());
    bool LOAD_PROPERTIES(const UTF16 &name);          // offset and matrix of a header
    bool LOAD_FRAMEWORK(BYTE tag, const UTF16 &name); // a zero field of the header's size too

    // Writers. They add their extension when it is missing; an empty field writes nothing.
    bool SAVE(const UTF16 &name) const;                      // by extension; any other is text
    bool SAVE(const UTF16 &name, const VECTOR &scale) const; // scaled text
    bool SAVEHDR(const UTF16 &name) const;
    bool SAVENII(const UTF16 &name) const;
    bool SAVENII_GZ(const UTF16 &name) const;
    bool SAVEFLD(const UTF16 &name) const;
    bool SAVETXT_AM(const UTF16 &name) const;
    bool SAVETXT(const UTF16 &name) const;
    bool SAVETXT(const UTF16 &name, const VECTOR &scale) const;
    bool SAVELIMBERT(const UTF16 &name) const;
    bool SAVE_PROPERTIES(const UTF16 &name) const; // a header without data

    // The stores, for the parts of this class; empty when another one is in use.
    const TSPACEVECTOR &_FLOATSTORE() const { return floatStore; }
    const TSPACEVECTORNAT &_NATSTORE() const { return natStore; }
    const T3DRGB &_BYTESTORE() const { return *byteStore; } // only of a 24-bit field
    TSPACEVECTOR &_FLOATSTORE() { return floatStore; }
    TSPACEVECTORNAT &_NATSTORE() { return natStore; }
    T3DRGB &_BYTESTORE() { return *byteStore; }
    NAT _OFFSET(NAT x, NAT y, NAT z) const { return x - 1 + sizeX * (y - 1 + sizeY * (z - 1)); }
    bool _INSIDE(NAT x, NAT y, NAT z) const {
        return x >= 1 && y >= 1 && z >= 1 && x <= sizeX && y <= sizeY && z <= sizeZ;
    }

private:
    VECTOR _GETOTHER(NAT offset) const;              // integer and 24-bit store
    void _PUTOTHER(NAT offset, const VECTOR &value); // integer and 24-bit store
    void Smooth(VECTOR_SMOOTHING kind, NAT count, NAT threadLimit);
    void PutBack(TSPACEVECTOR &source); // takes the vectors of a float field of our size
    void Flip(NAT axis);
    bool Merge(const UTF16 &name, const UTF16 &header, int rule);

    FRAME frame;
    TSPACEVECTOR floatStore;
    TSPACEVECTORNAT natStore;
    std::unique_ptr<T3DRGB> byteStore; // held as long as the field is of that kind
    VECTOR *floats = nullptr;          // the block of floatStore
    NAT sizeX = 0, sizeY = 0, sizeZ = 0;
    BYTE typeTag = 0;
};
} // namespace morvane
