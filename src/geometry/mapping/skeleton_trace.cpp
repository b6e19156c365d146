#include "geometry/mapping/skeleton_trace.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/console/console.hpp"
#include "foundation/container/space.hpp"
#include "geometry/model/cloud.hpp"

#include <array>
#include <vector>

namespace morvane {
namespace {
// The unvisited skeleton voxels around one voxel, z outermost.
struct NEIGHBOURS {
    std::array<VECTORNAT, 26> voxels;
    std::size_t count = 0, next = 0;
};

// The recursion of the tracer, kept on a list of its own so that a long skeleton needs no stack.
struct BRANCH {
    HYPER point;
    NEIGHBOURS ways;
};

class TRACER {
public:
    TRACER(const T3D_SCALAR_ANALYSIS &source, COMPLEXNAT values, TCLOUD &lines)
        : field(source), range(values), cloud(lines),
          visited(source.SIZEX(), source.SIZEY(), source.SIZEZ()) {}

    bool IsNew(const VECTORNAT &p) const {
        const VECTORNAT size = field.SIZE();
        if (p.x < 1 || p.y < 1 || p.z < 1 || p.x > size.x || p.y > size.y || p.z > size.z)
            return false;
        const NAT value = field.GET(p);
        return value >= range.x && value <= range.y && !visited._GET(p.x, p.y, p.z);
    }

    void Trace(const VECTORNAT &start) {
        Walk(start);
        while (!branches.empty()) {
            BRANCH &branch = branches.back();
            if (branch.ways.next == branch.ways.count) {
                branches.pop_back();
                continue;
            }
            const VECTORNAT way = branch.ways.voxels[branch.ways.next++];
            if (!IsNew(way)) continue; // an earlier way came round to it
            cloud.NEWPOINT(branch.point);
            Walk(way);
        }
    }

private:
    NEIGHBOURS Around(const VECTORNAT &p) const {
        NEIGHBOURS found;
        for (NAT z = p.z - 1; z <= p.z + 1; ++z)
            for (NAT y = p.y - 1; y <= p.y + 1; ++y)
                for (NAT x = p.x - 1; x <= p.x + 1; ++x)
                    if (IsNew({x, y, z})) found.voxels[found.count++] = {x, y, z};
        return found;
    }

    HYPER Point(const VECTORNAT &p) const {
        const VECTOR global = field.GETFRAME().L2G(
            {static_cast<REAL>(p.x), static_cast<REAL>(p.y), static_cast<REAL>(p.z)});
        return {global.x, global.y, global.z, static_cast<REAL>(field.GET(p))};
    }

    // Follows a line to its end or to the next branch point.
    void Walk(VECTORNAT p) {
        for (;;) {
            visited._PUT(p.x, p.y, p.z, true);
            const NEIGHBOURS ways = Around(p);
            // Deliberate: the voxel at which a skeleton line ends adds no point.
            if (ways.count == 0) return cloud.NEWLINE(0);
            cloud.NEWPOINT(Point(p));
            if (ways.count > 1) {
                cloud.NEWLINE(0);
                branches.push_back({Point(p), ways});
                return;
            }
            p = ways.voxels[0];
        }
    }

    const T3D_SCALAR_ANALYSIS &field;
    COMPLEXNAT range;
    TCLOUD &cloud;
    TSPACEBOOL visited;
    std::vector<BRANCH> branches;
};
} // namespace

NAT SKELETON_TRACE(const T3D_SCALAR_ANALYSIS &field, COMPLEXNAT range, TCLOUD &cloud) {
    if (!field.ISNOTEMPTY()) return 0;
    TRACER tracer(field, range, cloud);
    NAT count = 0;
    for (NAT z = 1; z <= field.SIZEZ(); ++z) {
        PROGRESS("Get skeleton", static_cast<REAL>(z) / static_cast<REAL>(field.SIZEZ()));
        for (NAT y = 1; y <= field.SIZEY(); ++y)
            for (NAT x = 1; x <= field.SIZEX(); ++x) {
                if (!tracer.IsNew({x, y, z})) continue;
                tracer.Trace({x, y, z});
                ++count;
                cloud.NEWOBJECT("Skeleton-" + GETSTRING(count));
            }
    }
    PROGRESS();
    return count;
}
} // namespace morvane
