#include "image2d/image/stacking.hpp"

#include "foundation/base/rounding.hpp"
#include "foundation/console/console.hpp"
#include "image2d/image/channels.hpp"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <new>
#include <vector>

namespace morvane {
namespace {
constexpr NAT REACH = 2; // of the 5x5 window

using INDEX = std::uint8_t;              // an operand, or that all are equal
constexpr INDEX EQUALS = 255;            // more than the 99 operands that a command takes
using PLANE = std::vector<std::int32_t>; // sums of a whole image
using CHOICES = std::vector<INDEX>;
using ROW = std::vector<NAT>;

struct STACK_SIZE {
    NAT width, height;
    std::size_t Count() const { return static_cast<std::size_t>(width * height); }
    // A row of a plane of this size, from 0 on; rows outside are the nearest one.
    template <class T> const T *Row(const std::vector<T> &plane, NAT y) const {
        return plane.data() + std::clamp<NAT>(y, 0, height - 1) * width;
    }
    template <class T> T *Row(std::vector<T> &plane, NAT y) const {
        return plane.data() + y * width;
    }
};

// A row with its first and last element repeated `reach` times before and behind it.
template <class T>
void Pad(const T *row, const STACK_SIZE &size, NAT reach, std::vector<T> &padded) {
    padded.assign(static_cast<std::size_t>(reach), row[0]);
    padded.insert(padded.end(), row, row + size.width);
    padded.insert(padded.end(), static_cast<std::size_t>(reach), row[size.width - 1]);
}

// The sums of 5x5 pixels: along x, then along y.
PLANE Summed(const PLANE &plane, const STACK_SIZE &size) {
    PLANE alongX(plane.size()), sums(plane.size()), padded;
    for (NAT y = 0; y < size.height; ++y) {
        Pad(size.Row(plane, y), size, REACH, padded);
        const std::int32_t *const p = padded.data();
        std::int32_t *const row = size.Row(alongX, y);
        for (NAT x = 0; x < size.width; ++x)
            row[x] = p[x] + p[x + 1] + p[x + 2] + p[x + 3] + p[x + 4];
    }
    const PLANE &rows = alongX;
    for (NAT y = 0; y < size.height; ++y)
        for (NAT dy = -REACH; dy <= REACH; ++dy) {
            const std::int32_t *const other = size.Row(rows, y + dy);
            std::int32_t *const row = size.Row(sums, y);
            for (NAT x = 0; x < size.width; ++x)
                row[x] += other[x];
        }
    return sums;
}

PLANE Grays(const TIMAGE &image, const STACK_SIZE &size) {
    PLANE grays(size.Count());
    ROW row(static_cast<std::size_t>(size.width));
    for (NAT y = 0; y < size.height; ++y) {
        GETGRAYROW(image, y + 1, row);
        std::transform(row.begin(), row.end(), size.Row(grays, y),
                       [](NAT value) { return static_cast<std::int32_t>(value); });
    }
    return grays;
}

PLANE Laplacian(const PLANE &grays, const STACK_SIZE &size) {
    PLANE laplacian(size.Count()), padded;
    for (NAT y = 0; y < size.height; ++y) {
        Pad(size.Row(grays, y), size, 1, padded);
        const std::int32_t *const p = padded.data() + 1;
        const std::int32_t *const up = size.Row(grays, y - 1), *const down = size.Row(grays, y + 1);
        std::int32_t *const row = size.Row(laplacian, y);
        for (NAT x = 0; x < size.width; ++x)
            row[x] =
                std::abs(2 * p[x] - p[x - 1] - p[x + 1]) + std::abs(2 * p[x] - up[x] - down[x]);
    }
    return laplacian;
}

PLANE Sharpness(const TIMAGE &image, const STACK_SIZE &size) {
    return Summed(Laplacian(Grays(image, size), size), size);
}

// For each pixel the sharpest operand, the first of several; EQUALS where all are equally sharp.
CHOICES Choose(OPERANDS operands, const STACK_SIZE &size) {
    CHOICES index(size.Count());
    PLANE best = Sharpness(*operands.front(), size), worst = best;
    for (std::size_t i = 1; i < operands.size(); ++i) {
        const PLANE sharpness = Sharpness(*operands[i], size);
        for (std::size_t p = 0; p < sharpness.size(); ++p) {
            worst[p] = std::min(worst[p], sharpness[p]);
            if (sharpness[p] <= best[p]) continue;
            index[p] = static_cast<INDEX>(i);
            best[p] = sharpness[p];
        }
    }
    for (std::size_t p = 0; p < index.size(); ++p)
        if (best[p] == worst[p]) index[p] = EQUALS;
    return index;
}

// The choice of at least five of nine, else the middle one's own. The one that can have a majority
// is found by voting in pairs (Boyer and Moore 1991).
INDEX Majority(const std::array<INDEX, 9> &around) {
    INDEX candidate = 0;
    int lead = 0;
    for (const INDEX choice : around) {
        if (lead == 0) candidate = choice;
        lead += choice == candidate ? 1 : -1;
    }
    const bool isMajority = std::count(around.begin(), around.end(), candidate) >= 5;
    return isMajority ? candidate : around[4];
}

CHOICES Smoothed(const CHOICES &index, const STACK_SIZE &size) {
    CHOICES smooth(index.size());
    std::array<CHOICES, 3> padded;
    for (NAT y = 0; y < size.height; ++y) {
        for (NAT dy = -1; dy <= 1; ++dy)
            Pad(size.Row(index, y + dy), size, 1, padded[static_cast<std::size_t>(dy + 1)]);
        const INDEX *const a = padded[0].data(), *const b = padded[1].data(),
                           *const c = padded[2].data();
        INDEX *const row = size.Row(smooth, y);
        for (NAT x = 0; x < size.width; ++x)
            row[x] = Majority(
                {a[x], a[x + 1], a[x + 2], b[x], b[x + 1], b[x + 2], c[x], c[x + 1], c[x + 2]});
    }
    return smooth;
}

// Row y of a layer by the choices of its pixels.
class PICKER {
public:
    PICKER(OPERANDS images, NAT count, std::size_t width)
        : operands(images), channels(count), rows(images.size(), ROW(width)) {}

