#pragma once

#include "image2d/image/result.hpp"

// Choosing pixels by value or colour. What is not chosen becomes 0; the rules of IMAGE_RESULT hold.
// Grey values of colours are those of TIMAGE::GET.
namespace morvane {
// The pixels with a grey value in the range, or `value` in their place when it is not negative.
void SELECT(const TIMAGE &source, const COMPLEXNAT &range, NAT value, TIMAGE &target);

// The pixels of the image where the mask has one of the sorted values. Outside the smaller of both
// lies the background; sizes that differ are told.
void MASK(const TIMAGE &source, const TIMAGE &mask, const TPOLYNAT &values, TIMAGE &target);

// Where every component of the mask lies within same * (1 ± share); `same` holds three components,
// of a grey mask thrice the value.
struct SAMENESS {
    VECTOR same;
    REAL share = 0;
    bool isDifferent = false; // where it does not
};
void MASK_SAME(const TIMAGE &source, const TIMAGE &mask, const SAMENESS &sameness, TIMAGE &target);

// The pixels that have one of the colours exactly.
void EXTRACT_COLOURS(const TIMAGE &source, std::span<const VECTORNAT> colours, TIMAGE &target);
} // namespace morvane
