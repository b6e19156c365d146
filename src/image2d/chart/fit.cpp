#include "image2d/chart/fit.hpp"

#include "foundation/base/safe_arithmetic.hpp"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace morvane {
namespace {
constexpr std::size_t MOST_TERMS = static_cast<std::size_t>(LARGEST_DEGREE) + 1;
// A pivot below this share of the number of points: the points do not fix the coefficient.
constexpr REAL SMALLEST_PIVOT = 1e-13;
constexpr REAL SAME_VARIANCE = 1e-4; // of it, within which the lower degree is taken

// The normal equations of a fit, the right side in the last column.
struct EQUATIONS {
    std::size_t terms;
    std::array<std::array<REAL, MOST_TERMS + 1>, MOST_TERMS> rows{};

    // Elimination: each row is divided by its pivot, the largest of the column. False when a pivot
    // is too small.
    bool Solve(REAL smallest, std::span<REAL> solution) {
        for (std::size_t i = 0; i < terms; ++i) {
            std::size_t best = i;
            for (std::size_t row = i + 1; row < terms; ++row)
                if (std::abs(rows[row][i]) > std::abs(rows[best][i])) best = row;
            std::swap(rows[i], rows[best]);
            const REAL pivot = rows[i][i];
            if (!(std::abs(pivot) > smallest)) return false;
            for (std::size_t column = i; column <= terms; ++column)
                rows[i][column] /= pivot;
            for (std::size_t row = i + 1; row < terms; ++row)
                for (std::size_t column = terms + 1; column-- > i;)
                    rows[row][column] -= rows[row][i] * rows[i][column];
        }
        for (std::size_t i = terms; i-- > 0;) {
            solution[i] = rows[i][terms];
            for (std::size_t k = i + 1; k < terms; ++k)
                solution[i] -= rows[i][k] * solution[k];
        }
        return true;
    }
};

// x is moved and scaled into -1..1 for the sums, so that high powers of large numbers do not lose
// the small ones: u = (x - middle) / half.
struct SCALING {
    REAL middle, half;
};
SCALING GetScaling(std::span<const REAL> x) {
    const auto [low, high] = std::minmax_element(x.begin(), x.end());
    const REAL half = *high / 2 - *low / 2;
    return {*low + half, half > 0 ? half : 1};
}

EQUATIONS Sums(std::span<const REAL> x, std::span<const REAL> y, std::size_t terms,
               const SCALING &scaling) {
    std::array<REAL, 2 * MOST_TERMS> powers{};
    EQUATIONS equations{terms, {}};
    for (std::size_t i = 0; i < x.size(); ++i) {
        const REAL u = (x[i] - scaling.middle) / scaling.half;
        for (std::size_t k = 0; k + 1 < 2 * terms; ++k) {
            const REAL power = k == 0 ? 1 : POWERNAT(u, static_cast<NAT>(k));
            powers[k] += power;
            if (k < terms) equations.rows[k][terms] += power * y[i];
        }
    }
    for (std::size_t row = 0; row < terms; ++row)
        for (std::size_t column = 0; column < terms; ++column)
            equations.rows[row][column] = powers[row + column];
    return equations;
}

// From a polynomial in u to one in x, by Horner's scheme: p = p * (x - middle) / half + c.
void Unscale(std::span<REAL> coefficients, const SCALING &scaling) {
    std::array<REAL, MOST_TERMS> result{};
    for (std::size_t i = coefficients.size(); i-- > 0;) {
        for (std::size_t k = coefficients.size(); k-- > 0;) {
            const REAL lower = k > 0 ? result[k - 1] : 0;
            result[k] = (lower - scaling.middle * result[k]) / scaling.half;
        }
        result[0] += coefficients[i];
    }
    std::copy_n(result.begin(), coefficients.size(), coefficients.begin());
}
} // namespace

