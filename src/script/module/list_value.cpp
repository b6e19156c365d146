#include "script/module/list_value.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace morvane::list {
namespace {
UTF16 Component(std::initializer_list<REAL> components, NAT part) {
    if (part < 1 || part > static_cast<NAT>(components.size())) return {};
    return GETSTRING(components.begin()[part - 1]);
}

// The shortest digits that read back equal, with the point of FORMAT. The readers know no name
// for infinity, but a product beyond the range gives it; what is no number is 0, as it is shown.
std::string Digits(REAL value) {
    if (std::isnan(value)) return "0";
    if (std::isinf(value)) return value < 0 ? "-1e308*10" : "1e308*10";
    std::array<char, 32> buffer{};
    char *const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    if (!FORMAT.DECIMAL) std::replace(buffer.data(), end, '.', ',');
    return {buffer.data(), end};
}

// Without brackets: behind the last number one would make it an expression, which reads no
// exponent below zero.
std::string Digits(std::initializer_list<REAL> components) {
    std::string text;
    for (const REAL component : components) {
        if (!text.empty()) text += FORMAT.DECIMAL ? ", " : "; ";
        text += Digits(component);
    }
    return text;
}

template <class T> std::string ExactText(const T &value, const std::string &digits) {
    const UTF16 usual = GETSTRING(value);
    return READ<T>(usual) == value ? GETUTF8(usual) : digits;
}
} // namespace

UTF16 PART(REAL value, NAT part) { return Component({value}, part); }
UTF16 PART(NAT value, NAT part) { return part == 1 ? GETSTRING(value) : UTF16(); }
UTF16 PART(const COMPLEX &value, NAT part) { return Component({value.x, value.y}, part); }
UTF16 PART(const VECTOR &value, NAT part) { return Component({value.x, value.y, value.z}, part); }
UTF16 PART(const HYPER &value, NAT part) {
    return Component({value.x, value.y, value.z, value.w}, part);
}

UTF16 PART(const UTF16CHARS7 &value, NAT part) {
    if (part < 1 || part > value.LENGTH() + 1) return {};
    UTF16 rest = value.GET();
    for (NAT i = 1; i < part; ++i)
        SPLIT(rest, "\t");
    return SPLIT(rest, "\t");
}

std::string EXACT(REAL value) { return ExactText(value, Digits(value)); }
std::string EXACT(NAT value) { return std::to_string(value); }
std::string EXACT(const COMPLEX &value) { return ExactText(value, Digits({value.x, value.y})); }
std::string EXACT(const VECTOR &value) {
    return ExactText(value, Digits({value.x, value.y, value.z}));
}
std::string EXACT(const HYPER &value) {
    return ExactText(value, Digits({value.x, value.y, value.z, value.w}));
}
} // namespace morvane::list