    void Pick(LAYER layer, NAT y, std::span<const INDEX> choices, std::span<NAT> row) {
        for (std::size_t i = 0; i < rows.size(); ++i)
            GETROW(*operands[i], layer, channels, y, rows[i]);
        for (std::size_t x = 0; x < row.size(); ++x)
            row[x] = choices[x] == EQUALS ? Mean(x) : rows[choices[x]][x];
    }

private:
    NAT Mean(std::size_t x) const {
        NAT sum = 0;
        for (const ROW &row : rows)
            sum += row[x];
        return ROUND(static_cast<REAL>(sum) / static_cast<REAL>(rows.size()));
    }

    OPERANDS operands;
    NAT channels;
    std::vector<ROW> rows;
};
} // namespace

void STACKING(OPERANDS operands, TIMAGE &target) try {
    const COMPLEXNAT common = COMMON_SIZE(operands);
    IMAGE_RESULT result(target, common);
    if (!result.image.ISNOTEMPTY()) return result.GIVE(*operands.front());
    const STACK_SIZE size{common.x, common.y};
    const CHOICES choices = Smoothed(Choose(operands, size), size);
    const std::size_t width = static_cast<std::size_t>(size.width);
    PICKER picker(operands, CHANNELS(result.image), width);
    ROW row(width);
    for (const LAYER layer : LAYERS(result.image))
        for (NAT y = 1; y <= size.height; ++y) {
            picker.Pick(layer, y, std::span(size.Row(choices, y - 1), width), row);
            PUTROW(result.image, layer, y, row);
        }
    result.GIVE(*operands.front());
} catch (const std::bad_alloc &) {
    WRITELN("  Out of memory! Images not stacked.");
}
} // namespace morvane
