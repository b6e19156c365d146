#pragma once

#include "orientation/scan/scan_kernel.hpp"
#include "orientation/scan/scan_line.hpp"
#include "orientation/scan/scan_method.hpp"

namespace morvane {
// The layout of a tile: the voxels around `columns` x `rows` centres, which lie `factor` voxels
// apart on x and y, on one z. Every voxel row is kept as `factor` phases (x modulo factor) of
// `stride` elements, so that neighbouring centres are neighbouring elements at every factor.
struct TILE_SHAPE {
    NAT factor = 1;
    NAT columns = 0, rows = 0; // centres
    NAT left = 0, right = 0;   // elements before the first and behind the last centre
    NAT above = 0, below = 0;  // voxels on y
    NAT front = 0, behind = 0; // voxels on z
    NAT stride = 0, height = 0, depth = 0;

    NAT ELEMENTS() const { return stride * factor * height * depth; }
    NAT OFFSET(const VECTORNAT &move) const; // from a centre to a voxel near it
    NAT CENTRE(NAT row) const {              // the first centre of a row
        return (front * height + above + row * factor) * factor * stride + left;
    }
};

// All that a scan of one length needs and no voxel changes: made once, shared by the slices.
class SCAN_PLAN {
public:
    NAT r = 0, factor = 1;
    SCAN_SETTINGS settings;
    SCAN_DIRECTIONS directions;
    TILE_SHAPE shape;
    LINE_OFFSETS lines;

    // `width`: centres in a row. With `fast` false only the directions are made.
    SCAN_PLAN(const SCAN_SETTINGS &settings, NAT r, NAT factor, NAT width, bool fast = true);
    // Of an image, a volume of one slice, scanned row by row; the directions have z 0.
    SCAN_PLAN(const SCAN_SETTINGS &settings, SCAN_DIRECTIONS directions, NAT r, NAT width,
              bool fast = true);
    // The tables stand; they do not for lengths whose tiles would be too large, and when memory
    // ran out: such a scan takes the plain road.
    bool FAST() const { return lines.count > 0; }
    // The vector of a voxel whose best direction (from 0) is the only one with its value, by the
    // methods 4 to 6, without the test of the share; of unit length by the method 6.
    const VECTOR &LONE(NAT direction) const { return lone[direction]; }

private:
    void MAKE_TABLES(NAT width, NAT mostRows);
    bool MAKE_LINES(NAT width, NAT mostRows);
    bool MAKE_LONE();
    SCAN_BUFFER<std::int32_t> forward, backward;
    SCAN_BUFFER<std::uint32_t> begins;
    SCAN_BUFFER<VECTOR> lone;
};
} // namespace morvane
