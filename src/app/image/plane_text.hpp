#pragma once

#include "foundation/base/utf16.hpp"
#include "image2d/image/objects.hpp"

namespace morvane {
// One number of a grey image, <red, green, blue> or <red, green, blue, alpha> of a colour one.
UTF16 PLANE_TEXT(const PLANE_NUMBERS &numbers);
} // namespace morvane
