#include "orientation/tensor/tensor_analysis.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a new tensor field is empty, of its kind and at the origin") {
    for (const BYTE kind : {TENSOR_FLOAT, TENSOR_INTEGER}) {
        const T3D_TENSOR_ANALYSIS field(kind);
        CHECK(field.ID() == kind);
        CHECK(field.SIZEX() + field.SIZEY() + field.SIZEZ() == 0);
        CHECK(field.GETFRAME().MOVE() == VZERO);
    }
}

TEST_CASE("a tensor field of an unknown kind has no storage") {
    CHECK(T3D_TENSOR_ANALYSIS(170).ID() == 0);
    CHECK(T3D_TENSOR_ANALYSIS().ID() == 0);
}

TEST_CASE("INIT of a tensor field forgets the frame and DONE may come twice") {
    T3D_TENSOR_ANALYSIS field(TENSOR_FLOAT);
    FRAME frame;
    frame.SETMOVE({1, 2, 3});
    field.SETFRAME(frame);
    field.INIT(TENSOR_FLOAT);
    CHECK(field.GETFRAME().MOVE() == VZERO);
    field.DONE();
    field.DONE();
    CHECK(field.ID() == 0);
}
