#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "image2d/colour/colormap.hpp"
#include "image2d/filter/adjust.hpp"
#include "image2d/filter/smooth.hpp"

#include <algorithm>

namespace morvane {
namespace {
constexpr int HDR_PASSES = 16;
constexpr NAT MIDDLE = 32768; // of the 16 bits of the difference
} // namespace

void INVERT_LUMIOSITY(TRGB &image) {
    for (NAT y = 1; y <= image.HEIGHT(); ++y)
        for (NAT x = 1; x <= image.WIDTH(); ++x) {
            const VECTORNAT old = image._GET(x, y);
            const VECTOR inverse =
                INVERT_LUMINOSITY(static_cast<REAL>(old.x) / 255, static_cast<REAL>(old.y) / 255,
                                  static_cast<REAL>(old.z) / 255);
            image.PUT(x, y, ROUND(VECTOR{inverse.x * 255, inverse.y * 255, inverse.z * 255}));
        }
}

// The difference of a pixel's sum (0..765) from its surroundings, times 64 around the middle of 16
// bits, is its local tone: 64 steps keep the whole range of sums within the 16 bits.
void HDRGRAY(TRGB &image) {
    if (image.EMPTY()) return;
    TFULLCANVAS sums(image.WIDTH(), image.HEIGHT()), smooth;
    if (sums.EMPTY()) return;
    const BYTE *red = image.RED().DATA(), *green = image.GREEN().DATA(),
               *blue = image.BLUE().DATA();
    for (NAT i = 0; i < sums.COUNT(); ++i)
        sums.DATA()[i] = static_cast<WORD>((red[i] + green[i] + blue[i]) * 64);
    if (!smooth.CLONE(sums)) return;
    for (int pass = 0; pass < HDR_PASSES; ++pass)
        HARDSMOOTH(smooth, smooth.WHOLE());
    for (NAT i = 0; i < sums.COUNT(); ++i) {
        const NAT tone = MIDDLE + (NAT{sums.DATA()[i]} - smooth.DATA()[i]) / 2;
        sums.DATA()[i] = static_cast<WORD>(LIMIT(tone, NAT{0}, TFULLCANVAS::MAXIMUM));
    }
    ADJUST256(sums, sums.WHOLE());
    // A flat image has no local tone: middle grey.
    const PIXEL_LIMITS limits = GETLIMITS(sums);
    const bool isFlat = limits.max > 255;
    for (TGRAY &plane : image.planes)
        for (NAT i = 0; i < sums.COUNT(); ++i)
            plane.DATA()[i] = isFlat ? BYTE{128} : static_cast<BYTE>(sums.DATA()[i]);
}
} // namespace morvane