bool POLYFIT(std::span<const REAL> x, std::span<const REAL> y, std::span<REAL> coefficients,
             NAT degree) {
    std::fill(coefficients.begin(), coefficients.end(), 0.0);
    const std::size_t terms = static_cast<std::size_t>(std::max<NAT>(degree, 0)) + 1;
    if (degree < 0 || degree > LARGEST_DEGREE || coefficients.size() != terms) return false;
    if (x.size() != y.size() || x.size() < terms) return false;
    const auto isNumber = [](REAL value) { return std::isfinite(value); };
    if (!std::all_of(x.begin(), x.end(), isNumber) || !std::all_of(y.begin(), y.end(), isNumber))
        return false;
    const SCALING scaling = GetScaling(x);
    EQUATIONS equations = Sums(x, y, terms, scaling);
    if (equations.Solve(SMALLEST_PIVOT * static_cast<REAL>(x.size()), coefficients)) {
        Unscale(coefficients, scaling);
        if (std::all_of(coefficients.begin(), coefficients.end(), isNumber)) return true;
    }
    std::fill(coefficients.begin(), coefficients.end(), 0.0);
    return false;
}

REAL TPOLYNOM::POLYNOM(REAL x) const {
    REAL sum = 0;
    for (NAT i = 1; i <= COEFFICIENTS.LENGTH; ++i)
        sum += SUBPOLY(COEFFICIENTS._GET(i), x, i - 1);
    return sum;
}

bool TPOLYNOM::MYGETPOLYNOM(const TPOLYCOMPLEX &points, NAT degree) {
    COEFFICIENTS.INIT(LIMIT(degree, NAT{0}, LARGEST_DEGREE) + 1);
    TPOLYREAL x(points.LENGTH), y(points.LENGTH);
    if (x.LENGTH != points.LENGTH || y.LENGTH != points.LENGTH) return false;
    for (NAT i = 1; i <= points.LENGTH; ++i) {
        x._PUT(i, points._GET(i).x);
        y._PUT(i, points._GET(i).y);
    }
    return POLYFIT(x.SPAN(), y.SPAN(), COEFFICIENTS.SPAN(), degree);
}

REAL TPOLYNOM2D::ERRORSUM(const TPOLYCOMPLEX &points) const {
    REAL sum = 0;
    for (const COMPLEX &point : points.SPAN())
        sum += SQR(point.y - POLYNOM(point.x));
    return sum;
}

NAT TPOLYNOM2D::FIT(const TPOLYCOMPLEX &points, NAT limit) {
    NAT best = -1;
    REAL smallest = REALMAX, spread = 0;
    for (NAT degree = 0; degree <= LIMIT(limit, NAT{0}, LARGEST_DEGREE); ++degree) {
        if (!GETPOLYNOM(points, degree)) break;
        // With as many terms as points nothing is left to judge the fit by.
        const NAT rest = points.LENGTH - degree - 1;
        if (rest < 1 && degree > 0) break;
        const REAL variance = ERRORSUM(points) / static_cast<REAL>(std::max<NAT>(rest, 1));
        if (degree == 0) spread = variance;
        // Below a rounding error's share of the spread all fits are exact.
        const REAL hair = 1e-20 * spread;
        if (best < 0 || variance + hair < smallest * (1 - SAME_VARIANCE)) {
            best = degree;
            smallest = variance;
        }
    }
    if (best >= 0) (void)GETPOLYNOM(points, best);
    return best;
}

bool TPOLYNOM4D::GETPOLYNOM(const TPOLYHYPER &points, NAT degree) {
    bool isFixed = true;
    for (NAT part = 0; part < 3; ++part) {
        TPOLYCOMPLEX list;
        list.INIT();
        for (const HYPER &point : points.SPAN())
            list.PUSH({point.x, part == 0 ? point.y : part == 1 ? point.z : point.w});
        isFixed = fits[part].MYGETPOLYNOM(list, degree) && isFixed;
    }
    return isFixed;
}

VECTOR TPOLYNOM4D::POLYNOM(REAL argument) const {
    return {fits[0].POLYNOM(argument), fits[1].POLYNOM(argument), fits[2].POLYNOM(argument)};
}
} // namespace morvane
