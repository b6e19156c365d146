#include "orientation/stream/push_line.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/base/geometry.hpp"
#include "foundation/container/space.hpp"
#include "geometry/model/cloud.hpp"
#include "orientation/stream/trace.hpp"
#include "orientation/stream/visited_mask.hpp"

#include <algorithm>
#include <cmath>

namespace morvane {
namespace {
void PushPoint(TCLOUD &cloud, const VECTOR &p) { cloud.NEWPOINT({p.x, p.y, p.z, 0}); }

// f(point) of right from its last to its first point, then of left from its first to its last.
template <class F> void EachPoint(const HALF_LINE &left, const HALF_LINE &right, F f) {
    for (NAT i = right.LENGTH(); i >= 1; --i)
        f(right.GET(i));
    for (NAT i = 1; i <= left.LENGTH(); ++i)
        f(left.GET(i));
}

// One half of a snake: points go to the cloud until one is blocked. Positions run from `first` by
// `direction`. The number of points pushed.
template <class BLOCKED>
NAT PushHalf(TCLOUD &cloud, const HALF_LINE &half, bool backwards, const FRAME &frame,
             VISITED_MASK &mask, BLOCKED blocked) {
    const NAT length = half.LENGTH();
    const auto point = [&](NAT i) { return half.GET(backwards ? length + 1 - i : i); };
    NAT count = 0;
    while (count < length && !blocked(frame.G2L_ROUND(point(count + 1))))
        PushPoint(cloud, point(++count));
    if (count == 1) mask.PUT(frame.G2L_ROUND(point(1)));
    for (NAT i = 2; i <= count; ++i)
        mask.LINE(frame.G2L_ROUND(point(i - 1)), frame.G2L_ROUND(point(i)));
    return count;
}

void AddVoxel(T3D_SCALAR_ANALYSIS &target, const VECTORNAT &p) {
    target.PUT(p.x, p.y, p.z, target.GET(p) + 1);
}

// Adds 1 to the voxels of a line, each once; its far end belongs to the line that follows.
void ADDLINE(T3D_SCALAR_ANALYSIS &target, const VECTORNAT &from, const VECTORNAT &to) {
    const VECTOR start = TO_REAL(from), way = TO_REAL(to) - start;
    const REAL count = std::max({std::abs(way.x), std::abs(way.y), std::abs(way.z)});
    const VECTOR size = TO_REAL(target.SIZE());
    // A step longer than the field leaves it at once: only its start can lie inside.
    if (count > 4 * (size.x + size.y + size.z)) return AddVoxel(target, from);
    for (REAL i = 0; i < count; ++i)
        AddVoxel(target, ROUND(start + way * (i / count)));
}

template <class BLOCKED>
void PushSnake(TCLOUD &cloud, const HALF_LINE &left, const HALF_LINE &right, NAT seed,
               const FRAME &frame, VISITED_MASK &mask, BLOCKED blocked) {
    NAT count = PushHalf(cloud, right, true, frame, mask, blocked);
    count += PushHalf(cloud, left, false, frame, mask, blocked);
    if (count > 0) cloud.NEWLINE(seed);
}
} // namespace

void _VECTOR_PUSH_LINE(TCLOUD &cloud, const HALF_LINE &left, const HALF_LINE &right, NAT seed) {
    EachPoint(left, right, [&](const VECTOR &p) { PushPoint(cloud, p); });
    cloud.NEWLINE(seed);
}

void _VECTOR_PUSH_LINE_SEEDS_ADAPTIVE(TCLOUD &cloud, const HALF_LINE &left, const HALF_LINE &right,
                                      NAT seed, const FRAME &frame, VISITED_MASK &mask) {
    EachPoint(left, right, [&](const VECTOR &p) {
        PushPoint(cloud, p);
        mask.PUT(frame.G2L_ROUND(p));
    });
    cloud.NEWLINE(seed);
}

void _VECTOR_PUSH_LINE_SEEDS_SNAKES1_ADAPTIVE(TCLOUD &cloud, const HALF_LINE &left,
                                              const HALF_LINE &right, NAT seed, const FRAME &frame,
                                              VISITED_MASK &mask) {
    PushSnake(cloud, left, right, seed, frame, mask,
              [&](const VECTORNAT &cell) { return mask.GET(cell); });
}

void _VECTOR_PUSH_LINE_SEEDS_SNAKES_ADAPTIVE(TCLOUD &cloud, const HALF_LINE &left,
                                             const HALF_LINE &right, NAT seed, const FRAME &frame,
                                             VISITED_MASK &mask, NAT snakes) {
    PushSnake(cloud, left, right, seed, frame, mask,
              [&](const VECTORNAT &cell) { return mask.ANYNEAR(cell, snakes); });
}

void _VECTOR_PUSH_SCALAR(const HALF_LINE &left, const HALF_LINE &right, const FRAME &frame,
                         T3D_SCALAR_ANALYSIS &target) {
    const auto cell = [&](const VECTOR &p) { return frame.G2L_ROUND(p); };
    const auto addHalf = [&](const HALF_LINE &half, const HALF_LINE &other) {
        const NAT length = half.LENGTH();
        for (NAT i = 2; i <= length; ++i)
            ADDLINE(target, cell(half.GET(i - 1)), cell(half.GET(i)));
        if (length >= 2) AddVoxel(target, cell(half.GET(length)));
        if (length == 1 && other.LENGTH() >= 1)
            ADDLINE(target, cell(half.GET(1)), cell(other.GET(1)));
    };
    addHalf(left, right);
    addHalf(right, left);
}
} // namespace morvane
