#include "script/option/build_words.hpp"

#include "foundation/base/number_text.hpp"
#include "script/option/build.hpp"

#include <bit>

namespace morvane {
UTF16 BUILDVERSION(NAT firstYear) {
    UTF16 date(BUILDDATE);
    const NAT year = GETNAT(SPLIT(date, "/")), month = GETNAT(SPLIT(date, "/"));
    return GETSTRING(year - firstYear) + "." + GETSTRING(month) + "." + GETSTRING(GETNAT(date));
}

UTF16 BUILDPLATFORM() {
    const bool little = std::endian::native == std::endian::little;
    return UTF16(BUILDSYSTEM) + " (" + BUILDPROCESSOR + (little ? " LE)" : " BE)");
}

UTF16 BUILDFOLDER() {
    return LOWERCASE("/" + UTF16(BUILDPROCESSOR) + "-" + UTF16(BUILDSYSTEM) + "/");
}
} // namespace morvane
