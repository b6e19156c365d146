#include "foundation/base/number_text.hpp"
#include "foundation/console/files.hpp"
#include "image2d/chart/vector_drawing.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
constexpr const char *BLACK_LINE =
    "style=\"fill:none;stroke-width:1;stroke:#000000;stroke-opacity:1\"";

// The elements behind the background, one a line.
std::string Shapes(T2DVECTOR &drawing) {
    const std::string svg = drawing.GETSVG();
    const std::string ground = "style=\"fill:#ffffff;fill-opacity:1\"/>\n";
    const std::size_t start = svg.find(ground) + ground.size();
    return svg.substr(start, svg.find("</g>\n</svg>") - start);
}
} // namespace

TEST_CASE("an SVG has an XML declaration, its size, and one group for all shapes") {
    T2DVECTOR drawing(30, 20);
    CHECK(drawing.GETSVG() ==
          "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
          "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"30\" height=\"20\" "
          "viewBox=\"0 0 30 20\">\n"
          "<g font-family=\"Helvetica, Arial, 'Liberation Sans', 'DejaVu Sans', sans-serif\" "
          "font-size=\"13px\" stroke-linejoin=\"round\">\n"
          "<rect x=\"0\" y=\"0\" width=\"30\" height=\"20\" "
          "style=\"fill:#ffffff;fill-opacity:1\"/>\n"
          "</g>\n</svg>\n");
    drawing.BACKGROUND = {};
    CHECK(drawing.GETSVG().find("<rect") == std::string::npos);
}

TEST_CASE("a line is a line element with its style in hexadecimal and with opacity") {
    T2DVECTOR drawing(30, 20);
    drawing.LINE(1, 2.25, 10, 20);
    CHECK(Shapes(drawing) ==
          "<line x1=\"1\" y1=\"2.25\" x2=\"10\" y2=\"20\" " + std::string(BLACK_LINE) + "/>\n");
    drawing.CLEAR();
    drawing.VALUE = {255, 128, 0, 51};
    drawing.LINEWIDTH = 2.5;
    drawing.LINE(0, 0, 1, 1);
    CHECK(Shapes(drawing) ==
          "<line x1=\"0\" y1=\"0\" x2=\"1\" y2=\"1\" "
          "style=\"fill:none;stroke-width:2.5;stroke:#ff8000;stroke-opacity:0.2\"/>\n");
}

TEST_CASE("a curve is a path with M and Q") {
    T2DVECTOR drawing(30, 20);
    const COMPLEX points[] = {{1, 2}, {3, 4}, {5, 6}, {7, 8}, {9, 10}};
    drawing.CURVE(points);
    CHECK(Shapes(drawing) ==
          "<path d=\"M1,2 Q3,4 5,6 Q7,8 9,10\" " + std::string(BLACK_LINE) + "/>\n");
}

TEST_CASE("a rectangle has round corners by rx and ry, and a bevel by two more rectangles") {
    T2DVECTOR drawing(30, 20);
    drawing.RECTANGLE(10, 8, 2, 3, 1.5); // any two corners
    CHECK(Shapes(drawing) == "<rect x=\"2\" y=\"3\" width=\"8\" height=\"5\" rx=\"1.5\" "
                             "ry=\"1.5\" " +
                                 std::string(BLACK_LINE) + "/>\n");
    drawing.CLEAR();
    drawing.VALUE = {255, 0, 0, 255};
    drawing.FULLRECTANGLE(0, 0, 20, 16, 0, true);
    CHECK(Shapes(drawing) == "<rect x=\"0\" y=\"0\" width=\"20\" height=\"16\" "
                             "style=\"fill:#ff0000;fill-opacity:1\"/>\n"
                             "<rect x=\"0\" y=\"0\" width=\"20\" height=\"4\" "
                             "style=\"fill:#ffffff;fill-opacity:0.25\"/>\n"
                             "<rect x=\"0\" y=\"12\" width=\"20\" height=\"4\" "
                             "style=\"fill:#000000;fill-opacity:0.25\"/>\n");
}

