#include "image2d/filter/groups.hpp"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// A canvas from rows of digits; '.' is 0.
TGRAY Image(const std::vector<const char *> &rows) {
    const auto width = std::string_view(rows[0]).size();
    TGRAY image(static_cast<NAT>(width), static_cast<NAT>(rows.size()));
    for (std::size_t i = 0; i < static_cast<std::size_t>(image.COUNT()); ++i) {
        const char c = rows[i / width][i % width];
        image.DATA()[i] = static_cast<BYTE>(c == '.' ? 0 : c - '0');
    }
    return image;
}
template <class PIXEL> std::vector<int> Pixels(const CANVAS<PIXEL> &canvas) {
    return {canvas.DATA(), canvas.DATA() + canvas.COUNT()};
}
std::vector<int> Pixels(const std::vector<const char *> &rows) { return Pixels(Image(rows)); }

// The definition: a flood from each pixel in scan order.
void Flood(const TGRAY &mask, TFULLGRAY &target) {
    WORD number = 0;
    for (NAT y = 1; y <= mask.HEIGHT; ++y)
        for (NAT x = 1; x <= mask.WIDTH; ++x) {
            if (mask.GET(x, y) == 0 || target.GET(x, y) != 0) continue;
            ++number;
            std::vector<COMPLEXNAT> stack = {{x, y}};
            while (!stack.empty()) {
                const COMPLEXNAT p = stack.back();
                stack.pop_back();
                if (mask.GET(p.x, p.y) == 0 || target.GET(p.x, p.y) != 0) continue;
                target.PUT(p.x, p.y, number);
                for (const COMPLEXNAT &step : {COMPLEXNAT{1, 0}, {-1, 0}, {0, 1}, {0, -1}})
                    stack.push_back({p.x + step.x, p.y + step.y});
            }
        }
}
} // namespace

TEST_CASE("groups join over edges, not over corners, and are numbered in scan order") {
    const TGRAY image = Image({"5.5..", //
                               "5.55.", //
                               "55..5"});
    TFULLGRAY groups(5, 3);
    const GROUP_RESULT result = GROUP(image, {5, 9}, {}, groups);
    CHECK(Pixels(groups) == Pixels({"1.2..", //
                                    "1.22.", //
                                    "11..3"}));
    CHECK(result.found == 3);
    CHECK(result.first == 1);
    CHECK(result.last == 3);
}

TEST_CASE("arms that meet below are one group with the number of the first") {
    const TGRAY image = Image({"1.1.1.1", //
                               "1.1.111", //
                               "111....", //
                               "..1.111", //
                               "..111.1"});
    TGRAY groups(7, 5);
    CHECK(GROUP(image, {1, 1}, {}, groups).found == 2);
    CHECK(Pixels(groups) == Pixels({"1.1.2.2", //
                                    "1.1.222", //
                                    "111....", //
                                    "..1.111", //
                                    "..111.1"}));
}

TEST_CASE("groups of other sizes get no number") {
    const TGRAY image = Image({"1.11.111"});
    TGRAY groups(8, 1);
    CHECK(GROUP(image, {1, 1}, {2, NATMAX}, groups).found == 2);
    CHECK(Pixels(groups) == Pixels({"..11.222"}));
    groups.FILL(0);
    CHECK(GROUP(image, {1, 1}, {2, 2}, groups).found == 1);
    CHECK(Pixels(groups) == Pixels({"..11...."}));
}

TEST_CASE("new groups are numbered behind the former ones and do not touch them") {
    TGRAY groups = Image({"..7...", "......"});
    const TGRAY image = Image({"111.11", "....1."});
    const GROUP_RESULT result = GROUP(image, {1, 1}, {}, groups);
    CHECK(result.first == 8);
    CHECK(result.last == 9);
    CHECK(Pixels(groups) == Pixels({"887.99", "....9."}));
}

TEST_CASE("with more groups than numbers the largest ones are kept, still in scan order") {
    // 300 single pixels, and two pairs behind them: 255 numbers.
    TGRAY image(602, 1), groups(602, 1);
    for (NAT x = 1; x <= 600; x += 2)
        image.PUT(x, 1, 1);
    image.PUT(2, 1, 1);   // 1..3
    image.PUT(600, 1, 1); // 599..600
    const GROUP_RESULT result = GROUP(image, {1, 1}, {}, groups);
    CHECK(result.found == 299);
    CHECK(result.last == 255);
    CHECK(groups.GET(1, 1) == 1);
    CHECK(groups.GET(5, 1) == 2);
    CHECK(groups.GET(2 * 255 + 1, 1) == 0);
    CHECK(groups.GET(599, 1) == 255); // larger than the 45 single pixels before it
    CHECK(groups.GET(507, 1) == 253);
    CHECK(groups.GET(509, 1) == 254);
    CHECK(groups.GET(511, 1) == 0);
}

