#include "foundation/base/eigen.hpp"

#include "foundation/base/matrix3.hpp"

#include <cmath>

namespace morvane {
namespace {
constexpr int SWEEPS = 99;
constexpr REAL TINY = 2.225e-308; // stands for an eigenvalue that is not above 0

// The state of the cyclic Jacobi method: the upper triangle a, the accumulated rotation v, the
// diagonal d with its value b at the start of the sweep and the change z since then.
struct JACOBI {
    std::array<std::array<REAL, 3>, 3> a{}, v{};
    std::array<REAL, 3> d{}, b{}, z{};

    explicit JACOBI(const SYMMATRIX3 &m) {
        a[0][1] = m.off.x, a[0][2] = m.off.y, a[1][2] = m.off.z;
        d = b = {m.diagonal.x, m.diagonal.y, m.diagonal.z};
        for (std::size_t i = 0; i < 3; ++i)
            v[i][i] = 1;
    }

    REAL Sum() const { return std::abs(a[0][1]) + std::abs(a[0][2]) + std::abs(a[1][2]); }

    static void Turn(REAL &first, REAL &second, REAL s, REAL tau) {
        const REAL g = first, h = second;
        first = g - s * (h + g * tau);
        second = h + s * (g - h * tau);
    }

    void Rotate(std::size_t p, std::size_t q, REAL t) {
        const REAL c = 1 / std::sqrt(t * t + 1), s = t * c, tau = s / (1 + c);
        const REAL h = t * a[p][q];
        z[p] -= h, z[q] += h, d[p] -= h, d[q] += h;
        a[p][q] = 0;
        for (std::size_t j = 0; j < p; ++j)
            Turn(a[j][p], a[j][q], s, tau);
        for (std::size_t j = p + 1; j < q; ++j)
            Turn(a[p][j], a[j][q], s, tau);
        for (std::size_t j = q + 1; j < 3; ++j)
            Turn(a[p][j], a[q][j], s, tau);
        for (std::size_t j = 0; j < 3; ++j)
            Turn(v[j][p], v[j][q], s, tau);
    }

    void Pair(std::size_t p, std::size_t q, int sweep, REAL threshold) {
        const REAL g = 100 * std::abs(a[p][q]);
        if (sweep > 4 && std::abs(d[p]) + g == std::abs(d[p]) &&
            std::abs(d[q]) + g == std::abs(d[q])) {
            a[p][q] = 0;
        } else if (std::abs(a[p][q]) > threshold) {
            const REAL h = d[q] - d[p];
            REAL t = a[p][q] / h;
            if (std::abs(h) + g != std::abs(h)) {
                const REAL theta = 0.5 * h / a[p][q];
                t = 1 / (std::abs(theta) + std::sqrt(theta * theta + 1));
                if (theta < 0) t = -t;
            }
            Rotate(p, q, t);
        }
    }

    bool Solve() {
        for (int sweep = 1; sweep <= SWEEPS; ++sweep) {
            const REAL sum = Sum();
            if (sum == 0) return true;
            const REAL threshold = sweep <= 3 ? 0.2 * sum / 9 : 0;
            Pair(0, 1, sweep, threshold);
            Pair(0, 2, sweep, threshold);
            Pair(1, 2, sweep, threshold);
            for (std::size_t i = 0; i < 3; ++i) {
                b[i] += z[i];
                d[i] = b[i];
                z[i] = 0;
            }
        }
        return false;
    }
};

// The values and the vectors as rows, by decreasing absolute value.
void SortedEigen(const SYMMATRIX3 &matrix, std::array<REAL, 3> &values, MATRIX3 &rows) {
    VECTOR unsorted;
    EIGEN(matrix, unsorted, rows);
    rows = TRANSPOSE(rows);
    values = {unsorted.x, unsorted.y, unsorted.z};
    for (const std::size_t i : {std::size_t{0}, std::size_t{1}, std::size_t{0}})
        if (std::abs(values[i + 1]) > std::abs(values[i])) {
            std::swap(values[i], values[i + 1]);
            std::swap(rows[i], rows[i + 1]);
        }
}
} // namespace

void EIGEN(const SYMMATRIX3 &matrix, VECTOR &values, MATRIX3 &vectors) {
    JACOBI jacobi(matrix);
    values = VZERO;
    vectors = M3ZERO;
    if (!jacobi.Solve()) return;
    values = {jacobi.d[0], jacobi.d[1], jacobi.d[2]};
    for (std::size_t i = 0; i < 3; ++i)
        vectors[i] = {jacobi.v[i][0], jacobi.v[i][1], jacobi.v[i][2]};
}

VECTOR EIGENVALUES2(const SYMMATRIX3 &matrix) {
    std::array<REAL, 3> values{};
    MATRIX3 rows;
    SortedEigen(matrix, values, rows);
    if (values[0] < 0)
        for (REAL &value : values)
            value = -value;
    for (const std::size_t i : {std::size_t{2}, std::size_t{1}})
        if (values[i] <= 0) values[i] = TINY;
    return {values[0], values[1], values[2]};
}

MATRIX3 EIGENVECTORS2(const SYMMATRIX3 &matrix) {
    std::array<REAL, 3> values{};
    MATRIX3 rows;
    SortedEigen(matrix, values, rows);
    if (values[0] < 0) rows = -rows;
    for (const std::size_t i : {std::size_t{2}, std::size_t{1}})
        if (values[i] <= 0) rows[i] = VZERO;
    return rows;
}
} // namespace morvane
