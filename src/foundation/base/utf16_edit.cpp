#include "foundation/base/byte_scan.hpp"
#include "foundation/base/utf16.hpp"

// Searching, cutting and changing texts.
namespace morvane {
namespace {
// A part of the high plane; where the plane is too short, zeros.
STRING8 HighPart(const UTF16 &text, NAT offset, NAT count) {
    const std::string_view part = SUBVIEW(text.HIGHBYTES.VIEW(), offset, count);
    STRING8 high = STRING8::FILLED(count, 0);
    if (IS_ZERO(part)) return high;
    if (char *bytes = high.UNIQUE()) std::memcpy(bytes, part.data(), part.size());
    return high;
}

bool HighMatches(const UTF16 &needle, const UTF16 &text, NAT offset) {
    for (NAT i = 1; i <= needle.LENGTH(); ++i)
        if (needle.GETCHAR(i).high != text.GETCHAR(offset + i).high) return false;
    return true;
}

// `high` may be left empty for a plain text.
UTF16 FromPlanes(std::string_view low, std::string_view high) {
    const NAT length = static_cast<NAT>(low.size());
    return {STRING8(low), IS_ZERO(high) ? STRING8::FILLED(length, 0) : STRING8(high)};
}

// The units that `keep` wants.
template <class KEEP> UTF16 Filtered(const UTF16 &text, KEEP keep) {
    std::string low, high;
    for (NAT i = 1; i <= text.LENGTH(); ++i) {
        const UTF16CHAR unit = text.GETCHAR(i);
        if (!keep(unit)) continue;
        low += static_cast<char>(unit.low);
        high += static_cast<char>(unit.high);
    }
    return low.size() == static_cast<std::size_t>(text.LENGTH()) ? text : FromPlanes(low, high);
}

// The text with every low byte that f changes; the same handle when f changes none.
template <class F> UTF16 MappedLow(const UTF16 &text, F f) {
    const std::string_view low = text.LOWBYTES.VIEW();
    const auto changed = [f](char c) { return f(c) != c; };
    if (std::none_of(low.begin(), low.end(), changed)) return text;
    UTF16 result(STRING8(low), text.HIGHBYTES);
    if (char *bytes = result.LOWBYTES.UNIQUE())
        std::transform(bytes, bytes + result.LENGTH(), bytes, f);
    return result;
}

bool Is(UTF16CHAR unit, char a, char b) {
    return unit.high == 0 && (unit.low == static_cast<BYTE>(a) || unit.low == static_cast<BYTE>(b));
}

// Copies of the filler until they hold at least `missing` units.
UTF16 Filling(NAT missing, const UTF16 &filler) {
    const NAT unit = filler.LENGTH(), rounds = missing / unit + (missing % unit > 0);
    if (rounds > (NAT{1} << 40) / unit) return {};
    UTF16 filling(STRING8::RAW(rounds * unit), {});
    char *low = filling.LOWBYTES.UNIQUE();
    if (!low) return {};
    const bool plain = filler.PLAIN();
    filling.HIGHBYTES = STRING8::FILLED(rounds * unit, 0);
    char *high = plain ? nullptr : filling.HIGHBYTES.UNIQUE();
    for (NAT i = 0; i < rounds * unit; ++i) {
        const UTF16CHAR part = filler.GETCHAR(i % unit + 1);
        low[i] = static_cast<char>(part.low);
        if (high) high[i] = static_cast<char>(part.high);
    }
    return filling;
}
} // namespace

NAT POS(const UTF16 &needle, const UTF16 &text, NAT start) {
    const NAT first = std::max<NAT>(start, 1);
    if (needle.EMPTY() || first > text.LENGTH() || needle.LENGTH() > text.LENGTH()) return 0;
    const std::string_view low = text.LOWBYTES.VIEW(), wanted = needle.LOWBYTES.VIEW();
    std::size_t at = low.find(wanted, static_cast<std::size_t>(first - 1));
    while (at != low.npos && !HighMatches(needle, text, static_cast<NAT>(at)))
        at = low.find(wanted, at + 1);
    return at == low.npos ? 0 : static_cast<NAT>(at) + 1;
}

NAT INVPOS(const UTF16 &needle, const UTF16 &text) { return INVPOS(needle, text, text.LENGTH()); }

NAT INVPOS(const UTF16 &needle, const UTF16 &text, NAT start) {
    if (needle.EMPTY() || start < 1 || needle.LENGTH() > text.LENGTH()) return 0;
    const std::string_view low = text.LOWBYTES.VIEW(), wanted = needle.LOWBYTES.VIEW();
    std::size_t at = low.rfind(wanted, static_cast<std::size_t>(start - 1));
    while (at != low.npos && !HighMatches(needle, text, static_cast<NAT>(at))) {
        if (at == 0) return 0;
        at = low.rfind(wanted, at - 1);
    }
    return at == low.npos ? 0 : static_cast<NAT>(at) + 1;
}

UTF16 COPY(const UTF16 &text, NAT start, NAT count) {
    const NAT offset = std::max<NAT>(start, 1) - 1;
    const std::string_view low = SUBVIEW(text.LOWBYTES.VIEW(), offset, count);
    if (low.empty()) return {};
    const NAT length = static_cast<NAT>(low.size());
    if (length == text.LENGTH()) return text;
    return {STRING8(low), HighPart(text, offset, length)};
}

UTF16 COPYINSIDE(const UTF16 &text, NAT first, NAT last) {
    // Deliberate: a last position below the first gives the whole text.
    if (last < first) return text;
    const NAT begin = std::max<NAT>(first, 1);
    return COPY(text, begin, std::min(last, text.LENGTH()) - begin + 1);
}

void DELETE(UTF16 &text, NAT start, NAT count) {
    const NAT length = text.LENGTH();
    if (start < 1 || start > length || count < 1) return;
    const NAT behind = count > length - start ? length + 1 : start + count;
    if (start == 1) {
        text = COPY(text, behind, length);
    } else if (behind > length) {
        text = COPY(text, 1, start - 1);
    } else {
        text = COPY(text, 1, start - 1) + COPY(text, behind, length);
    }
}

bool ISDIGITWEAK(std::string_view bytes) {
    return std::any_of(bytes.begin(), bytes.end(), [](char c) { return IS_DIGIT(c) || c == '-'; });
}

bool ISDIGIT(const UTF16 &text) {
    if (text.PLAIN()) return ISDIGITWEAK(text.LOWBYTES.VIEW());
    for (NAT i = 1; i <= text.LENGTH(); ++i) {
        const UTF16CHAR unit = text.GETCHAR(i);
        const char low = static_cast<char>(unit.low);
        if (unit.high == 0 && (IS_DIGIT(low) || low == '-')) return true;
    }
    return false;
}

// Deliberate: LOWERCASE keeps the high plane, so that U+0141 changes into another character.
UTF16 LOWERCASE(const UTF16 &text) { return MappedLow(text, LOWER); }

UTF16 UPPERCASE(const UTF16 &text) { return MappedLow(text, UPPER); }

UTF16 FIRSTUPPERCASE(const UTF16 &text) {
    UTF16 result = LOWERCASE(text);
    const UTF16CHAR first = result.GETCHAR(1);
    result.PUTCHAR(1, {static_cast<BYTE>(UPPER(static_cast<char>(first.low))), first.high});
    return result;
}

UTF16 FILLBEFORE(const UTF16 &text, NAT width, const UTF16 &filler) {
    if (filler.EMPTY() || text.LENGTH() >= width) return text;
    return Filling(width - text.LENGTH(), filler) + text;
}

UTF16 FILLUP(const UTF16 &text, NAT width, const UTF16 &filler) {
    if (filler.EMPTY() || text.LENGTH() >= width) return text;
    return text + Filling(width - text.LENGTH(), filler);
}

UTF16 KILLFIRST(const UTF16 &text, char a) { return KILLFIRST(text, a, a); }

UTF16 KILLFIRST(const UTF16 &text, char a, char b) {
    NAT first = 1;
    while (first <= text.LENGTH() && Is(text.GETCHAR(first), a, b))
        ++first;
    return first == 1 ? text : COPY(text, first, text.LENGTH());
}

UTF16 KILLLAST(const UTF16 &text, char a) { return KILLLAST(text, a, a); }

UTF16 KILLLAST(const UTF16 &text, char a, char b) {
    NAT last = text.LENGTH();
    while (last >= 1 && Is(text.GETCHAR(last), a, b))
        --last;
    return last == text.LENGTH() ? text : COPY(text, 1, last);
}

UTF16 KILLSPACE(const UTF16 &text) {
    return Filtered(text, [](UTF16CHAR unit) { return !Is(unit, ' ', ' '); });
}

UTF16 KILLTAB(const UTF16 &text) {
    return Filtered(text, [](UTF16CHAR unit) { return !Is(unit, '\t', '\t'); });
}

void REPLACE(UTF16 &text, const UTF16 &find, const UTF16 &replacement) {
    NAT at = POS(find, text);
    if (at == 0) return;
    std::string low, high;
    const auto append = [&](const UTF16 &source, NAT first, NAT count) {
        low += SUBVIEW(source.LOWBYTES.VIEW(), first - 1, count);
        high += SUBVIEW(source.HIGHBYTES.VIEW(), first - 1, count);
        high.resize(low.size()); // a plane that is too short holds 0
    };
    NAT done = 1;
    for (; at != 0; at = POS(find, text, done)) {
        append(text, done, at - done);
        append(replacement, 1, replacement.LENGTH());
        done = at + find.LENGTH();
    }
    append(text, done, text.LENGTH() - done + 1);
    text = FromPlanes(low, high);
}

void REPLACE(UTF16 &text, char find, char replacement) {
    text = GETREPLACE(text, find, replacement);
}

void REPLACE(std::string &bytes, std::string_view find, std::string_view replacement) {
    if (find.empty()) return;
    std::string result;
    std::size_t done = 0;
    for (std::size_t at = bytes.find(find); at != bytes.npos; at = bytes.find(find, done)) {
        result.append(bytes, done, at - done).append(replacement);
        done = at + find.size();
    }
    if (done > 0) bytes = result.append(bytes, done);
}

UTF16 GETREPLACE(const UTF16 &text, char find, char replacement) {
    const auto change = [=](char c) { return c == find ? replacement : c; };
    if (text.PLAIN()) return MappedLow(text, change);
    UTF16 result = text;
    for (NAT i = 1; i <= text.LENGTH(); ++i)
        if (text.IS(i, find)) result.PUTCHAR(i, {static_cast<BYTE>(replacement), 0});
    return result;
}

std::string ASCIICLEAN_HARD(std::string_view bytes) {
    std::string clean(bytes);
    for (char &c : clean)
        if (static_cast<BYTE>(c) < 32 || static_cast<BYTE>(c) > 127) c = ' ';
    return clean;
}
} // namespace morvane
