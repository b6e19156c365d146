#include "image2d/chart/fit.hpp"

#include <cmath>
#include <limits>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
REAL Value(const std::vector<REAL> &coefficients, REAL x) {
    REAL sum = 0;
    for (std::size_t i = coefficients.size(); i-- > 0;)
        sum = sum * x + coefficients[i];
    return sum;
}

struct RESULT {
    bool isFixed;
    std::vector<REAL> coefficients;
};
RESULT Fit(const std::vector<REAL> &x, const std::vector<REAL> &y, NAT degree) {
    RESULT result{false, std::vector<REAL>(static_cast<std::size_t>(degree) + 1, 7)};
    result.isFixed = POLYFIT(x, y, result.coefficients, degree);
    return result;
}

TPOLYCOMPLEX Points(const std::vector<COMPLEX> &list) {
    TPOLYCOMPLEX points;
    points.INIT();
    for (const COMPLEX &point : list)
        points.PUSH(point);
    return points;
}
} // namespace

TEST_CASE("a fit finds the polynomial that the points lie on, of every degree") {
    const std::vector<REAL> all{3, -2, 0.5, 1, -0.25, 0.125, 2};
    for (NAT degree = 0; degree <= 6; ++degree) {
        const std::vector<REAL> polynomial(all.begin(), all.begin() + degree + 1);
        std::vector<REAL> x, y;
        for (NAT i = 0; i <= degree; ++i) { // as many points as coefficients
            x.push_back(static_cast<REAL>(i) - 2);
            y.push_back(Value(polynomial, x.back()));
        }
        const RESULT result = Fit(x, y, degree);
        REQUIRE(result.isFixed);
        for (std::size_t i = 0; i < polynomial.size(); ++i)
            CHECK(result.coefficients[i] == doctest::Approx(polynomial[i]).epsilon(1e-9));
    }
}

TEST_CASE("a fit is the polynomial with the least squares") {
    // y = a + b x through (0,0), (1,0), (2,3): b = 1.5, a = -0.5.
    const RESULT line = Fit({0, 1, 2}, {0, 0, 3}, 1);
    CHECK(line.coefficients[0] == doctest::Approx(-0.5));
    CHECK(line.coefficients[1] == doctest::Approx(1.5));
    CHECK(Fit({5, 9, 11}, {1, 2, 6}, 0).coefficients[0] == doctest::Approx(3)); // the mean
}

TEST_CASE("a fit keeps its digits over grey values and far from zero") {
    const std::vector<REAL> polynomial{100, -3, 0.02, 1e-5};
    std::vector<REAL> x, y, far, farY;
    for (NAT i = 0; i < 65536; i += 16) {
        x.push_back(static_cast<REAL>(i));
        y.push_back(Value(polynomial, x.back()));
        far.push_back(1e6 + static_cast<REAL>(i) / 65536);
        farY.push_back(2 * far.back() + 1);
    }
    const RESULT result = Fit(x, y, 3);
    // The largest value, 2.8e9, carries an error of some 1e-16 of it for each of the four terms.
    for (const REAL place : {0.0, 1000.0, 65520.0})
        CHECK(std::abs(Value(result.coefficients, place) - Value(polynomial, place)) < 1e-5);
    const RESULT line = Fit(far, farY, 1);
    CHECK(line.coefficients[1] == doctest::Approx(2).epsilon(1e-6));
}

TEST_CASE("points that do not fix the polynomial give zeros") {
    constexpr REAL NAN_ = std::numeric_limits<REAL>::quiet_NaN();
    const std::vector<RESULT> results{
        Fit({}, {}, 0),                            // no point
        Fit({1, 2}, {1, 2}, 2),                    // fewer points than coefficients
        Fit({4, 4, 4, 4}, {1, 2, 3, 4}, 1),        // one x
        Fit({1, 1, 2, 2}, {1, 2, 3, 4}, 2),        // two x for three coefficients
        Fit({1, 2, 3}, {1, NAN_, 3}, 1),           // no number
        Fit({1, 2, REALMAX}, {1, 2, 3}, 1),        // infinite
        Fit({1, 2, 3}, {1, 2}, 1),                 // lists of different lengths
        Fit({0, 1e-300, 2e-300}, {0, 1e10, 5}, 2), // coefficients beyond all numbers
    };
    for (std::size_t i = 0; i < results.size(); ++i) {
        CAPTURE(i);
        CHECK_FALSE(results[i].isFixed);
        for (const REAL coefficient : results[i].coefficients)
            CHECK(coefficient == 0);
    }
    std::vector<REAL> wrongSize(2, 7);
    CHECK_FALSE(POLYFIT(std::vector<REAL>{1, 2, 3}, std::vector<REAL>{1, 2, 3}, wrongSize, 2));
    CHECK(wrongSize == std::vector<REAL>{0, 0});
    std::vector<REAL> none;
    CHECK_FALSE(POLYFIT(std::vector<REAL>{1}, std::vector<REAL>{1}, none, -1));
}

