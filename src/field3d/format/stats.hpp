#pragma once

#include "field3d/raster/raster.hpp"

namespace morvane {
// What a loader reports at its end: a compact histogram of the field, then its frame.
template <class VOXEL> void __WRITE_STATS(const RASTER<VOXEL> &field);
// The frame behind a title such as "  Transformation: ": one line when it is short, else one for
// each row and one for the offset.
void WRITE_FRAME(const UTF16 &title, const FRAME &frame);
} // namespace morvane
