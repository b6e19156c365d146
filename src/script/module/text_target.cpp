#include "script/module/text_target.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"

namespace morvane {
bool ASSIGNWRITE_BY_NAME(FILE_WRITE &file, const UTF16 &name) {
    const UTF16 ending = LOWERCASE(COPY(name, name.LENGTH() - 1, 2));
    return ending == UTF16("gz") ? ASSIGNGZWRITE(file, name) : ASSIGNWRITE(file, name);
}

void TELLMISSING(std::string_view what, const UTF16 &name) {
    WRITELN("  Text (" + std::string(what) + ") not found in file (" + GETUTF8(name) + ").");
}
} // namespace morvane
