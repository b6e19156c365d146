#include "app/help_layout.hpp"

#include "foundation/console/console.hpp"

#include <algorithm>
#include <sys/ioctl.h>
#include <unistd.h>

namespace morvane {
namespace {
constexpr std::size_t WIDEST = 100, NARROWEST = 40, WIDEST_LABEL = 40, GAP = 2;

std::string Coloured(std::string_view text, std::string_view code) {
    return COLOURS() ? std::string(code) + std::string(text) + "\x1b[0m" : std::string(text);
}

// Lines from column `start` on, the label before the first; one too long has a line of its own.
void WriteLines(std::string_view label, std::size_t start, const std::vector<std::string> &lines) {
    std::string head;
    std::size_t used = 0;
    if (!label.empty()) {
        head = std::string(GAP, ' ') + Coloured(label, "\x1b[32m");
        used = GAP + TEXT_WIDTH(label);
    }
    if (used + GAP > start) {
        WRITELN(head);
        head.clear();
        used = 0;
    }
    for (const std::string &line : lines) {
        WRITELN(line.empty() ? head : head + std::string(start - used, ' ') + line);
        head.clear();
        used = 0;
    }
}
} // namespace

std::size_t HELP_WIDTH() {
    winsize size{};
    if (!ISTERMINAL() || ::ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) != 0 || size.ws_col == 0)
        return WIDEST;
    return std::clamp<std::size_t>(size.ws_col, NARROWEST, WIDEST);
}

std::size_t TEXT_WIDTH(std::string_view utf8) {
    return static_cast<std::size_t>(std::ranges::count_if(
        utf8, [](char letter) { return (static_cast<unsigned char>(letter) & 0xC0) != 0x80; }));
}

std::vector<std::string> WRAP(std::string_view text, std::size_t width) {
    std::vector<std::string> lines(1);
    while (!text.empty()) {
        const std::string_view word = text.substr(0, text.find(' '));
        text.remove_prefix(std::min(text.size(), word.size() + 1));
        if (word.empty()) continue;
        if (!lines.back().empty() && TEXT_WIDTH(lines.back()) + 1 + TEXT_WIDTH(word) > width)
            lines.emplace_back();
        lines.back() += (lines.back().empty() ? "" : " ") + std::string(word);
    }
    return lines;
}

void WRITE_HEADING(std::string_view text) { WRITELN(Coloured(text, "\x1b[1m")); }

void WRITE_COLUMN(std::string_view label, std::size_t labelWidth, std::string_view text) {
    const std::size_t start = GAP + labelWidth + GAP, width = HELP_WIDTH();
    WriteLines(label, start, WRAP(text, width > start + 20 ? width - start : 20));
}

void WRITE_FIXED(std::string_view label, std::size_t labelWidth, std::string_view text) {
    WriteLines(label, GAP + labelWidth + GAP, {std::string(text)});
}

void WRITE_COLUMNS(const std::vector<HELP_LINE> &lines) {
    std::size_t labelWidth = 0;
    for (const HELP_LINE &line : lines)
        if (const std::size_t width = TEXT_WIDTH(line.label); width <= WIDEST_LABEL)
            labelWidth = std::max(labelWidth, width);
    for (const HELP_LINE &line : lines)
        WRITE_COLUMN(line.label, labelWidth, line.text);
}
} // namespace morvane
