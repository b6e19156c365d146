#include "field3d/shape/slice.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "foundation/base/record_operators.hpp"
#include "image2d/image/image.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
constexpr SLICE_PLANE PLANES[] = {SLICE_PLANE::XY, SLICE_PLANE::XZ, SLICE_PLANE::YZ};

// Voxel (x, y, z) holds 100 x + 10 y + z.
void Fill(T3D_SCALAR_ANALYSIS &scalar, BYTE tag = TAG_FULLGRAY) {
    scalar.INIT(tag, 4, 3, 5);
    for (NAT z = 1; z <= 5; ++z)
        for (NAT y = 1; y <= 3; ++y)
            for (NAT x = 1; x <= 4; ++x)
                scalar.PUT(x, y, z, 100 * x + 10 * y + z);
}
} // namespace

TEST_CASE("a slice goes to an image with the first axis of its name to the right") {
    T3D_SCALAR_ANALYSIS scalar;
    TIMAGE image(IMAGE_RGB);
    Fill(scalar);
    GETSLICE(scalar, SLICE_PLANE::XY, 2, image);
    CHECK(image.ID() == IMAGE_FULLGRAY);
    CHECK(image.SIZE() == COMPLEXNAT{4, 3});
    CHECK(image.GET(4, 3) == 432);
    GETSLICE(scalar, SLICE_PLANE::XZ, -1, image); // the last one
    CHECK(image.SIZE() == COMPLEXNAT{4, 5});
    CHECK(image.GET(2, 5) == 235);
    GETSLICE(scalar, SLICE_PLANE::YZ, 0, image); // the middle: round(1.5) + 1 = 3
    CHECK(image.SIZE() == COMPLEXNAT{3, 5});
    CHECK(image.GET(2, 5) == 325);
}

TEST_CASE("a field of 8 bits or 1 gives an image of 8 bits, and the image keeps its settings") {
    T3D_SCALAR_ANALYSIS scalar;
    TIMAGE image(IMAGE_FULLGRAY);
    image.subMethod = 5;
    scalar.INIT(TAG_GRAY, 3, 2, 1);
    scalar.PUT(2, 2, 1, 200);
    GETSLICE(scalar, SLICE_PLANE::XY, 1, image);
    CHECK(image.ID() == IMAGE_GRAY);
    CHECK(image.GET(2, 2) == 200);
    scalar.INIT(TAG_MONO, 3, 2, 1);
    scalar.PUT(2, 2, 1, 1);
    GETSLICE(scalar, SLICE_PLANE::XY, 1, image);
    CHECK(image.ID() == IMAGE_GRAY);
    CHECK(image.GET(2, 2) == 1);
    CHECK(image.GET(1, 1) == 0);
    CHECK(image.subMethod == 5);
}

TEST_CASE("a pixel of a slice lies where its voxel lies") {
    T3D_SCALAR_ANALYSIS scalar;
    TIMAGE image(IMAGE_GRAY);
    Fill(scalar);
    FRAME frame;
    frame.SETMATRIX({{{{0, 2, 0}, {-3, 0, 0}, {1, 1, 4}}}});
    frame.SETMOVE({10, 20, 30});
    scalar.SETFRAME(frame);
    for (const SLICE_PLANE plane : PLANES)
        for (NAT slice = 1; slice <= 3; ++slice) {
            GETSLICE(scalar, plane, static_cast<REAL>(slice), image);
            const VECTORNAT voxel = SLICE_POINT(plane, 3, 2, slice);
            CHECK(image.GETFRAME().L2G({3, 2, 1}) == frame.L2G(TO_REAL(voxel)));
            CHECK(image.GET(3, 2) == scalar.GET(voxel));
        }
}

TEST_CASE("a slice put back leaves the field as it was, and goes to another slice unchanged") {
    for (const BYTE tag : {TAG_MONO, TAG_GRAY, TAG_FULLGRAY})
        for (const SLICE_PLANE plane : PLANES) {
            T3D_SCALAR_ANALYSIS scalar, before;
            TIMAGE image(IMAGE_GRAY);
            Fill(scalar, tag);
            if (tag == TAG_MONO) scalar.PUT(2, 2, 2, 0);
            before.CLONE(&scalar);
            CAPTURE console;
            GETSLICE(scalar, plane, 2, image);
            PUTSLICE(scalar, plane, 2, image);
            CHECK(console.TEXT().empty());
            PUTSLICE(scalar, plane, 3, image);
            for (NAT z = 1; z <= 5; ++z)
                for (NAT y = 1; y <= 3; ++y)
                    for (NAT x = 1; x <= 4; ++x) {
                        VECTORNAT from{x, y, z};
                        NAT &across = plane == SLICE_PLANE::XY   ? from.z
                                      : plane == SLICE_PLANE::XZ ? from.y
                                                                 : from.x;
                        if (across == 3) across = 2;
                        CHECK(scalar.GET(x, y, z) == before.GET(from));
                    }
        }
}

TEST_CASE("an image of another size is told; its pixels go where there are voxels") {
    T3D_SCALAR_ANALYSIS scalar;
    Fill(scalar, TAG_GRAY);
    TIMAGE image(IMAGE_FULLGRAY, 2, 9);
    image.PUT(2, 3, 300);
    image.PUT(2, 4, 7);
    CAPTURE console;
    PUTSLICE(scalar, SLICE_PLANE::XY, 1, image);
    CHECK(console.TEXT() == "Attention, image (2x9) and slice (4x3) differ!\n");
    CHECK(scalar.GET(2, 3, 1) == 255); // limited
    CHECK(scalar.GET(1, 1, 1) == 0);
    CHECK(scalar.GET(3, 1, 1) == 255); // 311 before, no pixel there
}

TEST_CASE("slices of an empty field or image are told") {
    T3D_SCALAR_ANALYSIS scalar(TAG_GRAY), full;
    TIMAGE image(IMAGE_GRAY, 2, 2), none(IMAGE_GRAY);
    Fill(full);
    CAPTURE console;
    GETSLICE(scalar, SLICE_PLANE::XY, 1, image);
    CHECK(image.SIZE() == COMPLEXNAT{2, 2});
    PUTSLICE(scalar, SLICE_PLANE::XY, 1, image);
    CHECK(console.TEXT() == "Error! Empty scalarfield!\nError! Empty scalarfield!\n");
    console.CLEAR();
    PUTSLICE(full, SLICE_PLANE::XY, 1, none);
    CHECK(console.TEXT() == "Error! Empty imagefield!\n");
}
