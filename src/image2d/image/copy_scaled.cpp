#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/console.hpp"
#include "image2d/image/channels.hpp"
#include "image2d/image/copy.hpp"

#include <algorithm>
#include <cmath>
#include <new>
#include <numeric>
#include <vector>

// Scaled copies: each new pixel stands for a cell of old ones.
namespace morvane {
namespace {
constexpr NAT MEAN_METHOD = 1, MAX_METHOD = 7;

// The old pixels of a new one on an axis, from 0 on; the end is excluded.
struct CELL {
    std::size_t begin, end;
};

struct CELLS {
    std::vector<CELL> x, y;
};

REAL Factor(REAL factor) { return factor > 0 ? factor : 1; }

NAT NewSize(NAT old, REAL factor) {
    return old < 1 ? 0 : std::max<NAT>(1, ROUND(static_cast<REAL>(old) * factor));
}

// A cell reaches over a border by less than a billionth of a pixel without taking the next one.
constexpr REAL SLACK = 1e-9;

std::vector<CELL> MakeCells(NAT old, NAT now, REAL factor) {
    std::vector<CELL> cells;
    cells.reserve(static_cast<std::size_t>(now));
    const REAL step = 1 / factor;
    for (NAT i = 0; i < now; ++i) {
        const NAT begin = std::min(FLOOR(static_cast<REAL>(i) * step + SLACK), old - 1);
        const NAT end = std::min(FLOOR(static_cast<REAL>(i + 1) * step + SLACK), old);
        cells.push_back(
            {static_cast<std::size_t>(begin), static_cast<std::size_t>(std::max(end, begin + 1))});
    }
    return cells;
}

// Quantiles as the lists have them: of an even length the lower neighbour, here never before the
// first.
NAT Quantile(std::span<NAT> values, std::size_t quarters) {
    const std::size_t n = values.size();
    const std::size_t position = n / 4 * quarters; // of an odd length from 0 on
    const std::size_t middle = quarters == 2 ? n / 2 : position;
    const std::size_t index = n % 2 != 0 ? middle : std::max<std::size_t>(middle, 1) - 1;
    std::nth_element(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(index),
                     values.end());
    return values[index];
}

REAL Deviation(std::span<const NAT> values, REAL mean) {
    if (values.size() < 2) return 0;
    REAL squares = 0;
    for (const NAT value : values)
        squares += SQR(static_cast<REAL>(value) - mean);
    return std::sqrt(squares / static_cast<REAL>(values.size() - 1));
}

// The values of one layer of a cell, from the rows of its y range.
class CELL_ROWS {
public:
    CELL_ROWS(const TIMAGE &image, NAT count)
        : source(image), channels(count), width(static_cast<std::size_t>(image.SIZEX())) {}

