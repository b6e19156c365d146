#include "orientation/scan/scan_line.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "orientation/scan/hemisphere.hpp"
#include "orientation/scan/scan_fields.hpp"

#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// A row of voxels along x.
std::vector<NAT> Line(const std::vector<NAT> &row, NAT from, NAT to, BYTE tag = TAG_GRAY) {
    T3D_SCALAR_ANALYSIS field(tag, static_cast<NAT>(row.size()), 1, 1);
    for (std::size_t i = 0; i < row.size(); ++i)
        field.PUT(static_cast<NAT>(i) + 1, 1, 1, row[i]);
    TPOLYNAT line;
    GETLINE_W0(field, from, 1, 1, to, 1, 1, line);
    return {line.SPAN().begin(), line.SPAN().end()};
}
using LIST = std::vector<NAT>;
} // namespace

TEST_CASE("a step is 65535 and not 65536 parts of the way, so a walk stops slightly short of its "
          "far end") {
    // From 2 to 6: positions 2, 2.99998, 3.99997, 4.99995, 5.99994.
    CHECK(Line({10, 20, 30, 40, 50, 60, 70}, 2, 6) == LIST{20, 20, 30, 40, 50});
    // From 6 to 2: 6, 5.00002, 4.00003, 3.00005, 2.00006.
    CHECK(Line({10, 20, 30, 40, 50, 60, 70}, 6, 2) == LIST{60, 50, 40, 30, 20});
}

TEST_CASE("a line whose first end is not zero stops at its first zero") {
    CHECK(Line({10, 20, 30, 0, 50, 60, 70}, 2, 6) == LIST{20, 20, 30});
}

TEST_CASE("a line whose first end is zero is walked from the second one") {
    CHECK(Line({10, 0, 30, 40, 50, 60, 70}, 2, 6) == LIST{60, 50, 40, 30});
    CHECK(Line({10, 0, 30, 0, 50, 60, 70}, 2, 6) == LIST{60, 50});
}

TEST_CASE("a line with zero at both ends gives the first run between them") {
    CHECK(Line({10, 0, 30, 40, 50, 0, 70}, 2, 6) == LIST{30, 40, 50});
    CHECK(Line({10, 0, 30, 0, 50, 0, 70}, 2, 6) == LIST{30});
    CHECK(Line({10, 0, 0, 0, 0, 0, 70}, 2, 6).empty());
}

TEST_CASE("outside the field a line reads 0 whatever the background is") {
    T3D_SCALAR_ANALYSIS field(TAG_GRAY, 4, 1, 1);
    for (NAT x = 1; x <= 4; ++x)
        field.PUT(x, 1, 1, 10 * x);
    field.PUTBACKGROUND(7);
    TPOLYNAT line;
    GETLINE_W0(field, -2, 1, 1, 6, 1, 1, line);
    CHECK(LIST(line.SPAN().begin(), line.SPAN().end()) == LIST{10, 20, 30, 40});
}

TEST_CASE("16-bit values come whole and a line without length is empty") {
    CHECK(Line({1000, 65535, 3}, 1, 3, TAG_FULLGRAY) == LIST{1000, 1000, 65535});
    CHECK(Line({1000, 65535, 3}, 2, 2, TAG_FULLGRAY).empty());
}

TEST_CASE("a 1-bit field and a field without storage give an empty line") {
    CHECK(Line({1, 1, 1, 1}, 1, 4, TAG_MONO).empty());
    T3D_SCALAR_ANALYSIS nothing;
    TPOLYNAT line;
    line.PUSH(3);
    GETLINE_W0(nothing, 1, 1, 1, 4, 4, 4, line);
    CHECK(line.LENGTH == 0);
}

TEST_CASE("a skew line rounds its length and its steps") {
    // From (1,1,1) to (4,3,1): length 3.606, so 4 steps of 49151 and 32768 parts.
    const LINE_WALK walk = GETWALK({1, 1, 1}, {4, 3, 1});
    CHECK(walk.steps == 4);
    CHECK(walk.step.x == 49151);
    CHECK(walk.step.y == 32768); // 32767.5, ties to even
    CHECK(walk.step.z == 0);
}

TEST_CASE("across a thin line of grey on black the scan lines are too short") {
    T3D_SCALAR_ANALYSIS field;
    FILL_FIELD(field, TAG_GRAY, {21, 21, 21},
               [](NAT, NAT y, NAT z) { return y == 11 && z == 11 ? 200 : 0; });
    TPOLYVECTORNAT points;
    TPOLYVECTOR vectors;
    _GETHEMISPHERE(points, vectors, 8);
    TPOLYNAT line;
    NAT longEnough = 0;
    for (const VECTORNAT &d : points.SPAN()) {
        GETLINE_W0(field, 11 + d.x, 11 + d.y, 11 + d.z, 11 - d.x, 11 - d.y, 11 - d.z, line);
        if (line.LENGTH < 8) continue;
        ++longEnough;
        CHECK(std::abs(d.y) <= 2);
        CHECK(std::abs(d.z) <= 2);
    }
    CHECK(longEnough >= 1);
    CHECK(longEnough < 20);
}
