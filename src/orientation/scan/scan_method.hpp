#pragma once

#include "foundation/container/poly_types.hpp"
#include "orientation/scan/scan_buffer.hpp"

// How the values of all directions become the vector of a voxel: six methods, named by year. The
// best value is the smallest, whatever the statistic.
namespace morvane {
class T3D_SCALAR_ANALYSIS;

enum class SCAN_METHOD { BRENK2013 = 1, BRENK2014A, BRENK2014B, BRENK2015A, BRENK2015B, BRENK2019 };

inline constexpr REAL WORST_VALUE = 8.99e307; // where the search for the smallest value starts

// The settings of a scalar field that a scan reads, with the method number resolved.
struct SCAN_SETTINGS {
    SCAN_METHOD method = SCAN_METHOD::BRENK2015B;
    BYTE subMethod = 2;
    bool fullScan = false;
    REAL angle = 0; // radians
    REAL max = 0;   // share of directions that may tie
};
SCAN_SETTINGS GETSETTINGS(const T3D_SCALAR_ANALYSIS &scalar);

// Tallies: each takes the directions that are long enough, in scanning order, with their values.
struct TALLY_2013 {
    REAL best = WORST_VALUE;
    VECTOR result;
    void ADD(const VECTOR &unit, REAL value);
};
struct TALLY_2014A {
    NAT r = 0;
    REAL best = WORST_VALUE;
    VECTOR result;
    bool open = false; // one more vector of the best value may join
    void ADD(const VECTOR &unit, REAL value);
};
struct TALLY_2014B {
    REAL best = WORST_VALUE;
    VECTOR result;
    NAT ties = 0;
    void ADD(const VECTOR &unit, REAL value);
    VECTOR MEAN(NAT walked, REAL max) const; // `walked` counts the short directions too
};
struct TALLY_2015 {
    REAL best = WORST_VALUE;
    VECTOR direction; // sum of the best offsets
    NAT ties = 0;
    void ADD(const VECTORNAT &offset, REAL value);
};

// Where the lines come from: `read` puts the samples of a direction (from 0) into the line and
// gives their number.
struct LINE_SOURCE {
    NAT (*read)(const void *self, NAT direction, NAT *samples) = nullptr;
    const void *self = nullptr;
};
// The lists of a scan that no voxel changes, and those that are made once a slice.
struct SCAN_DIRECTIONS {
    TPOLYVECTORNAT points;
    TPOLYVECTOR vectors;
};
struct SCAN_LISTS {
    SCAN_BUFFER<NAT> line;
    TPOLYCOMPLEX ranked;
    TPOLYVECTOR scanned;
    [[nodiscard]] bool INIT(NAT r); // false when memory runs out
};
// One voxel's scan. `ranked` and `scanned` are empty at its start.
struct VOXEL_SCAN {
    const SCAN_SETTINGS &settings;
    const SCAN_DIRECTIONS &directions;
    SCAN_LISTS &lists;
    LINE_SOURCE source;
    NAT r = 0;
};

VECTOR GETIMAGEVECTOR_BRENK2013(const VOXEL_SCAN &scan);  // the single best vector
VECTOR GETIMAGEVECTOR_BRENK2014A(const VOXEL_SCAN &scan); // the mean of the two best vectors
VECTOR GETIMAGEVECTOR_BRENK2014B(const VOXEL_SCAN &scan); // the mean of all best vectors
// The sum of the best offsets inside the cone around their sum: all of them, or up to the first
// direction outside the cone; BRENK2019 gives it the length of the best value.
VECTOR GETIMAGEVECTOR_BRENK2015A(const VOXEL_SCAN &scan);
VECTOR GETIMAGEVECTOR_BRENK2015B(const VOXEL_SCAN &scan);
VECTOR GETIMAGEVECTOR_BRENK2019(const VOXEL_SCAN &scan);
VECTOR GETIMAGEVECTOR(const VOXEL_SCAN &scan); // by the method of the settings

// What the fast road knows of a voxel: which directions share the best value.
struct SCAN_TIES {
    REAL best = WORST_VALUE;
    const std::uint32_t *directions = nullptr; // from 0, in scanning order
    NAT count = 0;
    NAT scanned = 0; // directions long enough
};
// The vector of a voxel from its ties alone, the same as GETIMAGEVECTOR. False when it depends on
// the order in which the sort leaves them: then only GETIMAGEVECTOR tells.
[[nodiscard]] bool GETIMAGEVECTOR_TIES(const SCAN_SETTINGS &settings,
                                       const SCAN_DIRECTIONS &directions, NAT r,
                                       const SCAN_TIES &ties, VECTOR &result);
} // namespace morvane
