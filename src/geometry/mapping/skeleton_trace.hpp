#pragma once

#include "foundation/base/records.hpp"

namespace morvane {
class T3D_SCALAR_ANALYSIS;
class TCLOUD;

// The lines of a thin voxel skeleton, appended to the cloud in global coordinates with the voxel's
// value in t. Each connected part (26 neighbours) of voxels with a value in the range becomes one
// object "Skeleton-" with its number; lines end at branch points, and a new one starts there for
// each branch. Returns the number of parts. Progress "Get skeleton".
NAT SKELETON_TRACE(const T3D_SCALAR_ANALYSIS &field, COMPLEXNAT range, TCLOUD &cloud);
} // namespace morvane
