#pragma once

#include "foundation/base/random.hpp"
#include "foundation/base/utf16.hpp"

namespace morvane {
class TCLOUD;
class TFILETEXT;

// The share of lines that a load keeps, in percent, and where the draws come from.
struct LINE_SHARE {
    REAL percent;
    RANDOM_STREAM &random;
};

// Pours a line text into a cloud, behind what is there: four numbers a line are a point x, y, z, t,
// an empty line ends a line, "object:" names the lines before it, "material:" numbers a line.
// `fileName` gives the name of objects without one. A null share keeps all lines.
void READ_LINE_TEXT(TCLOUD &cloud, const TFILETEXT &text, const UTF16 &fileName,
                    const LINE_SHARE *share);
} // namespace morvane
