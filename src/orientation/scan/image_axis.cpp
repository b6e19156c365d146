#include "orientation/scan/image_axis.hpp"

#include "foundation/base/geometry.hpp"
#include "foundation/container/poly_statistics.hpp"
#include "foundation/thread/run_slices.hpp"
#include "orientation/scan/image_method.hpp"
#include "orientation/scan/image_row.hpp"
#include "orientation/scan/scan_messages.hpp"

#include <algorithm>
#include <cmath>

namespace morvane {
namespace {
// Sums of values and squares of all pixels above and left of a corner, so that those of a square
// are three additions.
class SQUARE_SUMS {
public:
    [[nodiscard]] bool INIT(const SCAN_PLANE &plane) {
        size = plane.SIZE();
        const NAT count = (size.x + 1) * (size.y + 1);
        if (!sums.INIT(count) || !squares.INIT(count)) return false;
        for (NAT y = 1; y <= size.y; ++y) {
            NAT sum = 0, square = 0;
            for (NAT x = 1; x <= size.x; ++x) {
                const NAT value = plane.GET(x, y);
                sum += value;
                square += value * value;
                sums[At(x, y)] = sums[At(x, y - 1)] + sum;
                squares[At(x, y)] = squares[At(x, y - 1)] + square;
            }
        }
        return true;
    }
    // The standard deviation of the pixels inside the image.
    REAL DEVIATION(NAT x, NAT y, NAT r) const {
        const NAT left = std::max(x - r, NAT{1}) - 1, right = std::min(x + r, size.x);
        const NAT top = std::max(y - r, NAT{1}) - 1, bottom = std::min(y + r, size.y);
        const auto inside = [&](const SCAN_BUFFER<NAT> &list) {
            return list[At(right, bottom)] - list[At(left, bottom)] - list[At(right, top)] +
                   list[At(left, top)];
        };
        return NATSD((right - left) * (bottom - top), inside(sums), inside(squares));
    }

private:
    NAT At(NAT x, NAT y) const { return y * (size.x + 1) + x; }
    COMPLEXNAT size;
    SCAN_BUFFER<NAT> sums, squares;
};

// Of one row: the weighted sum of (cos 2a, sin 2a), and of the weights.
struct ROW_SUM {
    REAL cosine, sine, weight;
    void ADD(const COMPLEX &v, REAL share) {
        const REAL length = SCALAR(v, v); // cos 2a = (x² - y²) / (x² + y²)
        if (length == 0) return;
        cosine += share * (v.x * v.x - v.y * v.y) / length;
        sine += share * 2 * v.x * v.y / length;
        weight += share;
    }
};

MEAN_AXIS MeanOf(const ROW_SUM &sum) {
    const REAL length = std::hypot(sum.cosine, sum.sine);
    if (sum.weight <= 0 || length == 0) return {};
    REAL degrees = std::atan2(sum.sine, sum.cosine) * 90 / PI;
    if (degrees <= -90) degrees += 180;
    return {degrees, length / sum.weight};
}
} // namespace

MEAN_AXIS GETMEANAXIS(const TIMAGE &image, NAT r, NAT threadLimit) {
    const NAT width = image.SIZEX(), height = image.SIZEY();
    if (!IS_SCAN_LENGTH(r, std::min(width, height))) return {};
    const SCAN_PLANE plane(image);
    const SCAN_PLAN plan(GETSETTINGS(image), GETDIRECTIONS(r), r, width);
    SQUARE_SUMS sums;
    SCAN_BUFFER<ROW_SUM> rows;
    if (!sums.INIT(plane) || !rows.INIT(height)) return {};
    WRITE_SCAN_METHOD(plan.settings, r);
    const IMAGE_SCAN_ROW scan{plan, plane};
    RUN_SLICES("  Calculate vectorfield", 1, height, threadLimit, [&](NAT y) {
        SCAN_BUFFER<BYTE> wanted;
        SCAN_BUFFER<VECTOR> vectors;
        if (!scan.FIND(y, wanted, vectors)) return;
        for (NAT x = 1; x <= width; ++x)
            rows[y - 1].ADD({vectors[x - 1].x, vectors[x - 1].y}, sums.DEVIATION(x, y, r));
    });
    ROW_SUM sum{};
    for (NAT y = 0; y < height; ++y) {
        sum.cosine += rows[y].cosine;
        sum.sine += rows[y].sine;
        sum.weight += rows[y].weight;
    }
    return MeanOf(sum);
}
} // namespace morvane
