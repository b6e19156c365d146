#include "image2d/format/pnm_source.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/file_lines.hpp"
#include "image2d/format/fill_rows.hpp"

#include <algorithm>
#include <cstring>
#include <new>

namespace morvane {
namespace {
constexpr NAT FIRST_PART = 1 << 20; // bytes unpacked at once at the beginning
constexpr NAT CRC_ERROR = 154;
constexpr WORD LARGEST = 65535;

bool IsPacked(const UTF16 &name) { return LOWERCASE(COPY(name, name.LENGTH() - 2, 3)) == ".gz"; }

bool IsSpace(int byte) { return byte == ' ' || (byte >= '\t' && byte <= '\r'); }

bool IsDigit(int byte) { return byte >= '0' && byte <= '9'; }

bool TellBadNumber(int byte) {
    const char shown = byte > ' ' && byte < 127 ? static_cast<char>(byte) : '?';
    WRITELN(std::string("  Bad number (") + shown + "). Empty image created!");
    return false;
}
} // namespace

bool PNM_SOURCE::OPEN(const UTF16 &fileName) {
    name = fileName;
    if (!IsPacked(name)) return ASSIGNREAD(plain, name);
    return ASSIGNGZREAD(packed, name) && INTACT(); // a small file shows its damage at once
}

UTF16 PNM_SOURCE::NEXT_WORD() { return plain.OPEN() ? FILEREAD(plain) : FILEGZREAD(packed); }

// Doubles what is there until it holds `count` bytes or the file ends.
bool PNM_SOURCE::Unpack(NAT count) {
    while (static_cast<NAT>(memory.size()) < count) {
        const NAT done = static_cast<NAT>(memory.size());
        const NAT part = std::min(count - done, std::max(done, FIRST_PART));
        memory.resize(static_cast<std::size_t>(done + part));
        const NAT got = packed.READ(memory.data() + done, part);
        memory.resize(static_cast<std::size_t>(done + got));
        if (got < part) return false;
    }
    return true;
}

bool PNM_SOURCE::ENSURE(NAT count) {
    if (plain.OPEN()) return plain.SIZE() - plain.POSITION() >= count || TELL_BAD_FILE_SIZE();
    try {
        return Unpack(count) || (INTACT() && TELL_BAD_FILE_SIZE());
    } catch (const std::bad_alloc &) {
        WRITELN("  Out of memory!");
        return false;
    }
}

NAT PNM_SOURCE::READ(void *target, NAT count) {
    if (plain.OPEN()) return plain.READ(target, count);
    const NAT ready = std::min(count, static_cast<NAT>(memory.size()) - taken);
    if (ready > 0) std::memcpy(target, memory.data() + taken, static_cast<std::size_t>(ready));
    taken += ready;
    return ready + packed.READ(static_cast<BYTE *>(target) + ready, count - ready);
}

bool PNM_SOURCE::INTACT() const {
    if (!packed.BROKEN()) return true;
    SETIORESULT(CRC_ERROR);
    IOERROR(name);
    return false;
}

int PNM_NUMBERS::Byte() {
    if (at < buffer.size()) return buffer[at++];
    buffer.resize(static_cast<std::size_t>(BUFFER_BYTES));
    buffer.resize(static_cast<std::size_t>(source.READ(buffer.data(), BUFFER_BYTES)));
    at = 0;
    return buffer.empty() ? EOF : buffer[at++];
}

// The first byte that is neither white space nor in a comment.
int PNM_NUMBERS::Skip() {
    int byte = Byte();
    while (IsSpace(byte) || byte == '#') {
        if (byte == '#')
            while (byte != '\n' && byte != '\r' && byte != EOF)
                byte = Byte();
        else
            byte = Byte();
    }
    return byte;
}

bool PNM_NUMBERS::NEXT(WORD &number, bool digits) {
    int byte = Skip();
    if (byte == EOF) return source.INTACT() && TELL_BAD_FILE_SIZE();
    if (!IsDigit(byte)) return TellBadNumber(byte);
    int value = 0;
    do {
        value = std::min(value * 10 + (byte - '0'), int{LARGEST});
        byte = digits ? EOF : Byte();
    } while (IsDigit(byte));
    number = static_cast<WORD>(value);
    // The byte behind a number is looked at again: it may be a comment's sign, or wrong.
    if (byte != EOF) --at;
    return true;
}
} // namespace morvane
