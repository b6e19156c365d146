#pragma once

#include "foundation/base/records.hpp"

namespace morvane {
class T3D_SCALAR_ANALYSIS;
class T3D_VECTOR_ANALYSIS;
class TCLOUD;

// One number a vector into a scalar field, limited to its voxel range and rounded. A target of
// another size is made anew, with "  Assigned scalar field (XxYxZ) updated."; it gets the frame of
// the field. "Error! Empty vectorfield!" when there is nothing to read.
bool GET_X(const T3D_VECTOR_ANALYSIS &field, T3D_SCALAR_ANALYSIS &target);
bool GET_Y(const T3D_VECTOR_ANALYSIS &field, T3D_SCALAR_ANALYSIS &target);
bool GET_Z(const T3D_VECTOR_ANALYSIS &field, T3D_SCALAR_ANALYSIS &target);
bool GET_LENGTH(const T3D_VECTOR_ANALYSIS &field, T3D_SCALAR_ANALYSIS &target);
// The angle between each vector and a direction in degrees, 0 to 180; 0 for a zero vector.
bool GET_ANGLE(const T3D_VECTOR_ANALYSIS &field, const VECTOR &direction,
               T3D_SCALAR_ANALYSIS &target);
// The same around a normal, 0 to 360: FULLANGLE. An 8-bit target ends at 255.
bool GET_FULLANGLE(const T3D_VECTOR_ANALYSIS &field, const VECTOR &direction, const VECTOR &normal,
                   T3D_SCALAR_ANALYSIS &target);

// How rough a field is: the mean distance between the non-zero vectors of neighbouring voxels (6
// neighbours), as a factor of the mean length of these vectors. 0 for a constant field and for one
// without such neighbours.
REAL FACTOR_DISTANCE(const T3D_VECTOR_ANALYSIS &field);

// Each non-zero vector as a line of two points in global coordinates: the voxel's position and
// that plus the vector; one object "Vectors". The line value is the running number.
bool VECTOR_LINE(const T3D_VECTOR_ANALYSIS &field, TCLOUD &cloud);
} // namespace morvane
