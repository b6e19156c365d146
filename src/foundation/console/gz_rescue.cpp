#include "foundation/console/gz_rescue.hpp"

#include <array>
#include <zlib.h>

namespace morvane {
namespace {
constexpr std::size_t PIECE_BYTES = 64 * 1024;
constexpr int GZ_WINDOW = 15 + 16; // the largest window, with the header of a gz file

class RESCUER {
public:
    RESCUER(FILE_READ &from, FILE_WRITE *to) : source(from), target(to) {
        isReady = inflateInit2(&stream, GZ_WINDOW) == Z_OK;
    }
    ~RESCUER() {
        if (isReady) inflateEnd(&stream);
    }
    RESCUER(const RESCUER &) = delete;
    RESCUER &operator=(const RESCUER &) = delete;

    GZ_RESCUE RUN() {
        result.opened = isReady;
        while (result.opened && Step()) {
        }
        return result;
    }

private:
    // One call of zlib; what it wrote counts even when it found a damage. False: the end.
    bool Step() {
        const bool isFed = stream.avail_in > 0 || Refill();
        stream.next_out = output.data();
        stream.avail_out = static_cast<uInt>(output.size());
        const int code = inflate(&stream, Z_SYNC_FLUSH);
        if (!Put(output.size() - stream.avail_out)) return false;
        if (code == Z_STREAM_END) return StartNext();
        if (code == Z_OK && (isFed || stream.avail_out < output.size())) return true;
        result.broken = true;
        return false;
    }
    bool Refill() {
        stream.next_in = input.data();
        stream.avail_in =
            static_cast<uInt>(source.READ(input.data(), static_cast<NAT>(input.size())));
        return stream.avail_in > 0;
    }
    bool Put(std::size_t count) {
        result.count += static_cast<NAT>(count);
        result.opened = !target || target->WRITE(output.data(), static_cast<NAT>(count));
        return result.opened;
    }
    // Behind the end of a stream another may follow; anything else there is no part of it.
    bool StartNext() {
        constexpr Bytef FIRST_BYTE = 0x1F;
        if (stream.avail_in == 0 && !Refill()) return false;
        return *stream.next_in == FIRST_BYTE && inflateReset(&stream) == Z_OK;
    }

    FILE_READ &source;
    FILE_WRITE *target;
    z_stream stream{};
    bool isReady = false;
    GZ_RESCUE result;
    std::array<Bytef, PIECE_BYTES> input, output;
};
} // namespace

GZ_RESCUE RESCUE_GZ(const UTF16 &source, FILE_WRITE *target) {
    FILE_READ file;
    if (!ASSIGNREAD(file, source)) return {};
    GZ_RESCUE result = std::make_unique<RESCUER>(file, target)->RUN();
    if (IOERROR(source)) result.opened = false;
    return result;
}
} // namespace morvane
