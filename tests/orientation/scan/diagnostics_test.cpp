#include "orientation/scan/diagnostics.hpp"

#include "foundation/base/record_operators.hpp"
#include "orientation/scan/scan_fields.hpp"
#include "support/capture.hpp"
#include "support/temporary_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("a diagnostic works at the middle of the volume unless a point above 0 is given") {
    T3D_SCALAR_ANALYSIS scalar(TAG_GRAY, 9, 8, 7);
    CAPTURE console;
    CHECK(SCAN_POINT(scalar, "Diffusion dump at: ", nullptr, nullptr) == VECTORNAT{4, 4, 3});
    CHECK(console.TEXT() == "Diffusion dump at: <4, 4, 3>\n");
    const VECTORNAT point{2, 3, 5}, outside{2, 0, 5}, offset{1, -1, 0};
    CHECK(SCAN_POINT(scalar, "", &point, nullptr) == point);
    CHECK(SCAN_POINT(scalar, "", &outside, nullptr) == VECTORNAT{4, 4, 3});
    console.CLEAR();
    CHECK(SCAN_POINT(scalar, "Diffusion dump at: ", &point, &offset) == VECTORNAT{3, 2, 5});
    CHECK(console.TEXT() == "Diffusion dump at: <2, 3, 5> + <1, -1, 0>\n");
}

TEST_CASE("the count of lowest deviations is that of all polar points in a flat volume") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {11, 11, 11}, [](NAT, NAT, NAT) { return 7; });
    CHECK(DIFFUSION(scalar, 6, 6, 6, 2) == 24);
    CHECK(DIFFUSION(scalar, 6, 6, 6, 3) == 55);
}

TEST_CASE("the count of lowest deviations is 0 with fewer than three lines") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {11, 11, 11},
               [](NAT x, NAT y, NAT z) { return x == 6 && y == 6 && z == 6 ? 7 : 0; });
    CHECK(DIFFUSION(scalar, 6, 6, 6, 3) == 0);
}

TEST_CASE("of lines along a gradient only those across it have the lowest deviation") {
    // Radius 1: two lines of (0,1,0) and (0,0,-1), the latter three times, keep x.
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {5, 5, 5}, [](NAT x, NAT, NAT) { return 10 * x; });
    CHECK(DIFFUSION(scalar, 3, 3, 3, 1) == 4);
}

TEST_CASE("the range of means and deviations stands at the position of the radius") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {11, 11, 11}, [](NAT, NAT, NAT) { return 7; });
    TPOLYHYPER stats;
    DIFFUSION(scalar, 6, 6, 6, 3, stats);
    REQUIRE(stats.LENGTH == 3);
    CHECK(stats.GET(3) == HYPER{7, 7, 0, 0});
    DIFFUSION(scalar, 6, 6, 6, 1, stats);
    CHECK(stats.LENGTH == 3);
    CHECK(stats.GET(1) == HYPER{7, 7, 0, 0});
}

TEST_CASE("the range of means keeps the zeros of a line") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {11, 11, 11}, [](NAT x, NAT, NAT) { return x == 6 ? 9 : 0; });
    TPOLYHYPER stats;
    DIFFUSION(scalar, 6, 6, 6, 3, stats);
    CHECK(stats.GET(3).x > 0);
    CHECK(stats.GET(3).x < 9);  // a line through the plane
    CHECK(stats.GET(3).y == 9); // a line in it
    CHECK(stats.GET(3).z == 0);
    CHECK(stats.GET(3).w > 0);
}

TEST_CASE("the dump has a line for each polar point and an empty one behind each ring") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {5, 5, 5}, [](NAT, NAT, NAT) { return 7; });
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    REQUIRE(DIFFUSION_DUMP(scalar, 3, 3, 3, 1, UTF16(folder.PATH("dump.txt"))));
    std::istringstream text(folder.GET("dump.txt"));
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    REQUIRE(lines.size() == 12); // rings of 0, 3 and 3 points, and the three best
    CHECK(lines[0].empty());
    CHECK(lines[1].rfind("1 u:1 v:0 x:", 0) == 0);
    CHECK(lines[1].find(" len:3 mean:7 SD:0 7 7 7") != std::string::npos);
    CHECK(lines[3].rfind("3 u:1 v:2 x:", 0) == 0);
    CHECK(lines[4].empty());
    CHECK(lines[7].rfind("6 u:2 v:2 x:", 0) == 0);
    CHECK(lines[8].empty());
    CHECK(lines[9].rfind(" Min SD pos: <", 0) == 0);
    CHECK(lines[9].find(" (SD:0)") != std::string::npos);
    CHECK(lines[10].rfind(" 2. SD pos: <", 0) == 0);
    CHECK(lines[11].rfind(" 3. SD pos: <", 0) == 0);
}

TEST_CASE("short and empty lines of the dump are marked") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {11, 11, 11},
               [](NAT x, NAT y, NAT z) { return x == 6 && y == 6 && z == 6 ? 7 : 0; });
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    REQUIRE(DIFFUSION_DUMP(scalar, 6, 6, 6, 3, UTF16(folder.PATH("short.txt"))));
    const std::string text = folder.GET("short.txt");
    CHECK(text.find("<r u:1 v:0 x:") != std::string::npos);
    CHECK(text.find("\n1 u:") == std::string::npos);
    CHECK(text.find(" SD pos: ") == std::string::npos);
    REQUIRE(DIFFUSION_DUMP(scalar, 2, 2, 2, 1, UTF16(folder.PATH("empty.txt"))));
    CHECK(folder.GET("empty.txt").find(" len:0\n") != std::string::npos);
}

TEST_CASE("a dump that cannot be written is told and gives false") {
    T3D_SCALAR_ANALYSIS scalar(TAG_GRAY, 5, 5, 5);
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    CHECK_FALSE(DIFFUSION_DUMP(scalar, 3, 3, 3, 1, UTF16(folder.PATH("missing/dump.txt"))));
    CHECK_FALSE(console.TEXT().empty());
}
