#pragma once

#include "orientation/scan/scan_plan.hpp"

namespace morvane {
class T3D_SCALAR_ANALYSIS;
class T3D_VECTOR_ANALYSIS;

// How the vectors of a slice are found: tile by tile where the plan allows it, or voxel by voxel.
enum class SCAN_ROAD { FAST, PLAIN };

// One slice of a scan, with z and the sizes tested by the caller. The plan is shared by all slices.
struct SCAN_SLICE {
    const SCAN_PLAN &plan;
    SCAN_VOLUME volume;
    T3D_VECTOR_ANALYSIS &field;
    SCAN_ROAD road = SCAN_ROAD::FAST;

    void RUN(NAT z) const;          // every factor-th voxel, into the cells of the reduced field
    void RUN_ADAPTIVE(NAT z) const; // with retries, each result into eight cells
};
} // namespace morvane
