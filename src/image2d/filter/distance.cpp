#include "image2d/filter/distance.hpp"

#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/console.hpp"

#include <algorithm>
#include <cmath>
#include <new>
#include <numeric>
#include <queue>

namespace morvane {
template <class PIXEL> void DISTANCE(CANVAS<PIXEL> &canvas, std::span<const COMPLEX> points) try {
    if (points.empty()) return;
    std::vector<REAL> squares(static_cast<std::size_t>(canvas.WIDTH)), places(squares.size());
    std::iota(places.begin(), places.end(), REAL{1});
    for (NAT y = 1; y <= canvas.HEIGHT; ++y) {
        std::fill(squares.begin(), squares.end(), REALMAX);
        for (const COMPLEX &point : points) {
            const REAL ofRow = SQR(static_cast<REAL>(y) - point.y);
            for (std::size_t x = 0; x < squares.size(); ++x)
                squares[x] = std::min(squares[x], SQR(places[x] - point.x) + ofRow);
        }
        PIXEL *row = canvas.ROW(y);
        for (std::size_t x = 0; x < squares.size(); ++x)
            row[x] =
                static_cast<PIXEL>(LIMIT(ROUND(std::sqrt(squares[x])), NAT{0}, canvas.MAXIMUM));
    }
} catch (const std::bad_alloc &) {
    WRITELN("  Out of memory! Distances not painted.");
}

namespace {
// The lower envelope of the parabolas (x - i)^2 + f[i] over one column or row, padded by a zero
// before its first and behind its last element.
class ENVELOPE {
public:
    explicit ENVELOPE(NAT longest)
        : values(static_cast<std::size_t>(longest + 2)),
          vertices(static_cast<std::size_t>(longest + 2)),
          starts(static_cast<std::size_t>(longest + 3)) {}

    // Element i of the line stands at line[i * step].
    void TRANSFORM(NAT *line, NAT count, NAT step) {
        const NAT length = count + 2;
        AT(values, 0) = AT(values, length - 1) = 0;
        for (NAT i = 0; i < count; ++i)
            AT(values, i + 1) = line[i * step];
        NAT last = 0;
        AT(vertices, 0) = 0;
        AT(starts, 0) = NATMIN;
        for (NAT i = 1; i < length; ++i) {
            NAT start = Crossing(i, AT(vertices, last));
            while (start <= AT(starts, last))
                start = Crossing(i, AT(vertices, --last));
            AT(vertices, ++last) = i;
            AT(starts, last) = start;
        }
        AT(starts, last + 1) = NATMAX;
        NAT part = 0;
        for (NAT i = 1; i <= count; ++i) {
            while (AT(starts, part + 1) <= i)
                ++part;
            const NAT vertex = AT(vertices, part);
            line[(i - 1) * step] = (i - vertex) * (i - vertex) + AT(values, vertex);
        }
    }

private:
    static NAT &AT(std::vector<NAT> &list, NAT i) { return list[static_cast<std::size_t>(i)]; }
    // The first whole place where the parabola of i, behind that of j, is no higher.
    NAT Crossing(NAT i, NAT j) {
        const NAT above = AT(values, i) + i * i - AT(values, j) - j * j, below = 2 * (i - j);
        return above >= 0 ? (above + below - 1) / below : -(-above / below);
    }
    std::vector<NAT> values, vertices, starts;
};
} // namespace

std::vector<NAT> INNER_DISTANCES(const TCANVAS &mask) {
    const NAT width = mask.WIDTH, height = mask.HEIGHT;
    // Farther than any place outside, and small enough to be squared and added.
    const NAT far = (width + height + 2) * (width + height + 2);
    std::vector<NAT> squares(static_cast<std::size_t>(mask.COUNT()));
    std::transform(mask.DATA(), mask.DATA() + mask.COUNT(), squares.begin(),
                   [far](BYTE pixel) { return pixel != 0 ? far : 0; });
    ENVELOPE envelope(std::max(width, height));
    for (NAT x = 0; x < width; ++x)
        envelope.TRANSFORM(squares.data() + x, height, width);
    for (NAT y = 0; y < height; ++y)
        envelope.TRANSFORM(squares.data() + y * width, width, 1);
    return squares;
}

namespace {
constexpr REAL SINGLE = 0.5; // the radius within one pixel

class CIRCLE_PACKER {
public:
    CIRCLE_PACKER(const TCANVAS &mask, REAL largest) : width(mask.WIDTH), height(mask.HEIGHT) {
        const std::vector<NAT> squares = INNER_DISTANCES(mask);
        radii.resize(squares.size());
        for (std::size_t i = 0; i < squares.size(); ++i) {
            const REAL radius = std::sqrt(static_cast<REAL>(squares[i])) - SINGLE;
            radii[i] = squares[i] > 0 ? std::min(radius, largest) : 0;
            if (radii[i] >= SINGLE) heap.push({radii[i], static_cast<NAT>(i)});
        }
    }
    // The largest circle that is left; its radius is 0 at the end.
    MASK_CIRCLE NEXT() {
        while (!heap.empty()) {
            const CENTRE centre = heap.top();
            heap.pop();
            const REAL radius = radii[static_cast<std::size_t>(centre.offset)];
            if (radius < SINGLE) continue;
            if (radius < centre.radius) { // a circle since then came near
                heap.push({radius, centre.offset});
                continue;
            }
            const MASK_CIRCLE circle{centre.offset % width + 1, centre.offset / width + 1, radius};
            Occupy(circle);
            return circle;
        }
        return {};
    }

private:
    struct CENTRE {
        REAL radius;
        NAT offset;
        // The top of the heap is the largest, of equals the first.
        bool operator<(const CENTRE &other) const {
            return radius != other.radius ? radius < other.radius : offset > other.offset;
        }
    };
    // All that are left are at most as large, so that none farther than two radii is touched.
    void Occupy(const MASK_CIRCLE &circle) {
        const NAT reach = static_cast<NAT>(std::ceil(2 * circle.radius));
        const NAT left = std::max<NAT>(1, circle.x - reach),
                  top = std::max<NAT>(1, circle.y - reach);
        const NAT right = std::min(width, circle.x + reach);
        const NAT bottom = std::min(height, circle.y + reach);
        for (NAT y = top; y <= bottom; ++y)
            for (NAT x = left; x <= right; ++x) {
                const REAL distance =
                    std::hypot(static_cast<REAL>(x - circle.x), static_cast<REAL>(y - circle.y));
                REAL &radius = radii[static_cast<std::size_t>(x - 1 + (y - 1) * width)];
                radius = std::min(radius, distance - circle.radius);
            }
    }

    NAT width, height;
    std::vector<REAL> radii; // of the largest circle around each pixel
    std::priority_queue<CENTRE> heap;
};
} // namespace

std::vector<MASK_CIRCLE> INNER_CIRCLES(const TCANVAS &mask, REAL largest) try {
    std::vector<MASK_CIRCLE> circles;
    if (mask.EMPTY()) return circles;
    CIRCLE_PACKER packer(mask, largest);
    for (MASK_CIRCLE circle = packer.NEXT(); circle.radius > 0; circle = packer.NEXT())
        circles.push_back(circle);
    return circles;
} catch (const std::bad_alloc &) {
    WRITELN("  Out of memory! No circles found.");
    return {};
}

template void DISTANCE(CANVAS<BYTE> &, std::span<const COMPLEX>);
template void DISTANCE(CANVAS<WORD> &, std::span<const COMPLEX>);
} // namespace morvane
