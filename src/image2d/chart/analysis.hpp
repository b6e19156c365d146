#pragma once

#include "image2d/chart/histogram.hpp"

namespace morvane {
enum class ANALYSIS_KIND : BYTE { MAXIMUM, MINIMUM, INFLECTION };

// A point of the smoothed curve of log10 counts: its grey value, the curve and its derivatives by
// the position in the list of values that occur.
struct ANALYSIS_POINT {
    ANALYSIS_KIND kind;
    NAT value;
    REAL f, first, second;
};

// What IMAGE_ANALYSE finds in a histogram.
struct HISTOGRAM_ANALYSIS {
    TPOLYCOMPLEXNAT counts;             // (value, count) of each bin with a count
    TPOLYREAL logs;                     // their log10 counts, smoothed
    std::vector<ANALYSIS_POINT> points; // ascending by value
};

// Maxima, minima and inflections of a histogram whose bin i holds the count of value i-1. The log10
// counts are smoothed n/64*4 times, 1 to 1024, when n > 10 values occur. The first derivative
// counts as positive or negative where it is beyond a hundredth of its largest size, the second
// beyond a twentieth, so that flat places and noise give fewer points. A maximum lies on the
// largest value between the two signs, a minimum on the smallest, an inflection where the second
// derivative is nearest to zero.
void IMAGE_ANALYSE(const TPOLYNAT &bins, HISTOGRAM_ANALYSIS &result);

// "Maximum point:120 f=2.5 f'=0 f''=-0.01".
UTF16 WRITEOUT(const ANALYSIS_POINT &point);
// The points as lines on the console, or in a text file; false after a failure, which is told.
void WRITE_ANALYSIS(const HISTOGRAM_ANALYSIS &analysis);
bool SAVE_ANALYSIS(const HISTOGRAM_ANALYSIS &analysis, const UTF16 &name);
// The log10 histogram with its smoothed curve and each point marked: maxima and minima by kind and
// value, inflections by their value.
void DRAW_ANALYSIS(const HISTOGRAM_ANALYSIS &analysis, THISTOGRAM &chart);

// A histogram as a text: a line "value<tab>count" for each bin, value 0 first; false after a
// failure, which is told.
bool SAVE_HISTOGRAM(const TPOLYNAT &bins, const UTF16 &name);
// An empty chart of 640x480 with the captions "values" and "log10 frequency".
void START_VALUE_CHART(THISTOGRAM &chart);
// Values over log10 frequency, saved by the name's extension.
bool SAVE_HISTOGRAM_IMAGE(const TPOLYNAT &bins, const UTF16 &name);
bool SAVE_ANALYSIS_IMAGE(const HISTOGRAM_ANALYSIS &analysis, const UTF16 &name);
} // namespace morvane
