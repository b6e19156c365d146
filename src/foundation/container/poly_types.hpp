#pragma once

#include "foundation/container/poly_bool.hpp"
#include "foundation/container/poly_chars.hpp"
#include "foundation/container/poly_of.hpp"

// The typed lists of the system.
namespace morvane {
using TPOLYREAL = TPOLY_OF<REAL>;
using TPOLYNAT = TPOLY_OF<NAT>;
using TPOLYWORD = TPOLY_OF<WORD>;
using TPOLYBYTE = TPOLY_OF<BYTE>;
using TPOLYCOMPLEX = TPOLY_OF<COMPLEX>;
using TPOLYCOMPLEXNAT = TPOLY_OF<COMPLEXNAT>;
using TPOLYVECTOR = TPOLY_OF<VECTOR>;
using TPOLYVECTORNAT = TPOLY_OF<VECTORNAT>;
using TPOLYHYPER = TPOLY_OF<HYPER>;
using TPOLYHYPERNAT = TPOLY_OF<HYPERNAT>;
using TPOLYPOINTER = TPOLY_OF<void *>;
} // namespace morvane
