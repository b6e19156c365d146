#include "orientation/stream/seeds.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/base/geometry.hpp"
#include "foundation/base/matrix3.hpp"
#include "foundation/console/console.hpp"
#include "geometry/model/cloud.hpp"
#include "orientation/stream/push_line.hpp"

namespace morvane {
namespace {
REAL PathOf(const HALF_LINE &half) {
    REAL length = 0;
    for (NAT i = 2; i <= half.LENGTH(); ++i)
        length += GETLENGTH(half.GET(i) - half.GET(i - 1));
    return length;
}
} // namespace

bool STREAM_RUN::PREPARE(const STREAM_JOB &job) {
    const VECTORNAT size = job.field.SIZE();
    if (size.x < 2 || size.y < 2 || size.z < 2) return false;
    const MATRIX3 &matrix = job.field.GETFRAME().MATRIX();
    if (IFNEGATIVE(matrix)) {
        WRITELN("  Matrix with negative entries " + GETSTRING(matrix) + "!");
        WRITELN("  Note: Check your coordinate system!");
    }
    return true;
}

STREAM_RUN::STREAM_RUN(const STREAM_JOB &job_, KIND kind_, T3D_SCALAR_ANALYSIS *nodes_)
    : job(job_), kind(kind_), nodes(nodes_), tracer(job_.field, job_.scalar, job_.settings),
      visited(job_.field.SIZE()) {}

// Whether lines have passed too near.
bool STREAM_RUN::Blocked(const VECTORNAT &candidate) const {
    const NAT seeds = job.settings.seeds;
    if (seeds == 0) return false;
    return seeds == 1 ? visited.GET(candidate) : visited.ANYNEAR(candidate, seeds);
}

// Deliberate: a line is dropped only when its forward half is the longer one by more than two
// steps, a longer backward half passes.
bool STREAM_RUN::IFEQUAL() const {
    const HALF_LINE &left = tracer.left, &right = tracer.right;
    const REAL lft = PathOf(left);
    const REAL rgt = right.LENGTH() < 1 ? 0 : GETLENGTH(left.GET(1) - right.GET(1)) + PathOf(right);
    return !(lft - rgt > 2.0 * job.settings.steps) && lft * rgt != 0;
}

void STREAM_RUN::Push() {
    const FRAME &frame = job.field.GETFRAME();
    const HALF_LINE &left = tracer.left, &right = tracer.right;
    TCLOUD &cloud = job.cloud;
    const NAT snakes = job.settings.snakes;
    if (kind == KIND::NODES) return _VECTOR_PUSH_SCALAR(left, right, frame, *nodes);
    if (job.settings.seeds == 0) return _VECTOR_PUSH_LINE(cloud, left, right, required);
    if (snakes == 0)
        return _VECTOR_PUSH_LINE_SEEDS_ADAPTIVE(cloud, left, right, required, frame, visited);
    if (snakes == 1)
        return _VECTOR_PUSH_LINE_SEEDS_SNAKES1_ADAPTIVE(cloud, left, right, required, frame,
                                                        visited);
    _VECTOR_PUSH_LINE_SEEDS_SNAKES_ADAPTIVE(cloud, left, right, required, frame, visited, snakes);
}

void STREAM_RUN::TRY(const VECTORNAT &candidate) {
    ++required;
    if (Blocked(candidate)) return;
    tracer.TRACE(job.field.GETFRAME().L2G(TO_REAL(candidate)));
    if (tracer.POINTS() < 2) return;
    if (kind == KIND::MUSCLE && !IFEQUAL()) return;
    ++found;
    Push();
}

void STREAM_RUN::FINISH() {
    if (found < 1) return WRITELN("  Found 0 (0%) streamlines from seeds.");
    if (kind != KIND::NODES) {
        job.cloud.NEWOBJECT("Streamlines");
        const VECTOR offset = job.field.GETFRAME().MOVE(), scale = job.field._GETSCALE();
        const VECTOR size = TO_REAL(job.field.SIZE());
        job.cloud.offset = {offset.x, offset.y, offset.z, 0};
        job.cloud.scale = {scale.x, scale.y, scale.z, 1};
        job.cloud.dimension = {size.x, size.y, size.z, 1};
    }
    const REAL share = static_cast<REAL>(found) / static_cast<REAL>(required) * 100;
    WRITELN("  Found " + GETSTRING(found) + " (" + GETSTRING(share, 2) +
            "%) streamlines from seeds.");
}
} // namespace morvane
