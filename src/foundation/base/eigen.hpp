#pragma once

#include "foundation/base/records.hpp"

namespace morvane {
// Eigen values and vectors of a symmetric matrix by the cyclic Jacobi method. Column j of vectors
// belongs to component j of values. Without convergence in 99 sweeps VZERO and M3ZERO.
void EIGEN(const SYMMATRIX3 &matrix, VECTOR &values, MATRIX3 &vectors);
// The values by decreasing absolute value, the first made positive by a change of all signs; a
// second or third one that is not above 0 becomes 2.225e-308.
VECTOR EIGENVALUES2(const SYMMATRIX3 &matrix);
// The vectors as rows, sorted and signed as EIGENVALUES2; the row of a second or third value that
// is not above 0 is VZERO.
MATRIX3 EIGENVECTORS2(const SYMMATRIX3 &matrix);
} // namespace morvane
