#include "foundation/base/geometry.hpp"
#include "geometry/model/cloud_edit.hpp"
#include "geometry/model/cloud_near.hpp"

#include <algorithm>
#include <bit>
#include <cmath>

// Equal and near lines and points, found without comparing each with each.
namespace morvane {
namespace {
VECTOR PLACE(const HYPER &point) { return {point.x, point.y, point.z}; }

bool SAME_LINES(std::span<const HYPER> a, std::span<const HYPER> b) {
    return std::ranges::equal(a, b);
}

// Equal lines have equal hashes; -0 counts as 0, as in the comparison.
std::uint64_t LINE_HASH(std::span<const HYPER> line) {
    std::uint64_t hash = line.size();
    for (const HYPER &point : line)
        for (const REAL part : {point.x, point.y, point.z, point.w}) {
            hash = (hash ^ std::bit_cast<std::uint64_t>(part + 0.0)) * 0xD6E8FEB86659FD93u;
            hash ^= hash >> 29;
        }
    return hash;
}

// The mean place of a line. Lines with near points have near middles, and lines that merely start
// together, as those from one seed, seldom have.
VECTOR MIDDLE(std::span<const HYPER> line) {
    VECTOR sum;
    for (const HYPER &point : line)
        sum = sum + PLACE(point);
    return sum / static_cast<REAL>(line.size());
}

// Marks each line for which near(earlier, line) holds with an earlier one; `place` gives the place
// of a line, and lines that are near have places at most `distance` apart.
template <class PLACE_OF, class NEAR>
NAT ERASE_NEAR(TCLOUD &cloud, REAL distance, PLACE_OF place, NEAR near) {
    const TCLOUD &lines = cloud;
    POINT_GRID grid(lines.GETLINELENGTH(), distance, LARGEST_COORDINATE(lines.SPAN()));
    if (!grid.READY()) return 0; // no memory, which has been told
    for (NAT line = 1; line <= lines.GETLINELENGTH(); ++line) {
        const std::span<const HYPER> own = lines.GETSPAN(line);
        const VECTOR at = place(own);
        const bool found =
            grid.ANY(at, [&](NAT earlier) { return near(lines.GETSPAN(earlier), own); });
        if (found) cloud.MARKALLLINE(line);
        grid.INSERT(line, at);
    }
    return cloud.ERASEMARKED();
}
} // namespace

NAT ERASE_DUPLICATES(TCLOUD &cloud) {
    const TCLOUD &lines = cloud;
    const NAT count = lines.GETLINELENGTH();
    NAT slots = 16;
    while (slots < 2 * count)
        slots *= 2;
    TPOLYNAT table(slots);
    if (table.LENGTH < 1) return 0; // no memory, which has been told
    for (NAT line = 1; line <= count; ++line) {
        const std::span<const HYPER> own = lines.GETSPAN(line);
        const std::uint64_t mask = static_cast<std::uint64_t>(slots - 1);
        NAT slot = static_cast<NAT>(LINE_HASH(own) & mask);
        while (table._GET(slot + 1) != 0 && !SAME_LINES(lines.GETSPAN(table._GET(slot + 1)), own))
            slot = (slot + 1) & (slots - 1);
        if (table._GET(slot + 1) != 0)
            cloud.MARKALLLINE(line);
        else
            table._PUT(slot + 1, line);
    }
    return cloud.ERASEMARKED();
}

NAT ERASE_DUPLICATES_NEAR(TCLOUD &cloud, REAL distance) {
    return ERASE_NEAR(cloud, distance, MIDDLE, [distance](auto earlier, auto line) {
        return NEAR_LINES(earlier, line, distance);
    });
}

NAT ERASE_DUPLICATES_BEGIN(TCLOUD &cloud, REAL distance) {
    const auto begin = [](std::span<const HYPER> line) { return PLACE(line.front()); };
    return ERASE_NEAR(cloud, distance, begin, [distance](auto earlier, auto line) {
        return NEAR_POINTS(earlier.front(), line.front(), distance);
    });
}

void MEAN_DUPLICATES_NEAR(TCLOUD &cloud, REAL distance) {
    POINT_GRID grid(cloud.LENGTH, distance, LARGEST_COORDINATE(cloud.SPAN()));
    TPOLYBOOL done(cloud.LENGTH);
    TPOLYNAT group;
    group.INIT();
    if (!grid.READY() || done.BITS < cloud.LENGTH) return; // no memory, which has been told
    for (NAT number = 1; number <= cloud.LENGTH; ++number)
        grid.INSERT(number, PLACE(cloud._GET(number)));
    for (NAT first = 1; first <= cloud.LENGTH; ++first) {
        if (done._GET(first - 1)) continue;
        const HYPER start = cloud._GET(first);
        group.NEWLENGTH(0);
        grid.TAKE(PLACE(start), [&](NAT number) {
            if (!NEAR_POINTS(start, cloud._GET(number), distance)) return false;
            group.PUSH(number);
            done._PUT(number - 1, true);
            return true;
        });
        if (group.LENGTH < 2) continue;
        group.SORT(); // the sum is taken in the order of the points
        HYPER sum;
        for (const NAT number : group.SPAN())
            sum = sum + cloud._GET(number);
        const HYPER mean = sum / static_cast<REAL>(group.LENGTH);
        for (const NAT number : group.SPAN())
            cloud._PUT(number, mean);
    }
}
} // namespace morvane
