#pragma once

#include "field3d/raster/frame.hpp"
#include "foundation/container/space.hpp"

namespace morvane {
// The voxels that lines have passed. Cells outside the field are never set.
class VISITED_MASK {
public:
    explicit VISITED_MASK(const VECTORNAT &size) : cells(size.x, size.y, size.z) {}

    bool GET(const VECTORNAT &cell) const { return cells.GET(cell); }
    void PUT(const VECTORNAT &cell);
    void LINE(const VECTORNAT &from, const VECTORNAT &to); // the cells of TSPACEBOOL.LINE
    // Whether any cell at an offset of -k-1 to k-1 on each axis is set.
    bool ANYNEAR(const VECTORNAT &cell, NAT k) const;

private:
    TSPACEBOOL cells;
    VECTORNAT low{NATMAX, NATMAX, NATMAX}, high{0, 0, 0}; // the box of all cells set
};
} // namespace morvane
