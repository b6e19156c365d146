#include "script/file/file_text.hpp"

#include "foundation/console/console.hpp"

#include <cstring>
#include <new>

namespace morvane {
namespace {
constexpr std::size_t SHORTEST_TEXT = 2; // bytes of a file that has lines

bool IsLineEnd(char byte) { return byte == '\n' || byte == '\r'; }
} // namespace

bool TFILEREADTEXT::LOAD(const UTF16 &name) {
    DONE();
    return TFILE::LOAD(name) && IndexLines();
}

bool TFILEREADTEXT::LOADBYTES(std::string_view bytes) {
    DONE();
    return TFILE::LOADBYTES(bytes) && IndexLines();
}

void TFILEREADTEXT::DONE() {
    lines.clear();
    TFILE::DONE();
}

bool TFILEREADTEXT::IndexLines() {
    lines.clear();
    const std::string_view text = VIEW();
    if (text.size() < SHORTEST_TEXT) return true;
    try {
        std::size_t start = 0;
        while (start < text.size()) {
            std::size_t end = start;
            while (end < text.size() && !IsLineEnd(text[end]))
                ++end;
            lines.push_back({static_cast<NAT>(start), static_cast<NAT>(end - start)});
            const bool pair = text.substr(end, 2) == "\r\n";
            start = end + (pair ? 2 : 1);
        }
    } catch (const std::bad_alloc &) {
        WRITELN("  Out of memory!");
        DONE();
        return false;
    }
    return true;
}

std::string_view TFILEREADTEXT::GETVIEW(NAT line) const {
    if (line < 1 || line > LENGTH()) return {};
    const LINE &found = lines[static_cast<std::size_t>(line - 1)];
    return VIEW().substr(static_cast<std::size_t>(found.start),
                         static_cast<std::size_t>(found.length));
}

UTF16 TFILEREADTEXT::GET(NAT line) const { return GETUTF16(GETVIEW(line)); }

NAT TFILEREADTEXT::POSGET(NAT line) const {
    if (line < 1 || line > LENGTH()) return 0;
    return lines[static_cast<std::size_t>(line - 1)].start + 1;
}

BYTE TFILEREADTEXT::GETBYTE(NAT position) const {
    if (position < 1 || position > SIZE()) return 0;
    return static_cast<BYTE>(VIEW()[static_cast<std::size_t>(position - 1)]);
}

std::int32_t TFILEREADTEXT::GETINT(NAT position) const {
    if (position < 1 || position > SIZE() - 3) return 0;
    std::uint32_t value = 0;
    for (NAT i = 3; i >= 0; --i)
        value = value << 8 | GETBYTE(position + i);
    return static_cast<std::int32_t>(value);
}

float TFILEREADTEXT::GETSINGLE(NAT position) const {
    const std::int32_t bits = GETINT(position);
    float value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
}

HYPERNAT TFILEREADTEXT::GETRGBA(NAT position) const {
    if (position < 1 || position > SIZE() - 3) return HZERONAT;
    return {GETBYTE(position), GETBYTE(position + 1), GETBYTE(position + 2), GETBYTE(position + 3)};
}

std::string_view TFILEREADTEXT::GETPCHAR(NAT position) const {
    if (position < 1 || position > SIZE()) return {};
    const std::string_view rest = VIEW().substr(static_cast<std::size_t>(position - 1));
    return rest.substr(0, rest.find('\0'));
}

bool TFILETEXT::LOAD(const UTF16 &name) {
    const bool loaded = TFILEREADTEXT::LOAD(name);
    CutLines();
    return loaded;
}

bool TFILETEXT::LOADBYTES(std::string_view bytes) {
    const bool loaded = TFILEREADTEXT::LOADBYTES(bytes);
    CutLines();
    return loaded;
}

void TFILETEXT::CutLines() {
    char *const text = Bytes();
    for (const LINE &line : lines)
        for (NAT i = line.start + line.length; i < SIZE() && IsLineEnd(text[i]); ++i)
            text[i] = 0;
}
} // namespace morvane
