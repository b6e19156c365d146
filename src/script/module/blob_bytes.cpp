#include "script/module/blob_bytes.hpp"

#include "foundation/base/byte_scan.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/console/files.hpp"
#include "script/engine/constant_table.hpp"
#include "script/file/file.hpp"
#include "script/module/text_target.hpp"

#include <algorithm>

namespace morvane {
namespace {
bool Write(const UTF16 &name, std::string_view bytes, std::string_view find,
           std::string_view replacement) {
    FILE_WRITE target;
    if (!ASSIGNWRITE_BY_NAME(target, name)) return false;
    for (std::size_t at = bytes.find(find); at != std::string_view::npos; at = bytes.find(find)) {
        target.WRITE(bytes.substr(0, at));
        target.WRITE(replacement);
        bytes.remove_prefix(at + find.size());
    }
    target.WRITE(bytes);
    return target.COMMIT();
}
} // namespace

bool BYTES_OF(const UTF16 &text, std::string &bytes) {
    constexpr std::string_view MARK = "hex:";
    bytes = GETUTF8(text);
    if (!bytes.starts_with(MARK)) return true;
    std::string digits;
    for (const char c : bytes.substr(MARK.size()))
        if (c != ' ') digits += LOWER(c);
    bytes.clear();
    if (digits.size() % 2 != 0 || digits.find_first_not_of(HEXSMALL) != std::string::npos)
        return false;
    for (std::size_t i = 0; i < digits.size(); i += 2)
        bytes += static_cast<char>(HEXSMALL.find(digits[i]) * 16 + HEXSMALL.find(digits[i + 1]));
    return true;
}

bool BLOB_COUNT(const UTF16 &file, std::string_view bytes, NAT &count) {
    TFILE blob;
    count = 0;
    if (!blob.LOAD(file)) return false;
    const NAT length = static_cast<NAT>(bytes.size());
    for (NAT at = blob.SEARCHPOS(bytes); at > 0; at = blob.SEARCHPOS(bytes, at + length))
        ++count;
    return true;
}

bool BLOB_POS(const UTF16 &file, std::string_view bytes, NAT start, NAT &position) {
    TFILE blob;
    position = 0;
    if (!blob.LOAD(file)) return false;
    position = blob.SEARCHPOS(bytes, start);
    return true;
}

bool BLOB_GET(const UTF16 &file, NAT position, NAT length, bool hexadecimal, UTF16 &text) {
    TFILE blob;
    text = {};
    if (!blob.LOAD(file)) return false;
    if (position < 1) return true;
    const NAT most = hexadecimal ? LONGEST_TEXT / 2 : LONGEST_TEXT;
    const std::string_view bytes = SUBVIEW(blob.VIEW(), position - 1, std::min(length, most));
    std::string shown = hexadecimal ? std::string() : ASCIICLEAN_HARD(bytes);
    for (const char byte : hexadecimal ? bytes : std::string_view()) {
        shown += HEX[static_cast<BYTE>(byte) / 16];
        shown += HEX[static_cast<BYTE>(byte) % 16];
    }
    text = shown;
    return true;
}

bool BLOB_REPLACE(const UTF16 &file, std::string_view find, std::string_view replacement,
                  const UTF16 &target) {
    TFILE blob;
    if (find.empty() || !blob.LOAD(file)) return false;
    if (Write(target, blob.VIEW(), find, replacement)) return true;
    Write(target + ".fail", blob.VIEW(), find, replacement);
    return false;
}
} // namespace morvane
