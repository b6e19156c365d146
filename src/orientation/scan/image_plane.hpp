#pragma once

#include "image2d/image/image.hpp"
#include "orientation/scan/scan_line.hpp"

namespace morvane {
// The grey values of an image as a scan reads them: its own canvas, or a 16-bit copy of the grey
// values of a colour image. The image must live as long and keep its pixels.
class SCAN_PLANE {
public:
    explicit SCAN_PLANE(const TIMAGE &image);

    COMPLEXNAT SIZE() const;
    NAT GET(NAT x, NAT y) const; // 0 outside
    SCAN_VOLUME VOLUME() const;  // a volume of one slice; 0 bits without pixels
    // As GETLINE_W0 of line_walk.hpp.
    NAT GETLINE_W0(const COMPLEXNAT &p1, const COMPLEXNAT &p2, NAT *samples) const;

private:
    const TGRAY *gray = nullptr;
    const TFULLGRAY *full = nullptr;
    TFULLGRAY copy;
};
} // namespace morvane
