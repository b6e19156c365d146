#include "foundation/base/number_text.hpp"
#include "geometry/format/line_formats.hpp"
#include "geometry/format/line_formats_table.hpp"
#include "geometry/model/cloud.hpp"
#include "support/capture.hpp"

#include <cstring>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <unistd.h>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// A file name in the temporary directory; the file goes with it.
class TARGET {
public:
    explicit TARGET(const std::string &name)
        : path((std::filesystem::temp_directory_path() /
                ("morvane_" + std::to_string(getpid()) + "_" + name))
                   .string()) {}
    ~TARGET() {
        std::filesystem::remove(path);
        std::filesystem::remove(path + ".bak");
    }
    operator UTF16() const { return UTF16(path); }
    std::string Content() const {
        std::ifstream file(path, std::ios::binary);
        std::ostringstream text;
        text << file.rdbuf();
        return text.str();
    }
    const std::string path;
};
// A line of two points with material 7, a closed triangle, a single point.
void FILL_CLOUD(TCLOUD &cloud) {
    cloud.NEWPOINT({1, 2, 3, 0.5});
    cloud.NEWPOINT({1.5, -2, 0, 0});
    cloud.NEWLINE(7);
    cloud.NEWPOINT({0, 0, 0, 0});
    cloud.NEWPOINT({1, 0, 0, 0});
    cloud.NEWPOINT({0, 1, 0, 0});
    cloud.NEWPOINT({0, 0, 0, 0});
    cloud.NEWLINE(0);
    cloud.NEWOBJECT("a");
    cloud.NEWPOINT({9, 8, 7, 6});
    cloud.NEWLINE(1);
    cloud.NEWOBJECT("b");
    cloud.offset = {10, 20, 30, 0};
    cloud.scale = {0.5, 1, 2, 1};
    cloud.dimension = {64, 100.5, 70000, 1};
}
template <class VALUE> VALUE AT(const std::string &bytes, std::size_t offset) {
    VALUE value;
    std::memcpy(&value, bytes.data() + offset, sizeof value);
    return value;
}
} // namespace

TEST_CASE("an OBJ file holds points, lines, a closed line as a face, a single point") {
    const TARGET target("lines.obj");
    CAPTURE console;
    TCLOUD cloud;
    FILL_CLOUD(cloud);
    REQUIRE(SAVE_OBJ(cloud, target));
    CHECK(target.Content() == "v 1 2 3\nv 1.5 -2 0\nv 0 0 0\nv 1 0 0\nv 0 1 0\nv 0 0 0\nv 9 8 7\n"
                              "s 1\nl 1 2\nf 3 4 5\np 7\n");
}

TEST_CASE("the Lines block of a VTK line file is closed as Polys") {
    const TARGET target("lines.vtk");
    CAPTURE console;
    TCLOUD cloud;
    FILL_CLOUD(cloud);
    REQUIRE(SAVE_VTK(cloud, target));
    CHECK(target.Content() ==
          "<?xml version=\"1.0\"?>\n"
          "<VTKFile type=\"PolyData\" version=\"0.1\" byte_order=\"LittleEndian\">\n"
          "\t<PolyData>\n"
          "\t\t<Piece NumberOfPoints=\"7\" NumberOfVerts=\"0\" NumberOfLines=\"0\" "
          "NumberOfStrips=\"0\" NumberOfPolys=\"3\">\n"
          "\t\t\t<Points>\n"
          "\t\t\t\t<DataArray type=\"Float32\" NumberOfComponents=\"3\" format=\"ascii\">\n"
          "\t\t\t\t\t1 2 3\n\t\t\t\t\t1.5 -2 0\n\t\t\t\t\t0 0 0\n\t\t\t\t\t1 0 0\n"
          "\t\t\t\t\t0 1 0\n\t\t\t\t\t0 0 0\n\t\t\t\t\t9 8 7\n"
          "\t\t\t\t</DataArray>\n"
          "\t\t\t</Points>\n"
          "\t\t\t<Lines>\n"
          "\t\t\t\t<DataArray type=\"Int32\" Name=\"connectivity\" format=\"ascii\">\n"
          "\t\t\t\t\t0 1\n\t\t\t\t\t2 3 4 5\n\t\t\t\t\t6\n"
          "\t\t\t\t</DataArray>\n"
          "\t\t\t\t<DataArray type=\"Int32\" Name=\"offsets\" format=\"ascii\">\n"
          "\t\t\t\t\t2\n\t\t\t\t\t6\n\t\t\t\t\t7\n"
          "\t\t\t\t</DataArray>\n"
          "\t\t\t</Polys>\n"
          "\t\t</Piece>\n"
          "\t</PolyData>\n"
          "</VTKFile>\n");
    CHECK(console.CONTAINS("  Write VTK-file. 100 % ready"));
    CHECK(console.CONTAINS("  Write VTK(mesh)-file. 100 % ready"));
}

