#pragma once

#include "foundation/base/utf16.hpp"
#include "foundation/container/poly_types.hpp"

#include <span>
#include <string_view>

// The diagnostics of one voxel as files: pictures and charts. Each gives false when a file could
// not be written, which is told.
namespace morvane {
class T3D_SCALAR_ANALYSIS;

// "scan.tif" with the part "-sd" is "scan-sd.tif". A name without one of the extensions in
// `allowed` gets the first of them.
UTF16 PART_NAME(const UTF16 &file, std::string_view part,
                std::span<const std::string_view> allowed);

// Commands scalar.diffusion.map and .colormap, `r` of 1 and more. Kinds of files are pgm, tif and
// png. The map is also saved in 8 bits, with "-low"; the colour map's parts with "-mean" and "-sd",
// itself as ppm where they are pgm.
bool SAVE_DIFFUSION_MAP(const T3D_SCALAR_ANALYSIS &scalar, const VECTORNAT &voxel, NAT r,
                        const UTF16 &file);
bool SAVE_DIFFUSION_COLORMAP(const T3D_SCALAR_ANALYSIS &scalar, const VECTORNAT &voxel, NAT r,
                             const UTF16 &file);

// Commands scalar.diffusion.histogram and .sd: over all scan lengths up to half of the smallest
// size, how many directions share the lowest deviation, and the smallest and largest mean and
// deviation ("-mean", "-sd"), as charts of 640 by 480.
bool SAVE_DIFFUSION_HISTOGRAM(const T3D_SCALAR_ANALYSIS &scalar, const VECTORNAT &voxel,
                              const UTF16 &file);
bool SAVE_DIFFUSION_SD(const T3D_SCALAR_ANALYSIS &scalar, const VECTORNAT &voxel,
                       const UTF16 &file);
// Their lists: position r holds the value for that length.
void DIFFUSION_COUNTS(const T3D_SCALAR_ANALYSIS &scalar, const VECTORNAT &voxel, TPOLYNAT &counts);
void DIFFUSION_RANGES(const T3D_SCALAR_ANALYSIS &scalar, const VECTORNAT &voxel,
                      TPOLYHYPER &ranges);
} // namespace morvane
