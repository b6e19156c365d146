#include "foundation/base/rounding.hpp"
#include "image2d/chart/analysis.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <cmath>
#include <cstdlib>
#include <sys/wait.h>

#include <doctest/doctest.h>

// Charts of each kind, checked by an XML parser and a second renderer.
using namespace morvane;

namespace {
bool SaveBoth(T2DVECTOR &drawing, const std::string &name) {
    return drawing.SAVE(name + ".svg") && drawing.SAVE(name + ".png");
}

bool SaveLines() {
    TGRAPH graph(640, 480);
    graph.UP("Two curves & <marks> \"quoted\" Äß");
    graph.BOTTOM("time (s)");
    graph.LEFT("amplitude");
    graph.BOTTOM(0, 10);
    graph.LEFT(-1.2, 1.2);
    graph.CREATE();
    for (const REAL shift : {0.0, 0.5}) {
        graph.SELECT();
        graph.LEGEND(shift == 0 ? "sine" : "cosine");
        for (NAT i = 0; i <= 1000; ++i) {
            const REAL x = static_cast<REAL>(i) / 100;
            graph.CURVE(x, std::sin(2 * x + shift * PI) * std::exp(-x / 5));
        }
    }
    graph.POI(PI / 4, 0.85, "first maximum");
    return SaveBoth(graph, "lines");
}

bool SaveSteps() {
    TGRAPH graph(800, 600);
    graph.UP("Fibres by direction");
    graph.BOTTOM("angle (°)");
    graph.LEFT("share");
    graph.RIGHT("cumulated (%)");
    graph.BOTTOM(0, 180);
    graph.LEFT(0, 0.3);
    graph.RIGHT(0, 100);
    graph.CREATE();
    const REAL shares[] = {.05, .08, .16, .27, .18, .1, .07, .05, .04};
    graph.SELECT();
    graph.FILL();
    graph.LEGEND("measured");
    for (std::size_t i = 0; i < 9; ++i)
        graph.HISTOCURVE(static_cast<REAL>(i) * 20, shares[i]);
    graph.HISTOCURVE(180, 0);
    graph.SELECT(false, true);
    graph.LEGEND("cumulated");
    REAL sum = 0;
    graph.CURVE(0, 0);
    for (std::size_t i = 0; i < 9; ++i)
        graph.CURVE(static_cast<REAL>(i) * 20 + 20, sum += 100 * shares[i]);
    graph.VVLINE(90, 0.25);
    return SaveBoth(graph, "steps") && graph.SAVE("packed.svgz");
}

bool SaveHistogram() {
    TPOLYNAT bins;
    bins.INIT();
    for (NAT v = 0; v < 256; ++v) {
        const REAL x = static_cast<REAL>(v);
        bins.PUSH(ROUND(5000 * std::exp(-(x - 70) * (x - 70) / 500) +
                        900 * std::exp(-(x - 160) * (x - 160) / 900)));
    }
    THISTOGRAM chart(1280, 960);
    chart.UP("Grey values");
    chart.BOTTOM("grey value");
    chart.LEFT("pixels");
    chart.HISTOGRAM(bins);
    chart.POI(70, 5000, "maximum 70");
    chart.POI(160, 900, "maximum 160");
    HISTOGRAM_ANALYSIS analysis;
    IMAGE_ANALYSE(bins, analysis);
    return SaveBoth(chart, "histogram") && SAVE_ANALYSIS_IMAGE(analysis, "analysis.svg") &&
           SAVE_ANALYSIS_IMAGE(analysis, "analysis.png");
}

bool SaveShapes() {
    T2DVECTOR drawing(400, 300);
    drawing.VALUE = {200, 60, 20, 255};
    drawing.FULLRECTANGLE(20, 20, 140, 80, 10, true);
    drawing.VALUE = {0, 0, 0, 255};
    drawing.RECTANGLE(160, 20, 260, 80, 12);
    drawing.CIRCLE(320, 50, 30);
    drawing.VALUE = {0, 100, 200, 128};
    drawing.FULLCIRCLE(350, 60, 30);
    drawing.ELLIPSE(70, 150, 50, 20, 0.5);
    drawing.FULLELLIPSE(180, 150, 50, 20, -0.5);
    drawing.ARC(300, 150, 40, 0, 4);
    drawing.SECTOR(300, 150, 25, 1, 3);
    drawing.LINEWIDTH = 3;
    const COMPLEX curve[] = {{20, 250}, {60, 180}, {100, 250}, {140, 320}, {180, 250}};
    drawing.CURVE(curve);
    drawing.LINE(200, 220, 260, 280);
    drawing.SCAN_RESET();
    drawing.VLINE(300, 220, 330, 280, 360);
    drawing.WINDOW(150, 200, 190, 240);
    drawing.FULLCIRCLE(190, 240, 20);
    return SaveBoth(drawing, "shapes");
}
} // namespace

TEST_CASE("charts pass an XML parser and look the same as SVG and as PNG") {
    SCRATCH_FOLDER folder;
    {
        CAPTURE capture;
        REQUIRE(SaveLines());
        REQUIRE(SaveSteps());
        REQUIRE(SaveHistogram());
        REQUIRE(SaveShapes());
    }
    if (std::system("test -x /usr/bin/python3") != 0) {
        MESSAGE("python3 is missing: skipped");
        return;
    }
    const std::string script = std::string(MORVANE_TEST_DATA) + "/../image2d/chart/svg_check.py";
    const int status =
        std::system(("/usr/bin/python3 '" + script + "' . > check.log 2>&1").c_str());
    const int code = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    INFO(folder.READ("check.log"));
    if (code == 77) { // the XML is sound
        MESSAGE("a renderer to compare the look with is missing");
        return;
    }
    CHECK(code == 0);
}
