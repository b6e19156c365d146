#include "image2d/image/masks.hpp"

#include "image2d/image/channels.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace morvane {
namespace {
using FLAGS = std::vector<char>;

// 29 % of 100 is a little less than 29 in binary.
constexpr REAL SLACK = 1e-9;

// Copies the pixels that `choose(y, flags)` flags, or writes the value for them.
template <class CHOOSE>
void Keep(const TIMAGE &source, IMAGE_RESULT &result, NAT value, CHOOSE &&choose) {
    const NAT channels = CHANNELS(result.image);
    const std::size_t width = static_cast<std::size_t>(result.image.SIZEX());
    std::vector<NAT> row(width);
    FLAGS flags(width);
    for (NAT y = 1; y <= result.image.SIZEY(); ++y) {
        choose(y, flags);
        for (const LAYER layer : LAYERS(result.image)) {
            GETROW(source, layer, channels, y, row);
            const bool isNew = value >= 0 && ISCOLOURLAYER(layer);
            for (std::size_t x = 0; x < width; ++x)
                row[x] = !flags[x] ? 0 : isNew ? value : row[x];
            PUTROW(result.image, layer, y, row);
        }
    }
    result.GIVE(source);
}

// Red, green and blue of a row.
using COLOUR_ROWS = std::array<std::vector<NAT>, 3>;
void GetColours(const TIMAGE &image, NAT y, std::size_t width, COLOUR_ROWS &rows) {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        rows[i].resize(width);
        GETROW(image, static_cast<LAYER>(i), 3, y, rows[i]);
    }
}

COMPLEXNAT CommonSize(const TIMAGE &a, const TIMAGE &b) {
    const TIMAGE *const operands[] = {&a, &b};
    return COMMON_SIZE(operands);
}
} // namespace

void SELECT(const TIMAGE &source, const COMPLEXNAT &range, NAT value, TIMAGE &target) {
    IMAGE_RESULT result(target, source.SIZE());
    std::vector<NAT> grays(static_cast<std::size_t>(source.SIZEX()));
    Keep(source, result, value, [&](NAT y, FLAGS &flags) {
        GETGRAYROW(source, y, grays);
        for (std::size_t x = 0; x < flags.size(); ++x)
            flags[x] = grays[x] >= range.x && grays[x] <= range.y;
    });
}

void MASK(const TIMAGE &source, const TIMAGE &mask, const TPOLYNAT &values, TIMAGE &target) {
    IMAGE_RESULT result(target, CommonSize(source, mask));
    FLAGS wanted(static_cast<std::size_t>(TFULLGRAY::MAXIMUM) + 1);
    for (NAT i = 1; i <= values.LENGTH; ++i)
        if (values.GET(i) >= 0 && values.GET(i) <= TFULLGRAY::MAXIMUM)
            wanted[static_cast<std::size_t>(values.GET(i))] = 1;
    std::vector<NAT> grays(static_cast<std::size_t>(result.image.SIZEX()));
    Keep(source, result, -1, [&](NAT y, FLAGS &flags) {
        GETGRAYROW(mask, y, grays);
        for (std::size_t x = 0; x < flags.size(); ++x)
            flags[x] = wanted[static_cast<std::size_t>(grays[x])];
    });
}

void MASK_SAME(const TIMAGE &source, const TIMAGE &mask, const SAMENESS &sameness, TIMAGE &target) {
    IMAGE_RESULT result(target, CommonSize(source, mask));
    const std::array<REAL, 3> same{sameness.same.x, sameness.same.y, sameness.same.z};
    COLOUR_ROWS rows;
    Keep(source, result, -1, [&](NAT y, FLAGS &flags) {
        GetColours(mask, y, flags.size(), rows);
        for (std::size_t x = 0; x < flags.size(); ++x) {
            bool isSame = true;
            for (std::size_t i = 0; i < same.size(); ++i)
                isSame = isSame && std::abs(static_cast<REAL>(rows[i][x]) - same[i]) <=
                                       std::abs(same[i] * sameness.share) + SLACK;
            flags[x] = isSame != sameness.isDifferent;
        }
    });
}

void EXTRACT_COLOURS(const TIMAGE &source, std::span<const VECTORNAT> colours, TIMAGE &target) {
    IMAGE_RESULT result(target, source.SIZE());
    COLOUR_ROWS rows;
    Keep(source, result, -1, [&](NAT y, FLAGS &flags) {
        GetColours(source, y, flags.size(), rows);
        for (std::size_t x = 0; x < flags.size(); ++x) {
            const VECTORNAT colour{rows[0][x], rows[1][x], rows[2][x]};
            flags[x] = std::find(colours.begin(), colours.end(), colour) != colours.end();
        }
    });
}
} // namespace morvane
