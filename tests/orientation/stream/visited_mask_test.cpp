#include "orientation/stream/visited_mask.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("the cube of visited cells reaches from -k-1 to k-1, wider on the negative side") {
    VISITED_MASK mask({20, 20, 20});
    mask.PUT({10, 10, 10});
    CHECK(mask.ANYNEAR({13, 10, 10}, 2)); // offset -3
    CHECK_FALSE(mask.ANYNEAR({14, 10, 10}, 2));
    CHECK(mask.ANYNEAR({9, 10, 10}, 2)); // offset +1
    CHECK_FALSE(mask.ANYNEAR({8, 10, 10}, 2));
    CHECK(mask.ANYNEAR({13, 13, 13}, 2));
    CHECK_FALSE(mask.ANYNEAR({13, 13, 8}, 2));
}

TEST_CASE("a cube beyond any number looks at the cells of the field only") {
    VISITED_MASK mask({4, 4, 4});
    CHECK_FALSE(mask.ANYNEAR({2, 2, 2}, NATMAX));
    mask.PUT({1, 1, 1});
    CHECK(mask.ANYNEAR({4, 4, 4}, NATMAX));
    CHECK(mask.ANYNEAR({NATMAX, 1, 1}, NATMAX));
}

TEST_CASE("cells outside the field are never set") {
    VISITED_MASK mask({4, 4, 4});
    mask.PUT({0, 1, 1});
    mask.PUT({5, 1, 1});
    CHECK_FALSE(mask.GET({0, 1, 1}));
    CHECK_FALSE(mask.ANYNEAR({2, 2, 2}, 3));
}

TEST_CASE("a line of cells is that of the work mask, also from outside") {
    VISITED_MASK mask({6, 4, 4});
    TSPACEBOOL plain(6, 4, 4);
    const VECTORNAT from{-1, 2, 2}, to{8, 4, 3};
    mask.LINE(from, to);
    plain.LINE(from, to, true);
    for (NAT z = 1; z <= 4; ++z)
        for (NAT y = 1; y <= 4; ++y)
            for (NAT x = 1; x <= 6; ++x)
                CHECK(mask.GET({x, y, z}) == plain.GET(x, y, z));
    CHECK(mask.ANYNEAR({3, 3, 2}, 1));
}

TEST_CASE("a step longer than the field marks its start only") {
    VISITED_MASK mask({4, 4, 4});
    mask.LINE({1, 1, 1}, {1000000000000000000, 1, 1});
    CHECK(mask.GET({1, 1, 1}));
    CHECK_FALSE(mask.GET({3, 1, 1}));
}
