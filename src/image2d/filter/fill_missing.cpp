#include "image2d/filter/fill_missing.hpp"

#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"

#include <algorithm>
#include <limits>
#include <new>
#include <numeric>

// The equations are solved by conjugate gradients (Hestenes & Stiefel 1952) with the multilevel
// preconditioner of Bramble, Pasciak & Xu (1990): the residual is brought down to coarser and
// coarser grids, and what each says of the error is added up.
namespace morvane {
namespace {
constexpr std::array<REAL, 4> PARENT_WEIGHTS{9.0 / 16, 3.0 / 16, 3.0 / 16, 1.0 / 16};
constexpr REAL DIAGONAL = 4;  // of a row without known neighbours, on each level
constexpr REAL ENOUGH = 1e-9; // square of the error's energy norm in grey values: far below a half
constexpr int MOST_STEPS = 2000;

REAL Dot(const std::vector<REAL> &a, const std::vector<REAL> &b) {
    return std::inner_product(a.begin(), a.end(), b.begin(), REAL{0});
}
} // namespace

MISSING_PIXELS::MISSING_PIXELS(const TCANVAS &missing)
    : pixelCount(missing.COUNT()), imageWidth(missing.WIDTH) {
    const NAT width = missing.WIDTH, height = missing.HEIGHT;
    if (pixelCount >= std::numeric_limits<INDEX>::max()) throw std::bad_alloc();
    LEVEL &image = levels.emplace_back();
    image.width = width;
    image.height = height;
    image.places.resize(static_cast<std::size_t>(pixelCount));
    for (NAT i = 0; i < pixelCount; ++i)
        if (missing.DATA()[i] != 0) {
            offsets.push_back(i);
            image.places[static_cast<std::size_t>(i)] = static_cast<INDEX>(offsets.size());
        }
    image.count = COUNT();
    for (const NAT offset : offsets) {
        const NAT x = offset % width, y = offset / width;
        const auto at = [&](bool isInside, NAT step) {
            return isInside ? image.places[static_cast<std::size_t>(offset + step)] : INDEX{0};
        };
        neighbours.push_back(
            {at(x > 0, -1), at(x + 1 < width, 1), at(y > 0, -width), at(y + 1 < height, width)});
        degrees.push_back((x > 0) + (x + 1 < width) + (y > 0) + (y + 1 < height));
    }
    while (levels.back().count > 1 && levels.back().width + levels.back().height > 2) {
        LEVEL coarse;
        MakeParents(levels.back(), coarse);
        levels.push_back(std::move(coarse));
    }
    levels.back().places = {};
    MakeScales();
}

// A known neighbour holds an unknown like a spring. A coarse unknown is held by all springs of
// those that it stands for: where many pixels are known, coarse levels have little to say.
void MISSING_PIXELS::MakeScales() {
    std::vector<REAL> springs;
    for (std::size_t i = 0; i < neighbours.size(); ++i)
        springs.push_back(degrees[i] - static_cast<REAL>(std::ranges::count_if(
                                           neighbours[i], [](INDEX n) { return n != 0; })));
    for (std::size_t l = 1; l < levels.size(); ++l) {
        const LEVEL &fine = levels[l - 1];
        std::vector<REAL> sums(static_cast<std::size_t>(levels[l].count) + 1);
        for (std::size_t i = 0; i < fine.parents.size(); ++i)
            for (std::size_t k = 0; k < 4; ++k)
                sums[fine.parents[i][k]] += PARENT_WEIGHTS[k] * springs[i];
        springs.assign(sums.begin() + 1, sums.end());
        levels[l].scales.resize(springs.size());
        std::ranges::transform(springs, levels[l].scales.begin(),
                               [](REAL spring) { return 1 / (DIAGONAL + spring); });
    }
}

// Cell-centred bilinear interpolation: the cell around a pixel, and those beside it on the pixel's
// side; beyond the image the cell itself.
void MISSING_PIXELS::MakeParents(LEVEL &fine, LEVEL &coarse) {
    coarse.width = (fine.width + 1) / 2;
    coarse.height = (fine.height + 1) / 2;
    coarse.places.resize(static_cast<std::size_t>(coarse.width * coarse.height));
    const auto cell = [&](NAT x, NAT y) -> INDEX & {
        return coarse.places[static_cast<std::size_t>(x + y * coarse.width)];
    };
    const auto eachUnknown = [&](auto &&f) {
        for (NAT y = 0; y < fine.height; ++y)
            for (NAT x = 0; x < fine.width; ++x)
                if (fine.places[static_cast<std::size_t>(x + y * fine.width)] != 0) f(x, y);
    };
    eachUnknown([&](NAT x, NAT y) {
        INDEX &place = cell(x / 2, y / 2);
        if (place == 0) place = static_cast<INDEX>(++coarse.count);
    });
    fine.parents.reserve(static_cast<std::size_t>(fine.count));
    eachUnknown([&](NAT x, NAT y) {
        const NAT besideX = LIMIT(x / 2 + (x % 2 * 2 - 1), NAT{0}, coarse.width - 1);
        const NAT besideY = LIMIT(y / 2 + (y % 2 * 2 - 1), NAT{0}, coarse.height - 1);
        fine.parents.push_back({cell(x / 2, y / 2), cell(besideX, y / 2), cell(x / 2, besideY),
                                cell(besideX, besideY)});
    });
    fine.places = {};
}

// The step of the finest level from its rest.
void MISSING_PIXELS::Precondition() {
    for (std::size_t l = 1; l < levels.size(); ++l) {
        std::vector<REAL> &rest = levels[l].rest;
        rest.assign(static_cast<std::size_t>(levels[l].count) + 1, 0); // element 0 takes the rest
        const LEVEL &fine = levels[l - 1];
        for (std::size_t i = 0; i < fine.parents.size(); ++i)
            for (std::size_t k = 0; k < 4; ++k)
                rest[fine.parents[i][k]] += PARENT_WEIGHTS[k] * fine.rest[i + 1];
    }
    for (std::size_t l = levels.size(); l-- > 0;) {
        LEVEL &level = levels[l];
        level.step.resize(level.rest.size());
        level.step[0] = 0;
        for (std::size_t i = 1; i < level.step.size(); ++i) {
            REAL step = level.rest[i] * (l == 0 ? 1 / DIAGONAL : level.scales[i - 1]);
            if (l + 1 < levels.size())
                for (std::size_t k = 0; k < 4; ++k)
                    step += PARENT_WEIGHTS[k] * levels[l + 1].step[level.parents[i - 1][k]];
            level.step[i] = step;
        }
    }
}

void MISSING_PIXELS::Multiply(const std::vector<REAL> &x, std::vector<REAL> &product) const {
    for (std::size_t i = 0; i < neighbours.size(); ++i) {
        const auto &n = neighbours[i];
        product[i + 1] = degrees[i] * x[i + 1] - x[n[0]] - x[n[1]] - x[n[2]] - x[n[3]];
    }
}

// All lists have an element 0 that stays 0, for neighbours that are none.
void MISSING_PIXELS::Solve(std::vector<REAL> &x, const std::vector<REAL> &sums) {
    std::vector<REAL> &rest = levels[0].rest, &step = levels[0].step;
    std::vector<REAL> product(x.size()), direction(x.size());
    Multiply(x, product);
    rest.resize(x.size());
    for (std::size_t i = 1; i < x.size(); ++i)
        rest[i] = sums[i] - product[i];
    REAL before = 0;
    for (rounds = 0; rounds < MOST_STEPS; ++rounds) {
        Precondition();
        const REAL error = Dot(rest, step);
        if (error <= ENOUGH) return;
        const REAL share = DIVIDE(error, before);
        for (std::size_t i = 1; i < x.size(); ++i)
            direction[i] = step[i] + share * direction[i];
        Multiply(direction, product);
        const REAL length = DIVIDE(error, Dot(direction, product));
        for (std::size_t i = 1; i < x.size(); ++i) {
            x[i] += length * direction[i];
            rest[i] -= length * product[i];
        }
        before = error;
    }
}

template <class PIXEL> void MISSING_PIXELS::FILL(CANVAS<PIXEL> &canvas) {
    if (COUNT() == 0 || COUNT() == pixelCount || canvas.COUNT() != pixelCount) return;
    std::vector<REAL> x(offsets.size() + 1), sums(x.size());
    REAL sum = 0, count = 0;
    for (std::size_t i = 0; i < offsets.size(); ++i) {
        const NAT column = offsets[i] % imageWidth;
        const auto &n = neighbours[i];
        const auto known = [&](std::size_t k, bool isInside, NAT step) {
            if (!isInside || n[k] != 0) return;
            const REAL value = canvas.DATA()[offsets[i] + step];
            sums[i + 1] += value;
            sum += value;
            count += 1;
        };
        known(0, column > 0, -1);
        known(1, column + 1 < imageWidth, 1);
        known(2, offsets[i] >= imageWidth, -imageWidth);
        known(3, offsets[i] + imageWidth < pixelCount, imageWidth);
    }
    std::fill(x.begin() + 1, x.end(), DIVIDE(sum, count));
    Solve(x, sums);
    for (std::size_t i = 0; i < offsets.size(); ++i)
        canvas.DATA()[offsets[i]] =
            static_cast<PIXEL>(LIMIT(ROUND(x[i + 1]), NAT{0}, canvas.MAXIMUM));
}

template void MISSING_PIXELS::FILL(CANVAS<BYTE> &);
template void MISSING_PIXELS::FILL(CANVAS<WORD> &);
} // namespace morvane
