#include "geometry/mapping/skeleton_trace.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "field3d/raster/frame.hpp"
#include "foundation/console/console.hpp"
#include "geometry/model/cloud.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
struct SILENCE {
    SILENCE() {
        SETSINK([](std::string_view, void *) {}, nullptr);
    }
    ~SILENCE() { SETSINK(nullptr, nullptr); }
};
} // namespace

TEST_CASE("the voxel at which a skeleton line ends adds no point") {
    SILENCE silence;
    T3D_SCALAR_ANALYSIS field(150, 5, 3, 3);
    for (NAT x = 1; x <= 4; ++x)
        field.PUT(x, 2, 2, x * 10);
    TCLOUD cloud;
    CHECK(SKELETON_TRACE(field, {1, 255}, cloud) == 1);
    REQUIRE(cloud.GETLINELENGTH() == 1);
    REQUIRE(cloud.GETALLLINEPOINTLENGTH(1) == 3);
    CHECK(cloud.GETLINE(1, 1).x == 0); // voxel 1 lies at the global origin
    CHECK(cloud.GETLINE(1, 3).x == 2);
    CHECK(cloud.GETLINE(1, 3).y == 1);
    CHECK(cloud.GETLINE(1, 3).w == 30); // t is the voxel's value
    CHECK(GETUTF8(cloud.GETNAME(1)) == "Skeleton-1");
}

TEST_CASE("a skeleton point lies in the global frame of its field") {
    SILENCE silence;
    T3D_SCALAR_ANALYSIS field(150, 3, 1, 1);
    field.PUT(1, 1, 1, 9);
    field.PUT(2, 1, 1, 9);
    FRAME frame;
    frame.SETSCALE({2, 3, 4});
    frame.SETMOVE({10, 20, 30});
    field.SETFRAME(frame);
    TCLOUD cloud;
    SKELETON_TRACE(field, {1, 255}, cloud);
    REQUIRE(cloud.GETPOINTLENGTH() == 1);
    CHECK(cloud.GETPOINT(1).x == 10);
    CHECK(cloud.GETPOINT(1).y == 20);
    CHECK(cloud.GETPOINT(1).z == 30);
}

TEST_CASE("at a branch point the line ends and one line starts for each way") {
    SILENCE silence;
    // A straight stem of x = 1..3 that forks at x = 3 into two arms of three voxels.
    T3D_SCALAR_ANALYSIS field(150, 7, 9, 1);
    for (NAT x = 1; x <= 3; ++x)
        field.PUT(x, 5, 1, 1);
    for (NAT i = 1; i <= 3; ++i) {
        field.PUT(3 + i, 5 - i, 1, 1);
        field.PUT(3 + i, 5 + i, 1, 1);
    }
    TCLOUD cloud;
    CHECK(SKELETON_TRACE(field, {1, 1}, cloud) == 1);
    REQUIRE(cloud.GETLINELENGTH() == 3);
    // The scan meets the tip of the upper arm first, as it has the smallest y.
    CHECK(cloud.GETLINE(1, 1).x == 5); // voxel (6, 2)
    CHECK(cloud.GETLINE(1, 1).y == 1);
    CHECK(cloud.GETALLLINEPOINTLENGTH(1) == 4); // x = 6, 5, 4 and the fork at 3
    CHECK(cloud.GETLINE(1, 4).x == 2);
    CHECK(cloud.GETLINE(2, 1).x == 2); // both ways start at the fork
    CHECK(cloud.GETLINE(3, 1).x == 2);
}

TEST_CASE("voxels outside the range are no skeleton, and parts are objects of their own") {
    SILENCE silence;
    T3D_SCALAR_ANALYSIS field(150, 9, 1, 1);
    for (NAT x : {1, 2, 5, 6, 8, 9})
        field.PUT(x, 1, 1, x);
    TCLOUD cloud;
    CHECK(SKELETON_TRACE(field, {1, 6}, cloud) == 2);
    CHECK(cloud.GETOBJECTLENGTH() == 2);
    CHECK(GETUTF8(cloud.GETNAME(2)) == "Skeleton-2");
}
