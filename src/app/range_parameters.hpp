#pragma once

#include "foundation/base/utf16.hpp"
#include "foundation/container/poly_types.hpp"

// Values and ranges of voxel values as parameters.
namespace morvane {
class TMACRO;

// A number n (the range n..n), or two numbers parted by ",", ";" or ".."; ends in the wrong order
// are swapped.
COMPLEXNAT GETRANGE(const UTF16 &text);

// The same with real ends, as a range of lengths.
RANGE GETREALRANGE(const UTF16 &text);

// Scale factors: one number is the factor of all axes, a vector holds one for each; nothing is
// zero.
VECTOR GETFACTORS(const UTF16 &text);

// The values of all parameters from `first` on, each a number or a range, sorted; limited to
// 0..65535, the values that a voxel can have.
void GETVALUES(TMACRO *engine, NAT first, TPOLYNAT &values);
} // namespace morvane