TEST_CASE("circles and ellipses are elements, a turned ellipse stands in a rotated group") {
    T2DVECTOR drawing(100, 100);
    drawing.CIRCLE(50, 40, 8);
    drawing.ELLIPSE(50, 40, 20, 10);
    drawing.ELLIPSE(50, 40, 20, 10, PI / 6); // against the clock as seen
    CHECK(Shapes(drawing) ==
          "<circle cx=\"50\" cy=\"40\" r=\"8\" " + std::string(BLACK_LINE) +
              "/>\n<ellipse cx=\"50\" cy=\"40\" rx=\"20\" ry=\"10\" " + BLACK_LINE +
              "/>\n<g transform=\"rotate(-30 50 40)\"><ellipse cx=\"50\" cy=\"40\" rx=\"20\" "
              "ry=\"10\" " +
              BLACK_LINE + "/></g>\n");
}

TEST_CASE("arcs and sectors are paths of A, L and Z, at most half a turn a command") {
    T2DVECTOR drawing(100, 100);
    drawing.ARC(50, 50, 10, 0, PI / 2);
    CHECK(Shapes(drawing) ==
          "<path d=\"M60,50 A 10 10 0 0 0 50,40\" " + std::string(BLACK_LINE) + "/>\n");
    drawing.CLEAR();
    drawing.SECTOR(50, 50, 10, 0, -PI / 2);
    CHECK(Shapes(drawing) == "<path d=\"M50,50 L 60,50 A 10 10 0 0 1 50,60 Z\" "
                             "style=\"fill:#000000;fill-opacity:1\"/>\n");
    drawing.CLEAR();
    drawing.ARC(50, 50, 10, 0, 99); // a whole turn at most
    const std::string whole = Shapes(drawing);
    CHECK(whole.find(" A ") != whole.rfind(" A "));
    CHECK(whole.find("60,50\"") != std::string::npos);
}

TEST_CASE("text is real text with its size in em, its style and its direction") {
    T2DVECTOR drawing(200, 100);
    const std::string black = " style=\"fill:#000000;fill-opacity:1\">";
    drawing.WRITE(10, 20, "plain"); // the baseline lies 12 below the letters' upper edge
    drawing.SETFONT(20);
    drawing.WRITE(10, 20, "italic", 1.5);
    drawing.SETFONT(10);
    drawing.WRITE_LEFT(10, 90, "bold");
    CHECK(Shapes(drawing) ==
          "<text x=\"10\" y=\"32\" font-size=\"1em\"" + black + "plain</text>\n" +
              "<text x=\"10\" y=\"38\" font-size=\"1.5em\" font-style=\"italic\"" + black +
              "italic</text>\n" +
              "<text x=\"22\" y=\"90\" font-size=\"1em\" font-weight=\"bold\" "
              "transform=\"rotate(-90 22 90)\"" +
              black + "bold</text>\n");
}

TEST_CASE("marks of XML in a text are escaped, and characters without a place in XML left out") {
    T2DVECTOR drawing(200, 100);
    UTF16 text = "a<b> & \"c\" 'd' äΩ€";
    text += UTF16CHAR{1, 0};       // a control character
    text += UTF16CHAR{0, 0xD8};    // a surrogate
    text += UTF16CHAR{0xFF, 0xFF}; // no character
    drawing.WRITE(0, 0, text);
    CHECK(Shapes(drawing).find(">a&lt;b&gt; &amp; &quot;c&quot; &apos;d&apos; äΩ€</text>") !=
          std::string::npos);
}

TEST_CASE("numbers of an SVG have a point whatever numbers in texts look like") {
    T2DVECTOR drawing(30, 20);
    drawing.LINE(1.5, 2.25, 1234567, 0.004);
    const std::string before = drawing.GETSVG();
    const TFORMAT kept = FORMAT;
    FORMAT.DECIMAL = false, FORMAT.SCIENTIFIC = true, FORMAT.DIGIT = true;
    const std::string after = drawing.GETSVG();
    FORMAT = kept;
    CHECK(before == after);
    CHECK(before.find("x1=\"1.5\" y1=\"2.25\"") != std::string::npos);
}

