#include "orientation/vector/vector_slice.hpp"

#include "image2d/image/image.hpp"
#include "orientation/vector/vector_analysis.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a slice of vectors becomes colours, rounded and limited, and goes back") {
    for (const BYTE tag : {VECTOR_FLOAT, VECTOR_INTEGER, VECTOR_24BIT}) {
        T3D_VECTOR_ANALYSIS field(tag, 3, 2, 4);
        field.PUT(2, 1, 3, VECTOR{10, 20, 30});
        field.PUT(3, 1, 3, VECTOR{-5, 300, 1.6});
        TIMAGE image(IMAGE_FULLGRAY);
        CAPTURE console;
        GETSLICE(field, SLICE_PLANE::XZ, 1, image);
        CHECK(image.ID() == IMAGE_RGB);
        CHECK(image.SIZE() == COMPLEXNAT{3, 4});
        CHECK(image.GETRGB(2, 3) == VECTORNAT{10, 20, 30});
        CHECK(image.GETRGB(3, 3) == VECTORNAT{0, 255, 2});
        PUTSLICE(field, SLICE_PLANE::XZ, 2, image);
        CHECK(field.GET(2, 2, 3) == VECTOR{10, 20, 30});
        CHECK(field.GET(3, 2, 3) == VECTOR{0, 255, 2});
        CHECK(field.GET(2, 1, 3) == VECTOR{10, 20, 30});
        CHECK(console.TEXT().empty());
    }
}

TEST_CASE("a grey image gives a slice of vectors its value three times") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT, 2, 2, 2);
    TIMAGE image(IMAGE_FULLGRAY, 2, 2);
    image.PUT(1, 2, 1000);
    PUTSLICE(field, SLICE_PLANE::YZ, 2, image);
    CHECK(field.GET(2, 1, 2) == VECTOR{1000, 1000, 1000});
}

TEST_CASE("slices of an empty vector field are told") {
    T3D_VECTOR_ANALYSIS field(VECTOR_FLOAT);
    TIMAGE image(IMAGE_GRAY, 2, 2);
    CAPTURE console;
    GETSLICE(field, SLICE_PLANE::XY, 1, image);
    PUTSLICE(field, SLICE_PLANE::XY, 1, image);
    CHECK(console.TEXT() == "Error! Empty vectorfield!\nError! Empty vectorfield!\n");
    CHECK(image.SIZE() == COMPLEXNAT{2, 2});
}
