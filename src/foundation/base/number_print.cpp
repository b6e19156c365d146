#include "foundation/base/number_print.hpp"

#include "foundation/base/byte_scan.hpp"
#include "foundation/base/number_text.hpp"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace morvane {
namespace {
constexpr NAT DIGITS = 17;          // significant digits of a printed real
constexpr NAT MOST_DECIMALS = 1100; // behind these there are only zeros, which are cut again
using BUFFER = std::array<char, 1600>;

void AppendWhole(std::string &out, NAT value) {
    std::array<char, 24> buffer;
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    out.append(buffer.data(), end);
}

void AppendFixed(std::string &out, REAL value, NAT decimals) {
    BUFFER buffer;
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::fixed, static_cast<int>(decimals));
    out.append(buffer.data(), end);
}

// The value in 17 significant digits with zeros behind, laid out with so many decimals; for values
// that have more places than that.
void AppendDigits(std::string &out, std::string_view digits, NAT exponent, NAT decimals) {
    const auto zeros = [&out](NAT count) {
        if (count > 0) out.append(static_cast<std::size_t>(count), '0');
    };
    const NAT before = exponent + 1; // digits before the point
    if (before <= 0) {
        out += "0.";
        zeros(-before);
        out += digits;
        zeros(decimals + before - DIGITS);
        return;
    }
    out += SUBVIEW(digits, 0, before);
    zeros(before - DIGITS);
    if (decimals == 0) return;
    out += '.';
    const std::string_view fraction = SUBVIEW(digits, before, DIGITS);
    out += fraction;
    zeros(decimals - static_cast<NAT>(fraction.size()));
}

// The value with so many decimals. Digits behind the 17th are zeros.
void AppendReal(std::string &out, REAL value, NAT decimals) {
    const REAL size = std::abs(value);
    // 16 decimals of a value below 10 never reach behind the 17th digit.
    if (size < 10 && decimals < DIGITS) return AppendFixed(out, value, decimals);
    std::array<char, 32> buffer; // d.dddddddddddddddde+xxx
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), size,
                                            std::chars_format::scientific, DIGITS - 1);
    NAT exponent = 0;
    const char *mark = buffer.data() + DIGITS + 2; // the sign of the exponent
    std::from_chars(mark + 1, end, exponent);
    if (*mark == '-') exponent = -exponent;
    if (decimals <= DIGITS - 1 - exponent) return AppendFixed(out, value, decimals);
    buffer[1] = buffer[0]; // the digits without their point
    if (std::signbit(value)) out += '-';
    AppendDigits(out, {buffer.data() + 1, DIGITS}, exponent, decimals);
}

// Cuts a run of zeros that ends at the offset, and all behind it.
void CutZeroRun(std::string &out, std::size_t last) {
    while (last > 0 && out[last - 1] == '0')
        --last;
    out.resize(last);
}

// CUTZEROTAIL on what stands in `out` from the position on: zeros at the end, with up to two digits
// of noise behind them, when the point stands in the first half of the text.
void CutTail(std::string &out, std::size_t from) {
    const std::size_t length = out.size() - from, point = out.find('.', from);
    if (point != out.npos && 2 * (point - from + 1) < length) {
        const std::size_t end = out.size();
        for (std::size_t noise = 0; noise <= 2; ++noise)
            if (out[end - 1 - noise] == '0') {
                CutZeroRun(out, end - 1 - noise);
                break;
            }
    }
    if (out.back() == '.') out.pop_back();
    if (out.compare(from, out.npos, "-0") == 0) out.erase(from, 1);
}

// A decimal comma where FORMAT asks for one.
void Localise(std::string &out, std::size_t from) {
    if (!FORMAT.DECIMAL)
        std::replace(out.begin() + static_cast<std::ptrdiff_t>(from), out.end(), '.', ',');
}

// The last steps of every printed real.
void Finish(std::string &out, std::size_t from) {
    if (FORMAT.SCIENTIFIC) MAKE_SCIENTIFIC(out, from);
    Localise(out, from);
}
} // namespace

