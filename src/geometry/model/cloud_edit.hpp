#pragma once

#include "geometry/model/cloud.hpp"

// Changing the lines of a cloud. Lengths and distances are those of x, y, z.
namespace morvane {
// Erase the lines with a t below (above) a limit, or with a polyline length below (above) it.
// All erasing gives the number of lines that went.
NAT ERASE_T_MIN(TCLOUD &cloud, REAL limit);
NAT ERASE_T_MAX(TCLOUD &cloud, REAL limit);
NAT ERASE_LENGTH_MIN(TCLOUD &cloud, REAL limit);
NAT ERASE_LENGTH_MAX(TCLOUD &cloud, REAL limit);
// Erase the lines that have an earlier line with the same points (all four values), with near
// points (TCLOUD::SEARCHLINE), or with a near first point (TCLOUD::SEARCHBEGIN). An earlier line
// counts also when it is erased itself.
NAT ERASE_DUPLICATES(TCLOUD &cloud);
NAT ERASE_DUPLICATES_NEAR(TCLOUD &cloud, REAL distance);
NAT ERASE_DUPLICATES_BEGIN(TCLOUD &cloud, REAL distance);
// From the first point on: a point and all later ones at most `distance` from it, of those not
// averaged yet, become their mean (all four values).
void MEAN_DUPLICATES_NEAR(TCLOUD &cloud, REAL distance);

// Round to multiples of `step`, all four values or only x, y, z; nothing for a step
// of 0 or without a finite number.
void DISCRETE(TCLOUD &cloud, REAL step);
void DISCRETE_3D(TCLOUD &cloud, REAL step);
// Subtract the middle of the bounding box, of all points or of each object's own; t stays.
void CENTER(TCLOUD &cloud);
void CENTER_OBJECTS(TCLOUD &cloud);

// Fill t: the running number of the point, the distance to the nearest other point of the cloud
// (0 when there is none), the path length from the line's first point.
void NUMBER_T(TCLOUD &cloud);
void DISTANCE_T(TCLOUD &cloud);
void LENGTH_T(TCLOUD &cloud);
// Replace t of each line by a statistic of the line's values.
void MEAN_T(TCLOUD &cloud);
void SD_T(TCLOUD &cloud);
void MIN_T(TCLOUD &cloud);
void MEDIAN_T(TCLOUD &cloud);
void MAX_T(TCLOUD &cloud);

// Lines of two points as vectors from the first to the second point; other lines stay. The first
// point and both t stay, but for VECTOR_INVERT.
void VECTOR_NORM(TCLOUD &cloud);                  // length 1; a zero vector stays zero
void VECTOR_NORMSCALE(TCLOUD &cloud, REAL scale); // length `scale`
void VECTOR_SCALE(TCLOUD &cloud, REAL scale);     // `scale` times as long
void VECTOR_MINSCALE(TCLOUD &cloud); // all by one factor: the shortest above 0 gets the length 1
void VECTOR_MAXSCALE(TCLOUD &cloud); // all by one factor: the longest gets the length 1
void VECTOR_NEGATE(TCLOUD &cloud);   // points the other way from its first point
void VECTOR_INVERT(TCLOUD &cloud);   // the two points change places

// The polyline length of a line.
REAL LINE_LENGTH(std::span<const HYPER> line);
} // namespace morvane
