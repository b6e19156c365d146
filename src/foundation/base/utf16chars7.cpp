#include "foundation/base/utf16chars7.hpp"

#include "foundation/base/byte_scan.hpp"

namespace morvane {
UTF16CHARS7::UTF16CHARS7(const UTF16 &text) {
    const std::string_view lows = SUBVIEW(text.LOWBYTES.VIEW(), 0, CAPACITY);
    lowLength = static_cast<BYTE>(lows.size());
    highLength = 0;
    COPY_BYTES(low, lows.data(), lows.size());
    low[lows.size()] = 0;
    ZERO_BYTES(high, lows.size() + 1);
    if (text.PLAIN()) return;
    const std::string_view highs = SUBVIEW(text.HIGHBYTES.VIEW(), 0, lowLength);
    if (!IS_ZERO(highs)) highLength = lowLength;
    COPY_BYTES(high, highs.data(), highs.size());
}

UTF16CHARS7::UTF16CHARS7(const UTF16CHARS7 &other) { Take(other); }

UTF16CHARS7 &UTF16CHARS7::operator=(const UTF16CHARS7 &other) {
    if (this != &other) Take(other);
    return *this;
}

void UTF16CHARS7::Take(const UTF16CHARS7 &other) {
    lowLength = other.lowLength;
    highLength = other.highLength;
    COPY_BYTES(low, other.low, lowLength + std::size_t{1});
    COPY_BYTES(high, other.high, lowLength + std::size_t{1});
}

UTF16 UTF16CHARS7::GET() const {
    if (lowLength == 0) return {};
    return {STRING8(std::string_view(low, lowLength)),
            highLength == 0 ? STRING8::FILLED(lowLength, 0)
                            : STRING8(std::string_view(high, highLength))};
}

bool operator==(const UTF16CHARS7 &a, const UTF16CHARS7 &b) {
    return a.lowLength == b.lowLength && a.highLength == b.highLength &&
           std::memcmp(a.low, b.low, a.lowLength) == 0 &&
           (a.highLength == 0 || std::memcmp(a.high, b.high, a.lowLength) == 0);
}

bool operator==(const UTF16CHARS7 &a, const UTF16 &b) {
    return a.LENGTH() == b.LENGTH() && a == UTF16CHARS7(b);
}

bool operator<(const UTF16CHARS7 &a, const UTF16CHARS7 &b) { return a.GET() < b.GET(); }

void REPLACE(UTF16CHARS7 &text, const UTF16 &find, const UTF16 &replacement) {
    UTF16 changed = text.GET();
    REPLACE(changed, find, replacement);
    text = UTF16CHARS7(changed);
}
} // namespace morvane