TEST_CASE("groups equal those of a flood at every small size") {
    std::uint32_t seed = 7;
    for (NAT width = 1; width <= 20; ++width)
        for (NAT height = 1; height <= 20; ++height) {
            TGRAY image(width, height);
            for (NAT i = 0; i < image.COUNT(); ++i) {
                seed = seed * 1664525 + 1013904223;
                image.DATA()[i] = seed >> 24 < (width % 3 + 1) * 60;
            }
            TFULLGRAY fast(width, height), slow(width, height);
            GROUP(image, {1, 1}, {}, fast);
            Flood(image, slow);
            CHECK(Pixels(fast) == Pixels(slow));
        }
}

TEST_CASE("the border of a group is its count of edges to other values and to the outside") {
    const TGRAY groups = Image({"11.2", //
                                "1..."});
    const std::vector<GROUP_COUNT> counts = COUNT_GROUPS(groups);
    REQUIRE(counts.size() == 2);
    CHECK(counts[0].number == 1);
    CHECK(counts[0].count == 3);
    CHECK(counts[0].border == 8);
    CHECK(counts[1].count == 1);
    CHECK(counts[1].border == 4);
    CHECK(counts[1].FRACTION() == 4);
}

TEST_CASE("sorted groups have the largest first, and equal ones keep their order") {
    const std::vector<const char *> rows = {"1.22.3.444"};
    TGRAY groups = Image(rows);
    CHECK(SORT_GROUPS(groups, {GROUP_KEY::COUNT}) == 4);
    CHECK(Pixels(groups) == Pixels({"3.22.4.111"}));
    groups = Image(rows);
    CHECK(SORT_GROUPS(groups, {GROUP_KEY::COUNT, 0, true}) == 4);
    CHECK(Pixels(groups) == Pixels({"1.33.2.444"}));
    groups = Image(rows);
    CHECK(SORT_GROUPS(groups, {GROUP_KEY::COUNT, 0, false, 2}) == 2);
    CHECK(Pixels(groups) == Pixels({"..22...111"}));
    groups = Image(rows);
    CHECK(SORT_GROUPS(groups, {GROUP_KEY::COUNT, 0, false, 0}) == 0);
    CHECK(GETLIMITS(groups).max == 0);
}

TEST_CASE("groups are sorted by border and by border over count") {
    // 2x2: 4 pixels, border 8, fraction 2. A row of 3: border 8, fraction 8/3. One: 4, 4.
    TGRAY groups = Image({"1...22", "....22", "333..."});
    CHECK(SORT_GROUPS(groups, {GROUP_KEY::BORDER}) == 3);
    CHECK(Pixels(groups) == Pixels({"3...11", "....11", "222..."}));
    groups = Image({"2...33", "....33", "111..."});
    CHECK(SORT_GROUPS(groups, {GROUP_KEY::FRACTION}) == 3);
    CHECK(Pixels(groups) == Pixels({"1...33", "....33", "222..."}));
    groups = Image({"2...33", "....33", "111..."});
    CHECK(SORT_GROUPS(groups, {GROUP_KEY::FRACTION, 10}) == 3);
    CHECK(Pixels(groups) == Pixels({"1...33", "....33", "222..."}));
    // The logarithm to a base below 1 falls.
    CHECK(SORT_GROUPS(groups, {GROUP_KEY::FRACTION, 0.1}) == 3);
    CHECK(Pixels(groups) == Pixels({"3...11", "....11", "222..."}));
}

TEST_CASE("groups are exchanged at random, each number once") {
    TGRAY groups(9, 1);
    for (NAT x = 1; x <= 9; ++x)
        groups.PUT(x, 1, static_cast<BYTE>(x));
    RESTART_RANDOM(1);
    RANDOM_STREAM random(NEXT_RANDOM_COMMAND(), 0);
    UNSORT_GROUPS(groups, random);
    std::vector<int> pixels = Pixels(groups);
    CHECK(pixels != std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9});
    std::sort(pixels.begin(), pixels.end());
    CHECK(pixels == std::vector<int>{1, 2, 3, 4, 5, 6, 7, 8, 9});
}

TEST_CASE("canvases of two sizes and empty ones have no groups") {
    TGRAY image(3, 3), groups(3, 2), none, sorted;
    image.FILL(1);
    CHECK(GROUP(image, {1, 1}, {}, groups).found == 0);
    CHECK(GROUP(none, {1, 1}, {}, sorted).found == 0);
    CHECK(COUNT_GROUPS(none).empty());
    CHECK(SORT_GROUPS(sorted, {}) == 0);
}
