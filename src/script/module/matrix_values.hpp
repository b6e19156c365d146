#pragma once

#include "foundation/base/number_text.hpp"

#include <span>
#include <variant>
#include <vector>

// Matrices as values of the language. A vector is a row and stands left of the matrix: its 4x4 form
// moves by its fourth row.
namespace morvane {
using ANY_MATRIX = std::variant<MATRIX3, MATRIX4>;

// A matrix from 3 or 4 vectors, its rows, from 9 or 16 numbers row by row, or from one text that
// holds as many; a text of four rows parted by ";" may leave numbers out, which are 0. False when
// the parameters are none of these; the matrix stays as it is then.
[[nodiscard]] bool GETMATRIX3_MACRO(std::span<const UTF16> parameters, MATRIX3 &matrix);
[[nodiscard]] bool GETMATRIX4_MACRO(std::span<const UTF16> parameters, MATRIX4 &matrix);
[[nodiscard]] bool GETMATRIX_MACRO(std::span<const UTF16> parameters, ANY_MATRIX &matrix);
// A 3x3 matrix, or the diagonal and the part above it (xx yy zz, xy xz yz) as 2 vectors, 6 numbers
// or one text. SM3ZERO for a matrix that is not exactly symmetric.
[[nodiscard]] bool GETSYMMATRIX3_MACRO(std::span<const UTF16> parameters, SYMMATRIX3 &matrix);
// Several matrices: one text each, or the vectors or numbers of two of one size.
[[nodiscard]] bool GETMATRICES_MACRO(std::span<const UTF16> parameters,
                                     std::vector<ANY_MATRIX> &matrices);
// The vectors in front of a matrix: any number of them before a text, one before other forms.
[[nodiscard]] bool SPLIT_VECTORS(std::span<const UTF16> parameters, std::span<const UTF16> &vectors,
                                 ANY_MATRIX &matrix);

// As it is, or as the 3x3 part of an identity.
MATRIX4 AS_MATRIX4(const ANY_MATRIX &matrix);
MATRIX3 AS_MATRIX3(const ANY_MATRIX &matrix); // the upper left part

// (<..>;<..>;<..>), <..> <..> <..>, or numbers parted by blanks.
enum class MATRIX_FORM : BYTE { MATRIX, VECTORS, NUMBERS };
// At most LONGEST_TEXT units: where all digits do not fit, first the blanks behind the separators
// are left out, then as many digits as need be.
UTF16 MATRIX_TEXT(const ANY_MATRIX &matrix, MATRIX_FORM form = MATRIX_FORM::MATRIX);
} // namespace morvane
