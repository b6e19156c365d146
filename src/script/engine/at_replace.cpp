#include "script/engine/macro.hpp"

#include <algorithm>
#include <bitset>

namespace morvane {
namespace {
constexpr NAT LONGEST_LINE = 1 << 20; // units of a line after its replacements

// Which low bytes stand behind an "@", and how many "@" there are.
struct AT_SIGNS {
    std::bitset<256> followers;
    NAT count = 0;

    explicit AT_SIGNS(const UTF16 &text) {
        const std::string_view low = text.LOWBYTES.VIEW();
        for (std::size_t at = low.find('@'); at != std::string_view::npos;
             at = low.find('@', at + 1)) {
            ++count;
            if (at + 1 < low.size()) followers.set(Byte(low[at + 1]));
        }
    }
    // Whether a name may stand behind one of them, in lower or in upper case.
    bool MayHold(const UTF16 &name) const {
        const std::string_view low = name.LOWBYTES.VIEW();
        if (low.empty()) return true;
        const char first = low.front();
        const char upper = first >= 'a' && first <= 'z' ? static_cast<char>(first - 32) : first;
        return followers.test(Byte(first)) || followers.test(Byte(upper));
    }
    static std::size_t Byte(char c) { return static_cast<unsigned char>(c); }
};
} // namespace

// Deliberate: a plain replacement in the order of the table, newest first, quotes included.
UTF16 TMACRO::_REPLACE_AT_CONSTANTS(const UTF16 &text) {
    AT_SIGNS signs(text);
    UTF16 result = text;
    for (NAT i = constants.LENGTH(); i >= 1 && signs.count > 0; --i) {
        const CONSTANT_ENTRY &entry = constants.GET(i);
        if (!signs.MayHold(entry.name->text)) continue;
        bool changed = false;
        for (const UTF16 &needle : {"@" + entry.name->text, "@" + UPPERCASE(entry.name->text)}) {
            if (POS(needle, result) == 0) continue;
            const UTF16 &value = entry.value.GET();
            if (result.LENGTH() + AT_SIGNS(result).count * value.LENGTH() > LONGEST_LINE) {
                ERROR("line too long after @ replacement");
                return {};
            }
            REPLACE(result, needle, value);
            changed = true;
        }
        if (changed) signs = AT_SIGNS(result);
    }
    return result;
}
} // namespace morvane
