#pragma once

#include "field3d/raster/frame.hpp"

// Slices of a field as pictures: xy seen along z, xz along y, yz along x. The first axis of the
// name runs to the right, the second one down. Positions start at 1.
namespace morvane {
enum class SLICE_PLANE : BYTE { XY, XZ, YZ };

NAT SLICE_AXIS(SLICE_PLANE plane); // across the slices: 3, 2 or 1
COMPLEXNAT SLICE_SIZE(SLICE_PLANE plane, const VECTORNAT &size);
VECTORNAT SLICE_POINT(SLICE_PLANE plane, NAT x, NAT y, NAT slice); // the voxel of a pixel
// The frame of a slice's picture in that of the field; its third axis runs across the slices.
FRAME SLICE_FRAME(SLICE_PLANE plane, const FRAME &frame, NAT slice);
} // namespace morvane
