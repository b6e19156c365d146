#include "image2d/image/image.hpp"

namespace morvane {
void TIMAGE::INIT(BYTE tag) {
    DONE();
    switch (tag) {
    case IMAGE_GRAY:
    case IMAGE_FULLGRAY:
    case IMAGE_RGB:
    case IMAGE_RGBA:
    case IMAGE_ZRGB: kind = tag; break;
    default: break;
    }
}

void TIMAGE::DONE() {
    kind = 0;
    sizeX = sizeY = 0;
    frame.RESET();
    NAME = UTF16CHARS7();
}
} // namespace morvane
