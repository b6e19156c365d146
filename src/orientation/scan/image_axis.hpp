#pragma once

#include "foundation/base/records.hpp"

namespace morvane {
class TIMAGE;

// The mean of the axes that a scan finds in an image.
struct MEAN_AXIS {
    REAL degrees = 0;   // from x towards y (down), above -90 up to 90
    REAL alignment = 0; // 0: no preferred axis, 1: all axes alike
};

// Axes have no sign, so they are averaged by their doubled angles (Mardia and Jupp 2000, 1.1). Each
// counts with the standard deviation of the grey values in the square of 2r+1 pixels around it:
// where there is no structure the scan only sees noise. Tests the length and prints as
// DIFFUSION_IMAGE; zero when the length is wrong, memory runs out or no pixel has an axis.
MEAN_AXIS GETMEANAXIS(const TIMAGE &image, NAT r, NAT threadLimit);
} // namespace morvane
