#pragma once

#include "foundation/base/records.hpp"

// Line clouds drawn into a scalar field: each point at its voxel, by the frame of the field. What
// lies outside the field is not drawn. An empty field or cloud is left alone.
namespace morvane {
class T3D_SCALAR_ANALYSIS;
class TCLOUD;

// The grey value of a point: the field's VALUE, its product with the point's t, or t. It is limited
// to the voxel range and rounded; a 1-bit voxel is set from 1 on.
enum class DRAW_GREY : BYTE { VALUE, VALUE_T, T };

// One voxel for each point; `solid`: with its 26 neighbours.
void DRAW_POINTS(const TCLOUD &cloud, T3D_SCALAR_ANALYSIS &field, DRAW_GREY grey, bool solid);
// The voxels at most `radius` voxels from each point; not `solid`: the outermost layer of them.
void DRAW_SPHERES(const TCLOUD &cloud, T3D_SCALAR_ANALYSIS &field, DRAW_GREY grey, REAL radius,
                  bool solid);
// A cube of 2 * radius + 1 voxels around each point; not `solid`: its faces.
void DRAW_CUBES(const TCLOUD &cloud, T3D_SCALAR_ANALYSIS &field, DRAW_GREY grey, REAL radius,
                bool solid);
// The voxels between consecutive points of each line, without gaps, t changing evenly; `solid`:
// with their 26 neighbours; `points`: a line of one point draws that point.
void DRAW_LINES(const TCLOUD &cloud, T3D_SCALAR_ANALYSIS &field, DRAW_GREY grey, bool points,
                bool solid);
} // namespace morvane
