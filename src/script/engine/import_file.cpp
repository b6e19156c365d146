#include "script/engine/import_file.hpp"

#include "foundation/console/files.hpp"
#include "foundation/console/paths.hpp"

#include <algorithm>
#include <sys/stat.h>

namespace morvane {
namespace {
bool IsSame(const UTF16 &a, const UTF16 &b) {
    if (a == b) return true;
    struct stat first {
    }, second{};
    if (::stat(LOADPATH(a).c_str(), &first) != 0) return false;
    if (::stat(LOADPATH(b).c_str(), &second) != 0) return false;
    return first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

std::size_t PlaceIn(std::span<const UTF16> chain, const UTF16 &file) {
    const auto place = std::find_if(chain.begin(), chain.end(),
                                    [&](const UTF16 &name) { return IsSame(name, file); });
    return static_cast<std::size_t>(place - chain.begin());
}
} // namespace

UTF16 IMPORT_PATH(const UTF16 &importer, const UTF16 &file) {
    if (file.EMPTY()) return {};
    if (FILEEXISTS(file)) return file;
    const UTF16 folder = GETDIR(importer);
    if (folder.EMPTY() || file.IS(1, '/')) return {};
    const UTF16 beside = folder + "/" + file;
    return FILEEXISTS(beside) ? beside : UTF16();
}

bool IS_CIRCLE(std::span<const UTF16> chain, const UTF16 &file) {
    return PlaceIn(chain, file) < chain.size();
}

UTF16 CIRCLE_TEXT(std::span<const UTF16> chain, const UTF16 &file) {
    UTF16 text;
    for (std::size_t i = PlaceIn(chain, file); i < chain.size(); ++i)
        text += chain[i] + " > ";
    return text + file;
}
} // namespace morvane
