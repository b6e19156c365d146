#pragma once

#include "image2d/chart/analysis.hpp"

// What the histogram of a field tells about its values: their statistic, the points of the curve,
// the bins themselves. Bin i holds the count of value i-1.
namespace morvane {
struct BIN_STATISTIC {
    NAT count = 0; // of all values; with 0 the rest is 0 as well
    REAL mean = 0;
    REAL sd = 0; // divisor count - 1; 0 for fewer than two values
    NAT min = 0, q1 = 0, median = 0, q3 = 0, max = 0;
};
// The statistic of the values that were counted, without listing them. From four values on the
// quartiles are those of TPOLYNAT.QUANTILE; of fewer they are the smallest and the largest value.
BIN_STATISTIC GETSTATISTIC(const TPOLYNAT &bins);

// Prints a line "value<tab>count" for each bin with a count; "Empty histogram!" without one.
void WRITE_COUNTS(const TPOLYNAT &bins);
// Prints the bar chart of the bins, the statistic by a line "name<tab>number" each and the points
// of IMAGE_ANALYSE; "Empty histogram!" without a count.
void WRITE_VALUE_ANALYSIS(const TPOLYNAT &bins);
// Statistic and points as a text, then a line "value<tab>count" as a heading and one for each bin
// with a count; false after a failure, which is told.
bool SAVE_VALUE_ANALYSIS(const TPOLYNAT &bins, const UTF16 &name);
// The chart of SAVE_ANALYSIS_IMAGE with mean, deviation and quartiles above it and a vertical mark
// at each quartile.
bool SAVE_VALUE_ANALYSIS_IMAGE(const TPOLYNAT &bins, const UTF16 &name);
} // namespace morvane
