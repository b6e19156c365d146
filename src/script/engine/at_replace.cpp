#include "script/engine/macro.hpp"

#include <algorithm>
#include <bitset>

namespace morvane {
namespace {
constexpr NAT LONGEST_LINE = 1 << 20; // units of a line after its replacements

constexpr char Upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; }

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
        return followers.test(Byte(low.front())) || followers.test(Byte(Upper(low.front())));
    }
    static std::size_t Byte(char c) { return static_cast<unsigned char>(c); }
};

// Whether an "@" and the low plane of the name, in upper case or as it is, stand in the text; a
// quick test that allocates nothing, the high planes are left to POS.
bool MayStand(const UTF16 &text, const UTF16 &name, bool upper) {
    const std::string_view low = text.LOWBYTES.VIEW(), wanted = name.LOWBYTES.VIEW();
    for (std::size_t at = low.find('@'); at != std::string_view::npos; at = low.find('@', at + 1)) {
        if (low.size() - at - 1 < wanted.size()) return false;
        std::size_t i = 0;
        while (i < wanted.size() && low[at + 1 + i] == (upper ? Upper(wanted[i]) : wanted[i]))
            ++i;
        if (i == wanted.size()) return true;
    }
    return false;
}
} // namespace

// Deliberate: a plain replacement in the order of the table, newest first, quotes included.
UTF16 TMACRO::_REPLACE_AT_CONSTANTS(const UTF16 &text) {
    AT_SIGNS signs(text);
    UTF16 result = text;
    for (NAT i = constants.LENGTH(); i >= 1 && signs.count > 0; --i) {
        const CONSTANT_ENTRY &entry = constants.GET(i);
        if (!signs.MayHold(entry.name->text)) continue;
        bool changed = false;
        for (const bool upper : {false, true}) {
            const UTF16 &name = entry.name->text;
            if (!MayStand(result, name, upper)) continue;
            const UTF16 needle = "@" + (upper ? UPPERCASE(name) : name);
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
