#pragma once

#include "foundation/base/utf16.hpp"
#include "image2d/canvas/rgb.hpp"

// Pictures of what the scan sees at one voxel: a pixel for every polar point of the scan, opposites
// and doubles included. Ring i stands on row i + 1, from the pole down, its points in the middle of
// the row; the square has a side of round(pi * r). A line with fewer than r samples is 0.
namespace morvane {
class T3D_SCALAR_ANALYSIS;

// Twice the standard deviation of each line, rounded, at most 65535. When less than three points
// share the lowest deviation they are ringed: dark inside, bright outside. Their number is written
// at pixel (1, 1). The other two show the mean of each line, rounded, and twice the deviation, with
// the same marks.
void DIFFUSION_MAP(const T3D_SCALAR_ANALYSIS &scalar, NAT x, NAT y, NAT z, NAT r, TFULLGRAY &map);
void DIFFUSION_MEAN(const T3D_SCALAR_ANALYSIS &scalar, NAT x, NAT y, NAT z, NAT r, TFULLGRAY &map);
void DIFFUSION_SD(const T3D_SCALAR_ANALYSIS &scalar, NAT x, NAT y, NAT z, NAT r, TFULLGRAY &map);
// Both in one picture, without marks: the colour goes with the deviation, from the lowest (dark
// blue of the map VIRIDIS) to the highest (yellow), the brightness with the mean, up to the
// highest.
void DIFFUSION_COLOURS(const T3D_SCALAR_ANALYSIS &scalar, NAT x, NAT y, NAT z, NAT r, TRGB &map);

// An 8-bit version of a map: its values, or, when one is above 255, all in the same proportion so
// that the highest becomes 255.
void LOW_MAP(const TFULLGRAY &map, TGRAY &low);
} // namespace morvane
