#pragma once

#include "image2d/chart/value_analysis.hpp"
#include "script/engine/macro.hpp"

// Histogram and analysis of what is in use, for the sets of images and fields: BINS() gives the
// counts, value v in bin v+1.
namespace morvane {
template <TPOLYNAT (*BINS)()> void HISTOGRAM_SHOW(TMACRO *) { WRITE_COUNTS(BINS()); }
template <TPOLYNAT (*BINS)()> void HISTOGRAM_IMAGE(TMACRO *engine) {
    static_cast<void>(SAVE_HISTOGRAM_IMAGE(BINS(), engine->GETPARAMETER(1)));
}
template <TPOLYNAT (*BINS)()> void HISTOGRAM_RAW(TMACRO *engine) {
    static_cast<void>(SAVE_HISTOGRAM(BINS(), engine->GETPARAMETER(1)));
}
template <TPOLYNAT (*BINS)()> void ANALYSIS_SHOW(TMACRO *) { WRITE_VALUE_ANALYSIS(BINS()); }
template <TPOLYNAT (*BINS)()> void ANALYSIS_IMAGE(TMACRO *engine) {
    static_cast<void>(SAVE_VALUE_ANALYSIS_IMAGE(BINS(), engine->GETPARAMETER(1)));
}
template <TPOLYNAT (*BINS)()> void ANALYSIS_RAW(TMACRO *engine) {
    static_cast<void>(SAVE_VALUE_ANALYSIS(BINS(), engine->GETPARAMETER(1)));
}
} // namespace morvane
