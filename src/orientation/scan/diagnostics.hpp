#pragma once

#include "foundation/base/utf16.hpp"
#include "foundation/container/poly_types.hpp"

// What the scan sees at one voxel, as a number or a text. All walk every polar point of the scan,
// opposites and doubles included.
namespace morvane {
class T3D_SCALAR_ANALYSIS;

// The voxel that a diagnostic command means: `point`, or the middle of the volume (each size / 2)
// when it is null or a component is below 1, plus `offset` when there is one. Prints `title` (such
// as "Diffusion dump at: "), the point and " + " with the offset.
VECTORNAT SCAN_POINT(const T3D_SCALAR_ANALYSIS &scalar, const UTF16 &title, const VECTORNAT *point,
                     const VECTORNAT *offset);

// How many directions share the lowest standard deviation; 0 with fewer than 3 lines of r samples.
NAT DIFFUSION(const T3D_SCALAR_ANALYSIS &scalar, NAT x, NAT y, NAT z, NAT r);
// Puts (lowest mean, highest mean, lowest SD, highest SD) of the lines, zeros kept, at position r
// of `stats`.
void DIFFUSION(const T3D_SCALAR_ANALYSIS &scalar, NAT x, NAT y, NAT z, NAT r, TPOLYHYPER &stats);
// Writes every scan line with its samples, mean and SD as a text file, at its end the three
// directions of the lowest SD. A failure is told by IOERROR and gives false.
bool DIFFUSION_DUMP(const T3D_SCALAR_ANALYSIS &scalar, NAT x, NAT y, NAT z, NAT r,
                    const UTF16 &file);
} // namespace morvane
