#pragma once

#include "foundation/container/poly_types.hpp"

namespace morvane {
class T3D_SCALAR_ANALYSIS;
class T3D_VECTOR_ANALYSIS;

// All vectors plus a constant, or times one, component by component.
void ADD(T3D_VECTOR_ANALYSIS &field, const VECTOR &value);
void MUL(T3D_VECTOR_ANALYSIS &field, const VECTOR &value);

// The vectors of two fields. An empty target gets the larger size of both on each axis and the
// frame of `a`; any other prints "Attention, target vector field seems not to be empty!" and is
// written as it stands. An empty source prints "Error! Empty vectorfield!".
bool ADD(T3D_VECTOR_ANALYSIS &target, const T3D_VECTOR_ANALYSIS &a, const T3D_VECTOR_ANALYSIS &b);
bool SUB(T3D_VECTOR_ANALYSIS &target, const T3D_VECTOR_ANALYSIS &a, const T3D_VECTOR_ANALYSIS &b);
bool MEAN(T3D_VECTOR_ANALYSIS &target, const T3D_VECTOR_ANALYSIS &a, const T3D_VECTOR_ANALYSIS &b);

// The vectors of `source` where the value of `mask` is found in the sorted list, zero elsewhere.
// The target is made as above.
bool MASK(T3D_VECTOR_ANALYSIS &target, const T3D_VECTOR_ANALYSIS &source,
          const T3D_SCALAR_ANALYSIS &mask, const TPOLYNAT &values);
} // namespace morvane
