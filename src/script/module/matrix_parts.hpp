#pragma once

#include "foundation/base/records.hpp"

// What a matrix does to row vectors, taken apart and put together: first a scale along the axes,
// then a turn, then a move. Angles are in radians.
namespace morvane {
struct MATRIX_PARTS {
    VECTOR scale;     // the lengths of the rows; x below 0 for a matrix that mirrors
    MATRIX3 rotation; // the rows divided by their scale; a row of length 0 stays zero
    VECTOR move;      // the fourth row
};
MATRIX_PARTS SPLIT_MATRIX(const MATRIX4 &matrix);

MATRIX3 SCALE_MATRIX(const VECTOR &scale);
MATRIX4 MOVE_MATRIX(const VECTOR &move);
// Turned about the x axis by angles.x, then about y, then about z; the axes stand still.
MATRIX3 ROTATION_MATRIX(const VECTOR &angles);
// The three angles of ROTATION_MATRIX. Where y is ±PI/2 only one other angle can be told: it is
// given as x, and z is 0.
VECTOR ROTATION_ANGLES(const MATRIX3 &rotation);

// The fractional anisotropy of a symmetric matrix, 0..1; 0 for the zero matrix.
REAL FRACTIONAL_ANISOTROPY(const SYMMATRIX3 &matrix);
} // namespace morvane
