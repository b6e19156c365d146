#include "app/image/image_handlers.hpp"
#include "app/workspaces.hpp"
#include "image2d/chart/analysis.hpp"
#include "image2d/image/objects.hpp"

// The histogram of the image in use and what its curve tells: printed, as a text, as a chart.
// The commands of the histogram itself stand in histogram_handlers.hpp.
namespace morvane {
TPOLYNAT IMAGE_BINS() {
    TPOLYNAT bins;
    HISTOGRAM(IMAGES.CURRENT(), bins);
    return bins;
}

namespace {
void Analyse(HISTOGRAM_ANALYSIS &analysis) { IMAGE_ANALYSE(IMAGE_BINS(), analysis); }
} // namespace

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
