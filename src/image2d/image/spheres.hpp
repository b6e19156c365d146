#pragma once

#include "geometry/model/cloud.hpp"
#include "image2d/image/image.hpp"

namespace morvane {
// The largest circles within the pixels of the range that do not overlap, of at most `largest`
// pixels radius (INNER_CIRCLES), as the points of one more line of the cloud, an object "Spheres":
// x, y, z the global centre, t the radius in global units (the mean scale of both axes). The count
// of circles.
NAT GETSPHERE(const TIMAGE &image, const COMPLEXNAT &range, REAL largest, TCLOUD &cloud);
} // namespace morvane
