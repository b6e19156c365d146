#pragma once

#include "foundation/base/utf16.hpp"

namespace morvane {
// An existing file of a name goes to that name and ".bak" before a new one is written. When the
// new one fails the old one gets its name back.
class BACKUP {
public:
    explicit BACKUP(const UTF16 &fileName);
    bool READY() const { return isReady; } // false: the old file could not be renamed, told
    bool FINISH(bool isWritten);           // gives isWritten back

private:
    UTF16 name;
    bool isMoved = false, isReady = true;
};
} // namespace morvane
