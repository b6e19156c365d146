#include "foundation/base/geometry.hpp"
#include "foundation/console/console.hpp"
#include "orientation/vector/vector_copy.hpp"
#include "orientation/vector/vector_store.hpp"

// Extremes, counts and the box of a range. Lengths are meant wherever a vector is compared with a
// number.
namespace morvane {
namespace {
constexpr NAT LAST_BIN = 65535;
}

REAL T3D_VECTOR_ANALYSIS::MIN() const {
    if (sizeX < 1) return 0;
    REAL shortest = REALMAX;
    EACH_VECTOR(*this, [&](const VECTOR &v) { shortest = std::min(shortest, GETLENGTH(v)); });
    return shortest;
}

REAL T3D_VECTOR_ANALYSIS::MAX() const {
    REAL longest = 0;
    EACH_VECTOR(*this, [&](const VECTOR &v) { longest = std::max(longest, GETLENGTH(v)); });
    return longest;
}

NAT T3D_VECTOR_ANALYSIS::COUNT(REAL low, REAL high) const {
    NAT count = 0;
    EACH_VECTOR(*this, [&](const VECTOR &v) { count += INTO(GETLENGTH(v), low, high); });
    return count;
}

NAT T3D_VECTOR_ANALYSIS::COUNT(const VECTOR &value) const {
    NAT count = 0;
    EACH_VECTOR(*this, [&](const VECTOR &v) { count += v == value; });
    return count;
}

void T3D_VECTOR_ANALYSIS::HISTOGRAM(TPOLYNAT &list) const {
    list.DONE();
    if (sizeX < 1) return;
    const NAT bins = std::min(ROUND(MAX()), LAST_BIN) + 1;
    list.INIT(bins);
    if (list.LENGTH != bins) return;
    EACH_VECTOR(*this, [&](const VECTOR &v) {
        const NAT bin = std::min(ROUND(GETLENGTH(v)), LAST_BIN) + 1;
        list._PUT(bin, list._GET(bin) + 1);
    });
}

bool T3D_VECTOR_ANALYSIS::GETCROP(RANGE range, VECTORNAT &a, VECTORNAT &b) const {
    VECTORNAT low{sizeX, sizeY, sizeZ}, high = VZERONAT;
    DISPATCH(*this, [&](const auto &store) {
        NAT offset = 0;
        for (NAT z = 1; z <= sizeZ; ++z)
            for (NAT y = 1; y <= sizeY; ++y)
                for (NAT x = 1; x <= sizeX; ++x, ++offset) {
                    if (!INTO(GETLENGTH(store._GET(offset)), range.min, range.max)) continue;
                    low = morvane::MIN(low, VECTORNAT{x, y, z});
                    high = morvane::MAX(high, VECTORNAT{x, y, z});
                }
    });
    if (high.x < 1) return false;
    a = low;
    b = high;
    return true;
}

void T3D_VECTOR_ANALYSIS::CROP(RANGE range) {
    if (sizeX < 1) return;
    T3D_VECTOR_ANALYSIS cut(typeTag);
    if (!morvane::CROP(*this, cut, range)) return;
    cut.BACKGROUND = BACKGROUND;
    SWAP(cut);
}
} // namespace morvane
