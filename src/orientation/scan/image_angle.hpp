#pragma once

#include "orientation/scan/scan_buffer.hpp"

// How an angle image holds the axes that a scan finds. An angle a runs from x against the clock, as
// seen on the screen; pi/2 (up) is stored as 0, pi (left) as the middle of the pixel range, 3/2 pi
// (down) as its end, everything beyond as the nearer end. 0 also stands for "no axis".
namespace morvane {
// The value of a vector in 0..maximum. With `axial` the opposite of a vector to the right is stored
// in its place and the value is at least 1, so that no axis is cut to an end and 0 is none.
NAT SCAN_ANGLE_VALUE(const COMPLEX &v, NAT maximum, bool axial);
// The axis that a value above 0 stands for, in radians from x towards y (down), above -pi/2 up to
// pi/2.
REAL SCAN_ANGLE(NAT value, NAT maximum);

// The same with the values of all short whole vectors looked up, as most pixels have one offset for
// their vector.
class ANGLE_VALUES {
public:
    ANGLE_VALUES(NAT pixelMaximum, bool axialValues, NAT r);
    NAT VALUE(const COMPLEX &v) const;

private:
    NAT maximum, reach = 0; // vectors from -reach to reach; 0: no table
    bool axial;
    SCAN_BUFFER<WORD> table;
};
} // namespace morvane
