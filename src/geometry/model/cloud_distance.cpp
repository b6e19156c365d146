#include "geometry/model/cloud_edit.hpp"

#include <algorithm>
#include <cmath>

// The distance to the nearest neighbour, with a balanced tree of the points.
namespace morvane {
namespace {
// Points as a tree in one list: the middle element of a part halves it along the part's axis.
class POINT_TREE {
public:
    explicit POINT_TREE(std::span<const HYPER> cloudPoints) : points(cloudPoints) {
        order.INIT();
        for (std::size_t i = 0; i < points.size(); ++i)
            if (std::isfinite(points[i].x) && std::isfinite(points[i].y) &&
                std::isfinite(points[i].z))
                order.PUSH(static_cast<NAT>(i));
        BUILD(order.SPAN(), 0);
    }
    // Squared distance from a point, by its offset from 0, to the nearest other; infinite: none.
    REAL NEAREST(NAT offset) const {
        REAL best = REALMAX;
        SEARCH(order.SPAN(), 0, offset, best);
        return best;
    }

private:
    using PART = std::span<const NAT>;
    REAL COORDINATE(NAT offset, int axis) const {
        const HYPER &p = points[static_cast<std::size_t>(offset)];
        return axis == 0 ? p.x : axis == 1 ? p.y : p.z;
    }
    void BUILD(std::span<NAT> part, int axis) {
        if (part.size() < 2) return;
        const std::size_t middle = part.size() / 2;
        std::nth_element(
            part.begin(), part.begin() + static_cast<NAT>(middle), part.end(),
            [this, axis](NAT a, NAT b) { return COORDINATE(a, axis) < COORDINATE(b, axis); });
        BUILD(part.first(middle), (axis + 1) % 3);
        BUILD(part.subspan(middle + 1), (axis + 1) % 3);
    }
    void SEARCH(PART part, int axis, NAT offset, REAL &best) const {
        if (part.empty()) return;
        const std::size_t middle = part.size() / 2;
        if (part[middle] != offset) best = std::min(best, SQUARE(part[middle], offset));
        const REAL across = COORDINATE(offset, axis) - COORDINATE(part[middle], axis);
        const PART low = part.first(middle), high = part.subspan(middle + 1);
        SEARCH(across < 0 ? low : high, (axis + 1) % 3, offset, best);
        // `<=`: elements equal to the middle one may stand on either side.
        if (across * across <= best) SEARCH(across < 0 ? high : low, (axis + 1) % 3, offset, best);
    }
    REAL SQUARE(NAT a, NAT b) const {
        REAL sum = 0;
        for (int axis = 0; axis < 3; ++axis) {
            const REAL difference = COORDINATE(a, axis) - COORDINATE(b, axis);
            sum += difference * difference;
        }
        return sum;
    }

    std::span<const HYPER> points;
    TPOLYNAT order;
};
} // namespace

void DISTANCE_T(TCLOUD &cloud) {
    const POINT_TREE tree(cloud.SPAN());
    for (NAT i = 0; i < cloud.LENGTH; ++i) {
        const HYPER &p = cloud._GET(i + 1);
        const bool isFinite = std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
        const REAL square = isFinite ? tree.NEAREST(i) : REALMAX;
        cloud._INDEX(i + 1)->w = std::isfinite(square) ? std::sqrt(square) : 0;
    }
}
} // namespace morvane
