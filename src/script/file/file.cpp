#include "script/file/file.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"

#include <algorithm>
#include <cstring>
#include <new>
#include <utility>

namespace morvane {
namespace {
constexpr NAT FIRST_GUESS = 64 * 1024; // bytes, for a file whose size is unknown

bool IsGz(const UTF16 &name) { return LOWERCASE(COPY(name, name.LENGTH() - 1, 2)) == UTF16("gz"); }

bool TellBroken(const UTF16 &name) {
    SETIORESULT(154);
    IOERROR(name);
    return false;
}
} // namespace

bool TFILE::Reserve(NAT capacity) {
    DONE();
    block.reset(new (std::nothrow) char[static_cast<std::size_t>(std::max(capacity, NAT{1}))]);
    if (block) return true;
    WRITELN("  Out of memory!");
    return false;
}

void TFILE::SetSize(NAT count) { size = count; }

// Doubles the block when all of it is filled; false when memory runs out.
bool TFILE::Grow(NAT &capacity) {
    if (size < capacity) return true;
    TFILE larger;
    if (!larger.Reserve(2 * capacity)) return false;
    std::memcpy(larger.Bytes(), block.get(), static_cast<std::size_t>(size));
    larger.size = size;
    capacity *= 2;
    Swap(larger);
    return true;
}

void TFILE::Swap(TFILE &other) {
    std::swap(block, other.block);
    std::swap(size, other.size);
}

void TFILE::DONE() {
    block.reset();
    size = 0;
}

bool TFILE::LOAD(const UTF16 &name) {
    DONE();
    const bool loaded = IsGz(name) ? _LOADGZ(name) : _LOADHELP(name);
    if (!loaded) DONE();
    return loaded;
}

bool TFILE::LOADBYTES(std::string_view source) {
    if (!Reserve(static_cast<NAT>(source.size()))) return false;
    if (!source.empty()) std::memcpy(block.get(), source.data(), source.size());
    size = static_cast<NAT>(source.size());
    return true;
}

// The told size is the first guess only: what the file really gives counts.
bool TFILE::_LOADHELP(const UTF16 &name) {
    FILE_READ file;
    if (!ASSIGNREAD(file, name)) return false;
    NAT capacity = file.SIZE() > 0 ? file.SIZE() + 1 : FIRST_GUESS;
    if (!Reserve(capacity)) return false;
    for (;;) {
        const NAT got = file.READ(block.get() + size, capacity - size);
        size += got;
        if (size < capacity) return !IOERROR(name);
        if (!Grow(capacity)) return false;
    }
}

bool TFILE::_LOADGZ(const UTF16 &name) {
    GZ_READ file;
    if (!ASSIGNGZREAD(file, name)) return false;
    NAT capacity = FIRST_GUESS;
    if (!Reserve(capacity)) return false;
    for (;;) {
        size += file.READ(block.get() + size, capacity - size);
        if (size < capacity) return !file.BROKEN() || TellBroken(name);
        if (!Grow(capacity)) return false;
    }
}

bool TFILE::SAVE(const UTF16 &name) const { return IsGz(name) ? _SAVEGZ(name) : _SAVEHELP(name); }

bool TFILE::_SAVEHELP(const UTF16 &name) const {
    FILE_WRITE file;
    if (!ASSIGNWRITE(file, name)) return false;
    file.WRITE(VIEW());
    return file.COMMIT();
}

bool TFILE::_SAVEGZ(const UTF16 &name) const {
    FILE_WRITE file;
    if (!ASSIGNGZWRITE(file, name)) return false;
    file.WRITE(VIEW());
    return file.COMMIT();
}

NAT TFILE::SEARCHPOS(std::string_view text, NAT start) const {
    if (text.empty() || start > size) return 0;
    const std::size_t from = static_cast<std::size_t>(std::max(start, NAT{1}) - 1);
    const std::size_t found = VIEW().find(text, from);
    return found == std::string_view::npos ? 0 : static_cast<NAT>(found) + 1;
}
} // namespace morvane
