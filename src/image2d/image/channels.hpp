#pragma once

#include "image2d/image/image.hpp"

#include <span>

// The components of an image as rows of whole numbers, whatever its kind: what works on images of
// mixed kinds reads and writes through these.
namespace morvane {
// A component: 0 is the grey value or red, 1 green, 2 blue; then alpha and depth.
using LAYER = int;
inline constexpr LAYER ALPHA_LAYER = 3, DEPTH_LAYER = 4;

NAT CHANNELS(const TIMAGE &image);                  // 1 grey, 3 colour, 0 without a canvas
std::span<const LAYER> LAYERS(const TIMAGE &image); // those that the kind stores
inline bool ISCOLOURLAYER(LAYER layer) { return layer < ALPHA_LAYER; }

// Row y of a layer, from pixel 1 on; behind the image and in rows outside it the background. Read
// as one channel (`channels`) a colour is its mean, a grey image read as three is its value.
// Alpha that a kind doesn't have is 255 inside, 0 outside; a depth 0.
void GETROW(const TIMAGE &image, LAYER layer, NAT channels, NAT y, std::span<NAT> row);
// Values limited to the pixel range; what lies outside is dropped, as is a layer that isn't there.
void PUTROW(TIMAGE &image, LAYER layer, NAT y, std::span<const NAT> row);
// Row y of GET: grey values, of colours half the sum of their components.
void GETGRAYROW(const TIMAGE &image, NAT y, std::span<NAT> row);

// f(plane) for the canvas of a grey kind, or red, green and blue of RGB and RGBA. Edits of values
// leave alpha alone, so that a picture stays visible.
template <class F> void VALUEPLANES(TIMAGE &image, F &&f) {
    if (TGRAY *gray = image._GRAY()) f(*gray);
    if (TFULLGRAY *full = image._FULLGRAY()) f(*full);
    if (image._ZRGB()) return;
    if (TRGB *rgb = image._RGB())
        for (TGRAY &plane : rgb->planes)
            f(plane);
}
} // namespace morvane
