#pragma once

#include "field3d/format/byte_source.hpp"
#include "field3d/raster/raster.hpp"

namespace morvane {
// A volume of samples that may lack data at its end is created only up to this many bytes of
// voxels: a header of some bytes can claim any size. Zero pages below it cost no memory.
inline constexpr NAT SHORT_FIELD_BYTES = NAT{1} << 32;

// Where a volume of samples lies in a file and how it becomes voxels.
struct RAW_VOLUME {
    NAT header = 0;    // bytes before the first stack
    NAT stack = 1;     // from 1
    bool swap = false; // samples are in the other byte order
    NAT code = 0;      // sample type, see sample_codec.hpp
    RANGE range;       // of float samples; empty: found by a first pass
    VECTORNAT size;
    NAT filterOffset = 0, filterFactor = 0;
};

// Creates the field and fills it. A plain file that is too short tells its sizes and leaves a zero
// field; a stream that ends early tells so and leaves zeros from there on. False: the field is
// empty, because memory ran out or because data as short as these can't be a field of this size.
template <class VOXEL>
bool __READRAW(RASTER<VOXEL> &field, BYTE_SOURCE &source, const RAW_VOLUME &volume);
// A zero field of the size, under the same limit; prints the progress line of zero fields.
template <class VOXEL> bool MAKEZERO(RASTER<VOXEL> &field, const VECTORNAT &size);
} // namespace morvane
