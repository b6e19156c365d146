#include "generated_files.hpp"
#include "geometry/format/line_formats_table.hpp"
#include "image2d/format/formats_table.hpp"
#include "orientation/vector/vector_formats_table.hpp"

#include <sstream>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// The lines of the page's part below a heading.
std::vector<std::string> PART(const std::string &heading) {
    static const std::string page = FORMATS_PAGE(REFERENCE{});
    std::vector<std::string> lines;
    bool isInside = false;
    std::istringstream stream(page);
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with("## ")) isInside = line == "## " + heading;
        if (isInside) lines.push_back(line);
    }
    return lines;
}

// How many rows of a part have this extension, and the last of them.
struct FOUND_ROW {
    int count = 0;
    std::string text;
};
FOUND_ROW ROW_WITH(const std::string &heading, std::string_view extension) {
    FOUND_ROW found;
    for (const std::string &line : PART(heading)) {
        if (!line.starts_with("| ")) continue;
        const std::string cell = line.substr(0, line.find(" | "));
        if (cell.find("`." + std::string(extension) + "`") == std::string::npos) continue;
        ++found.count;
        found.text = line;
    }
    return found;
}
} // namespace

TEST_CASE("every format stands once on the page of formats") {
    for (const RASTER_FORMAT &format : RASTER_FORMATS()) {
        INFO(std::string(format.extension));
        CHECK(ROW_WITH("Images", format.extension).count == 1);
        CHECK(ROW_WITH("Images", std::string(format.extension) + ".gz").count == format.zipped);
    }
    for (const VECTOR_FORMAT &format : VECTOR_FORMATS)
        CHECK(ROW_WITH("Vector fields", format.extension).count == 1);
    for (const LINE_FORMAT &format : LINE_FORMATS())
        CHECK(ROW_WITH("Lines", format.extension).count == 1);
}

TEST_CASE("the page of formats tells what is read and what is written") {
    CHECK(ROW_WITH("Images", "png").text.find("| no | 8, 16, 24, 32, 40 |") != std::string::npos);
    CHECK(ROW_WITH("Images", "pgm").text.find("| 8, 16, 24, 32 | 8, 16, 24 |") !=
          std::string::npos);
    CHECK(ROW_WITH("Images", "imgf").text.find("| 8, 16 | no |") != std::string::npos);
    CHECK(ROW_WITH("Vector fields", "img").text.ends_with("| yes | no |"));
    CHECK(ROW_WITH("Vector fields", "fld").text.ends_with("| no | yes |"));
    CHECK(ROW_WITH("Vector fields", "txt").text.ends_with("| yes | yes |"));
}

TEST_CASE("extensions of one image format share a row") {
    CHECK(ROW_WITH("Images", "tif").text == ROW_WITH("Images", "tiff").text);
    CHECK(ROW_WITH("Images", "pgm").text != ROW_WITH("Images", "ppm").text);
}

TEST_CASE("the page of formats lists the samples of volumes") {
    std::vector<std::string> rows;
    for (const std::string &line : PART("Volumes"))
        if (line.starts_with("| ") && line[2] >= '0' && line[2] <= '9') rows.push_back(line);
    // The public codes of NIfTI-1 for whole numbers of 8 to 64 bits, floats and colours.
    CHECK(rows == std::vector<std::string>{
                      "| 2 | 8 | whole, without sign |",
                      "| 4 | 16 | whole, with sign |",
                      "| 8 | 32 | whole, with sign |",
                      "| 16 | 32 | floating point |",
                      "| 64 | 64 | floating point |",
                      "| 128 | 24 | red, green, blue |",
                      "| 256 | 8 | whole, with sign |",
                      "| 512 | 16 | whole, without sign |",
                      "| 768 | 32 | whole, without sign |",
                      "| 1024 | 64 | whole, with sign |",
                      "| 1280 | 64 | whole, without sign |",
                      "| 2304 | 32 | red, green, blue, alpha |",
                  });
}
