#pragma once

#include "field3d/raster/raster.hpp"
#include "foundation/container/poly_types.hpp"

#include <concepts>
#include <utility>
#include <variant>

namespace morvane {
// A scalar field of 1, 8 or 16 bits a voxel. It looks at its width once per operation; everything
// above it works through this class. Without storage it answers 0 and the defaults, or does
// nothing. Coordinates start at 1.
class T3D_SCALAR_ANALYSIS {
public:
    static constexpr BYTE TAG = 190;

    // Settings, stored as given; commands set them, a running operation only reads them.
    NAT loadFilterOffset = 0, loadFilterFactor = 0; // both 0: no filter
    BYTE copyMethod = 1;
    BYTE subMethod = 2; // statistic of a line: 0 sum, 1 mean, 3..7 min, quartiles, max, else sd
    BYTE diffusionMethod = 0, connectionMethod = 0;
    bool fullScan = false;              // a line that is too short makes its voxel zero
    REAL diffusionAngle = 5 * PI / 180; // radians
    REAL diffusionMax = 0.25;           // a share
    UTF16CHARS7 fileName;               // the file last loaded
    TPOLYCHARS labels;                  // position i+1 holds the name of value i

    T3D_SCALAR_ANALYSIS(); // no storage
    explicit T3D_SCALAR_ANALYSIS(BYTE tag) : T3D_SCALAR_ANALYSIS() { INIT(tag); }
    T3D_SCALAR_ANALYSIS(BYTE tag, NAT x, NAT y, NAT z) : T3D_SCALAR_ANALYSIS() {
        INIT(tag, x, y, z);
    }
    T3D_SCALAR_ANALYSIS(const T3D_SCALAR_ANALYSIS &) = delete;
    T3D_SCALAR_ANALYSIS &operator=(const T3D_SCALAR_ANALYSIS &) = delete;
    ~T3D_SCALAR_ANALYSIS() { DONE(); }

    // All contents and settings go back to their defaults. An unknown tag, or a size below 1,
    // prints "Unknown imagefield!" and leaves no storage.
    void INIT(BYTE tag);
    void INIT(BYTE tag, NAT x, NAT y, NAT z);
    void NEW();                                   // INIT with the own tag
    void NEW(NAT x, NAT y, NAT z);                // the same; a size below 1 gives an empty field
    void CLONE(const T3D_SCALAR_ANALYSIS *other); // takes over the other's width; null: INIT
    void _PREDONE();                              // no storage, no labels
    void DONE();                                  // the same, memory freed
    // Works on the other's storage from now on; DONE and INIT only forget it. The other must live
    // longer and keep its storage.
    void BORROW(T3D_SCALAR_ANALYSIS &owner);

    BYTE _GETID() const { return active ? TAGS[active->index()] : TAGS[0]; }
    BYTE ID() const { return _GETID(); }
    NAT BITS() const; // 1, 8, 16, or 0 without storage
    NAT SIZEX() const { return SIZE().x; }
    NAT SIZEY() const { return SIZE().y; }
    NAT SIZEZ() const { return SIZE().z; }
    VECTORNAT SIZE() const;
    bool ISNOTEMPTY() const { return SIZEX() > 0; }
    NAT VOXELMAX() const; // 1, 255, 65535, or 0 without storage

    NAT BACKGROUND() const;
    void PUTBACKGROUND(REAL value); // limited to the voxel range and rounded; 1 bit: above 0
    NAT VALUE() const;
    void PUTVALUE(REAL value); // as PUTBACKGROUND

    // The frame. A setter without storage is ignored.
    const FRAME &GETFRAME() const;
    void SETFRAME(const FRAME &value);
    const MATRIX3 &MATRIX() const { return GETFRAME().MATRIX(); }
    void _SETMATRIX(const MATRIX3 &value);
    const VECTOR &MOVE() const { return GETFRAME().MOVE(); }
    void _SETMOVE(const VECTOR &value);
    VECTOR SCALE() const { return GETFRAME().SCALE(); }
    NAT COORD(REAL position, NAT axis) const; // axis 1..3; see frame.hpp
    VECTORNAT COORD(const VECTOR &position) const;