TEST_CASE("a high degree is refused rather than answered with noise") {
    std::vector<REAL> x, y;
    for (NAT i = 0; i < 100; ++i) {
        x.push_back(static_cast<REAL>(i));
        y.push_back(std::sin(static_cast<REAL>(i) / 10));
    }
    for (NAT degree = 0; degree <= LARGEST_DEGREE; ++degree) {
        const RESULT result = Fit(x, y, degree);
        for (const REAL coefficient : result.coefficients) {
            CHECK(std::isfinite(coefficient));
            if (!result.isFixed) CHECK(coefficient == 0);
        }
        if (degree <= 10) CHECK(result.isFixed);
    }
    CHECK_FALSE(Fit(x, y, LARGEST_DEGREE + 1).isFixed);
}

TEST_CASE("TPOLYNOM holds the coefficients of its points' polynomial") {
    TPOLYNOM polynomial;
    CHECK(polynomial.POLYNOM(5) == 0);
    CHECK(polynomial.DEGREE() == -1);
    REQUIRE(polynomial.MYGETPOLYNOM(Points({{-1, 6}, {0, 3}, {1, 2}, {2, 3}}), 2)); // (x-1)^2 + 2
    CHECK(polynomial.DEGREE() == 2);
    CHECK(polynomial.POLYNOM(0) == doctest::Approx(3));
    CHECK(polynomial.POLYNOM(4) == doctest::Approx(11));
    CHECK_FALSE(polynomial.MYGETPOLYNOM(Points({{1, 1}}), 2));
    CHECK(polynomial.POLYNOM(4) == 0);
}

TEST_CASE("TPOLYNOM2D tells how far its points lie off and chooses a degree") {
    TPOLYNOM2D fit;
    CHECK(fit.FIT(Points({})) == -1);
    REQUIRE(fit.GETPOLYNOM(Points({{0, 1}, {1, 3}, {2, 2}}), 0)); // the mean is 2
    CHECK(fit.ERRORSUM(Points({{0, 1}, {1, 3}, {2, 2}})) == doctest::Approx(2));
    std::vector<COMPLEX> cubic, straight, noisy;
    for (NAT i = -10; i <= 10; ++i) {
        const REAL x = static_cast<REAL>(i);
        cubic.push_back({x, x * x * x - 5 * x});
        straight.push_back({x, 2 * x - 1});
        noisy.push_back({x, x * x + (i % 2 == 0 ? 0.5 : -0.5)});
    }
    CHECK(fit.FIT(Points(cubic)) == 3);
    CHECK(fit.POLYNOM(3) == doctest::Approx(12));
    CHECK(fit.FIT(Points(straight)) == 1);
    CHECK(fit.FIT(Points(noisy), 3) == 2);
    CHECK(fit.FIT(Points(cubic), 1) == 1); // the limit
    CHECK(fit.FIT(Points({{3, 4}})) == 0);
    CHECK(fit.POLYNOM(9) == doctest::Approx(4));
}

TEST_CASE("TPOLYNOM4D follows a path in space") {
    TPOLYHYPER points;
    points.INIT();
    for (NAT i = 0; i <= 5; ++i) {
        const REAL t = static_cast<REAL>(i);
        points.PUSH({t, 1 + t, t * t, 4 - t * t});
    }
    TPOLYNOM4D path;
    REQUIRE(path.GETPOLYNOM(points, 2));
    const VECTOR place = path.POLYNOM(2.5);
    CHECK(place.x == doctest::Approx(3.5));
    CHECK(place.y == doctest::Approx(6.25));
    CHECK(place.z == doctest::Approx(-2.25));
    points.NEWLENGTH(2);
    CHECK_FALSE(path.GETPOLYNOM(points, 2));
    CHECK(path.POLYNOM(1) == VZERO);
}
