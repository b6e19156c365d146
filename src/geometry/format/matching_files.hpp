#pragma once

#include "foundation/container/poly_types.hpp"

namespace morvane {
// "*" or "?" in the file part of a name.
bool HAS_WILDCARD(const UTF16 &name);
// The names, without directory, of the files that a name with wildcards fits, sorted. Names that
// start with a point need a point in the mask; names of more than 254 units are left out.
TPOLYCHARS MATCHING_FILES(const UTF16 &name);
} // namespace morvane
