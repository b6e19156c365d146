#pragma once

#include "image2d/image/image.hpp"
#include "orientation/scan/image_scan.hpp"
#include "orientation/scan/scan_fields.hpp"

// Small images for the tests of the scan.
namespace morvane {
// Every pixel gets value(x, y).
template <class VALUE>
void FILL_IMAGE(TIMAGE &image, BYTE kind, const COMPLEXNAT &size, VALUE value) {
    image.INIT(kind, size.x, size.y);
    for (NAT y = 1; y <= size.y; ++y)
        for (NAT x = 1; x <= size.x; ++x)
            image.PUT(x, y, NAT{value(x, y)});
}

// All rows of a scan, one by one.
inline void SCAN_IMAGE(const TIMAGE &source, TIMAGE &target, NAT r, BYTE kind = IMAGE_FULLGRAY) {
    target.INIT(kind, source.SIZEX(), source.SIZEY());
    for (NAT y = 1; y <= source.SIZEY(); ++y)
        DIFFUSION(source, target, y, r);
}

inline NAT DIFFERENT_PIXELS(const TIMAGE &a, const TIMAGE &b) {
    NAT count = a.SIZE() != b.SIZE();
    for (NAT y = 1; y <= a.SIZEY(); ++y)
        for (NAT x = 1; x <= a.SIZEX(); ++x)
            count += a.GETRGBA(x, y) != b.GETRGBA(x, y);
    return count;
}
} // namespace morvane
