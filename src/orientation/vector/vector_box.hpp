#pragma once

#include "orientation/vector/vector_analysis.hpp"

// What the copying operations share.
namespace morvane {
// Makes a zero field of that size; without one "Error! Empty vectorfield (result)!" and false.
bool PREPARE_TARGET(T3D_VECTOR_ANALYSIS &target, const VECTORNAT &size);
// "Error! Empty vectorfield!" and false when there is nothing to read.
bool CHECK_SOURCE(const T3D_VECTOR_ANALYSIS &source);
// Writes the voxels a..b of the source from `to` on; what falls outside is dropped.
void COPY_BOX(const T3D_VECTOR_ANALYSIS &source, const VECTORNAT &a, const VECTORNAT &b,
              T3D_VECTOR_ANALYSIS &target, const VECTORNAT &to);
} // namespace morvane
