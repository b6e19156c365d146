#include "geometry/format/line_writer.hpp"

#include <array>
#include <cmath>

namespace morvane {
namespace {
constexpr std::size_t PIECE = 1 << 16;
constexpr NAT SHOW_STEP = 64; // parts between two looks at the clock
} // namespace

LINE_WRITER::LINE_WRITER(const UTF16 &name, const UTF16 &progressLabel) : label(progressLabel) {
    ASSIGNWRITE(file, name);
}

LINE_WRITER &LINE_WRITER::operator<<(std::string_view text) {
    pending += text;
    if (pending.size() >= PIECE) FLUSH();
    return *this;
}

LINE_WRITER &LINE_WRITER::operator<<(NAT value) {
    std::array<char, 24> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    return *this << std::string_view(digits.data(), end);
}

LINE_WRITER &LINE_WRITER::operator<<(REAL value) {
    const REAL plain = value + 0.0; // no -0
    const REAL size = std::abs(plain);
    const bool isOrdinary = size == 0 || (size >= 1e-6 && size < 1e17);
    std::array<char, 64> digits;
    const auto end =
        std::to_chars(digits.data(), digits.data() + digits.size(), plain,
                      isOrdinary ? std::chars_format::fixed : std::chars_format::general)
            .ptr;
    return *this << std::string_view(digits.data(), end);
}

void LINE_WRITER::BYTES(const void *bytes, std::size_t count) {
    *this << std::string_view(static_cast<const char *>(bytes), count);
}

void LINE_WRITER::SHOW(NAT done, NAT all) {
    if (label.EMPTY() || (isShown && done % SHOW_STEP != 0)) return;
    isShown = true;
    PROGRESS(label, all < 1 ? 1 : static_cast<REAL>(done) / static_cast<REAL>(all));
}

void LINE_WRITER::LABEL(const UTF16 &progressLabel) {
    if (isShown) PROGRESS();
    isShown = false;
    label = progressLabel;
}

bool LINE_WRITER::COMMIT() {
    FLUSH();
    LABEL({});
    return file.COMMIT();
}

void LINE_WRITER::FLUSH() {
    file.WRITE(pending);
    pending.clear();
}

std::string PADDED(NAT value, NAT width) {
    std::string digits = std::to_string(value);
    const auto wanted = static_cast<std::size_t>(width < 0 ? 0 : width);
    if (digits.size() < wanted) digits.insert(0, wanted - digits.size(), '0');
    return digits;
}

NAT DIGITS(NAT value) { return static_cast<NAT>(std::to_string(value).size()); }
} // namespace morvane
