#include "script/module/binary_text.hpp"

#include "foundation/base/byte_scan.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "script/file/file.hpp"
#include "script/module/text_target.hpp"

#include <bit>
#include <charconv>
#include <cmath>

namespace morvane {
namespace {
using KIND = BINARY_FORM::KIND;

struct FORM_WORD {
    std::string_view word;
    BINARY_FORM form;
};

constexpr FORM_WORD FORM_WORDS[] = {
    {"byte", {KIND::UNSIGNED, 1}},        {"signbyte", {KIND::SIGNED, 1}},
    {"word", {KIND::UNSIGNED, 2}},        {"signword", {KIND::SIGNED, 2}},
    {"longword", {KIND::UNSIGNED, 4}},    {"signlongword", {KIND::SIGNED, 4}},
    {"quadword", {KIND::UNSIGNED, 8}},    {"signquadword", {KIND::SIGNED, 8}},
    {"single", {KIND::FLOATING, 4}},      {"double", {KIND::FLOATING, 8}},
    {"extended", {KIND::FLOATING, 10}},   {"rgb", {KIND::UNSIGNED, 1, 3}},
    {"rgba", {KIND::UNSIGNED, 1, 4}},     {"wordrgb", {KIND::UNSIGNED, 2, 3}},
    {"wordrgba", {KIND::UNSIGNED, 2, 4}}, {"hex", {KIND::DIGITS, 1}},
};

// The first `count` bytes, at most 8, as one number.
std::uint64_t Whole(const char *bytes, NAT count, bool isBigEndian) {
    std::uint64_t value = 0;
    for (NAT i = 0; i < count; ++i)
        value = value << 8 | static_cast<BYTE>(bytes[isBigEndian ? i : count - 1 - i]);
    return value;
}

// 80 bits: a sign, 15 bits of exponent, 64 bits of mantissa with its leading one.
REAL Extended(const char *bytes, bool isBigEndian) {
    const std::uint64_t mantissa = Whole(bytes + (isBigEndian ? 2 : 0), 8, isBigEndian);
    const std::uint64_t top = Whole(bytes + (isBigEndian ? 0 : 8), 2, isBigEndian);
    const int exponent = static_cast<int>(top & 0x7FFF);
    REAL value = std::ldexp(static_cast<REAL>(mantissa), exponent - 16383 - 63);
    if (exponent == 0x7FFF) value = mantissa << 1 == 0 ? HUGE_VAL : std::nan("");
    return top & 0x8000 ? -value : value;
}

// The shortest digits that give the same value again.
template <class NUMBER> void PutNumber(std::string &out, NUMBER value) {
    char digits[32];
    const auto end = std::to_chars(digits, digits + sizeof digits, value);
    const std::size_t start = out.size();
    out.append(digits, end.ptr);
    const std::size_t point = out.find('.', start);
    if (!FORMAT.DECIMAL && point != std::string::npos) out[point] = ',';
}

void PutReal(std::string &out, const BINARY_FORM &form, const char *bytes) {
    if (form.bytes == 10) return PutNumber(out, Extended(bytes, form.isBigEndian));
    const std::uint64_t bits = Whole(bytes, form.bytes, form.isBigEndian);
    if (form.bytes == 8) return PutNumber(out, std::bit_cast<REAL>(bits));
    PutNumber(out, std::bit_cast<float>(static_cast<std::uint32_t>(bits)));
}

void PutWhole(std::string &out, const BINARY_FORM &form, const char *bytes) {
    const std::uint64_t value = Whole(bytes, form.bytes, form.isBigEndian);
    if (form.kind == KIND::UNSIGNED) return PutNumber(out, value);
    const auto unused = static_cast<int>(64 - 8 * form.bytes);
    PutNumber(out, static_cast<NAT>(value << unused) >> unused);
}

void PutPart(std::string &out, const BINARY_FORM &form, const char *bytes) {
    switch (form.kind) {
    case KIND::FLOATING: return PutReal(out, form, bytes);
    case KIND::UNSIGNED:
    case KIND::SIGNED: return PutWhole(out, form, bytes);
    case KIND::DIGITS:
        out += HEX[static_cast<BYTE>(*bytes) / 16];
        out += HEX[static_cast<BYTE>(*bytes) % 16];
    }
}

void WriteValues(const BINARY_REQUEST &request, std::string_view bytes, FILE_WRITE &target) {
    const auto size = static_cast<std::size_t>(request.form.bytes * request.form.parts);
    std::string value;
    NAT column = 0;
    for (; bytes.size() >= size; bytes.remove_prefix(size)) {
        value.clear();
        PUT_BINARY_VALUE(value, request.form, bytes.data());
        const bool endsLine = ++column == request.columns || bytes.size() < 2 * size;
        value += endsLine ? '\n' : '\t';
        if (endsLine) column = 0;
        target.WRITE(value);
    }
    if (!bytes.empty())
        WRITELN("  The last " + std::to_string(bytes.size()) + " bytes of (" +
                GETUTF8(request.file) + ") are no whole value!");
}
} // namespace

bool BINARY_FORM_OF(const UTF16 &word, BINARY_FORM &form) {
    constexpr std::string_view BIG = "big";
    const std::string lower = GETUTF8(LOWERCASE(word));
    const bool isBig = lower.starts_with(BIG);
    for (const FORM_WORD &row : FORM_WORDS) {
        if (lower.substr(isBig ? BIG.size() : 0) != row.word) continue;
        form = row.form;
        form.isBigEndian = isBig;
        return !isBig || form.bytes > 1;
    }
    return false;
}

void PUT_BINARY_VALUE(std::string &out, const BINARY_FORM &form, const char *bytes) {
    for (NAT part = 0; part < form.parts; ++part) {
        if (part > 0) out += FORMAT.DECIMAL ? ',' : ';';
        PutPart(out, form, bytes + part * form.bytes);
    }
}

bool BINARY_TO_TEXT(const BINARY_REQUEST &request) {
    TFILE file;
    if (!file.LOAD(request.file)) return false;
    if (request.header > file.SIZE()) {
        WRITELN("  File (" + GETUTF8(request.file) + ") is smaller than its header (" +
                std::to_string(request.header) + " bytes)!");
        return false;
    }
    FILE_WRITE target;
    if (!ASSIGNWRITE_BY_NAME(target, request.target)) return false;
    WriteValues(request, file.VIEW().substr(static_cast<std::size_t>(request.header)), target);
    return target.COMMIT();
}
} // namespace morvane
