#include "orientation/scan/diagnostics_files.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "orientation/scan/diagnostics_map.hpp"
#include "orientation/scan/scan_fields.hpp"
#include "support/capture.hpp"
#include "support/temporary_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
constexpr std::string_view KINDS[] = {"pgm", "tif", "png"};
UTF16 Part(const char *file, const char *part) { return PART_NAME(file, part, KINDS); }

bool StartsWith(const TEMPORARY_FOLDER &folder, const char *file, const std::string &bytes) {
    return folder.GET(file).rfind(bytes, 0) == 0;
}
} // namespace

TEST_CASE("a part of a diagnostic goes before the extension, and pgm is added to unknown ones") {
    CHECK(Part("a/map.png", "-low") == "a/map-low.png");
    CHECK(Part("map.TIF", "-low") == "map-low.TIF");
    CHECK(Part("map", "-low") == "map-low.pgm");
    CHECK(Part("map.v2", "-low") == "map.v2-low.pgm");
    CHECK(Part("map.pgm", "") == "map.pgm");
    CHECK(Part("a.b/map", "") == "a.b/map.pgm");
}

TEST_CASE("maps are saved in the kind of their extension, with all their parts") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {15, 15, 15}, NOISE(1, 1, 255));
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    const VECTORNAT voxel{8, 8, 8};
    const auto path = [&](const char *file) { return UTF16(folder.PATH(file)); };
    CHECK(SAVE_DIFFUSION_MAP(scalar, voxel, 4, path("map.png")));
    CHECK(StartsWith(folder, "map.png", "\x89PNG"));
    CHECK(StartsWith(folder, "map-low.png", "\x89PNG"));
    CHECK(SAVE_DIFFUSION_MAP(scalar, voxel, 4, path("map.tif")));
    CHECK((StartsWith(folder, "map.tif", "II") || StartsWith(folder, "map.tif", "MM")));
    CHECK(SAVE_DIFFUSION_MAP(scalar, voxel, 4, path("map")));
    CHECK(StartsWith(folder, "map.pgm", "P5"));
    CHECK(StartsWith(folder, "map-low.pgm", "P5"));
    CHECK(SAVE_DIFFUSION_COLORMAP(scalar, voxel, 4, path("c.pgm")));
    CHECK(StartsWith(folder, "c-mean.pgm", "P5"));
    CHECK(StartsWith(folder, "c-sd.pgm", "P5"));
    CHECK(StartsWith(folder, "c.ppm", "P6"));
    CHECK(folder.GET("c-sd.pgm") == folder.GET("map.pgm"));
    CHECK_FALSE(SAVE_DIFFUSION_MAP(scalar, voxel, 4, path("lost/map.png")));
}

TEST_CASE("the counts of lowest deviations reach up to half of the smallest size") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {12, 10, 11}, [](NAT, NAT, NAT) { return 7; });
    TPOLYNAT counts;
    CAPTURE console;
    DIFFUSION_COUNTS(scalar, {5, 5, 5}, counts);
    REQUIRE(counts.LENGTH == 5);
    const NAT allPoints[] = {6, 24, 55, 102, 156}; // all lines are flat, so all tie
    for (NAT r = 1; r <= 5; ++r)
        CHECK(counts.GET(r) == allPoints[r - 1]);
    TPOLYHYPER ranges;
    DIFFUSION_RANGES(scalar, {5, 5, 5}, ranges);
    REQUIRE(ranges.LENGTH == 5);
    CHECK(ranges.GET(3) == HYPER{7, 7, 0, 0});
    CHECK(console.CONTAINS("  Calculate histogram"));
}

TEST_CASE("charts of a voxel are drawings of 640 by 480 with their captions") {
    T3D_SCALAR_ANALYSIS scalar;
    FILL_FIELD(scalar, TAG_GRAY, {15, 15, 15}, NOISE(1, 1, 255));
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    CHECK(SAVE_DIFFUSION_HISTOGRAM(scalar, {8, 8, 8}, UTF16(folder.PATH("counts.svg"))));
    const std::string counts = folder.GET("counts.svg");
    CHECK(counts.find("width=\"640\"") != std::string::npos);
    CHECK(counts.find("height=\"480\"") != std::string::npos);
    CHECK(counts.find("number of maximas") != std::string::npos);
    CHECK(counts.find("scansize") != std::string::npos);
    CHECK(SAVE_DIFFUSION_SD(scalar, {8, 8, 8}, UTF16(folder.PATH("ranges.svg"))));
    CHECK(folder.GET("ranges-mean.svg").find("minimal &amp; maximal Mean") != std::string::npos);
    CHECK(folder.GET("ranges-sd.svg").find("minimal &amp; maximal SD") != std::string::npos);
    CHECK(SAVE_DIFFUSION_HISTOGRAM(scalar, {8, 8, 8}, UTF16(folder.PATH("counts"))));
    CHECK(StartsWith(folder, "counts.svg", "<?xml"));
    CHECK_FALSE(SAVE_DIFFUSION_SD(scalar, {8, 8, 8}, UTF16(folder.PATH("lost/a.svg"))));
}
