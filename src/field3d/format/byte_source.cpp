#include "field3d/format/byte_source.hpp"

#include "foundation/base/records.hpp"

#include <algorithm>

namespace morvane {
namespace {
constexpr NAT DEFLATE_BEST = 1032; // unpacked bytes a packed byte can stand for
constexpr NAT BLOCK = NAT{1} << 24;
} // namespace

bool BYTE_SOURCE::OPEN(const UTF16 &name, bool zipped) {
    CLOSE();
    if (!zipped) return ASSIGNREAD(file, name);
    packedSize = std::max<NAT>(FILESIZE(name), 0);
    return ASSIGNGZREAD(stream, name);
}

NAT BYTE_SOURCE::READ(void *target, NAT count) {
    if (file.OPEN()) return file.READ(target, count);
    auto *bytes = static_cast<BYTE *>(target);
    NAT done = 0;
    while (done < count) {
        const NAT part = std::min(BLOCK, count - done);
        const NAT got = stream.READ(bytes + done, part);
        if (got > 0) done += got;
        if (got < part) break;
    }
    return done;
}

bool BYTE_SOURCE::SEEK(NAT position) {
    return file.OPEN() ? file.SEEK(position) : stream.SEEK(position);
}

bool BYTE_SOURCE::LACKS(NAT position, NAT count) const {
    const NAT size = SIZE();
    const NAT most = file.OPEN()                    ? size
                     : size > NATMAX / DEFLATE_BEST ? NATMAX
                                                    : size * DEFLATE_BEST;
    return position > most || count > most - position;
}

void BYTE_SOURCE::CLOSE() {
    file.CLOSE();
    stream.CLOSE();
    packedSize = 0;
}
} // namespace morvane
