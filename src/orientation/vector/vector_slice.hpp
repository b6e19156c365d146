#pragma once

#include "field3d/raster/slice_plane.hpp"

namespace morvane {
class T3D_VECTOR_ANALYSIS;
class TIMAGE;

// The slice at a position (rule of positions, frame.hpp) as an RGB image: x, y and z of the vectors
// as red, green and blue, rounded and limited to 0..255. The image's pixels and frame are replaced,
// its settings and name stay. An empty field is told and leaves the image as it is.
void GETSLICE(const T3D_VECTOR_ANALYSIS &field, SLICE_PLANE plane, REAL position, TIMAGE &image);
// The colours of an image as the vectors of the slice; a grey image gives its value three times.
// Pixels outside the slice are dropped and voxels without a pixel stay, which is told; so is an
// empty field or image.
void PUTSLICE(T3D_VECTOR_ANALYSIS &field, SLICE_PLANE plane, REAL position, const TIMAGE &image);
} // namespace morvane
