#include "orientation/stream/push_line.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "geometry/model/cloud.hpp"
#include "orientation/stream/trace.hpp"
#include "orientation/stream/visited_mask.hpp"

#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// Left 5, 6, 7 and right 4, 3, 2 on the x axis, at y = z = 1: voxels 6, 7, 8 and 5, 4, 3.
struct HALVES {
    HALF_LINE left, right;
    HALVES() {
        for (const REAL x : {5.0, 6.0, 7.0})
            left.PUSH({x, 1, 1});
        for (const REAL x : {4.0, 3.0, 2.0})
            right.PUSH({x, 1, 1});
    }
};

std::vector<REAL> PointsOf(const TCLOUD &cloud) {
    std::vector<REAL> x;
    for (NAT i = 1; i <= cloud.GETPOINTLENGTH(); ++i)
        x.push_back(cloud.GETPOINT(i).x);
    return x;
}
} // namespace

TEST_CASE("a line runs from the far end of right through the seed to the far end of left") {
    const HALVES half;
    TCLOUD cloud;
    _VECTOR_PUSH_LINE(cloud, half.left, half.right, 17);
    CHECK(PointsOf(cloud) == std::vector<REAL>{2, 3, 4, 5, 6, 7});
    REQUIRE(cloud.GETLINELENGTH() == 1);
    CHECK(cloud.GETALLMATERIAL(1) == 17);
    CHECK(cloud.GETPOINT(1) == HYPER{2, 1, 1, 0});
}

TEST_CASE("an adaptive line marks the cell of each of its points") {
    const HALVES half;
    TCLOUD cloud;
    VISITED_MASK mask({20, 4, 4});
    const FRAME frame;
    _VECTOR_PUSH_LINE_SEEDS_ADAPTIVE(cloud, half.left, half.right, 1, frame, mask);
    CHECK(cloud.GETPOINTLENGTH() == 6);
    for (NAT x = 1; x <= 20; ++x)
        CHECK(mask.GET({x, 2, 2}) == (x >= 3 && x <= 8));
}

TEST_CASE("a snake of 1 ends each half at the first visited cell") {
    const HALVES half;
    TCLOUD cloud;
    VISITED_MASK mask({20, 4, 4});
    const FRAME frame;
    mask.PUT({4, 2, 2}); // the second point of right, seen from its far end
    mask.PUT({8, 2, 2}); // the last point of left
    _VECTOR_PUSH_LINE_SEEDS_SNAKES1_ADAPTIVE(cloud, half.left, half.right, 3, frame, mask);
    CHECK(PointsOf(cloud) == std::vector<REAL>{2, 5, 6});
    CHECK(cloud.GETLINELENGTH() == 1);
    CHECK(mask.GET({3, 2, 2})); // one voxel: set alone
    CHECK(mask.GET({6, 2, 2})); // joined with the next
}

TEST_CASE("a snake without a point makes no line") {
    const HALVES half;
    TCLOUD cloud;
    VISITED_MASK mask({20, 4, 4});
    const FRAME frame;
    mask.PUT({3, 2, 2}); // far end of right
    mask.PUT({6, 2, 2}); // the seed
    _VECTOR_PUSH_LINE_SEEDS_SNAKES1_ADAPTIVE(cloud, half.left, half.right, 3, frame, mask);
    CHECK(cloud.GETPOINTLENGTH() == 0);
    CHECK(cloud.GETLINELENGTH() == 0);
}

TEST_CASE("a snake of more ends at a visited cell in the cube around") {
    const HALVES half;
    TCLOUD cloud;
    VISITED_MASK mask({20, 8, 8});
    const FRAME frame;
    mask.PUT({9, 3, 2}); // offset <1, 1, 0> from the last voxel of left
    _VECTOR_PUSH_LINE_SEEDS_SNAKES_ADAPTIVE(cloud, half.left, half.right, 3, frame, mask, 2);
    // right walks 2, 3, 4 unhindered and marks voxels 3 and 4 (its last end stays short of 5);
    // left begins at voxel 6, which has voxel 4 at offset -2.
    CHECK(PointsOf(cloud) == std::vector<REAL>{2, 3, 4});
}

TEST_CASE("points outside the field are pushed but mark nothing") {
    HALF_LINE left, right;
    left.PUSH({1, 1, 1});
    left.PUSH({-5, 1, 1});
    TCLOUD cloud;
    VISITED_MASK mask({4, 4, 4});
    _VECTOR_PUSH_LINE_SEEDS_ADAPTIVE(cloud, left, right, 1, FRAME(), mask);
    CHECK(cloud.GETPOINTLENGTH() == 2);
    CHECK(mask.GET({2, 2, 2}));
}

TEST_CASE("a line adds 1 to every voxel it passes") {
    const HALVES half;
    T3D_SCALAR_ANALYSIS target(TAG_GRAY, 12, 4, 4);
    _VECTOR_PUSH_SCALAR(half.left, half.right, FRAME(), target);
    for (NAT x = 1; x <= 12; ++x)
        CHECK(target.GET(x, 2, 2) == (x >= 3 && x <= 8 ? 1 : 0));
    _VECTOR_PUSH_SCALAR(half.left, half.right, FRAME(), target);
    CHECK(target.GET(5, 2, 2) == 2);
}

TEST_CASE("a half with one point adds the line to the first point of the other half") {
    HALF_LINE left, right;
    left.PUSH({7, 1, 1});
    right.PUSH({4, 1, 1});
    right.PUSH({2, 1, 1});
    T3D_SCALAR_ANALYSIS target(TAG_GRAY, 12, 4, 4);
    _VECTOR_PUSH_SCALAR(left, right, FRAME(), target);
    for (NAT x = 1; x <= 12; ++x)
        CHECK(target.GET(x, 2, 2) == (x >= 3 && x <= 8 ? 1 : 0));
}

TEST_CASE("a value at the end of the voxel range stays there") {
    const HALVES half;
    T3D_SCALAR_ANALYSIS target(TAG_GRAY, 12, 4, 4);
    target.PUT(6, 2, 2, 255);
    _VECTOR_PUSH_SCALAR(half.left, half.right, FRAME(), target);
    CHECK(target.GET(6, 2, 2) == 255);
}
