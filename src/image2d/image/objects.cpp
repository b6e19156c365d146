#include "image2d/image/objects.hpp"

#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/console.hpp"
#include "foundation/container/poly_statistics.hpp"
#include "image2d/image/grey_view.hpp"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace morvane {
namespace {
REAL ToReal(NAT value) { return static_cast<REAL>(value); }

// f(y, pixels of that row, width) for each row, with progress.
template <class PIXEL, class F>
void EachRow(const CANVAS<PIXEL> &canvas, const UTF16 &title, const F &f) {
    for (NAT y = 1; y <= canvas.HEIGHT; ++y) {
        f(y, canvas.ROW(y), canvas.WIDTH);
        PROGRESS(title, ToReal(y) / ToReal(canvas.HEIGHT));
    }
    PROGRESS();
}

// Counts of the values within low..high.
TPOLYNAT Bins(const TIMAGE &image, NAT low, NAT high) {
    TPOLYNAT bins;
    HISTOGRAM(image, bins);
    for (NAT v = 0; v < bins.LENGTH; ++v)
        if (v < low || v > high) bins._PUT(v + 1, 0);
    return bins;
}

// The value at a sorted position from 1; 0 before the first.
NAT SortedValue(const TPOLYNAT &bins, NAT position) {
    if (position < 1) return 0;
    for (NAT v = 0; v < bins.LENGTH; ++v)
        if ((position -= bins._GET(v + 1)) <= 0) return v;
    return 0;
}
} // namespace

void HISTOGRAM(const TIMAGE &image, TPOLYNAT &bins) {
    constexpr NAT COLOUR_VALUES = 383; // half of 0..765
    WITH_GREY(image, [&](const auto &canvas) { HISTOGRAM(canvas, bins); });
    if (image.ISCOLOUR() && bins.LENGTH > COLOUR_VALUES) bins.NEWLENGTH(COLOUR_VALUES);
}

COMPLEX OBJECT_STATISTIC(const TIMAGE &image, NAT low, NAT high) {
    const TPOLYNAT bins = Bins(image, low, high);
    NAT count = 0;
    REAL sum = 0, squares = 0;
    PROGRESS("Calculate statistic (1)", 0);
    for (NAT v = 0; v < bins.LENGTH; ++v) {
        count += bins._GET(v + 1);
        sum += ToReal(v) * ToReal(bins._GET(v + 1));
    }
    PROGRESS();
    const REAL mean = DIVIDE(sum, ToReal(count));
    PROGRESS("Calculate statistic (2)", 0);
    for (NAT v = 0; v < bins.LENGTH; ++v)
        squares += SQR(ToReal(v) - mean) * ToReal(bins._GET(v + 1));
    PROGRESS();
    return {mean, std::sqrt(DIVIDE(squares, ToReal(std::max<NAT>(count - 1, 0))))};
}

OBJECT_QUARTILES OBJECT_QUANTILE(const TIMAGE &image, NAT low, NAT high) {
    PROGRESS("Calculate statistics", 0);
    const TPOLYNAT bins = Bins(image, low, high);
    PROGRESS();
    const NAT count = bins.SUM();
    if (count < 1) return {};
    const auto quartile = [&](NAT parts) {
        const NAT position = count / 4 * parts;
        return count % 2 != 0
                   ? SortedValue(bins, position + 1)
                   : NATMIDDLE(SortedValue(bins, position), SortedValue(bins, position + 1));
    };
    const NAT median =
        count % 2 != 0 ? SortedValue(bins, count / 2 + 1)
                       : NATMIDDLE(SortedValue(bins, count / 2), SortedValue(bins, count / 2 + 1));
    return {SortedValue(bins, 1), quartile(1), median, quartile(3), SortedValue(bins, count)};
}

