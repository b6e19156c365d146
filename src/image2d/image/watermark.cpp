#include "image2d/image/watermark.hpp"

#include "image2d/canvas/font.hpp"

namespace morvane {
void WATERMARK(TIMAGE &image, NAT x, NAT y, const UTF16 &text) {
    image._DISPATCH([&]<class CANVAS_TYPE>(CANVAS_TYPE &canvas) {
        if constexpr (std::is_same_v<CANVAS_TYPE, TZRGB>)
            WRITE(canvas, x, y, TFULLCANVAS::MAXIMUM, text);
        else
            WRITE(canvas, x, y, text);
    });
}
} // namespace morvane
