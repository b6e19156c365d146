#include "image2d/image/copy.hpp"

#include "foundation/base/safe_arithmetic.hpp"
#include "image2d/image/channels.hpp"

#include <algorithm>
#include <vector>

namespace morvane {
namespace {
// All layers of the source from (left, top) on.
void CopyPixels(const TIMAGE &source, NAT left, NAT top, TIMAGE &image) {
    const NAT channels = CHANNELS(image);
    std::vector<NAT> row(static_cast<std::size_t>(left - 1 + image.SIZEX()));
    const std::span<const NAT> wanted = std::span(row).subspan(static_cast<std::size_t>(left - 1));
    for (const LAYER layer : LAYERS(image))
        for (NAT y = 1; y <= image.SIZEY(); ++y) {
            GETROW(source, layer, channels, top - 1 + y, row);
            PUTROW(image, layer, y, wanted);
        }
}

// Grows the area by the pixels of row y that differ from 0.
void Include(PIXEL_AREA &area, NAT y, std::span<const NAT> row) {
    const auto isSet = [](NAT value) { return value != 0; };
    const auto first = std::find_if(row.begin(), row.end(), isSet);
    if (first == row.end()) return;
    const auto last = std::find_if(row.rbegin(), row.rend(), isSet);
    const NAT left = first - row.begin() + 1, right = row.rend() - last;
    area = area.EMPTY()
               ? PIXEL_AREA{left, y, right, y}
               : PIXEL_AREA{std::min(area.left, left), area.top, std::max(area.right, right), y};
}
} // namespace

void COPY(const TIMAGE &source, TIMAGE &target) {
    if (&source == &target) return;
    IMAGE_RESULT result(target, source.SIZE());
    CopyPixels(source, 1, 1, result.image);
    result.GIVE(source);
}

void COPY_RESIZED(const TIMAGE &source, const COMPLEXNAT &size, TIMAGE &target) {
    TIMAGE resized;
    if (!resized.CLONE(source)) return;
    resized.RESIZE(size.x, size.y);
    IMAGE_RESULT result(target, resized.SIZE());
    CopyPixels(resized, 1, 1, result.image);
    const auto step = [](NAT old, NAT now) {
        return DIVIDE(static_cast<REAL>(old), static_cast<REAL>(now));
    };
    const bool isSized = resized.ISNOTEMPTY();
    const COMPLEX steps{step(source.SIZEX(), resized.SIZEX()),
                        step(source.SIZEY(), resized.SIZEY())};
    result.GIVE(source, isSized ? SCALED_FRAME(source, steps) : source.GETFRAME());
}

void SUBIMAGE(const TIMAGE &source, const PIXEL_AREA &area, TIMAGE &target) {
    const PIXEL_AREA inside{std::max<NAT>(area.left, 1), std::max<NAT>(area.top, 1),
                            std::min(area.right, source.SIZEX()),
                            std::min(area.bottom, source.SIZEY())};
    IMAGE_RESULT result(target, {inside.WIDTH(), inside.HEIGHT()});
    if (!inside.EMPTY()) CopyPixels(source, inside.left, inside.top, result.image);
    result.GIVE(source, MOVED_FRAME(source, inside.left, inside.top));
}

PIXEL_AREA AREA_FROM(const TIMAGE &image, NAT value) {
    PIXEL_AREA area;
    std::vector<NAT> row(static_cast<std::size_t>(image.SIZEX()));
    for (NAT y = 1; y <= image.SIZEY(); ++y) {
        GETGRAYROW(image, y, row);
        for (NAT &pixel : row)
            pixel = pixel >= value;
        Include(area, y, row);
    }
    return area;
}

PIXEL_AREA AREA_OF_FOREGROUND(const TIMAGE &image) {
    PIXEL_AREA area;
    const NAT channels = CHANNELS(image);
    const std::size_t width = static_cast<std::size_t>(image.SIZEX());
    std::vector<NAT> row(width + 1), differs(width); // the element behind a row is the background
    for (NAT y = 1; y <= image.SIZEY(); ++y) {
        std::fill(differs.begin(), differs.end(), 0);
        for (LAYER layer = 0; layer < channels; ++layer) {
            GETROW(image, layer, channels, y, row);
            for (std::size_t x = 0; x < width; ++x)
                differs[x] |= row[x] != row[width];
        }
        Include(area, y, differs);
    }
    return area;
}

void CROP(TIMAGE &image, const PIXEL_AREA &area) {
    if (area.EMPTY()) return;
    const FRAME frame = MOVED_FRAME(image, area.left, area.top);
    IMAGE_RESULT result(image, {area.WIDTH(), area.HEIGHT()});
    if (!result.image.ISNOTEMPTY()) return;
    CopyPixels(image, area.left, area.top, result.image);
    result.GIVE(image);
    image.SETFRAME(frame);
}

void CROP_MARGIN(TIMAGE &image, NAT margin) {
    const PIXEL_AREA area = AREA_OF_FOREGROUND(image);
    if (area.EMPTY()) return;
    CROP(image, {std::max<NAT>(1, area.left - margin), std::max<NAT>(1, area.top - margin),
                 std::min(image.SIZEX(), area.right + margin),
                 std::min(image.SIZEY(), area.bottom + margin)});
}
} // namespace morvane
