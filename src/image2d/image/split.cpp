#include "image2d/image/split.hpp"

#include "foundation/base/safe_arithmetic.hpp"
#include "image2d/image/channels.hpp"

#include <array>
#include <deque>
#include <vector>

namespace morvane {
namespace {
constexpr NAT COLOUR_SHIFT = 8, LARGEST_SHIFT = 15;

BYTE GrayKind(const TIMAGE &source) {
    return source.ID() == IMAGE_FULLGRAY ? IMAGE_FULLGRAY : IMAGE_GRAY;
}

std::deque<IMAGE_RESULT> MakeResults(const TIMAGE &source, TARGETS targets, BYTE kind) {
    std::deque<IMAGE_RESULT> results;
    for (TIMAGE *target : targets)
        results.emplace_back(*target, source.SIZE(), kind);
    return results;
}

// Red, green and blue of a row.
struct COLOUR_ROW {
    explicit COLOUR_ROW(NAT width) {
        for (auto &row : rows)
            row.resize(static_cast<std::size_t>(width));
    }
    void Read(const TIMAGE &source, NAT y) {
        for (LAYER layer = 0; layer < 3; ++layer)
            GETROW(source, layer, 3, y, rows[static_cast<std::size_t>(layer)]);
    }
    VECTORNAT At(std::size_t x) const { return {rows[0][x], rows[1][x], rows[2][x]}; }
    std::size_t Width() const { return rows[0].size(); }

    std::array<std::vector<NAT>, 3> rows;
};

NAT Distance(const VECTORNAT &a, const VECTORNAT &b) {
    const NAT red = a.x - b.x, green = a.y - b.y, blue = a.z - b.z;
    return red * red + green * green + blue * blue;
}

std::size_t Nearest(const VECTORNAT &colour, std::span<const VECTORNAT> colours) {
    std::size_t best = 0;
    for (std::size_t i = 1; i < colours.size(); ++i)
        if (Distance(colour, colours[i]) < Distance(colour, colours[best])) best = i;
    return best;
}
} // namespace

void SPLIT_RGB(const TIMAGE &source, TARGETS targets) {
    auto results = MakeResults(source, targets, GrayKind(source));
    std::vector<NAT> row(static_cast<std::size_t>(source.SIZEX()));
    for (std::size_t i = 0; i < results.size(); ++i) {
        for (NAT y = 1; y <= source.SIZEY(); ++y) {
            GETROW(source, static_cast<LAYER>(i), 3, y, row);
            PUTROW(results[i].image, 0, y, row);
        }
        results[i].GIVE(source);
    }
}

void SPLIT_RAINBOW(const TIMAGE &source, NAT bits, TARGETS targets) {
    const NAT shift = LIMIT(bits, NAT{0}, LARGEST_SHIFT);
    auto results = MakeResults(source, targets, GrayKind(source));
    COLOUR_ROW colours(source.SIZEX());
    std::array<std::vector<NAT>, 7> shares;
    for (auto &row : shares)
        row.resize(colours.Width());
    for (NAT y = 1; y <= source.SIZEY(); ++y) {
        colours.Read(source, y);
        for (std::size_t x = 0; x < colours.Width(); ++x) {
            const VECTORNAT c = colours.At(x);
            const RAINBOW share = GETRAINBOW(c.x >> shift, c.y >> shift, c.z >> shift);
            const NAT parts[] = {share.red,  share.green,  share.blue, share.yellow,
                                 share.cyan, share.purple, share.gray};
            for (std::size_t i = 0; i < shares.size(); ++i)
                shares[i][x] = parts[i];
        }
        for (std::size_t i = 0; i < results.size(); ++i)
            PUTROW(results[i].image, 0, y, shares[i]);
    }
    for (IMAGE_RESULT &result : results)
        result.GIVE(source);
}

void SPLIT_COLOURS(const TIMAGE &source, std::span<const VECTORNAT> colours, TARGETS targets) {
    auto results = MakeResults(source, targets, source.ID());
    COLOUR_ROW pixels(source.SIZEX());
    std::vector<NAT> row(pixels.Width()), part(pixels.Width());
    std::vector<std::size_t> owner(pixels.Width());
    for (NAT y = 1; y <= source.SIZEY(); ++y) {
        pixels.Read(source, y);
        for (std::size_t x = 0; x < owner.size(); ++x)
            owner[x] = Nearest(pixels.At(x), colours);
        for (const LAYER layer : LAYERS(source)) {
            GETROW(source, layer, CHANNELS(source), y, row);
            for (std::size_t i = 0; i < results.size(); ++i) {
                for (std::size_t x = 0; x < row.size(); ++x)
                    part[x] = owner[x] == i ? row[x] : 0;
                PUTROW(results[i].image, layer, y, part);
            }
        }
    }
    for (IMAGE_RESULT &result : results)
        result.GIVE(source);
}

void COMBINE(OPERANDS operands, TIMAGE &target) {
    constexpr std::array<LAYER, 2> RED_BLUE{0, 2};
    const bool isRgba = operands.size() == 4;
    IMAGE_RESULT result(target, COMMON_SIZE(operands), isRgba ? IMAGE_RGBA : IMAGE_RGB);
    std::vector<NAT> row(static_cast<std::size_t>(result.image.SIZEX()));
    for (std::size_t i = 0; i < operands.size(); ++i) {
        const LAYER layer = operands.size() == 2 ? RED_BLUE[i] : static_cast<LAYER>(i);
        const NAT shift = operands[i]->ID() == IMAGE_FULLGRAY ? COLOUR_SHIFT : 0;
        for (NAT y = 1; y <= result.image.SIZEY(); ++y) {
            GETROW(*operands[i], 0, 1, y, row);
            for (NAT &value : row)
                value >>= shift;
            PUTROW(result.image, layer, y, row);
        }
    }
    result.GIVE(*operands.front());
}
} // namespace morvane
