#pragma once

#include "foundation/container/poly_types.hpp"

#include <array>

namespace morvane {
// A face of three or four corners; a triangle repeats corner 3 as corner 4.
struct TOLDFACE {
    std::array<NAT, 4> corners{}; // positions in the point list
    std::array<NAT, 4> uvs{};     // positions in the list of texture coordinates; 0: none
    bool isVisible = true;        // hidden faces are passed over
    HYPER colour;                 // red, green, blue, alpha in 0..1
};
static_assert(sizeof(TOLDFACE) == 104);

// A mesh: the object itself is the list of its points, which faces share by their positions.
class TMESH : public TPOLYVECTOR {
public:
    TPOLYVECTOR NORMALS;  // one a point, same position; empty: the mesh has none
    TPOLY FACES;          // of TOLDFACE
    VECTOR PIVOT = VZERO; // the point about which the pivot commands work

    TMESH() { INIT(); }
    ~TMESH() { DONE(); }
    TMESH(const TMESH &) = delete;
    TMESH &operator=(const TMESH &) = delete;

    void INIT(); // an empty mesh
    void DONE(); // all memory freed; INIT may follow
};
} // namespace morvane
