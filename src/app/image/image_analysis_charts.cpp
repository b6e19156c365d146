#include "app/image/image_handlers.hpp"
#include "app/workspaces.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "image2d/chart/analysis.hpp"
#include "image2d/image/objects.hpp"

// The histogram of the image in use and what its curve tells: printed, as a text, as a chart.
namespace morvane {
namespace {
TPOLYNAT Bins() {
    TPOLYNAT bins;
    HISTOGRAM(IMAGES.CURRENT(), bins);
    return bins;
}

void Analyse(HISTOGRAM_ANALYSIS &analysis) { IMAGE_ANALYSE(Bins(), analysis); }
} // namespace

// A line "value<tab>count" for each value that occurs.
void IMAGE_HISTOGRAM(TMACRO *) {
    const TPOLYNAT bins = Bins();
    for (NAT i = 1; i <= bins.LENGTH; ++i)
        if (bins.GET(i) > 0) WRITELN(GETSTRING(i - 1) + "\t" + GETSTRING(bins.GET(i)));
}

void IMAGE_HISTOGRAM_IMAGE(TMACRO *engine) {
    static_cast<void>(SAVE_HISTOGRAM_IMAGE(Bins(), engine->GETPARAMETER(1)));
}

void IMAGE_HISTOGRAM_RAW(TMACRO *engine) {
    static_cast<void>(SAVE_HISTOGRAM(Bins(), engine->GETPARAMETER(1)));
}

void IMAGE_ANALYSIS(TMACRO *) {
    HISTOGRAM_ANALYSIS analysis;
    Analyse(analysis);
    WRITE_ANALYSIS(analysis);
}

void IMAGE_ANALYSIS_IMAGE(TMACRO *engine) {
    HISTOGRAM_ANALYSIS analysis;
    Analyse(analysis);
    static_cast<void>(SAVE_ANALYSIS_IMAGE(analysis, engine->GETPARAMETER(1)));
}

void IMAGE_ANALYSIS_RAW(TMACRO *engine) {
    HISTOGRAM_ANALYSIS analysis;
    Analyse(analysis);
    static_cast<void>(SAVE_ANALYSIS(analysis, engine->GETPARAMETER(1)));
}
} // namespace morvane
