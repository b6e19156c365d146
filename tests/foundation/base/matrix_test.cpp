#include "foundation/base/geometry.hpp"
#include "foundation/base/matrix3.hpp"
#include "foundation/base/matrix4.hpp"
#include "foundation/base/symmatrix3.hpp"

#include <type_traits>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
const MATRIX3 SAMPLE = GM3({2, 0, 1}, {0, 4, 0}, {1, 0, 1}); // determinant 4
} // namespace

TEST_CASE("ROTATE multiplies the row vector by the matrix") {
    CHECK(ROTATE({1, 2, 3}, GM3({1, 10, 100}, {2, 20, 200}, {3, 30, 300})) ==
          VECTOR{14, 140, 1400});
}

TEST_CASE("JOIN multiplies matrices") {
    CHECK(JOIN(SAMPLE, M3NORM) == SAMPLE);
    CHECK(JOIN(GM3({1, 2, 0}, {0, 1, 0}, {0, 0, 1}), GM3({1, 0, 0}, {3, 1, 0}, {0, 0, 1})) ==
          GM3({7, 2, 0}, {3, 1, 0}, {0, 0, 1}));
    const MATRIX4 move = GM4({1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {5, 6, 7, 1});
    const MATRIX4 scale = GM4({2, 0, 0, 0}, {0, 2, 0, 0}, {0, 0, 2, 0}, {0, 0, 0, 1});
    CHECK(JOIN(move, scale)[3] == HYPER{10, 12, 14, 1});
    CHECK(JOIN(scale, move)[3] == HYPER{5, 6, 7, 1});
    CHECK(TRANSFORM(move, HYPER{1, 1, 1, 1}) == HYPER{6, 7, 8, 1});
}

TEST_CASE("GETMUL multiplies the columns") {
    CHECK(GETMUL(GM3({1, 1, 1}, {1, 1, 1}, {1, 1, 1}), 2, 3, 4)[2] == VECTOR{2, 3, 4});
    CHECK(GETMUL(M4NORM, 2, 3, 4, 5)[3] == HYPER{0, 0, 0, 5});
}

TEST_CASE("the adjugate, the determinant and the inverse of a 3x3 matrix") {
    CHECK(DET(SAMPLE) == 4);
    CHECK(ADJUGATE(SAMPLE) == GM3({4, 0, -4}, {0, 1, 0}, {-4, 0, 8}));
    CHECK(INVERSE(SAMPLE) == GM3({1, 0, -1}, {0, 0.25, 0}, {-1, 0, 2}));
    CHECK(TRANSPOSE(GM3({1, 2, 3}, {4, 5, 6}, {7, 8, 9})) == GM3({1, 4, 7}, {2, 5, 8}, {3, 6, 9}));
}

TEST_CASE("the inverse of a 4x4 matrix undoes it") {
    const MATRIX4 m = GM4({2, 0, 1, 0}, {0, 4, 0, 0}, {1, 0, 1, 0}, {5, 6, 7, 1});
    CHECK(DET(m) == 4);
    CHECK(JOIN(m, INVERSE(m)) == M4NORM);
    CHECK(JOIN(ADJUGATE(m), m) == M4NORM * 4.0);
}

TEST_CASE("a zero determinant gives the zero matrix") {
    CHECK(INVERSE(GM3({1, 2, 3}, {2, 4, 6}, {0, 0, 1})) == M3ZERO);
    CHECK(INVERSE(GM4({1, 2, 3, 4}, {2, 4, 6, 8}, {0, 0, 1, 0}, {0, 0, 0, 1})) == M4ZERO);
}

TEST_CASE("a matrix is negative when the sum of its nine elements is, whatever its determinant") {
    CHECK(IFNEGATIVE(GM3({-1, 0, 0}, {0, -1, 0}, {0, 0, 1})));      // determinant 1
    CHECK_FALSE(IFNEGATIVE(GM3({-1, 0, 0}, {0, 1, 0}, {0, 0, 1}))); // determinant -1
    CHECK_FALSE(IFNEGATIVE(M3ZERO));
}

TEST_CASE("a matrix that is not exactly symmetric becomes the zero tensor") {
    CHECK(GETSYMMATRIX3(GM3({1, 4, 5}, {4, 2, 6}, {5, 6.0000001, 3})) == SM3ZERO);
}

TEST_CASE("a matrix assigned to a tensor is converted by the same rule") {
    SYMMATRIX3 tensor = SM3NORM;
    tensor = GM3({1, 4, 5}, {4, 2, 6}, {5, 6, 3});
    CHECK(tensor == SYMMATRIX3{{1, 2, 3}, {4, 5, 6}});
    tensor = GM3({1, 4, 5}, {4, 2, 6}, {5, 7, 3});
    CHECK(tensor == SM3ZERO);
    static_assert(std::is_aggregate_v<SYMMATRIX3> && std::is_trivially_copyable_v<SYMMATRIX3>);
}

TEST_CASE("a symmetric matrix and its tensor convert into each other") {
    const SYMMATRIX3 tensor{{1, 2, 3}, {4, 5, 6}};
    const MATRIX3 matrix = GM3({1, 4, 5}, {4, 2, 6}, {5, 6, 3});
    CHECK(GETSYMMATRIX3(matrix) == tensor);
    CHECK(GETMATRIX3(tensor) == matrix);
}

TEST_CASE("tensors differ when any of the six differs") {
    const SYMMATRIX3 tensor{{1, 2, 3}, {4, 5, 6}};
    CHECK(tensor != SYMMATRIX3{{1, 2, 3}, {4, 5, 7}});
    CHECK(tensor != SYMMATRIX3{{0, 2, 3}, {4, 5, 6}});
}

TEST_CASE("matrices and tensors have element by element operators") {
    CHECK((M3NORM + M3NORM)[0] == VECTOR{2, 0, 0});
    CHECK((SAMPLE * SAMPLE)[0] == VECTOR{4, 0, 1});
    CHECK((SAMPLE / 0.0) == M3ZERO);
    CHECK((SM3NORM * 3.0 - SM3NORM).diagonal == VECTOR{2, 2, 2});
    CHECK((M4NORM - M4NORM) == M4ZERO);
}

TEST_CASE("a 4x4 matrix has a 3x3 part") {
    CHECK(GETMATRIX3(GETMATRIX4(SAMPLE)) == SAMPLE);
    CHECK(GETMATRIX4(SAMPLE)[3] == HYPER{0, 0, 0, 1});
}
