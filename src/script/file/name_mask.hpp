#pragma once

#include "foundation/base/utf16.hpp"

// Masks of names: "*" stands for any run of characters, "?" for one. Every other character stands
// for itself, brackets too; case counts.
namespace morvane {
bool HAS_WILDCARD(const UTF16 &name); // "*" or "?" in any part of a path

// One part of a path against one part of a mask. A name that begins with a point needs a mask that
// does; "." and ".." fit no mask with wildcards.
bool FITS_MASK(const UTF16 &name, const UTF16 &mask);
} // namespace morvane
