#pragma once

#include "foundation/base/records.hpp"

namespace morvane {
class T3D_SCALAR_ANALYSIS;
class T3D_VECTOR_ANALYSIS;

// Copies of vector fields. `target` keeps its kind; its size and frame become those of the result.
// An empty source prints "Error! Empty vectorfield!", a target that cannot be made
// "Error! Empty vectorfield (result)!"; both leave with false.

// Same size and frame.
bool COPY(const T3D_VECTOR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target);
// New size round(size * factor) on each axis; a factor of zero on all axes is a plain copy. An axis
// with a factor below 1 is reduced by the statistic `method` of each block, component by component
// (0 sum, 1 mean, 3 min, 4 Q1, 5 median, 6 Q3, 7 max, else sd), one with a factor above 1 is
// enlarged: method 0 the nearest voxel, 2 GET_TRILANCZOS, else GET_TRILINEAR.
bool COPY(const T3D_VECTOR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target, const VECTOR &factor,
          NAT method);
// The same with the factors new size / old size.
bool RESIZE(const T3D_VECTOR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target, const VECTORNAT &size,
            NAT method);
// The box between two positions (COORD form); global positions stay.
bool SUBSTACK(const T3D_VECTOR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target, const VECTOR &a,
              const VECTOR &b);
// The box around the vectors whose length lies in the range, or around the voxels of `mask` whose
// value lies in it; no such voxel: a line tells so.
bool CROP(const T3D_VECTOR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target, RANGE range);
bool CROP(const T3D_VECTOR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target,
          const T3D_SCALAR_ANALYSIS &mask, RANGENAT range);
// The voxels a..b (COORD form) are written once more, shifted; the box itself stays.
void MOVE(T3D_VECTOR_ANALYSIS &field, const VECTOR &a, const VECTOR &b, const VECTORNAT &shift);
// A zero field with the size and the frame of another field.
bool MAKE(const T3D_VECTOR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target);
bool MAKE(const T3D_SCALAR_ANALYSIS &source, T3D_VECTOR_ANALYSIS &target);
bool MAKE(const T3D_VECTOR_ANALYSIS &source, T3D_SCALAR_ANALYSIS &target);
} // namespace morvane
