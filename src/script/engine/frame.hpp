#pragma once

#include "script/engine/script_line.hpp"

namespace morvane {
// What one run of a block holds; the handlers of the block keywords read and change it.
// Named BLOCK_FRAME: FRAME is how a field sits in space (field3d/raster/frame.hpp).
struct BLOCK_FRAME {
    NAT line = 0;                    // script line in progress
    const LINE_PART *part = nullptr; // its command word and remainder
    bool condition = false;          // set by an `if`, read by `then` and `else`
    UTF16 caseValue;                 // set by `case`, read by `of`
};
} // namespace morvane
