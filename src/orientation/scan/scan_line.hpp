#pragma once

#include "foundation/base/rounding.hpp"
#include "foundation/container/poly_types.hpp"

namespace morvane {
class T3D_SCALAR_ANALYSIS;

// A straight walk over voxels in fixed point with 16 fraction bits: `steps` moves of `step`.
struct LINE_WALK {
    NAT steps = 0; // rounded length of the line; 0: there is no line
    VECTORNAT step;
};
LINE_WALK GETWALK(const VECTORNAT &from, const VECTORNAT &to);

// The contiguous run of non-zero voxels on the line from p1 to p2: from p1 when it is not zero,
// else from p2 when that is not, else the first run after p1. Outside the field counts as zero
// whatever BACKGROUND is. A 1-bit field and a field without storage give an empty list.
void GETLINE_W0(const T3D_SCALAR_ANALYSIS &scalar, NAT x1, NAT y1, NAT z1, NAT x2, NAT y2, NAT z2,
                TPOLYNAT &line);

// The voxels of an 8-bit or 16-bit field as the scan reads them; 0 bits stands for all others.
struct SCAN_VOLUME {
    const void *voxels = nullptr; // x fastest, then y, then z
    NAT bits = 0;                 // 8, 16, or 0: every read gives 0
    VECTORNAT size;
};
SCAN_VOLUME GETVOLUME(const T3D_SCALAR_ANALYSIS &scalar);

namespace plain {
// The same run, read into `samples`, which has room for the rounded length of the line and one
// more; the number of samples.
NAT GETLINE_W0(const SCAN_VOLUME &volume, const VECTORNAT &p1, const VECTORNAT &p2, NAT *samples);
} // namespace plain

// Room for the samples of any line of a scan of length r: between c + d and c - d, with d rounded.
inline NAT SAMPLES_W0(NAT r) { return 2 * r + 6; }
} // namespace morvane
