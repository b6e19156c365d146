#pragma once

#include "foundation/base/records.hpp"

// The scan of directions: at every voxel above 0 the direction along which the grey values vary
// least, after the settings of the scalar field (diffusionMethod, subMethod, fullScan,
// diffusionAngle, diffusionMax). `r` is the scan length in voxels.
namespace morvane {
class T3D_SCALAR_ANALYSIS;
class T3D_VECTOR_ANALYSIS;

// Commands scalar.diffusion (factor 1), .x2 to .x5 (every factor-th voxel) and .adaptive.x2 to .x5:
// tests the length, sizes the vector field, copies the frame, prints the described lines and scans
// one slice a thread. False when the length is wrong or memory runs out, told in a line each.
[[nodiscard]] bool DIFFUSION_FIELD(const T3D_SCALAR_ANALYSIS &scalar, T3D_VECTOR_ANALYSIS &field,
                                   NAT r, NAT factor, bool adaptive, NAT threadLimit);

// One slice at full size. Left as it is unless the x and y sizes are above 2r; an empty volume
// prints "Error! Empty vectorfield!".
void DIFFUSION(const T3D_SCALAR_ANALYSIS &scalar, T3D_VECTOR_ANALYSIS &field, NAT z, NAT r);
// One slice of a reduced field; z is a multiple of the factor.
void DIFFUSION(const T3D_SCALAR_ANALYSIS &scalar, T3D_VECTOR_ANALYSIS &field, NAT z, NAT r,
               NAT factor);
// One slice with retries at neighbouring voxels, each result in eight cells; factor 2 and more.
void DIFFUSION_ADAPTIVE(const T3D_SCALAR_ANALYSIS &scalar, T3D_VECTOR_ANALYSIS &field, NAT z, NAT r,
                        NAT factor);

// The same three slices by the straightforward walk, voxel by voxel and direction by direction:
// the definition of the result.
namespace plain {
void DIFFUSION(const T3D_SCALAR_ANALYSIS &scalar, T3D_VECTOR_ANALYSIS &field, NAT z, NAT r,
               NAT factor = 1);
void DIFFUSION_ADAPTIVE(const T3D_SCALAR_ANALYSIS &scalar, T3D_VECTOR_ANALYSIS &field, NAT z, NAT r,
                        NAT factor);
} // namespace plain
} // namespace morvane
