#pragma once

#include "orientation/stream/stream_settings.hpp"

namespace morvane {
class FRAME;
class HALF_LINE;
class T3D_SCALAR_ANALYSIS;
class TCLOUD;
class VISITED_MASK;

// A traced line into the cloud, from the far end of `right` through the seed to the far end of
// `left`; `seed` becomes the line's value.
void _VECTOR_PUSH_LINE(TCLOUD &cloud, const HALF_LINE &left, const HALF_LINE &right, NAT seed);
// The same, and the cell of each point becomes visited.
void _VECTOR_PUSH_LINE_SEEDS_ADAPTIVE(TCLOUD &cloud, const HALF_LINE &left, const HALF_LINE &right,
                                      NAT seed, const FRAME &frame, VISITED_MASK &mask);
// Each half ends at the first point in a visited cell; the cells between its points become visited.
void _VECTOR_PUSH_LINE_SEEDS_SNAKES1_ADAPTIVE(TCLOUD &cloud, const HALF_LINE &left,
                                              const HALF_LINE &right, NAT seed, const FRAME &frame,
                                              VISITED_MASK &mask);
// The same with the first point that has a visited cell in the cube of `snakes` around it.
void _VECTOR_PUSH_LINE_SEEDS_SNAKES_ADAPTIVE(TCLOUD &cloud, const HALF_LINE &left,
                                             const HALF_LINE &right, NAT seed, const FRAME &frame,
                                             VISITED_MASK &mask, NAT snakes);
// Adds 1 to every voxel from one point of a half to the next. A half of one point adds the line
// from it to the first point of the other half instead.
void _VECTOR_PUSH_SCALAR(const HALF_LINE &left, const HALF_LINE &right, const FRAME &frame,
                         T3D_SCALAR_ANALYSIS &target);
} // namespace morvane