namespace {
struct BOX {
    NAT left = NATMAX, top = NATMAX, right = 0, bottom = 0;
};

BOX BoxOf(const TIMAGE &image, NAT low, NAT high, const UTF16 &title) {
    BOX box;
    WITH_GREY(image, [&](const auto &canvas) {
        EachRow(canvas, title, [&](NAT y, const auto *pixels, NAT width) {
            const auto isIn = [&](NAT value) { return value >= low && value <= high; };
            const auto first = std::find_if(pixels, pixels + width, isIn);
            if (first == pixels + width) return;
            NAT last = width - 1;
            while (!isIn(pixels[last]))
                --last;
            box.left = std::min(box.left, first - pixels + 1);
            box.right = std::max(box.right, last + 1);
            box.top = std::min(box.top, y);
            box.bottom = y;
        });
    });
    return box;
}

// The mean position with `weight(value)` for each selected pixel.
template <class WEIGHT>
COMPLEX MeanPosition(const TIMAGE &image, NAT low, NAT high, const UTF16 &title,
                     const WEIGHT &weight) {
    REAL weights = 0;
    COMPLEX sum;
    WITH_GREY(image, [&](const auto &canvas) {
        EachRow(canvas, title, [&](NAT y, const auto *pixels, NAT width) {
            NAT ofRow = 0;
            REAL across = 0;
            for (NAT x = 0; x < width; ++x)
                if (pixels[x] >= low && pixels[x] <= high) {
                    const NAT w = weight(pixels[x]);
                    ofRow += w;
                    across += ToReal(w * (x + 1));
                }
            weights += ToReal(ofRow);
            sum.x += across;
            sum.y += ToReal(ofRow) * ToReal(y);
        });
    });
    return {DIVIDE(sum.x, weights), DIVIDE(sum.y, weights)};
}
} // namespace

COMPLEX OBJECT_CENTER(const TIMAGE &image, NAT low, NAT high) {
    const BOX box = BoxOf(image, low, high, "Calculate center");
    if (box.right == 0) return CZERO;
    return {ToReal(box.left + box.right) / 2, ToReal(box.top + box.bottom) / 2};
}

COMPLEX OBJECT_SIZE(const TIMAGE &image, NAT low, NAT high) {
    const BOX box = BoxOf(image, low, high, "Calculate size");
    if (box.right == 0) return CZERO;
    return {ToReal(box.right - box.left + 1), ToReal(box.bottom - box.top + 1)};
}

COMPLEX OBJECT_CENTROID(const TIMAGE &image, NAT low, NAT high) {
    return MeanPosition(image, low, high, "Calculate centroid", [](NAT) { return NAT{1}; });
}

COMPLEX OBJECT_COG(const TIMAGE &image, NAT low, NAT high) {
    return MeanPosition(image, low, high, "Calculate cog", [](NAT value) { return value; });
}

namespace {
template <class F> PLANE_NUMBERS OfPlanes(const TIMAGE &image, const F &number) {
    PLANE_NUMBERS numbers;
    const auto add = [&](const auto &plane) {
        numbers.values[static_cast<std::size_t>(numbers.planes++)] = number(plane);
    };
    if (const TGRAY *gray = image._GRAY()) add(*gray);
    if (const TFULLGRAY *full = image._FULLGRAY()) add(*full);
    if (const TRGB *rgb = image._RGB())
        for (const TGRAY &plane : rgb->planes)
            add(plane);
    if (const TRGBA *rgba = image._RGBA()) add(rgba->alpha);
    return numbers;
}
} // namespace

PLANE_NUMBERS MIN(const TIMAGE &image) {
    return OfPlanes(image, [](const auto &plane) { return GETLIMITS(plane).min; });
}
PLANE_NUMBERS MAX(const TIMAGE &image) {
    return OfPlanes(image, [](const auto &plane) { return GETLIMITS(plane).max; });
}
PLANE_NUMBERS COUNT(const TIMAGE &image, NAT low, NAT high) {
    return OfPlanes(image, [&](const auto &plane) { return COUNT(plane, low, high); });
}
PLANE_NUMBERS SUM(const TIMAGE &image, NAT low, NAT high) {
    return OfPlanes(image, [&](const auto &plane) { return SUM(plane, low, high); });
}
PLANE_NUMBERS GETBACKGROUND(const TIMAGE &image) {
    return OfPlanes(image, [](const auto &plane) { return GETBACKGROUND(plane); });
}
} // namespace morvane
