#pragma once

#include "image2d/image/result.hpp"

// Images joined pixel by pixel, component by component. A result has the largest width and height;
// what lies outside an operand is its background, and sizes that differ are told. Values are
// limited to the range of the target's kind; alpha and depth are those of the first operand. M is
// the largest pixel value among the operands' kinds: 255, or 65535.
namespace morvane {
enum class PIXEL_OPERATION : BYTE {
    SUB,       // a - b
    SUB_ABS,   // |a - b|
    SUB_RANGE, // (M + 1) / 2 + (a - b)
    BETWEEN,   // of a, between, b: (between - a) + (between - b)
    ADD,       // the sum
    ADD_MIN,   // the smallest
    ADD_MAX,   // the largest
    MUL,       // a*b / M; a*b*c / M²; more by threes and twos in this way; truncated
    DIV,       // (M + 1)*a / (b + 1), truncated
    MEAN,      // rounded
    MEDIAN,    // the middle value; of an even count the truncated mean of two
};
void COMBINE_PIXELS(PIXEL_OPERATION operation, OPERANDS operands, TIMAGE &target);

// (a/ta + b/tb)/2 * (ta + tb)/2, rounded: one intensity of two exposure times.
void INTENSITY(const TIMAGE &a, const TIMAGE &b, REAL timeA, REAL timeB, TIMAGE &target);

// The first over the second over ... by their alpha (Porter and Duff 1984), in the whole numbers of
// TRGBA::PUTOVER. Kinds without alpha are opaque; outside its own pixels an image is transparent.
void OVER(OPERANDS operands, TIMAGE &target);
} // namespace morvane
