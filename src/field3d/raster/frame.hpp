#pragma once

#include "foundation/base/records.hpp"

// How a field sits in space. global = offset + (x-1)·row1 + (y-1)·row2 + (z-1)·row3, with x, y, z
// the 1-based voxel coordinates; the rows are the steps of the local axes in global units.
namespace morvane {
class FRAME {
public:
    const MATRIX3 &MATRIX() const { return matrix; }
    const VECTOR &MOVE() const { return offset; }            // global position of voxel <1,1,1>
    const MATRIX3 &INVERSEMATRIX() const { return inverse; } // kept current by SETMATRIX
    const VECTOR &NEGATIVEMOVE() const { return negativeOffset; }
    void SETMATRIX(const MATRIX3 &value);
    void SETMOVE(const VECTOR &value);
    void RESET();         // identity and zero
    VECTOR SCALE() const; // lengths of the three rows

    VECTOR L2G(const VECTOR &local) const;
    VECTOR G2L(const VECTOR &global) const;          // not rounded
    VECTORNAT G2L_ROUND(const VECTOR &global) const; // to nearest, ties to even; may lie outside

    // The frame commands; sizes in voxels.
    void CENTER(const VECTORNAT &size); // offset := size * SCALE / -2
    void SETSCALE(const VECTOR &scale); // diagonal of absolute values; <0,0,0> changes nothing
    void MULSCALE(const VECTOR &scale); // rows times components; <0,0,0> changes nothing
    void NORMSCALE();                   // rows of unit length
    void UNFLIP();                      // every element its absolute value
    void UNROTATE();                    // diagonal of the row lengths
    // A zero row prints "Error! Wrong matrix ..." and the identity is taken instead.
    void SETMATRIX_CHECKED(const MATRIX3 &value);

private:
    MATRIX3 matrix = M3NORM, inverse = M3NORM;
    VECTOR offset = VZERO, negativeOffset = VZERO;
};

// The rule of positions on an axis of `size` voxels: 0 the middle, ]0,1[ a fraction, 1 and more
// absolute, ]-1,0[ a fraction from the far end, -1 and less absolute from the far end. Outside the
// field: half the size.
NAT COORD(REAL position, NAT size);
VECTORNAT COORD(const VECTOR &position, const VECTORNAT &size);
} // namespace morvane
