#include "image2d/image/arithmetic.hpp"

#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/console.hpp"
#include "foundation/container/poly_types.hpp"
#include "image2d/image/channels.hpp"

#include <algorithm>
#include <new>
#include <numeric>
#include <vector>

namespace morvane {
namespace {
using VALUES = std::span<NAT>; // of one pixel, in the order of the operands

// f(values) of every pixel and component.
template <class F> void PixelByPixel(OPERANDS operands, TIMAGE &target, F &&f) try {
    IMAGE_RESULT result(target, COMMON_SIZE(operands));
    const NAT channels = CHANNELS(result.image);
    const std::size_t width = static_cast<std::size_t>(result.image.SIZEX());
    std::vector<std::vector<NAT>> rows(operands.size(), std::vector<NAT>(width));
    std::vector<NAT> values(operands.size());
    for (const LAYER layer : LAYERS(result.image))
        for (NAT y = 1; y <= result.image.SIZEY(); ++y) {
            const std::size_t used = ISCOLOURLAYER(layer) ? operands.size() : 1;
            for (std::size_t i = 0; i < used; ++i)
                GETROW(*operands[i], layer, channels, y, rows[i]);
            for (std::size_t x = 0; used > 1 && x < width; ++x) {
                for (std::size_t i = 0; i < used; ++i)
                    values[i] = rows[i][x];
                rows[0][x] = f(VALUES(values));
            }
            PUTROW(result.image, layer, y, rows[0]);
        }
    result.GIVE(*operands.front());
} catch (const std::bad_alloc &) {
    WRITELN("  Out of memory! Images not joined.");
}

NAT LargestValue(OPERANDS operands) {
    NAT largest = 0;
    for (const TIMAGE *operand : operands)
        largest = std::max(largest, operand->PIXELMAX());
    return largest;
}

NAT Product(VALUES values, NAT m) {
    NAT product = values[0];
    std::size_t i = 1;
    for (; i + 1 < values.size(); i += 2)
        product = DIV(product * values[i] * values[i + 1], m * m);
    return i < values.size() ? DIV(product * values[i], m) : product;
}

NAT Median(VALUES values) {
    std::sort(values.begin(), values.end());
    const std::size_t middle = values.size() / 2;
    return values.size() % 2 != 0 ? values[middle] : (values[middle - 1] + values[middle]) / 2;
}

NAT Sum(VALUES values) { return std::accumulate(values.begin(), values.end(), NAT{0}); }
} // namespace

void COMBINE_PIXELS(PIXEL_OPERATION operation, OPERANDS operands, TIMAGE &target) {
    const NAT m = LargestValue(operands);
    const REAL count = static_cast<REAL>(operands.size());
    const auto run = [&](auto f) { PixelByPixel(operands, target, f); };
    switch (operation) {
    case PIXEL_OPERATION::SUB: return run([](VALUES v) { return v[0] - v[1]; });
    case PIXEL_OPERATION::SUB_ABS: return run([](VALUES v) { return std::abs(v[0] - v[1]); });
    case PIXEL_OPERATION::SUB_RANGE:
        return run([m](VALUES v) { return (m + 1) / 2 + (v[0] - v[1]); });
    case PIXEL_OPERATION::BETWEEN:
        return run([](VALUES v) { return (v[1] - v[0]) + (v[1] - v[2]); });
    case PIXEL_OPERATION::ADD: return run(Sum);
    case PIXEL_OPERATION::ADD_MIN:
        return run([](VALUES v) { return *std::min_element(v.begin(), v.end()); });
    case PIXEL_OPERATION::ADD_MAX:
        return run([](VALUES v) { return *std::max_element(v.begin(), v.end()); });
    case PIXEL_OPERATION::MUL: return run([m](VALUES v) { return Product(v, m); });
    case PIXEL_OPERATION::DIV: return run([m](VALUES v) { return (m + 1) * v[0] / (v[1] + 1); });
    case PIXEL_OPERATION::MEAN:
        return run([count](VALUES v) { return ROUND(static_cast<REAL>(Sum(v)) / count); });
    case PIXEL_OPERATION::MEDIAN: return run(Median);
    }
}

void INTENSITY(const TIMAGE &a, const TIMAGE &b, REAL timeA, REAL timeB, TIMAGE &target) {
    const TIMAGE *const operands[] = {&a, &b};
    // Weights of the values instead of rates: exposure times in the ratio of 1 to 2 round exactly.
    const REAL halfTime = (timeA + timeB) / 4;
    const REAL weightA = DIVIDE(halfTime, timeA), weightB = DIVIDE(halfTime, timeB);
    PixelByPixel(operands, target, [&](VALUES v) {
        return ROUND(static_cast<REAL>(v[0]) * weightA + static_cast<REAL>(v[1]) * weightB);
    });
}

namespace {
constexpr NAT OPAQUE = 255;

// The pixels of a row so far, and of the image that is laid over them.
struct BLEND_ROW {
    explicit BLEND_ROW(std::size_t width) : alpha(width), below(width), above(width) {}
    std::vector<NAT> alpha, below, above;
};

// An alpha outside the image is 0, whatever its background says.
void GetInnerAlpha(const TIMAGE &image, NAT y, std::vector<NAT> &row) {
    GETROW(image, ALPHA_LAYER, 1, y, row);
    const std::size_t inside = y > image.SIZEY() ? 0 : static_cast<std::size_t>(image.SIZEX());
    std::fill(row.begin() + static_cast<std::ptrdiff_t>(std::min(inside, row.size())), row.end(),
              0);
}

// One component of `image` over the row; `over` is its alpha.
void BlendComponent(BLEND_ROW &row, const std::vector<NAT> &over) {
    for (std::size_t x = 0; x < row.below.size(); ++x) {
        const NAT shade = row.alpha[x] * (OPAQUE - over[x]);
        const NAT total = OPAQUE * over[x] + shade;
        if (total == 0) continue;
        const NAT sum = OPAQUE * over[x] * row.above[x] + shade * row.below[x];
        row.below[x] = ROUND(static_cast<REAL>(sum) / static_cast<REAL>(total));
    }
}

void BlendAlpha(BLEND_ROW &row, const std::vector<NAT> &over) {
    for (std::size_t x = 0; x < over.size(); ++x)
        row.alpha[x] =
            std::min(OPAQUE, (OPAQUE * over[x] + (OPAQUE - over[x]) * row.alpha[x]) / OPAQUE);
}

// One layer of row y, from the last operand to the first.
void BlendRow(OPERANDS operands, LAYER layer, NAT channels, NAT y, BLEND_ROW &row) {
    std::vector<NAT> over(row.below.size());
    std::fill(row.alpha.begin(), row.alpha.end(), 0);
    std::fill(row.below.begin(), row.below.end(), 0);
    for (std::size_t i = operands.size(); i-- > 0;) {
        GetInnerAlpha(*operands[i], y, over);
        GETROW(*operands[i], layer, channels, y, row.above);
        BlendComponent(row, over);
        BlendAlpha(row, over);
    }
}
} // namespace

void OVER(OPERANDS operands, TIMAGE &target) {
    COMPLEXNAT size;
    for (const TIMAGE *operand : operands)
        size = {std::max(size.x, operand->SIZEX()), std::max(size.y, operand->SIZEY())};
    IMAGE_RESULT result(target, size);
    const NAT channels = CHANNELS(result.image);
    BLEND_ROW row(static_cast<std::size_t>(result.image.SIZEX()));
    for (const LAYER layer : LAYERS(result.image))
        for (NAT y = 1; y <= result.image.SIZEY(); ++y) {
            BlendRow(operands, layer, channels, y, row);
            PUTROW(result.image, layer, y, layer == ALPHA_LAYER ? row.alpha : row.below);
        }
    result.GIVE(*operands.front());
}
} // namespace morvane
