#pragma once

#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"

#include <charconv>
#include <string>

namespace morvane {
// A line file under way. Text is gathered and handed on in large pieces. Numbers are written with
// a point and without grouping whatever FORMAT says, and so that they read back as the same value.
class LINE_WRITER {
public:
    // Opens `name`; `label` is the progress title.
    LINE_WRITER(const UTF16 &name, const UTF16 &progressLabel);

    bool OPEN() const { return file.OPEN(); }
    LINE_WRITER &operator<<(std::string_view text);
    LINE_WRITER &operator<<(char unit) { return *this << std::string_view(&unit, 1); }
    LINE_WRITER &operator<<(NAT value);
    LINE_WRITER &operator<<(REAL value);
    void BYTES(const void *bytes, std::size_t count);
    // Shows that `done` of `all` parts are written.
    void SHOW(NAT done, NAT all);
    void LABEL(const UTF16 &progressLabel); // another title from here on
    // Writes the rest, closes the progress line, and gives the file its name.
    [[nodiscard]] bool COMMIT();

private:
    void FLUSH();

    FILE_WRITE file;
    UTF16 label;
    std::string pending;
    bool isShown = false;
};

// A whole number with zeros in front, at least `width` digits.
std::string PADDED(NAT value, NAT width);
// The count of digits of a number above 0.
NAT DIGITS(NAT value);
} // namespace morvane
