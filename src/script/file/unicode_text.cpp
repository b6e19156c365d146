#include "script/file/unicode_text.hpp"

namespace morvane {
namespace {
constexpr std::string_view LITTLE_MARK = "\xFF\xFE", BIG_MARK = "\xFE\xFF";

// The 16-bit unit at an offset.
std::uint32_t UnitAt(std::string_view bytes, std::size_t at, bool isBigEndian) {
    const std::uint32_t first = static_cast<unsigned char>(bytes[at]);
    const std::uint32_t second = static_cast<unsigned char>(bytes[at + 1]);
    return isBigEndian ? first << 8 | second : second << 8 | first;
}
} // namespace

void APPEND_UTF8(std::string &text, std::uint32_t code) {
    const auto put = [&text](std::uint32_t byte) { text += static_cast<char>(byte); };
    if (code < 0x80) return put(code);
    if (code < 0x800) {
        put(0xC0 | code >> 6);
    } else if (code < 0x10000) {
        put(0xE0 | code >> 12);
        put(0x80 | (code >> 6 & 0x3F));
    } else {
        put(0xF0 | code >> 18);
        put(0x80 | (code >> 12 & 0x3F));
        put(0x80 | (code >> 6 & 0x3F));
    }
    put(0x80 | (code & 0x3F));
}

bool HAS_UNIT_MARK(std::string_view bytes) {
    return bytes.starts_with(LITTLE_MARK) || bytes.starts_with(BIG_MARK);
}

std::string UTF8_OF_UNITS(std::string_view bytes) {
    const bool isBigEndian = bytes.starts_with(BIG_MARK);
    std::string text;
    for (std::size_t at = LITTLE_MARK.size(); at + 1 < bytes.size(); at += 2) {
        std::uint32_t code = UnitAt(bytes, at, isBigEndian);
        const std::uint32_t next = at + 3 < bytes.size() ? UnitAt(bytes, at + 2, isBigEndian) : 0;
        if (code >= 0xD800 && code < 0xDC00 && next >= 0xDC00 && next < 0xE000) {
            code = 0x10000 + ((code - 0xD800) << 10) + (next - 0xDC00);
            at += 2;
        } else if (code >= 0xD800 && code < 0xE000) {
            code = '?';
        }
        APPEND_UTF8(text, code);
    }
    return text;
}
} // namespace morvane
