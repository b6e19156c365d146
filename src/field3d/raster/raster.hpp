#pragma once

#include "field3d/raster/frame.hpp"
#include "field3d/raster/voxel_block.hpp"
#include "foundation/base/utf16chars7.hpp"

namespace morvane {
// An inclusive box of voxels.
struct BOX {
    NAT x1 = 1, y1 = 1, z1 = 1, x2 = 0, y2 = 0, z2 = 0;
};

// A volume of voxels in one contiguous block: x fastest, then y, then z; coordinates from 1.
// VOXEL is bool (packed, bit (i-1) mod 8 of byte (i-1)/8), BYTE or WORD.
template <class VOXEL> class RASTER {
public:
    using TYPE = VOXEL;
    using KIND = VOXEL_KIND<VOXEL>;
    using ELEMENT = typename KIND::ELEMENT;

    NAT SIZEX = 0, SIZEY = 0, SIZEZ = 0; // all 0 when the field is empty; set by INIT alone
    VOXEL BACKGROUND{};                  // what GET gives outside the field
    VOXEL VALUE = static_cast<VOXEL>(KIND::MAXIMUM); // what PUT without a value writes
    BOX window;           // the box of all whole-field operations; set by WINDOW
    FRAME frame;          // how the field sits in space
    UTF16CHARS7 fileName; // the file that filled the field

    RASTER() = default;
    RASTER(NAT sizeX, NAT sizeY, NAT sizeZ) { INIT(sizeX, sizeY, sizeZ); }
    RASTER(const RASTER &) = delete;
    RASTER &operator=(const RASTER &) = delete;
    ~RASTER() { DONE(); }

    void INIT() { DONE(); } // an empty field with all defaults
    // Zero voxels, all defaults, window = whole field. A size below 1 gives an empty field, as does
    // a failed allocation, which prints its line.
    void INIT(NAT sizeX, NAT sizeY, NAT sizeZ);
    void DONE();
    void WINDOW();                                               // the whole field
    void WINDOW(NAT x1, NAT y1, NAT z1, NAT x2, NAT y2, NAT z2); // each bound limited to the field

    bool EMPTY() const { return SIZEX == 0; }
    VECTORNAT SIZE() const { return {SIZEX, SIZEY, SIZEZ}; }
    NAT COUNT() const { return SIZEX * SIZEY * SIZEZ; } // voxels of the field
    NAT DIAGONAL() const;                               // rounded length of the size; 0 when empty
    VECTOR MIDPOINT() const;                            // half the size; <1,1,1> when empty

    bool INSIDE(NAT x, NAT y, NAT z) const {
        return x >= 1 && y >= 1 && z >= 1 && x <= SIZEX && y <= SIZEY && z <= SIZEZ;
    }
    NAT INDEX(NAT x, NAT y, NAT z) const { return x + (y - 1 + (z - 1) * SIZEY) * SIZEX; }
    VOXEL _GET(NAT x, NAT y, NAT z) const { return voxels._GET(INDEX(x, y, z)); }
    void _PUT(NAT x, NAT y, NAT z, VOXEL value) { voxels._PUT(INDEX(x, y, z), value); }
    VOXEL _GETINDEX(NAT index) const { return voxels._GET(index); }
    void _PUTINDEX(NAT index, VOXEL value) { voxels._PUT(index, value); }
    VOXEL GET(NAT x, NAT y, NAT z) const { return INSIDE(x, y, z) ? _GET(x, y, z) : BACKGROUND; }
    void PUT(NAT x, NAT y, NAT z, VOXEL value) {
        if (INSIDE(x, y, z)) _PUT(x, y, z, value);
    }
    void PUT(NAT x, NAT y, NAT z) { PUT(x, y, z, VALUE); }
    void PUTINDEX(NAT index, VOXEL value) {
        if (index >= 1 && index <= COUNT()) voxels._PUT(index, value);
    }
    // Voxels on their way from a file into the field.
    void __PUT_BIN(NAT x, NAT y, NAT z, VOXEL value) { PUT(x, y, z, value); }
    void __PUTINDEX_BIN(NAT index, VOXEL value) { PUTINDEX(index, value); }

    // The block itself, for kernels and files: COUNT() voxels of 8 or 16 bits, or packed bits.
    const ELEMENT *VOXELS() const { return voxels.DATA(); }
    ELEMENT *VOXELS() { return voxels.DATA(); }
    NAT ELEMENTS() const { return voxels.ELEMENTS(); }
    NAT BYTES() const { return ELEMENTS() * static_cast<NAT>(sizeof(ELEMENT)); }

    // Empties the field and prints the text as a line: how every failed load ends.
    void __WRITE_ERROR(const UTF16 &text);

private:
    VOXEL_BLOCK<VOXEL> voxels;
};

using T3DMONO = RASTER<bool>;
using T3DGRAY = RASTER<BYTE>;
using T3DFULLGRAY = RASTER<WORD>;
} // namespace morvane