    void Read(LAYER layer, const CELL &cellY) {
        height = cellY.end - cellY.begin;
        rows.resize(width * height);
        for (std::size_t i = 0; i < height; ++i)
            GETROW(source, layer, channels, static_cast<NAT>(cellY.begin + i) + 1,
                   std::span(rows).subspan(i * width, width));
    }
    std::span<NAT> Values(const CELL &cellX) {
        values.clear();
        for (std::size_t i = 0; i < height; ++i)
            for (std::size_t x = cellX.begin; x < cellX.end; ++x)
                values.push_back(rows[i * width + x]);
        return values;
    }
    NAT At(std::size_t position) const { return rows[position]; }

private:
    const TIMAGE &source;
    NAT channels;
    std::size_t width, height = 0;
    std::vector<NAT> rows, values;
};

NAT LayerMethod(LAYER layer, NAT method) {
    if (layer == ALPHA_LAYER) return MEAN_METHOD;
    return layer == DEPTH_LAYER ? MAX_METHOD : method;
}

// The position in the list of the most frequent value, the smallest of equals.
std::size_t MostFrequent(std::span<const NAT> values, std::vector<std::size_t> &order) {
    order.resize(values.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(),
                     [&](std::size_t a, std::size_t b) { return values[a] < values[b]; });
    std::size_t best = 0, bestCount = 0;
    for (std::size_t i = 0; i < order.size();) {
        std::size_t end = i;
        while (end < order.size() && values[order[end]] == values[order[i]])
            ++end;
        if (end - i > bestCount) {
            best = order[i];
            bestCount = end - i;
        }
        i = end;
    }
    return best;
}

// Colours as one number, so that they can be counted.
void PackColours(const TIMAGE &source, NAT y, std::span<NAT> row, std::span<NAT> component) {
    const NAT channels = CHANNELS(source);
    std::fill(row.begin(), row.end(), 0);
    for (LAYER layer = 0; layer < channels; ++layer) {
        GETROW(source, layer, channels, y, component);
        for (std::size_t x = 0; x < row.size(); ++x)
            row[x] = row[x] << 8 | component[x];
    }
}

// For each cell of a row of cells the position of its winning pixel in the rows that it covers.
void FindWinners(const TIMAGE &source, const std::vector<CELL> &cellsX, const CELL &cellY,
                 std::vector<std::size_t> &winners) {
    const std::size_t width = static_cast<std::size_t>(source.SIZEX());
    std::vector<NAT> packed(width * (cellY.end - cellY.begin)), component(width), values;
    std::vector<std::size_t> order;
    for (std::size_t i = cellY.begin; i < cellY.end; ++i)
        PackColours(source, static_cast<NAT>(i) + 1,
                    std::span(packed).subspan((i - cellY.begin) * width, width), component);
    for (std::size_t x = 0; x < cellsX.size(); ++x) {
        const std::size_t cellWidth = cellsX[x].end - cellsX[x].begin;
        values.clear();
        for (std::size_t i = cellsX[x].begin; i < packed.size(); i += width)
            values.insert(values.end(), packed.begin() + static_cast<std::ptrdiff_t>(i),
                          packed.begin() + static_cast<std::ptrdiff_t>(i + cellWidth));
        const std::size_t winner = MostFrequent(values, order);
        winners[x] = winner / cellWidth * width + cellsX[x].begin + winner % cellWidth;
    }
}
} // namespace

REAL STATISTIC(std::span<NAT> values, NAT method) {
    const REAL sum = static_cast<REAL>(std::accumulate(values.begin(), values.end(), NAT{0}));
    const REAL mean = sum / static_cast<REAL>(values.size());
    switch (method) {
    case 0: return sum;
    case 1: return mean;
    case 3: return static_cast<REAL>(*std::min_element(values.begin(), values.end()));
    case 4:
    case 5:
    case 6: return static_cast<REAL>(Quantile(values, static_cast<std::size_t>(method) - 3));
    case 7: return static_cast<REAL>(*std::max_element(values.begin(), values.end()));
    default: return Deviation(values, mean);
    }
}

namespace {
// The cells of a scaled copy, or none when there is nothing to make.
CELLS CellsOf(const TIMAGE &source, const TIMAGE &image, const COMPLEX &factors) {
    if (!image.ISNOTEMPTY()) return {};
    return {MakeCells(source.SIZEX(), image.SIZEX(), factors.x),
            MakeCells(source.SIZEY(), image.SIZEY(), factors.y)};
}

COMPLEXNAT ScaledSize(const TIMAGE &source, const COMPLEX &factors) {
    return {NewSize(source.SIZEX(), factors.x), NewSize(source.SIZEY(), factors.y)};
}
} // namespace

void COPY_SCALED(const TIMAGE &source, const COMPLEX &factors, NAT method, TIMAGE &target) try {
    const COMPLEX scale{Factor(factors.x), Factor(factors.y)};
    IMAGE_RESULT result(target, ScaledSize(source, scale));
    const CELLS cells = CellsOf(source, result.image, scale);
    CELL_ROWS rows(source, CHANNELS(result.image));
    std::vector<NAT> row(cells.x.size());
    for (const LAYER layer : LAYERS(result.image))
        for (std::size_t y = 0; y < cells.y.size(); ++y) {
            rows.Read(layer, cells.y[y]);
            for (std::size_t x = 0; x < row.size(); ++x)
                row[x] = ROUND(STATISTIC(rows.Values(cells.x[x]), LayerMethod(layer, method)));
            PUTROW(result.image, layer, static_cast<NAT>(y) + 1, row);
        }
    result.GIVE(source, SCALED_FRAME(source, {1 / scale.x, 1 / scale.y}));
} catch (const std::bad_alloc &) {
    WRITELN("  Out of memory! Image not copied.");
}

void COPY_LABELS(const TIMAGE &source, const COMPLEX &factors, TIMAGE &target) try {
    const COMPLEX scale{Factor(factors.x), Factor(factors.y)};
    IMAGE_RESULT result(target, ScaledSize(source, scale));
    const CELLS cells = CellsOf(source, result.image, scale);
    CELL_ROWS rows(source, CHANNELS(result.image));
    std::vector<NAT> row(cells.x.size());
    std::vector<std::size_t> winners(cells.x.size());
    for (std::size_t y = 0; y < cells.y.size(); ++y) {
        FindWinners(source, cells.x, cells.y[y], winners);
        for (const LAYER layer : LAYERS(result.image)) {
            rows.Read(layer, cells.y[y]);
            for (std::size_t x = 0; x < row.size(); ++x)
                row[x] = rows.At(winners[x]);
            PUTROW(result.image, layer, static_cast<NAT>(y) + 1, row);
        }
    }
    result.GIVE(source, SCALED_FRAME(source, {1 / scale.x, 1 / scale.y}));
} catch (const std::bad_alloc &) {
    WRITELN("  Out of memory! Image not copied.");
}
} // namespace morvane
