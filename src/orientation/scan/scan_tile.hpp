#pragma once

#include "orientation/scan/scan_plan.hpp"

namespace morvane {
// A zero-padded copy of the voxels around a block of centres, shifted so that they fit int8
// wherever the grey values of the block allow it, else int16. Zero voxels hold a value of their
// own, see scan_kernel.hpp.
class SCAN_TILE {
public:
    [[nodiscard]] bool INIT(const TILE_SHAPE &tileShape); // false when memory runs out

    // The tile whose first centre is the voxel `first`, which may lie outside the volume.
    void LOAD(const SCAN_VOLUME &volume, const VECTORNAT &first);

    bool NARROW() const { return narrow; }  // int8, else int16
    NAT SHIFT() const { return shift; }     // grey value = stored value + shift
    NAT LARGEST() const { return largest; } // of the absolute stored values, but the zero one
    const void *CENTRE(NAT row, NAT column) const;
    // Whether a voxel near the 32 centres from `column` on may be zero.
    bool ZEROS(NAT row, NAT column) const;

    // The samples of a direction's line, as GETLINE_W0 of the voxel, and their number.
    NAT GETLINE_W0(const void *centre, const LINE_OFFSETS &lines, NAT direction,
                   NAT *samples) const;

private:
    template <class VOXEL> void COPY(const SCAN_VOLUME &volume, const VECTORNAT &first);
    template <class VOXEL>
    void COPY_ROW(const SCAN_VOLUME &volume, NAT firstX, NAT y, NAT z, VOXEL *target) const;
    void CONVERT_BYTES();
    void CONVERT_WORDS();
    template <class STORED> void CONVERT_WORDS_TO(NAT least);
    template <class STORED> void FIND_ZEROS(STORED zero);

    TILE_SHAPE shape;
    SCAN_BUFFER<std::int16_t> cells;
    SCAN_BUFFER<std::uint64_t>
        zeroBlocks; // one for each y; bit b: a zero among elements 32b..32b+31
    NAT shift = 0, largest = 0;
    bool narrow = true;
};
} // namespace morvane
