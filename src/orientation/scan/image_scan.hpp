#pragma once

#include "foundation/base/records.hpp"

// The scan of directions in an image: at every pixel above 0 the direction along which the grey
// values vary least, after the image's settings, as an image of angles (image_angle.hpp). `r` is
// the scan length in pixels.
namespace morvane {
class TIMAGE;

// Command image.diffusion: tests the length, gives an empty target the size and frame of the image,
// prints the described lines and scans one row a thread. A target with pixels is told and stays in
// use as it is. False when the length is wrong or memory runs out, told in a line each.
[[nodiscard]] bool DIFFUSION_IMAGE(const TIMAGE &source, TIMAGE &target, NAT r, NAT threadLimit);

// One row. Left as it is unless both sizes are above 2r; an empty image prints "Error! Empty
// vectorfield!".
void DIFFUSION(const TIMAGE &source, TIMAGE &target, NAT y, NAT r);

namespace plain {
// The same row by the straightforward walk, pixel by pixel and direction by direction: the
// definition of the result.
void DIFFUSION(const TIMAGE &source, TIMAGE &target, NAT y, NAT r);
} // namespace plain
} // namespace morvane
