#include "field3d/format/file_base.hpp"

#include "foundation/console/paths.hpp"

namespace morvane {
UTF16 GETBASENAME(const UTF16 &path) {
    const NAT extension = GETFILEEXTENSION(path).LENGTH();
    return extension == 0 ? path : COPY(path, 1, path.LENGTH() - extension - 1);
}

UTF16 GETEXTENSION(const UTF16 &path) { return LOWERCASE(GETFILEEXTENSION(path)); }

UTF16 WITHEXTENSION(const UTF16 &name, const char *extension) {
    const UTF16 wanted(extension);
    return GETEXTENSION(name) == wanted ? name : name + UTF16(".") + wanted;
}
} // namespace morvane
