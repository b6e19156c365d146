#pragma once

#include "foundation/base/records.hpp"

namespace morvane {
// The settings of the streamlines; the command layer keeps one record between commands. The PUT
// operations take what a user typed; what is no number counts as a wrong value.
struct STREAM_SETTINGS {
    NAT seeds = 1;  // 0 every candidate, 1 unvisited voxels, n no visited voxel in the cube around
    NAT snakes = 0; // 0 whole lines, 1 cut at a visited voxel, n at one with a visited neighbour
    REAL steps = 1; // length of a step in voxels
    REAL angles = PI / 180;  // radians: bends below are not stored; 0 stores every step
    REAL stopAngle = PI / 2; // radians: a bend of this or more ends a half line
    REAL stopLength = 0;     // 0: the diagonal of the field
    NAT stopContrast = 0;    // 0: the scalar field is not looked at

    void PUTSEEDS(NAT value) { seeds = value < 0 ? 0 : value; }
    void PUTSNAKES(NAT value) { snakes = value < 0 ? 0 : value; }
    void PUTSTEPS(REAL value) { steps = value >= 0 ? value : 1; }
    void PUTANGLES(REAL degrees) { angles = Radians(degrees); }
    void PUTSTOPANGLE(REAL degrees) { stopAngle = Radians(degrees); }
    void PUTSTOPLENGTH(REAL value) { stopLength = value >= 0 ? value : 0; }
    void PUTSTOPCONTRAST(NAT value) { stopContrast = value < 0 ? 0 : value; }

private:
    static REAL Radians(REAL degrees) {
        const REAL angle = degrees * PI / 180;
        return angle >= 0 ? (angle < PI ? angle : PI) : 0;
    }
};
} // namespace morvane
