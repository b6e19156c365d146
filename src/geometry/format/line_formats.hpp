#pragma once

#include "foundation/base/utf16.hpp"

// The writers of line clouds. Each writes beside its target and renames after a checked close; a
// failure is told and gives false, and the old file stays.
namespace morvane {
class TCLOUD;

bool SAVE_DXF(const TCLOUD &cloud, const UTF16 &name);      // polylines with t as width
bool SAVE_OBJ(const TCLOUD &cloud, const UTF16 &name);      // points, lines, faces of closed lines
bool SAVE_VTK(const TCLOUD &cloud, const UTF16 &name);      // XML PolyData, ascii
bool SAVE_TRACKVIS(const TCLOUD &cloud, const UTF16 &name); // version 2, little-endian
bool SAVE_MV3D(const TCLOUD &cloud, const UTF16 &name);     // MicroVisu3D text
bool SAVE_SWC(const TCLOUD &cloud, const UTF16 &name);      // one root for each line
} // namespace morvane
