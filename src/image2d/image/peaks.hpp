#pragma once

#include "image2d/image/image.hpp"

// Shifts of all values that bring the peak of the histogram to a given value. Alpha and ZRGB stay.
namespace morvane {
// The most frequent value within the range, -1 for none: of the counts smoothed by (1, 2, 1) / 4 as
// often as there are times 64 bins; of equals the middle of the first run.
NAT PEAK(const TPOLYNAT &bins, const COMPLEXNAT &range);

// Which values decide: those of grey images, of colours their mean, or one component of a colour.
enum class PEAK_CHANNEL : int { MEAN = -1, RED, GREEN, BLUE };
// The peak within the range becomes `target`, all channels move with it and are limited. Nothing
// happens without a pixel in the range, or for a component of a grey image.
void SETPEAK(TIMAGE &image, PEAK_CHANNEL channel, const COMPLEXNAT &range, NAT target);
} // namespace morvane
