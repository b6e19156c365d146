#include "foundation/base/eigen.hpp"
#include "foundation/base/geometry.hpp"
#include "foundation/base/random.hpp"
#include "foundation/base/symmatrix3.hpp"

#include <doctest/doctest.h>

using namespace morvane;
using doctest::Approx;

TEST_CASE("EIGEN of a diagonal matrix gives it back") {
    VECTOR values;
    MATRIX3 vectors;
    EIGEN({{3, -1, 2}, VZERO}, values, vectors);
    CHECK(values == VECTOR{3, -1, 2});
    CHECK(vectors == M3NORM);
}

TEST_CASE("EIGEN solves A v = lambda v with orthogonal columns") {
    RANDOM_STREAM random(1, 1);
    for (int round = 0; round < 200; ++round) {
        const auto draw = [&] { return 20 * random.FRACTION() - 10; };
        const SYMMATRIX3 matrix{{draw(), draw(), draw()}, {draw(), draw(), draw()}};
        VECTOR values;
        MATRIX3 vectors;
        EIGEN(matrix, values, vectors);
        const MATRIX3 rows = TRANSPOSE(vectors);
        for (const auto &[row, value] : {std::pair{rows[0], values.x}, std::pair{rows[1], values.y},
                                         std::pair{rows[2], values.z}}) {
            CHECK(GETLENGTH(row) == Approx(1));
            CHECK(GETLENGTH(ROTATE(row, GETMATRIX3(matrix)) - row * value) < 1e-12);
        }
        CHECK(ABS(DET(vectors)) == Approx(1));
    }
}

TEST_CASE("EIGEN of a matrix without numbers gives zeros") {
    VECTOR values{1, 2, 3};
    MATRIX3 vectors = M3NORM;
    EIGEN({VNORM, {std::nan(""), 0, 0}}, values, vectors);
    CHECK(values == VZERO);
    CHECK(vectors == M3ZERO);
}

TEST_CASE("EIGENVALUES2 sorts by absolute value and makes the first positive") {
    CHECK(EIGENVALUES2({{1, 3, 2}, VZERO}) == VECTOR{3, 2, 1});
    CHECK(EIGENVALUES2({{-1, -3, -2}, VZERO}) == VECTOR{3, 2, 1});
}

TEST_CASE("a second or third eigenvalue that is not above 0 becomes 2.225e-308") {
    CHECK(EIGENVALUES2({{-1, 3, 2}, VZERO}) == VECTOR{3, 2, 2.225e-308});
    CHECK(EIGENVALUES2({{-4, 3, -2}, VZERO}) == VECTOR{4, 2.225e-308, 2});
    CHECK(EIGENVALUES2(SM3ZERO) == VECTOR{0, 2.225e-308, 2.225e-308});
}

TEST_CASE("EIGENVECTORS2 gives the vectors as rows, sorted along with the values") {
    CHECK(EIGENVECTORS2({{1, 3, 2}, VZERO}) == GM3({0, 1, 0}, {0, 0, 1}, {1, 0, 0}));
}

TEST_CASE("EIGENVECTORS2 clears the rows of values that are not above 0") {
    CHECK(EIGENVECTORS2({{0, 3, 2}, VZERO}) == GM3({0, 1, 0}, {0, 0, 1}, VZERO));
    CHECK(EIGENVECTORS2({{-1, 3, -2}, VZERO}) == GM3({0, 1, 0}, VZERO, VZERO));
}

TEST_CASE("EIGENVECTORS2 negates the vectors when the first value is negative") {
    const MATRIX3 rows = EIGENVECTORS2({{2, -3, 1}, VZERO});
    CHECK(rows == GM3({0, -1, 0}, {-1, 0, 0}, {0, 0, -1}));
}
