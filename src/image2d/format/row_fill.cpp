#include "image2d/format/row_fill.hpp"

#include <algorithm>
#include <bit>
#include <cstring>

namespace morvane {
namespace {
constexpr int WHITE = 3 * 255; // the sum of a white pixel's components

// row(y, target) for each row, with `lead` zero bytes before it and `length` bytes in it.
template <class ROW_OF>
void Fill(NAT height, NAT lead, NAT length, NAT stride, BYTE *target, ROW_OF row) {
    const NAT step = stride > 0 ? stride : lead + length;
    for (NAT y = 1; y <= height; ++y, target += step) {
        std::fill_n(target, lead, BYTE{0});
        row(y, target + lead);
    }
}

// Words in that order of bytes; whole words, so that a compiler takes many at once.
template <std::endian ORDER> void WordRow(const TFULLGRAY &canvas, NAT y, BYTE *target) {
    const WORD *row = canvas.ROW(y);
    const NAT width = canvas.WIDTH; // a store of bytes might change the field
    for (NAT x = 0; x < width; ++x) {
        const int turned = row[x] >> 8 | row[x] << 8;
        const WORD word = ORDER == std::endian::native ? row[x] : static_cast<WORD>(turned);
        std::memcpy(target + 2 * x, &word, sizeof word);
    }
}

// The three planes of a row.
struct RGB_PLANES {
    const BYTE *red, *green, *blue;

    RGB_PLANES(const TRGB &canvas, NAT y)
        : red(canvas.RED().ROW(y)), green(canvas.GREEN().ROW(y)), blue(canvas.BLUE().ROW(y)) {}
    int Sum(NAT x) const { return red[x] + green[x] + blue[x]; }
};

// Four components a pixel; alpha(x) gives the fourth.
template <class ALPHA>
void Interleave(const RGB_PLANES &row, NAT width, BYTE *target, ALPHA alpha) {
    for (NAT x = 0; x < width; ++x) {
        target[4 * x] = row.red[x];
        target[4 * x + 1] = row.green[x];
        target[4 * x + 2] = row.blue[x];
        target[4 * x + 3] = alpha(x);
    }
}
} // namespace

void GRAY_ROW(const TGRAY &canvas, NAT y, BYTE *target) {
    std::memcpy(target, canvas.ROW(y), static_cast<std::size_t>(canvas.WIDTH));
}

void FULLGRAY_NTOLE_ROW(const TFULLGRAY &canvas, NAT y, BYTE *target) {
    WordRow<std::endian::little>(canvas, y, target);
}

void FULLGRAY_NTOBE_ROW(const TFULLGRAY &canvas, NAT y, BYTE *target) {
    WordRow<std::endian::big>(canvas, y, target);
}

void RGB_ROW(const TRGB &canvas, NAT y, BYTE *target) {
    const RGB_PLANES row(canvas, y);
    const NAT width = canvas.WIDTH();
    for (NAT x = 0; x < width; ++x) {
        target[3 * x] = row.red[x];
        target[3 * x + 1] = row.green[x];
        target[3 * x + 2] = row.blue[x];
    }
}

void BGR_ROW(const TRGB &canvas, NAT y, BYTE *target) {
    const RGB_PLANES row(canvas, y);
    const NAT width = canvas.WIDTH();
    for (NAT x = 0; x < width; ++x) {
        target[3 * x] = row.blue[x];
        target[3 * x + 1] = row.green[x];
        target[3 * x + 2] = row.red[x];
    }
}

void RGBA_ROW(const TRGB &canvas, NAT y, BYTE *target) {
    Interleave(RGB_PLANES(canvas, y), canvas.WIDTH(), target, [](NAT) { return BYTE{255}; });
}

void RGBA_ROW(const TRGBA &canvas, NAT y, BYTE *target) {
    const BYTE *alpha = canvas.alpha.ROW(y);
    Interleave(RGB_PLANES(canvas.rgb, y), canvas.WIDTH(), target, [=](NAT x) { return alpha[x]; });
}

void RGBA_ROW(const TZRGB &canvas, NAT y, BYTE *target) {
    const BYTE *alpha = canvas.alpha.ROW(y);
    Interleave(RGB_PLANES(canvas.rgb, y), canvas.WIDTH(), target, [=](NAT x) { return alpha[x]; });
}

void MEAN_ROW(const TRGB &canvas, NAT y, BYTE *target) {
    const RGB_PLANES row(canvas, y);
    const NAT width = canvas.WIDTH();
    for (NAT x = 0; x < width; ++x)
        target[x] = static_cast<BYTE>(row.Sum(x) / 3);
}

void MONO_ROW(const TRGB &canvas, NAT y, BYTE *target) {
    const RGB_PLANES row(canvas, y);
    const NAT width = canvas.WIDTH();
    std::fill_n(target, (width + 7) / 8, BYTE{0});
    for (NAT x = 0; x < width; ++x)
        if (2 * row.Sum(x) <= WHITE) target[x / 8] |= static_cast<BYTE>(0x80 >> x % 8);
}

void FILL_0GRAY(const TGRAY &canvas, BYTE *target, NAT stride) {
    Fill(canvas.HEIGHT, 1, canvas.WIDTH, stride, target,
         [&](NAT y, BYTE *row) { GRAY_ROW(canvas, y, row); });
}

void FILL_0FULLGRAY_NTOBE(const TFULLGRAY &canvas, BYTE *target, NAT stride) {
    Fill(canvas.HEIGHT, 1, 2 * canvas.WIDTH, stride, target,
         [&](NAT y, BYTE *row) { FULLGRAY_NTOBE_ROW(canvas, y, row); });
}

void FILL_0RGB(const TRGB &canvas, BYTE *target, NAT stride) {
    Fill(canvas.HEIGHT(), 1, 3 * canvas.WIDTH(), stride, target,
         [&](NAT y, BYTE *row) { RGB_ROW(canvas, y, row); });
}

void FILL_0RGBA(const TRGBA &canvas, BYTE *target, NAT stride) {
    Fill(canvas.HEIGHT(), 1, 4 * canvas.WIDTH(), stride, target,
         [&](NAT y, BYTE *row) { RGBA_ROW(canvas, y, row); });
}

void FILL_0ZRGB(const TZRGB &canvas, BYTE *target, NAT stride) {
    Fill(canvas.HEIGHT(), 1, 4 * canvas.WIDTH(), stride, target,
         [&](NAT y, BYTE *row) { RGBA_ROW(canvas, y, row); });
}

void FILL_MONO(const TRGB &canvas, BYTE *target, NAT stride) {
    Fill(canvas.HEIGHT(), 0, (canvas.WIDTH() + 7) / 8, stride, target,
         [&](NAT y, BYTE *row) { MONO_ROW(canvas, y, row); });
}

void FILL_GRAY(const TRGB &canvas, BYTE *target, NAT stride) {
    Fill(canvas.HEIGHT(), 0, canvas.WIDTH(), stride, target,
         [&](NAT y, BYTE *row) { MEAN_ROW(canvas, y, row); });
}

void FILL_RGB(const TRGB &canvas, BYTE *target, NAT stride) {
    Fill(canvas.HEIGHT(), 0, 3 * canvas.WIDTH(), stride, target,
         [&](NAT y, BYTE *row) { RGB_ROW(canvas, y, row); });
}
} // namespace morvane