TEST_CASE("a shape that reaches over its window gets the window as a clip path") {
    T2DVECTOR drawing(30, 20);
    drawing.WINDOW(5, 5, 15, 15);
    drawing.FULLCIRCLE(10, 10, 3);
    CHECK(drawing.GETSVG().find("clip") == std::string::npos);
    drawing.FULLCIRCLE(10, 10, 8);
    drawing.FULLCIRCLE(10, 10, 9);
    const std::string svg = drawing.GETSVG();
    CHECK(svg.find("<defs>\n<clipPath id=\"window1\"><rect x=\"5\" y=\"5\" width=\"10\" "
                   "height=\"10\"/></clipPath>\n</defs>") != std::string::npos);
    CHECK(svg.find("<g clip-path=\"url(#window1)\"><circle cx=\"10\" cy=\"10\" r=\"8\"") !=
          std::string::npos);
    CHECK(svg.find("window2") == std::string::npos);
}

TEST_CASE("SAVE chooses the format by the extension") {
    SCRATCH_FOLDER folder;
    CAPTURE capture;
    T2DVECTOR drawing(16, 8);
    drawing.LINE(0, 0, 16, 8);
    const std::pair<const char *, std::string> starts[] = {
        {"a.pbm", "P4"},        {"a.pgm", "P5"},          {"a.ppm", "P6"},
        {"a.pam", "P7"},        {"a.bmp", "BM"},          {"a.tga", std::string("\0\0\2", 3)},
        {"a.tif", "II"},        {"a.PNG", "\x89PNG"},     {"a.svg", "<?xml"},
        {"a.svgz", "\x1f\x8b"}, {"a.ppm.gz", "\x1f\x8b"}, {"a.dib.svg", "<?xml"}};
    for (const auto &[name, start] : starts) {
        CHECK(drawing.SAVE(name));
        CHECK(folder.READ(name).substr(0, start.size()) == start);
    }
    CHECK(drawing.SAVE("b.chart")); // no such format: SVG
    CHECK(folder.READ("b.chart.svg") == drawing.GETSVG());
    CHECK(drawing.SAVESVG("c.png"));
    CHECK(folder.HAS("c.png.svg"));
}

TEST_CASE("an SVGZ unpacks to the SVG") {
    SCRATCH_FOLDER folder;
    CAPTURE capture;
    T2DVECTOR drawing(16, 8);
    drawing.WRITE(0, 0, "packed");
    REQUIRE(drawing.SAVESVGZ("a"));
    GZ_READ file;
    REQUIRE(ASSIGNGZREAD(file, "a.svgz"));
    std::string text(4096, ' ');
    text.resize(static_cast<std::size_t>(file.READ(text.data(), 4096)));
    CHECK(text == drawing.GETSVG());
}

TEST_CASE("a drawing that cannot be written is told and leaves nothing") {
    SCRATCH_FOLDER folder;
    CAPTURE capture;
    T2DVECTOR drawing(16, 8);
    CHECK_FALSE(drawing.SAVESVG("no/such/folder/a.svg"));
    CHECK(capture.CONTAINS("Error"));
    CHECK(folder.FILES() == 0);
}

TEST_CASE("formats without alpha show a transparent background as white") {
    SCRATCH_FOLDER folder;
    CAPTURE capture;
    T2DVECTOR drawing(2, 1);
    drawing.BACKGROUND = {};
    drawing.FULLRECTANGLE(0, 0, 1, 1);
    REQUIRE(drawing.SAVEPPM("a.ppm"));
    const std::string ppm = folder.READ("a.ppm");
    CHECK(ppm.substr(ppm.size() - 6) == std::string("\0\0\0\xff\xff\xff", 6));
}
