#include "foundation/base/number_print.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/record_operators.hpp"

#include <span>

// Records to text: a list in "<" and ">".
namespace morvane {
namespace {
UTF16 Ascii(std::string_view bytes) {
    return {STRING8(bytes), STRING8::FILLED(static_cast<NAT>(bytes.size()), 0)};
}

// The components with how each is printed, between "<" and ">".
template <class T, class PRINTER>
void AppendList(std::string &out, std::span<const T> values, PRINTER print) {
    const char *separator = "<";
    for (const T value : values) {
        out += separator;
        print(out, value);
        separator = FORMAT.DECIMAL ? ", " : "; ";
    }
    out += '>';
}

template <VALUE_RECORD R> auto Components(const R &r) {
    using PART = std::remove_cvref_t<decltype(r.x)>;
    if constexpr (components::COUNT<R> == 2)
        return std::array<PART, 2>{r.x, r.y};
    else if constexpr (components::COUNT<R> == 3)
        return std::array<PART, 3>{r.x, r.y, r.z};
    else
        return std::array<PART, 4>{r.x, r.y, r.z, r.w};
}

template <VALUE_RECORD R> void AppendRecord(std::string &out, const R &record) {
    const auto values = Components(record);
    using PART = typename decltype(values)::value_type;
    AppendList<PART>(out, values, [](std::string &to, PART value) { PRINT(to, value); });
}

template <VALUE_RECORD R> UTF16 RecordText(const R &record) {
    std::string text;
    AppendRecord(text, record);
    return Ascii(text);
}

template <REAL_RECORD R> UTF16 RecordText(const R &record, NAT decimals) {
    const auto values = Components(record);
    std::string text;
    AppendList<REAL>(text, values,
                     [=](std::string &to, REAL value) { PRINT(to, value, decimals); });
    return Ascii(text);
}

// Trailing zero components are left out; a single one stands without brackets.
template <VALUE_RECORD R, class PRINTER> UTF16 ShortText(const R &record, PRINTER print) {
    const auto values = Components(record);
    using PART = typename decltype(values)::value_type;
    std::size_t count = values.size();
    while (count > 1 && values[count - 1] == 0)
        --count;
    std::string text;
    if (count == 1)
        print(text, values[0]);
    else
        AppendList<PART>(text, std::span<const PART>(values).first(count), print);
    return Ascii(text);
}

template <std::size_t N, class ROW> UTF16 RowsText(const std::array<ROW, N> &rows) {
    std::string text;
    for (const ROW &row : rows) {
        text += text.empty() ? '(' : ';';
        AppendRecord(text, row);
    }
    return Ascii(text += ')');
}
} // namespace

UTF16 GETSTRING(const COMPLEX &value) { return RecordText(value); }
UTF16 GETSTRING(const VECTOR &value) { return RecordText(value); }
UTF16 GETSTRING(const HYPER &value) { return RecordText(value); }
UTF16 GETSTRING(const COMPLEX &value, NAT decimals) { return RecordText(value, decimals); }
UTF16 GETSTRING(const VECTOR &value, NAT decimals) { return RecordText(value, decimals); }
UTF16 GETSTRING(const HYPER &value, NAT decimals) { return RecordText(value, decimals); }
UTF16 GETSTRING(const COMPLEXNAT &value) { return RecordText(value); }
UTF16 GETSTRING(const VECTORNAT &value) { return RecordText(value); }
UTF16 GETSTRING(const HYPERNAT &value) { return RecordText(value); }
UTF16 GETSTRING(const MATRIX3 &value) { return RowsText(value.rows); }
UTF16 GETSTRING(const MATRIX4 &value) { return RowsText(value.rows); }

UTF16 GETSHORT(const VECTOR &value) {
    return ShortText(value, [](std::string &out, REAL part) { PRINT(out, part); });
}
UTF16 GETSHORT(const VECTOR &value, NAT places) {
    return ShortText(value, [=](std::string &out, REAL part) { PRINT(out, part, places); });
}
UTF16 GETSHORT(const HYPER &value) {
    return ShortText(value, [](std::string &out, REAL part) { PRINT(out, part); });
}
UTF16 GETSHORT(const HYPER &value, NAT places) {
    return ShortText(value, [=](std::string &out, REAL part) { PRINT(out, part, places); });
}
UTF16 GETSHORT(const HYPERNAT &value) {
    return ShortText(value, [](std::string &out, NAT part) { PRINT(out, part); });
}

UTF16 GETSTRING(const TIME &value) {
    constexpr std::array<const char *, 5> UNITS{" d", " h", " min", " sec", " 100sec"};
    const std::array<NAT, 5> parts{value.day, value.hour, value.minute, value.second,
                                   value.hundredth};
    std::size_t first = 0, last = 4;
    while (first < 4 && parts[first] == 0)
        ++first;
    while (last > 0 && parts[last] == 0)
        --last;
    if (parts[first] == 0) return UTF16("0 sec");
    std::string text;
    for (std::size_t i = first; i <= last; ++i) {
        if (i > first) text += ':';
        PRINT(text, parts[i]);
    }
    return Ascii(text += UNITS[first]);
}
} // namespace morvane
