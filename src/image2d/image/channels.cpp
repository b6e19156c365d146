#include "image2d/image/channels.hpp"

#include "foundation/base/safe_arithmetic.hpp"

#include <algorithm>

namespace morvane {
namespace {
constexpr NAT OPAQUE = 255;
constexpr LAYER ALL_LAYERS[] = {0, 1, 2, ALPHA_LAYER, DEPTH_LAYER};

std::size_t Inside(NAT width, std::size_t length) {
    return std::min(static_cast<std::size_t>(width), length);
}

// Adds a row of the plane to `row`.
template <class PIXEL> void AddRow(const CANVAS<PIXEL> &plane, NAT y, std::span<NAT> row) {
    const bool isRow = y >= 1 && y <= plane.HEIGHT;
    const std::size_t inside = isRow ? Inside(plane.WIDTH, row.size()) : 0;
    const PIXEL *const pixels = isRow ? plane.ROW(y) : nullptr;
    for (std::size_t x = 0; x < inside; ++x)
        row[x] += pixels[x];
    for (std::size_t x = inside; x < row.size(); ++x)
        row[x] += plane.BACKGROUND;
}

template <class PIXEL> void WriteRow(CANVAS<PIXEL> &plane, NAT y, std::span<const NAT> row) {
    if (y < 1 || y > plane.HEIGHT) return;
    PIXEL *const pixels = plane.ROW(y);
    const std::size_t inside = Inside(plane.WIDTH, row.size());
    for (std::size_t x = 0; x < inside; ++x)
        pixels[x] = static_cast<PIXEL>(LIMIT(row[x], NAT{0}, CANVAS<PIXEL>::MAXIMUM));
}

void GetAlpha(const TIMAGE &image, NAT y, std::span<NAT> row) {
    if (const TRGBA *rgba = image._RGBA()) return AddRow(rgba->alpha, y, row);
    if (const TZRGB *zrgb = image._ZRGB()) return AddRow(zrgb->alpha, y, row);
    if (y < 1 || y > image.SIZEY()) return;
    std::fill_n(row.begin(), Inside(image.SIZEX(), row.size()), OPAQUE);
}

// The sum of the three components.
void GetSum(const TRGB &rgb, NAT y, std::span<NAT> row) {
    for (const TGRAY &plane : rgb.planes)
        AddRow(plane, y, row);
}
} // namespace

NAT CHANNELS(const TIMAGE &image) {
    if (image.ISGRAY()) return 1;
    return image.ISCOLOUR() ? 3 : 0;
}

std::span<const LAYER> LAYERS(const TIMAGE &image) {
    const std::span<const LAYER> all(ALL_LAYERS);
    switch (image.ID()) {
    case IMAGE_GRAY:
    case IMAGE_FULLGRAY: return all.first(1);
    case IMAGE_RGB: return all.first(3);
    case IMAGE_RGBA: return all.first(4);
    case IMAGE_ZRGB: return all;
    default: return all.first(0);
    }
}

void GETROW(const TIMAGE &image, LAYER layer, NAT channels, NAT y, std::span<NAT> row) {
    std::fill(row.begin(), row.end(), 0);
    if (layer == ALPHA_LAYER) return GetAlpha(image, y, row);
    if (layer == DEPTH_LAYER) {
        if (const TZRGB *zrgb = image._ZRGB()) AddRow(zrgb->depth, y, row);
        return;
    }
    if (const TGRAY *gray = image._GRAY()) return AddRow(*gray, y, row);
    if (const TFULLGRAY *full = image._FULLGRAY()) return AddRow(*full, y, row);
    const TRGB *rgb = image._RGB();
    if (!rgb) return;
    if (channels > 1) return AddRow(rgb->planes[static_cast<std::size_t>(layer)], y, row);
    GetSum(*rgb, y, row);
    for (NAT &value : row)
        value /= 3;
}

void PUTROW(TIMAGE &image, LAYER layer, NAT y, std::span<const NAT> row) {
    TRGBA *const rgba = image._RGBA();
    TZRGB *const zrgb = image._ZRGB();
    if (layer == ALPHA_LAYER) {
        if (rgba) WriteRow(rgba->alpha, y, row);
        if (zrgb) WriteRow(zrgb->alpha, y, row);
    } else if (layer == DEPTH_LAYER) {
        if (zrgb) WriteRow(zrgb->depth, y, row);
    } else if (TRGB *rgb = image._RGB()) {
        WriteRow(rgb->planes[static_cast<std::size_t>(layer)], y, row);
    } else if (layer == 0) {
        if (TGRAY *gray = image._GRAY()) WriteRow(*gray, y, row);
        if (TFULLGRAY *full = image._FULLGRAY()) WriteRow(*full, y, row);
    }
}

void GETGRAYROW(const TIMAGE &image, NAT y, std::span<NAT> row) {
    const TRGB *rgb = image._RGB();
    if (!rgb) return GETROW(image, 0, 1, y, row);
    std::fill(row.begin(), row.end(), 0);
    GetSum(*rgb, y, row);
    for (NAT &value : row)
        value /= 2;
}
} // namespace morvane
