#pragma once

#include "foundation/console/console.hpp"
#include "image2d/image/image.hpp"

namespace morvane {
// Whether an image has pixels for a slice of that size, told when not; another size is told, too.
inline bool IS_SLICE_IMAGE(const TIMAGE &image, const COMPLEXNAT &size) {
    if (!image.ISNOTEMPTY()) {
        WRITELN("Error! Empty imagefield!");
        return false;
    }
    const auto shown = [](const COMPLEXNAT &s) {
        return "(" + GETSTRING(s.x) + "x" + GETSTRING(s.y) + ")";
    };
    if (image.SIZE() != size)
        WRITELN("Attention, image " + shown(image.SIZE()) + " and slice " + shown(size) +
                " differ!");
    return true;
}
} // namespace morvane
