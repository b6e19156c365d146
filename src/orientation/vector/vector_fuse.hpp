#pragma once

namespace morvane {
class T3D_VECTOR_ANALYSIS;
class T3D_SCALAR_ANALYSIS;
class TIMAGE;

// One RGB image of a stack of colour pictures, the slices along z of the vector field: each pixel
// has the vector of the slice in which the scalar field, of the same size, has its largest value at
// x, y; of several the first. Vectors are rounded and limited to 0..255. The image's pixels and
// frame, that of slice 1, are replaced, its settings and name stay. An empty field, or sizes that
// differ, is told and leaves the image as it is.
void FUSE(const T3D_VECTOR_ANALYSIS &stack, const T3D_SCALAR_ANALYSIS &rating, TIMAGE &image);
} // namespace morvane
