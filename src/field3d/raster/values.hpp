#pragma once

#include "field3d/raster/raster.hpp"
#include "foundation/base/random.hpp"
#include "foundation/container/poly_types.hpp"

// Whole-field operations; all but the histograms work inside the window.
namespace morvane {
struct LIMITSNAT {
    NAT min, min0, max; // min0: the smallest value above 0
};
// One pass. Without a voxel, or without one above 0, a start value stays: the largest voxel for the
// minima, 0 for the maximum. 1 bit answers 0, 1 and 1 without looking.
template <class VOXEL> LIMITSNAT GETLIMITS(const RASTER<VOXEL> &raster);
// Voxels with a value in low..high, and the sum of their values. 1 bit answers 0.
template <class VOXEL> NAT COUNT_RANGE(const RASTER<VOXEL> &raster, NAT low, NAT high);
template <class VOXEL> NAT SUM_RANGE(const RASTER<VOXEL> &raster, NAT low, NAT high);
// Not empty, and all voxels of the field equal the first.
template <class VOXEL> bool IFPLAIN(const RASTER<VOXEL> &raster);

// Voxels in low..high, limited to the voxel range, become `value`, limited as well.
template <class VOXEL> void REPLACE_RANGE(RASTER<VOXEL> &raster, NAT low, NAT high, NAT value);
// voxel := table[voxel + 1], limited to the voxel range. Nothing on 1 bit or with another length.
template <class VOXEL> void SETRANGE(RASTER<VOXEL> &raster, const TPOLYNAT &table);
template <class VOXEL> void INVERT(RASTER<VOXEL> &raster); // the whole field, bitwise

// Voxels a value, value v in bin v+1. 1-bit and empty fields give an empty list.
template <class VOXEL> void HISTOGRAM(const RASTER<VOXEL> &raster, TPOLYNAT &bins);
// The same of max(4096/(x*y), 3) slices drawn at random, with repetition; of all slices when there
// are no more.
template <class VOXEL>
void HISTOGRAM_FAST(const RASTER<VOXEL> &raster, TPOLYNAT &bins, RANDOM_STREAM &random);
} // namespace morvane