TEST_CASE("a TrackVis header is exactly 1000 bytes and hdr_size holds 1000") {
    const TARGET target("lines.trk");
    CAPTURE console;
    TCLOUD cloud;
    FILL_CLOUD(cloud);
    REQUIRE(SAVE_TRACKVIS(cloud, target));
    const std::string bytes = target.Content();
    REQUIRE(bytes.size() == 1000 + 3 * 4 + 7 * 12);
    CHECK(bytes.substr(0, 6) == std::string("TRACK\0", 6));
    CHECK(AT<std::int16_t>(bytes, 6) == 64);
    CHECK(AT<std::int16_t>(bytes, 8) == 100); // 100.5 to even
    CHECK(AT<std::int16_t>(bytes, 10) == 32767);
    CHECK(AT<float>(bytes, 12) == 0.5f);
    CHECK(AT<float>(bytes, 24) == 10.0f);
    CHECK(AT<std::int16_t>(bytes, 36) == 0);
    CHECK(AT<std::int16_t>(bytes, 238) == 0);
    CHECK(bytes.substr(948, 8) == std::string("LPS\0LPS\0", 8));
    CHECK(AT<float>(bytes, 956) == 1.0f);
    CHECK(AT<float>(bytes, 972) == 1.0f);
    CHECK(AT<std::int32_t>(bytes, 988) == 3); // lines
    CHECK(AT<std::int32_t>(bytes, 992) == 2); // version
    CHECK(AT<std::int32_t>(bytes, 996) == 1000);
    CHECK(AT<std::int32_t>(bytes, 1000) == 2); // points of the first line
    CHECK(AT<float>(bytes, 1004) == 1.0f);
    CHECK(AT<float>(bytes, 1016) == 1.5f);
    CHECK(AT<std::int32_t>(bytes, 1028) == 4);
    CHECK(console.CONTAINS("  Write Track-file. 100 % ready"));
}

TEST_CASE("an SWC file has one root for each line and t as radius") {
    const TARGET target("lines.swc");
    CAPTURE console;
    TCLOUD cloud;
    FILL_CLOUD(cloud);
    REQUIRE(SAVE_SWC(cloud, target));
    CHECK(target.Content() == "1 7 1 2 3 0.5 -1\n2 7 1.5 -2 0 0 1\n"
                              "3 0 0 0 0 0 -1\n4 0 1 0 0 0 3\n5 0 0 1 0 0 4\n6 0 0 0 0 0 5\n"
                              "7 1 9 8 7 6 -1\n");
    CHECK(console.CONTAINS("  Write SWC-file. 100 % ready"));
}

TEST_CASE("a MicroVisu3D file tells its counts and numbers its points") {
    const TARGET target("lines.mv3d");
    CAPTURE console;
    TCLOUD cloud;
    cloud.NEWPOINT({1, 2, 3, 4});
    cloud.NEWPOINT({5, 6, 7.5, 0});
    cloud.NEWLINE(1);
    REQUIRE(SAVE_MV3D(cloud, target));
    CHECK(target.Content() == "# MicroVisu3D file\n# Number of lines   1\n"
                              "# Number of points  2\n# Number of inter.  n.a.\n#\n"
                              "# No\t\tx\t\ty\t\tz\t\td\n#\n1\t1\t2\t3\t4\n2\t5\t6\t7.5\t0\n");
    CHECK(console.CONTAINS("  Write MicroVisu3D-file. 100 % ready"));
}

