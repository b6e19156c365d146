#pragma once

#include "image2d/image/image.hpp"

#include <span>

namespace morvane {
// Images that an operation reads; none is null.
using OPERANDS = std::span<const TIMAGE *const>;

// The largest width and the largest height. Sizes that differ are told in one line.
COMPLEXNAT COMMON_SIZE(OPERANDS operands);

// The pixels of a result, made beside its target so that the target may be an operand as well.
class IMAGE_RESULT {
public:
    TIMAGE image; // zero pixels; empty when memory ran out, which has been told

    // Of the target's kind, unless another one is given.
    IMAGE_RESULT(TIMAGE &goal, const COMPLEXNAT &size) : IMAGE_RESULT(goal, size, goal.ID()) {}
    IMAGE_RESULT(TIMAGE &goal, const COMPLEXNAT &size, BYTE kind);

    // The target gets the pixels. A target of size 0 also takes the properties of the source: its
    // frame (or the one given), pen, background and settings; another one keeps its own. Nothing
    // happens when memory ran out.
    void GIVE(const TIMAGE &source) { GIVE(source, source.GETFRAME()); }
    void GIVE(const TIMAGE &source, const FRAME &frame);

private:
    TIMAGE &target;
    bool isWell;
};

// The frame of an image whose first pixel was (x, y), and of one with `steps` old pixels for a new
// one each way.
FRAME MOVED_FRAME(const TIMAGE &source, NAT x, NAT y);
FRAME SCALED_FRAME(const TIMAGE &source, const COMPLEX &steps);
} // namespace morvane