    NAT GET(NAT x, NAT y, NAT z) const;
    NAT GET(const VECTORNAT &p) const { return GET(p.x, p.y, p.z); }
    // Limited to the voxel range and rounded; 1 bit: true when at least 1.
    void PUT(NAT x, NAT y, NAT z,
             std::integral auto value) requires(!std::same_as<decltype(value), bool>) {
        PutNat(x, y, z, static_cast<NAT>(value));
    }
    void PUT(NAT x, NAT y, NAT z, std::floating_point auto value) { PutReal(x, y, z, value); }
    void PUT(NAT x, NAT y, NAT z, std::same_as<bool> auto value) { PutNat(x, y, z, value ? 1 : 0); }
    void PUT(NAT x, NAT y, NAT z); // writes VALUE
    void PUTZERO(NAT x, NAT y, NAT z) { PutNat(x, y, z, 0); }
    // The voxel nearest to a global point; BACKGROUND outside.
    NAT GET_TRILINEAR(const VECTOR &global) const;
    // The n voxels along a line, n its rounded length, each taken after its step; zeros are kept.
    void GETLINE(NAT x1, NAT y1, NAT z1, NAT x2, NAT y2, NAT z2, TPOLYNAT &line) const;

    // Whole-field operations on the window.
    void WINDOW();
    void WINDOW(NAT x1, NAT y1, NAT z1, NAT x2, NAT y2, NAT z2);
    NAT MIN() const;
    NAT MIN0() const; // smallest above 0
    NAT MAX() const;
    bool IFPLAIN() const; // not empty, and all voxels hold one value
    NAT OBJECT_COUNT(NAT low, NAT high) const;
    NAT OBJECT_SUM(NAT low, NAT high) const;
    void SETRANGE(const TPOLYNAT &table); // voxel := table[voxel + 1]
    void SETLOWER(NAT limit, NAT value);
    void SETVALUE(const COMPLEXNAT &range, NAT value);
    void SETHIGHER(NAT limit, NAT value);
    void INVERT();
    void HISTOGRAM(TPOLYNAT &bins) const;
    void HISTOGRAM_FAST(TPOLYNAT &bins) const; // of at least three slices drawn at random

    // Names of values. Positions outside the voxel range, and 1-bit fields, have none.
    UTF16 LABELS_GET(NAT value) const;             // a stored "*" is the label before
    bool LABELS_PUT(NAT value, const UTF16 &text); // false: the value can have no name
    NAT LABELS_LENGTH() const { return labels.LENGTH; }
    void LABELS_CLEAR();
    void LABELS_CLONE(const T3D_SCALAR_ANALYSIS &other);
    void LABELS_LOAD(const UTF16 &file);
    bool LABELS_SAVE(const UTF16 &file) const;

    // Files. A failure prints one line and leaves an empty field of the tag; an empty name does
    // nothing. The load filter survives, all other settings go back to their defaults.
    void LOAD(BYTE tag, const UTF16 &file); // by extension
    void LOADNII(BYTE tag, const UTF16 &file, NAT stack = 1);
    void LOADNII_GZ(BYTE tag, const UTF16 &file, NAT stack = 1);
    bool SAVE(const UTF16 &file) const; // by extension; labels go beside it

    // The frame from a file's header, a zero field of its size and frame, and a header without
    // data.
    bool LOAD_PROPERTIES(const UTF16 &file);
    bool LOAD_FRAMEWORK(BYTE tag, const UTF16 &file);
    bool SAVE_PROPERTIES(const UTF16 &file) const; // appends .hdr

    // f(raster) with the T3DMONO, T3DGRAY or T3DFULLGRAY in use; a default result without storage.
    template <class F> auto _DISPATCH(F &&f) const { return Dispatch<const STORAGE>(active, f); }
    template <class F> auto _DISPATCH(F &&f) { return Dispatch<STORAGE>(active, f); }

private:
    using STORAGE = std::variant<std::monostate, T3DMONO, T3DGRAY, T3DFULLGRAY>;
    static constexpr BYTE TAGS[] = {0, TAG_MONO, TAG_GRAY, TAG_FULLGRAY};

    template <class S, class F> static auto Dispatch(S *storage, F &f) {
        using RESULT = decltype(f(*std::get_if<T3DGRAY>(storage)));
        switch (storage ? storage->index() : 0) {
        case 1: return f(*std::get_if<T3DMONO>(storage));
        case 2: return f(*std::get_if<T3DGRAY>(storage));
        case 3: return f(*std::get_if<T3DFULLGRAY>(storage));
        default: return RESULT();
        }
    }
    void Default(); // the settings
    template <class READER> void Load(BYTE tag, const UTF16 &file, READER read);
    bool Construct(BYTE tag, NAT x, NAT y, NAT z);
    NAT PropertyOf(REAL value) const;
    void PutNat(NAT x, NAT y, NAT z, NAT value);
    void PutReal(NAT x, NAT y, NAT z, REAL value);
    STORAGE owned;
    STORAGE *active = nullptr; // null: no storage
};
} // namespace morvane
