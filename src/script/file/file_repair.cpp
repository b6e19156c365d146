#include "script/file/file_repair.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/gz_rescue.hpp"
#include "foundation/console/paths.hpp"
#include "script/file/directory_scan.hpp"
#include "script/file/file.hpp"
#include "script/file/file_copy.hpp"
#include "script/file/file_stream.hpp"
#include "script/file/name_mask.hpp"
#include "script/file/unicode_text.hpp"

#include <new>

namespace morvane {
namespace {
constexpr std::string_view UTF8_MARK = "\xEF\xBB\xBF";
constexpr char END_MARK = 26;

unsigned Unit(char c) { return static_cast<unsigned char>(c); }

// Bytes of the UTF-8 sequence at the front; 0: there is none. Longer forms than needed,
// surrogates and codes above 10FFFF are none.
std::size_t SequenceLength(std::string_view text) {
    const unsigned first = Unit(text[0]);
    if (first < 0x80) return 1;
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : 2;
    if (first < 0xC2 || first > 0xF4 || text.size() < length) return 0;
    for (std::size_t i = 1; i < length; ++i)
        if ((Unit(text[i]) & 0xC0) != 0x80) return 0;
    const unsigned second = Unit(text[1]);
    const bool isWrong = (first == 0xE0 && second < 0xA0) || (first == 0xED && second > 0x9F) ||
                         (first == 0xF0 && second < 0x90) || (first == 0xF4 && second > 0x8F);
    return isWrong ? 0 : length;
}

std::string Utf8Of(std::string_view bytes) {
    if (HAS_UNIT_MARK(bytes)) return UTF8_OF_UNITS(bytes);
    if (bytes.starts_with(UTF8_MARK)) bytes.remove_prefix(UTF8_MARK.size());
    std::string text;
    while (!bytes.empty()) {
        const std::size_t length = SequenceLength(bytes);
        if (length > 0)
            text.append(bytes.substr(0, length));
        else
            APPEND_UTF8(text, Unit(bytes[0]));
        bytes.remove_prefix(length > 0 ? length : 1);
    }
    return text;
}

std::string Shown(const UTF16 &path) { return GETUTF8(GETMESSAGEDIR(path)); }

bool Tell(const char *what, const UTF16 &name) {
    WRITELN(std::string("  ") + what + " (" + Shown(name) + ").");
    return false;
}

UTF16 FreeBackup(const UTF16 &name) {
    UTF16 backup = name + ".bak";
    for (NAT number = 2; KIND_OF_PATH(backup) != PATH_KIND::NONE; ++number)
        backup = name + ".bak" + GETSTRING_NAT(number);
    return backup;
}

bool RepairGz(const UTF16 &name) {
    const GZ_RESCUE tested = RESCUE_GZ(name, nullptr);
    if (!tested.opened) return false;
    if (!tested.broken) return Tell("Nothing to repair", name);
    if (tested.count < 1) return Tell("Nothing to rescue", name);
    const UTF16 backup = FreeBackup(name);
    FILE_WRITE file;
    if (!COPY_FILE(name, backup, COPY_METHOD::BYTES) || !ASSIGNGZWRITE(file, name)) return false;
    const GZ_RESCUE rescued = RESCUE_GZ(backup, &file);
    if (!rescued.opened || !file.COMMIT()) return false;
    WRITELN("  Rescued (" + Shown(name) + "): " + GETUTF8(GETSTRING_NAT(rescued.count)) +
            " bytes.");
    return true;
}

bool RepairText(const UTF16 &name) {
    TFILE file;
    if (!file.LOAD(name)) return false;
    if (!IS_TEXT(file.VIEW())) return Tell("No text, left as it is", name);
    const std::string text = REPAIRED_TEXT(file.VIEW());
    if (text == file.VIEW()) return Tell("Nothing to repair", name);
    if (!COPY_FILE(name, FreeBackup(name), COPY_METHOD::BYTES)) return false;
    if (!file.LOADBYTES(text) || !file.SAVE(name)) return false;
    WRITELN("  Repaired (" + Shown(name) + ").");
    return true;
}
} // namespace

bool IS_TEXT(std::string_view bytes) {
    return HAS_UNIT_MARK(bytes) || bytes.find('\0') == std::string_view::npos;
}

std::string REPAIRED_TEXT(std::string_view bytes) {
    std::string text = Utf8Of(bytes), lines;
    while (!text.empty() && text.back() == END_MARK)
        text.pop_back();
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isEnd = text[at] == '\r';
        if (isEnd && at + 1 < text.size() && text[at + 1] == '\n') continue;
        lines += isEnd ? '\n' : text[at];
    }
    if (!lines.empty() && lines.back() != '\n') lines += '\n';
    return lines;
}

bool REPAIR_FILE(const UTF16 &name) {
    if (!IS_REGULAR_FILE(name)) return false;
    try {
        return IS_GZ_NAME(name) ? RepairGz(name) : RepairText(name);
    } catch (const std::bad_alloc &) {
        WRITELN("  Out of memory!");
        return false;
    }
}

bool REPAIR_FILES(const UTF16 &mask) {
    if (!HAS_WILDCARD(mask)) return REPAIR_FILE(mask);
    bool isRepaired = true;
    for (const UTF16 &name : FILES_OF(mask))
        isRepaired = REPAIR_FILE(name) && isRepaired;
    return isRepaired;
}
} // namespace morvane
