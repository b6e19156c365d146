#pragma once

#include "field3d/raster/slice_plane.hpp"

namespace morvane {
class T3D_SCALAR_ANALYSIS;
class TIMAGE;

// The slice at a position (rule of positions, frame.hpp) as an image with the values of the voxels:
// of 16 bits for a field of 16 bits, else of 8. The image's pixels and frame are replaced, its
// settings and name stay. An empty field is told and leaves the image as it is.
void GETSLICE(const T3D_SCALAR_ANALYSIS &scalar, SLICE_PLANE plane, REAL position, TIMAGE &image);
// The grey values of an image into the slice, limited to the voxel range. Pixels outside the slice
// are dropped and voxels without a pixel stay, which is told; so is an empty field or image.
void PUTSLICE(T3D_SCALAR_ANALYSIS &scalar, SLICE_PLANE plane, REAL position, const TIMAGE &image);
} // namespace morvane
