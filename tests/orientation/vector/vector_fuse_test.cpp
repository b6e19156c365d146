#include "orientation/vector/vector_fuse.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "image2d/image/image.hpp"
#include "orientation/vector/vector_analysis.hpp"
#include "support/capture.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a fused image has the colour of the slice with the largest value, of equals the first") {
    T3D_VECTOR_ANALYSIS stack(VECTOR_FLOAT, 2, 2, 3);
    for (NAT z = 1; z <= 3; ++z)
        for (NAT y = 1; y <= 2; ++y)
            for (NAT x = 1; x <= 2; ++x)
                stack.PUT(x, y, z, VECTORNAT{z * 10, x, y});
    T3D_SCALAR_ANALYSIS rating(TAG_FULLGRAY, 2, 2, 3);
    rating.PUT(1, 1, 3, 300);
    rating.PUT(1, 1, 2, 299);
    rating.PUT(2, 1, 2, 7);
    rating.PUT(2, 1, 3, 7);
    TIMAGE image(IMAGE_GRAY, 9, 9);
    CAPTURE console;
    FUSE(stack, rating, image);
    CHECK(image.ID() == IMAGE_RGB);
    CHECK(image.SIZE() == COMPLEXNAT{2, 2});
    CHECK(image.GETRGB(1, 1) == VECTORNAT{30, 1, 1});
    CHECK(image.GETRGB(2, 1) == VECTORNAT{20, 2, 1});
    CHECK(image.GETRGB(1, 2) == VECTORNAT{10, 1, 2});
    CHECK(console.TEXT().empty());
}
