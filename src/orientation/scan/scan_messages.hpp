#pragma once

#include "orientation/scan/scan_method.hpp"

namespace morvane {
// Whether r lies in 1..65535 and the smallest size is above 2r; "Wrong scan size (r)!" when not.
[[nodiscard]] bool IS_SCAN_LENGTH(NAT r, NAT smallestSize);
// The line that names the method, with its limits.
void WRITE_SCAN_METHOD(const SCAN_SETTINGS &settings, NAT r);
} // namespace morvane
