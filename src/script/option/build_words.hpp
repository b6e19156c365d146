#pragma once

#include "foundation/base/utf16.hpp"

// What this build calls itself, in texts; the constants behind them stand in build.hpp.
namespace morvane {
// "9.4.8": years since the first, month, day of the build.
UTF16 BUILDVERSION(NAT firstYear);
UTF16 BUILDPLATFORM(); // "Linux (x86_64 LE)"
// The folder of this platform at the maker's address, in lower case: "/x86_64-linux/".
UTF16 BUILDFOLDER();
} // namespace morvane
