#include "image2d/chart/coverage.hpp"

#include "foundation/base/rounding.hpp"
#include "foundation/base/safe_arithmetic.hpp"

#include <algorithm>
#include <cmath>

namespace morvane {
namespace {
REAL Overlap(REAL low, REAL high, NAT pixel) {
    const REAL from = static_cast<REAL>(pixel);
    return std::max(std::min(high, from + 1) - std::max(low, from), 0.0);
}

REAL Distance(const COMPLEX &p, const COMPLEX &a, const COMPLEX &b) {
    const REAL dx = b.x - a.x, dy = b.y - a.y, square = dx * dx + dy * dy;
    const REAL along = (p.x - a.x) * dx + (p.y - a.y) * dy;
    const REAL t = square > 0 ? LIMIT(along / square, 0.0, 1.0) : 0;
    return std::hypot(p.x - a.x - t * dx, p.y - a.y - t * dy);
}
} // namespace

bool COVERAGE::INIT(NAT newWidth, NAT newHeight) {
    width = newWidth, height = newHeight;
    covered.INIT(width * height);
    areas.INIT((width + 2) * height);
    touched = {width, height, 0, 0};
    return covered.LENGTH == width * height && areas.LENGTH == (width + 2) * height;
}

COVERAGE::RANGES COVERAGE::Pixels(const PICTURE_AREA &area) const {
    const REAL w = static_cast<REAL>(width), h = static_cast<REAL>(height);
    return {FLOOR(LIMIT(area.left, 0.0, w)), FLOOR(LIMIT(area.top, 0.0, h)),
            FLOOR(LIMIT(std::ceil(area.right), 0.0, w)),
            FLOOR(LIMIT(std::ceil(area.bottom), 0.0, h))};
}

void COVERAGE::Touch(const RANGES &pixels) {
    if (pixels.left >= pixels.right || pixels.top >= pixels.bottom) return;
    touched.left = std::min(touched.left, pixels.left);
    touched.top = std::min(touched.top, pixels.top);
    touched.right = std::max(touched.right, pixels.right);
    touched.bottom = std::max(touched.bottom, pixels.bottom);
}

void COVERAGE::ADD(const PICTURE_AREA &area, REAL share) {
    const RANGES pixels = Pixels(area);
    for (NAT y = pixels.top; y < pixels.bottom; ++y) {
        const REAL tall = Overlap(area.top, area.bottom, y) * share;
        for (NAT x = pixels.left; x < pixels.right; ++x)
            Row(y)[x] = std::min(Row(y)[x] + tall * Overlap(area.left, area.right, x), 1.0);
    }
    Touch(pixels);
}

// A round pen of the line's width along a-b: a pixel is covered by how deep its middle lies in it.
void COVERAGE::Segment(const COMPLEX &a, const COMPLEX &b, REAL lineWidth) {
    const REAL half = lineWidth / 2, reach = half + 0.5, most = std::min(lineWidth, 1.0);
    const PICTURE_AREA box{std::min(a.x, b.x) - reach, std::min(a.y, b.y) - reach,
                           std::max(a.x, b.x) + reach, std::max(a.y, b.y) + reach};
    const RANGES pixels = Pixels(box);
    const REAL length = std::hypot(b.x - a.x, b.y - a.y);
    const REAL slope = b.y == a.y ? 0 : (b.x - a.x) / (b.y - a.y);
    for (NAT y = pixels.top; y < pixels.bottom; ++y) {
        const REAL middleY = static_cast<REAL>(y) + 0.5;
        RANGES row = pixels;
        if (std::abs(b.y - a.y) > 1) { // only the pixels near the line on this row
            const REAL x = a.x + slope * (middleY - a.y);
            const REAL wide = reach * length / std::abs(b.y - a.y) + 1;
            row = Pixels({std::max(x - wide, box.left), 0, std::min(x + wide, box.right), 1});
        }
        for (NAT x = row.left; x < row.right; ++x) {
            const REAL depth = reach - Distance({static_cast<REAL>(x) + 0.5, middleY}, a, b);
            Row(y)[x] = std::max(Row(y)[x], LIMIT(depth, 0.0, most));
        }
    }
    Touch(pixels);
}

void COVERAGE::STROKE(const std::vector<COMPLEX> &points, REAL lineWidth, bool isClosed) {
    const std::size_t count = points.size();
    const REAL half = lineWidth / 2;
    for (std::size_t i = 0; i + (isClosed ? 0 : 1) < count; ++i) {
        const COMPLEX a = points[i], b = points[(i + 1) % count];
        if (a.x != b.x && a.y != b.y) {
            Segment(a, b, lineWidth);
            continue;
        }
        // Joints of rows and columns are square, the ends of the whole line straight.
        const REAL before = isClosed || i > 0 ? half : 0;
        const REAL after = isClosed || i + 2 < count ? half : 0;
        const REAL first = a.x + a.y < b.x + b.y ? before : after, last = before + after - first;
        const PICTURE_AREA box{std::min(a.x, b.x) - (a.x == b.x ? half : first),
                               std::min(a.y, b.y) - (a.x == b.x ? first : half),
                               std::max(a.x, b.x) + (a.x == b.x ? half : last),
                               std::max(a.y, b.y) + (a.x == b.x ? last : half)};
        const RANGES pixels = Pixels(box);
        for (NAT y = pixels.top; y < pixels.bottom; ++y)
            for (NAT x = pixels.left; x < pixels.right; ++x)
                Row(y)[x] = std::max(Row(y)[x], Overlap(box.left, box.right, x) *
                                                    Overlap(box.top, box.bottom, y));
        Touch(pixels);
    }
}

// Adds the area to the right of an edge to each row's changes, exact for straight edges: along a
// row the running sum of the changes is the covered share.
void COVERAGE::Edge(const COMPLEX &start, const COMPLEX &end) {
    if (start.y == end.y) return;
    const REAL sign = start.y < end.y ? 1 : -1;
    const COMPLEX &a = start.y < end.y ? start : end, &b = start.y < end.y ? end : start;
    const REAL slope = (b.x - a.x) / (b.y - a.y), wide = static_cast<REAL>(width);
    const NAT last = std::min(FLOOR(std::ceil(b.y)), height);
    for (NAT y = std::max<NAT>(FLOOR(a.y), 0); y < last; ++y) {
        const REAL from = std::max(a.y, static_cast<REAL>(y));
        const REAL to = std::min(b.y, static_cast<REAL>(y + 1));
        if (to <= from) continue;
        const REAL x1 = LIMIT(a.x + slope * (from - a.y), 0.0, wide);
        const REAL x2 = LIMIT(a.x + slope * (to - a.y), 0.0, wide);
        const REAL left = std::min(x1, x2), right = std::max(x1, x2), height1 = sign * (to - from);
        const NAT firstPixel = FLOOR(left), lastPixel = std::min(FLOOR(right), width);
        REAL *row = AreaRow(y);
        for (NAT x = firstPixel; x <= lastPixel; ++x) {
            // The share of the piece's height that crosses this pixel, and where its middle is.
            const REAL low = std::max(left, static_cast<REAL>(x));
            const REAL high = std::min(right, static_cast<REAL>(x + 1));
            const REAL share = right > left ? (high - low) / (right - left) : 1;
            const REAL inside = static_cast<REAL>(x + 1) - (low + high) / 2;
            row[x] += height1 * share * inside;
            row[x + 1] += height1 * share * (1 - inside);
        }
    }
}

void COVERAGE::FILL(const std::vector<COMPLEX> &points) {
    const PICTURE_AREA picture{0, 0, static_cast<REAL>(width), static_cast<REAL>(height)};
    const std::vector<COMPLEX> inside = CLIP_POLYGON(points, picture);
    if (inside.size() < 3) return;
    SHAPE polygon;
    polygon.points = inside;
    const RANGES pixels = Pixels(GETBOUNDS(polygon));
    for (std::size_t i = 0; i < inside.size(); ++i)
        Edge(inside[i], inside[(i + 1) % inside.size()]);
    for (NAT y = pixels.top; y < pixels.bottom; ++y) {
        REAL sum = 0, *changes = AreaRow(y), *row = Row(y);
        for (NAT x = pixels.left; x < pixels.right; ++x) {
            sum += changes[x];
            row[x] = std::max(row[x], std::min(std::abs(sum), 1.0));
        }
        const NAT end = std::min(pixels.right + 2, width + 2);
        std::fill(changes + pixels.left, changes + end, 0.0);
    }
    Touch(pixels);
}

void COVERAGE::APPLY(TRGBA &image, const HYPERNAT &colour, const PICTURE_AREA &clip) {
    const RANGES allowed = Pixels(clip);
    for (NAT y = touched.top; y < touched.bottom; ++y) {
        REAL *row = Row(y);
        const bool isRow = y >= allowed.top && y < allowed.bottom;
        for (NAT x = touched.left; x < touched.right; ++x) {
            const NAT alpha = ROUND(row[x] * static_cast<REAL>(colour.w));
            row[x] = 0;
            if (alpha == 0 || !isRow || x < allowed.left || x >= allowed.right) continue;
            image.PUTOVER(x + 1, y + 1, {colour.x, colour.y, colour.z, alpha});
        }
    }
    touched = {width, height, 0, 0};
}
} // namespace morvane