TEST_CASE("a DXF file holds one polyline for each line") {
    const TARGET target("lines.dxf");
    CAPTURE console;
    TCLOUD cloud;
    cloud.NEWPOINT({1, 2, 3, 4});
    cloud.NEWLINE(0);
    REQUIRE(SAVE_DXF(cloud, target));
    const std::string text = target.Content();
    CHECK(text.starts_with("0\nSECTION\n2\nHEADER\n9\n$AUNITS\n70\n0\n9\n$FILLMODE\n70\n1\n"));
    CHECK(text.ends_with("0\nSECTION\n2\nENTITIES\n"
                         "0\nPOLYLINE\n8\n0\n70\n0\n66\n1\n10\n0\n20\n0\n30\n0\n"
                         "0\nVERTEX\n8\n0\n10\n1\n20\n2\n30\n3\n40\n4\n"
                         "0\nSEQEND\n8\n0\n0\nENDSEC\n0\nEOF\n"));
}

TEST_CASE("a MEL file names its curves by object and line with equal widths") {
    const TARGET target("lines.mel");
    CAPTURE console;
    TCLOUD cloud;
    FILL_CLOUD(cloud);
    for (int i = 0; i < 9; ++i) {
        cloud.NEWPOINT({0, 0, 0, 0});
        cloud.NEWLINE(0);
    }
    std::ofstream(target.path) << "old";
    REQUIRE(cloud.SAVE_MEL(target));
    const std::string text = target.Content();
    CHECK(text.starts_with("// Maya MEL\n// Name: "));
    CHECK(text.find("curve -d 1 -p 1 2 3 -p 1.5 -2 0 -n \"O1_L1\";\n") != std::string::npos);
    CHECK(text.find("spaceLocator -p 9 8 7 -n \"O2_L1\";\n") != std::string::npos);
    CHECK(text.find("\"O3_L9\"") != std::string::npos);
    CHECK(std::filesystem::exists(target.path + ".bak"));
}

TEST_CASE("numbers in exchange formats have a point and no grouping whatever FORMAT says") {
    const TARGET target("lines.swc");
    CAPTURE console;
    const TFORMAT kept = FORMAT;
    FORMAT.DECIMAL = false;
    FORMAT.DIGIT = true;
    FORMAT.SCIENTIFIC = true;
    TCLOUD cloud;
    cloud.NEWPOINT({1234.5, -0.0, 0.00025, 1e-9});
    cloud.NEWLINE(1000000);
    CHECK(SAVE_SWC(cloud, target));
    FORMAT = kept;
    CHECK(target.Content() == "1 1000000 1234.5 0 0.00025 1e-09 -1\n");
}

TEST_CASE("the extension chooses the writer in any case, and text serves all others") {
    CHECK(LINE_FORMATS().size() == 9);
    CHECK(std::string(LINE_FORMAT_OF("a.TRK").extension) == "trk");
    CHECK(std::string(LINE_FORMAT_OF("a.b/c.vtp").extension) == "vtp");
    CHECK(std::string(LINE_FORMAT_OF("lines").extension) == "txt");
    CHECK(std::string(LINE_FORMAT_OF("lines.skein").extension) == "txt");
}

TEST_CASE("every row of the format table writes a file and fails in a missing directory") {
    for (const LINE_FORMAT &format : LINE_FORMATS()) {
        CAPTURE(format.extension);
        CAPTURE console;
        TCLOUD cloud;
        FILL_CLOUD(cloud);
        const auto directory = std::filesystem::temp_directory_path() /
                               ("morvane_formats_" + std::to_string(getpid()));
        const UTF16 name((directory / "lines.").string() + format.extension);
        CHECK_FALSE(SAVE_LINES(cloud, name));
        std::filesystem::create_directory(directory);
        CHECK(SAVE_LINES(cloud, name));
        CHECK_FALSE(std::filesystem::is_empty(directory));
        std::filesystem::remove_all(directory);
    }
}
