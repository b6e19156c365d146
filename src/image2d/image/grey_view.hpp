#pragma once

#include "image2d/image/image.hpp"

#include <utility>

namespace morvane {
// f(canvas) with the grey values of the image as TIMAGE::GET gives them: the canvas itself of a
// grey kind, a 16-bit copy of a colour kind, an empty 8-bit one without pixels or memory.
template <class F> auto WITH_GREY(const TIMAGE &image, F &&f) {
    if (const TGRAY *gray = image._GRAY()) return f(*gray);
    if (const TFULLGRAY *full = image._FULLGRAY()) return f(*full);
    TFULLGRAY copy(image.SIZEX(), image.SIZEY());
    const TRGB *rgb = image._RGB();
    if (!rgb || copy.EMPTY()) return f(TGRAY());
    const BYTE *red = rgb->RED().DATA(), *green = rgb->GREEN().DATA(), *blue = rgb->BLUE().DATA();
    for (NAT i = 0; i < copy.COUNT(); ++i)
        copy.DATA()[i] = static_cast<WORD>((red[i] + green[i] + blue[i]) >> 1);
    return f(std::as_const(copy));
}

// 1 where the grey value lies in the range, else 0; empty without pixels or memory.
TCANVAS MASK_OF_RANGE(const TIMAGE &image, const COMPLEXNAT &range);
} // namespace morvane
