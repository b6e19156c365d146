#include "image2d/filter/resize.hpp"

#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/console.hpp"

#include <algorithm>
#include <cmath>
#include <exception>
#include <vector>

namespace morvane {
namespace {
constexpr REAL ALIKE = 0.1; // scales that differ less from 1 copy
constexpr NAT MOST_PARTS = 1 << 10;

// How one axis is read: the old positions, from 0, that each new pixel takes the mean of.
struct AXIS {
    NAT parts = 1;              // positions a new pixel
    std::vector<NAT> positions; // parts * new size
};

AXIS Nearest(NAT oldSize, NAT newSize) {
    AXIS axis;
    const REAL step = static_cast<REAL>(oldSize) / static_cast<REAL>(newSize + 1);
    for (NAT i = 1; i <= newSize; ++i)
        axis.positions.push_back(LIMIT(ROUND(static_cast<REAL>(i) * step), NAT{1}, oldSize) - 1);
    return axis;
}

// Cell i, from 0, covers the old places i*scale .. (i+1)*scale, with pixel k at k .. k+1.
AXIS Cells(NAT oldSize, NAT newSize, NAT parts) {
    AXIS axis;
    axis.parts = parts;
    const REAL scale = static_cast<REAL>(oldSize) / static_cast<REAL>(newSize);
    for (NAT i = 0; i < newSize; ++i)
        for (NAT part = 0; part < parts; ++part) {
            const REAL share = (static_cast<REAL>(part) + 0.5) / static_cast<REAL>(parts);
            const REAL place = (static_cast<REAL>(i) + share) * scale;
            axis.positions.push_back(LIMIT(FLOOR(place), NAT{0}, oldSize - 1));
        }
    return axis;
}

// The two old pixels around the centre of each cell.
AXIS Around(NAT oldSize, NAT newSize) {
    AXIS axis;
    axis.parts = 2;
    const REAL scale = static_cast<REAL>(oldSize) / static_cast<REAL>(newSize);
    for (NAT i = 0; i < newSize; ++i) {
        const NAT before = FLOOR((static_cast<REAL>(i) + 0.5) * scale - 0.5);
        axis.positions.push_back(LIMIT(before, NAT{0}, oldSize - 1));
        axis.positions.push_back(LIMIT(before + 1, NAT{0}, oldSize - 1));
    }
    return axis;
}

template <class PIXEL> void Resample(CANVAS<PIXEL> &canvas, const AXIS &axisX, const AXIS &axisY) {
    const NAT width = static_cast<NAT>(axisX.positions.size()) / axisX.parts;
    const NAT height = static_cast<NAT>(axisY.positions.size()) / axisY.parts;
    CANVAS<PIXEL> resized(width, height);
    if (resized.EMPTY()) return; // no memory, which has been told
    const NAT count = axisX.parts * axisY.parts;
    for (NAT y = 0; y < height; ++y)
        for (NAT x = 0; x < width; ++x) {
            NAT sum = 0;
            for (NAT j = 0; j < axisY.parts; ++j) {
                const NAT rowOffset =
                    axisY.positions[static_cast<std::size_t>(y * axisY.parts + j)];
                const PIXEL *row = canvas.ROW(rowOffset + 1);
                for (NAT i = 0; i < axisX.parts; ++i)
                    sum += row[axisX.positions[static_cast<std::size_t>(x * axisX.parts + i)]];
            }
            const NAT mean = ROUND(static_cast<REAL>(sum) / static_cast<REAL>(count));
            resized.ROW(y + 1)[x] = static_cast<PIXEL>(mean);
        }
    canvas.REPLACE(resized);
}

NAT Parts(NAT oldSize, NAT newSize) {
    const REAL scale = static_cast<REAL>(oldSize) / static_cast<REAL>(newSize);
    return LIMIT(ROUND(scale), NAT{1}, MOST_PARTS);
}

// A size that a canvas may have at all, before anything is allocated for its axes.
template <class PIXEL> bool IsPossible(CANVAS<PIXEL> &canvas, NAT width, NAT height) {
    if (canvas.EMPTY()) return false;
    if (width >= 1 && height >= 1) {
        CANVAS<PIXEL> trial(width, height);
        return !trial.EMPTY(); // no memory, which has been told
    }
    CANVAS<PIXEL> none;
    canvas.REPLACE(none);
    return false;
}
} // namespace

template <class PIXEL> void RESIZE(CANVAS<PIXEL> &canvas, NAT width, NAT height) try {
    if (!IsPossible(canvas, width, height)) return;
    Resample(canvas, Nearest(canvas.WIDTH, width), Nearest(canvas.HEIGHT, height));
} catch (const std::exception &) { // what the lists of positions throw without memory
    WRITELN("  Out of memory! Size not changed.");
}

template <class PIXEL> void SMOOTHRESIZE(CANVAS<PIXEL> &canvas, NAT width, NAT height) try {
    if (!IsPossible(canvas, width, height)) return;
    const REAL scaleX = static_cast<REAL>(canvas.WIDTH) / static_cast<REAL>(width);
    const REAL scaleY = static_cast<REAL>(canvas.HEIGHT) / static_cast<REAL>(height);
    if (std::abs(scaleX - 1) < ALIKE && std::abs(scaleY - 1) < ALIKE)
        Resample(canvas, Cells(canvas.WIDTH, width, 1), Cells(canvas.HEIGHT, height, 1));
    else if (scaleX < 1 || scaleY < 1)
        Resample(canvas, Around(canvas.WIDTH, width), Around(canvas.HEIGHT, height));
    else
        Resample(canvas, Cells(canvas.WIDTH, width, Parts(canvas.WIDTH, width)),
                 Cells(canvas.HEIGHT, height, Parts(canvas.HEIGHT, height)));
} catch (const std::exception &) {
    WRITELN("  Out of memory! Size not changed.");
}

template <class PIXEL> void SMOOTHSCALE(CANVAS<PIXEL> &canvas, REAL factorX, REAL factorY) {
    const auto scaled = [](NAT size, REAL factor) {
        return std::max<NAT>(1, ROUND(static_cast<REAL>(size) * factor));
    };
    SMOOTHRESIZE(canvas, scaled(canvas.WIDTH, factorX), scaled(canvas.HEIGHT, factorY));
}

template void RESIZE(CANVAS<BYTE> &, NAT, NAT);
template void RESIZE(CANVAS<WORD> &, NAT, NAT);
template void SMOOTHRESIZE(CANVAS<BYTE> &, NAT, NAT);
template void SMOOTHRESIZE(CANVAS<WORD> &, NAT, NAT);
template void SMOOTHSCALE(CANVAS<BYTE> &, REAL, REAL);
template void SMOOTHSCALE(CANVAS<WORD> &, REAL, REAL);
} // namespace morvane