void PRINT_PLAIN(std::string &out, REAL value) {
    if (PRINTS_WHOLE(value)) return AppendWhole(out, static_cast<NAT>(value));
    PRINT_PLAIN(out, value, DIGITS - 1);
}

void PRINT_PLAIN(std::string &out, REAL value, NAT decimals) {
    const std::size_t from = out.size();
    if (!std::isfinite(value)) {
        out += '0';
        return;
    }
    AppendReal(out, value, std::clamp<NAT>(decimals, 0, MOST_DECIMALS));
    CutTail(out, from);
}

void PRINT(std::string &out, REAL value) {
    const std::size_t from = out.size();
    PRINT_PLAIN(out, value);
    Finish(out, from);
}

void PRINT(std::string &out, REAL value, NAT decimals) {
    if (decimals < 0) return PRINT_EXPONENT(out, value, DIGITS);
    const std::size_t from = out.size();
    PRINT_PLAIN(out, value, decimals);
    Finish(out, from);
}

void PRINT_EXPONENT(std::string &out, REAL value, NAT digits) {
    if (value == 0 || !std::isfinite(value)) {
        out += '0';
        return;
    }
    const std::size_t from = out.size();
    std::array<char, 40> buffer;
    const int precision = static_cast<int>(std::clamp<NAT>(digits, 1, DIGITS)) - 1;
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::scientific, precision);
    out.append(buffer.data(), end);
    const std::size_t mark = out.find('e', from);
    NAT exponent = 0;
    std::from_chars(out.data() + mark + 2, out.data() + out.size(), exponent);
    if (out[mark + 1] == '-') exponent = -exponent;
    out.resize(mark);
    if (precision > 0) out.resize(out.find_last_not_of('0') + 1);
    if (out.back() == '.') out.pop_back();
    out += 'E';
    AppendWhole(out, exponent);
    Localise(out, from);
}

void PRINT(std::string &out, NAT value) {
    const std::size_t from = out.size();
    AppendWhole(out, value);
    if (FORMAT.SCIENTIFIC)
        MAKE_SCIENTIFIC(out, from);
    else if (FORMAT.DIGIT)
        GROUP_DIGITS(out, from);
}

namespace {
// "E" and the exponent in place of the zeros at the end of a whole number.
void MakeWholeScientific(std::string &out, std::size_t from) {
    const std::size_t last = out.find_last_not_of('0');
    const bool whole = out.find_first_not_of("0123456789", from + (out[from] == '-')) == out.npos;
    if (!whole || last == out.npos || last < from || !IS_DIGIT(out[last])) return;
    const NAT zeros = static_cast<NAT>(out.size() - last) - 1;
    if (zeros == 0) return;
    out.resize(last + 1);
    out += 'E';
    AppendWhole(out, zeros);
}
} // namespace

void MAKE_SCIENTIFIC(std::string &out, std::size_t from) {
    if (out.size() <= from + 1) return;
    const std::size_t point = out.find('.', from);
    if (point == out.npos) return MakeWholeScientific(out, from);
    const std::size_t digits = out.find_first_not_of('0', point + 1);
    if (digits == out.npos) {
        out.resize(point);
        return MakeWholeScientific(out, from);
    }
    const std::string_view whole = std::string_view(out).substr(from, point - from);
    if (whole != "0" && whole != "-0") return;
    const NAT places = static_cast<NAT>(out.size() - point) - 1;
    const std::size_t sign = whole.size() - 1; // one character of "-"
    out.erase(from + sign, digits - from - sign);
    out += "E-";
    AppendWhole(out, places);
}

void GROUP_DIGITS(std::string &out, std::size_t from) {
    const std::size_t first = from + (out[from] == '-');
    for (std::size_t at = out.size(); at > first + 3;) {
        at -= 3;
        out.insert(at, 1, FORMAT.DECIMAL ? ',' : '.');
    }
}
} // namespace morvane
