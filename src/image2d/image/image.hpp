#pragma once

#include "field3d/raster/frame.hpp"
#include "foundation/base/utf16chars7.hpp"

namespace morvane {
// The pixel kinds of an image; any other tag byte means "no canvas".
inline constexpr BYTE IMAGE_GRAY = 145;     // 8 bits
inline constexpr BYTE IMAGE_FULLGRAY = 146; // 16 bits
inline constexpr BYTE IMAGE_RGB = 161;
inline constexpr BYTE IMAGE_RGBA = 162;
inline constexpr BYTE IMAGE_ZRGB = 165; // colour with a depth

// A 2-D image of a chosen pixel kind, placed in space by a frame. Coordinates start at 1.
class TIMAGE {
public:
    UTF16CHARS7 NAME; // the file last loaded

    TIMAGE() = default;
    explicit TIMAGE(BYTE tag) { INIT(tag); }
    ~TIMAGE() { DONE(); }
    TIMAGE(const TIMAGE &) = delete;
    TIMAGE &operator=(const TIMAGE &) = delete;

    void INIT(BYTE tag); // an empty image of that kind; of an unknown one without a canvas
    void DONE();         // no canvas; INIT may follow

    BYTE ID() const { return kind; } // one of the pixel kinds, or 0
    NAT SIZEX() const { return sizeX; }
    NAT SIZEY() const { return sizeY; }

    const FRAME &GETFRAME() const { return frame; }
    void SETFRAME(const FRAME &value) { frame = value; }

private:
    FRAME frame;
    BYTE kind = 0;
    NAT sizeX = 0, sizeY = 0;
};
} // namespace morvane
