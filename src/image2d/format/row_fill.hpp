#pragma once

#include "image2d/canvas/rgb.hpp"

// Pixels between canvases and the flat rows of files. y counts from 1.
namespace morvane {
// One row of a canvas into `target`: bytes, words of either order, interleaved components.
void GRAY_ROW(const TGRAY &canvas, NAT y, BYTE *target);
void FULLGRAY_NTOLE_ROW(const TFULLGRAY &canvas, NAT y, BYTE *target);
void FULLGRAY_NTOBE_ROW(const TFULLGRAY &canvas, NAT y, BYTE *target);
void RGB_ROW(const TRGB &canvas, NAT y, BYTE *target);
void BGR_ROW(const TRGB &canvas, NAT y, BYTE *target);
void RGBA_ROW(const TRGB &canvas, NAT y, BYTE *target); // alpha 255
void RGBA_ROW(const TRGBA &canvas, NAT y, BYTE *target);
void RGBA_ROW(const TZRGB &canvas, NAT y, BYTE *target);
void MEAN_ROW(const TRGB &canvas, NAT y, BYTE *target); // (r + g + b) / 3
// Bits, the first pixel in the highest one; 1 is black: half brightness or below.
void MONO_ROW(const TRGB &canvas, NAT y, BYTE *target);

// All rows of a canvas into a flat buffer; each begins `stride` bytes behind the former one, or
// right behind it with a stride of 0. FILL_0...: a byte 0 stands before each row.
void FILL_0GRAY(const TGRAY &canvas, BYTE *target, NAT stride = 0);
void FILL_0FULLGRAY_NTOBE(const TFULLGRAY &canvas, BYTE *target, NAT stride = 0);
void FILL_0RGB(const TRGB &canvas, BYTE *target, NAT stride = 0);
void FILL_0RGBA(const TRGBA &canvas, BYTE *target, NAT stride = 0);
void FILL_0ZRGB(const TZRGB &canvas, BYTE *target, NAT stride = 0);
void FILL_MONO(const TRGB &canvas, BYTE *target, NAT stride = 0);
void FILL_GRAY(const TRGB &canvas, BYTE *target, NAT stride = 0); // the mean of the components
void FILL_RGB(const TRGB &canvas, BYTE *target, NAT stride = 0);

// A row of samples as a file gives them.
struct SAMPLE_ROW {
    const WORD *samples; // `channels` a pixel, side by side
    NAT channels;        // 1 grey, 3 colour, 4 colour and alpha
    bool deep;           // 16-bit values: a byte canvas drops their low bytes
};
// Into row y of a canvas: grey from colour is the sum divided by 3, alpha without one is 255. What
// is too large becomes the largest pixel value.
void STORE_ROW(TGRAY &canvas, NAT y, const SAMPLE_ROW &row);
void STORE_ROW(TFULLGRAY &canvas, NAT y, const SAMPLE_ROW &row);
void STORE_ROW(TRGB &canvas, NAT y, const SAMPLE_ROW &row);
void STORE_ROW(TRGBA &canvas, NAT y, const SAMPLE_ROW &row);
} // namespace morvane
