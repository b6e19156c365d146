#include "geometry/format/backup.hpp"

#include "foundation/console/files.hpp"

namespace morvane {
BACKUP::BACKUP(const UTF16 &fileName) : name(fileName) {
    if (name.EMPTY() || !FILEEXISTS(name)) return;
    isMoved = isReady = RENAME(name, name + UTF16(".bak"));
}

bool BACKUP::FINISH(bool isWritten) {
    if (!isWritten && isMoved) RENAME(name + UTF16(".bak"), name);
    return isWritten;
}
} // namespace morvane
