#pragma once

#include "foundation/console/files.hpp"

namespace morvane {
// The bytes of a plain file or of a gzip stream, read in order with seeks.
class BYTE_SOURCE {
public:
    // Opens and prints the opening line; false when it can't be opened.
    bool OPEN(const UTF16 &name, bool zipped);
    bool OPENED() const { return file.OPEN() || stream.OPEN(); }
    NAT READ(void *target, NAT count); // bytes read; fewer at the end
    bool SEEK(NAT position);
    // True when `count` bytes from `position` on can't all be there. A plain file knows its size; a
    // stream can hold at most 1032 times its packed bytes, deflate's best ratio.
    bool LACKS(NAT position, NAT count) const;
    bool ZIPPED() const { return stream.OPEN(); }
    NAT SIZE() const { return file.OPEN() ? file.SIZE() : packedSize; } // bytes on the disk
    void CLOSE();

private:
    FILE_READ file;
    GZ_READ stream;
    NAT packedSize = 0;
};
} // namespace morvane
