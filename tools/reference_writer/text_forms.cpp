#include "text_forms.hpp"

#include <cstdio>

namespace morvane {
namespace {
// One code point of valid UTF-8 from `offset`, which moves behind it.
unsigned TAKE_CODE_POINT(std::string_view text, std::size_t &offset) {
    const auto byte = [&](std::size_t i) {
        return i < text.size() ? static_cast<unsigned char>(text[i]) : 0U;
    };
    const unsigned first = byte(offset);
    const unsigned more = first < 0xC0 ? 0 : first < 0xE0 ? 1 : first < 0xF0 ? 2 : 3;
    unsigned code = more == 0 ? first : first & (0x3FU >> more);
    for (unsigned i = 1; i <= more; ++i)
        code = code << 6 | (byte(offset + i) & 0x3FU);
    offset += more + 1;
    return code;
}

std::string HEX(const char *format, unsigned code) {
    char text[32];
    std::snprintf(text, sizeof text, format, code);
    return text;
}
} // namespace

std::string REPLACED(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    for (;;) {
        const std::size_t place = text.find(from);
        result += text.substr(0, place);
        if (place == std::string_view::npos) return result;
        result += to;
        text.remove_prefix(place + from.size());
    }
}

std::string JOINED(const std::vector<std::string> &words, std::string_view between) {
    std::string result;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (i > 0) result += between;
        result += words[i];
    }
    return result;
}

std::string WRAPPED(const std::vector<std::string> &words, std::string_view indent) {
    constexpr std::size_t COLUMNS = 100;
    std::string result, line(indent);
    for (const std::string &word : words) {
        if (line.size() > indent.size() && line.size() + word.size() + 1 > COLUMNS) {
            result += line + "\n";
            line = indent;
        }
        if (line.size() > indent.size()) line += " ";
        line += word;
    }
    return line.size() > indent.size() ? result + line + "\n" : result;
}

std::string MARKDOWN_TEXT(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '<')
            result += "&lt;";
        else if (c == '>')
            result += "&gt;";
        else if (c == '&')
            result += "&amp;";
        else if (std::string_view("|*_`[]\\").find(c) != std::string_view::npos)
            (result += '\\') += c;
        else
            result += c;
    }
    return result;
}

std::string MARKDOWN_CODE(std::string_view text) {
    // A table is cut at every bar, also inside code.
    const std::string inner = REPLACED(text, "|", "\\|");
    return inner.find('`') == std::string::npos ? "`" + inner + "`" : "`` " + inner + " ``";
}

std::string ROFF_TEXT(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
        const bool first = i == 0;
        const unsigned code = TAKE_CODE_POINT(text, i);
        if (code > 126)
            result += HEX("\\[u%04X]", code);
        else if (code == '\\')
            result += "\\e";
        else if (code == '-')
            result += "\\-";
        else if (code == '^' || code == '~' || code == '\'' || code == '`')
            result += code == '^'   ? "\\(ha"
                      : code == '~' ? "\\(ti"
                      : code == '`' ? "\\(ga"
                                    : "\\(aq";
        else if (code == '"')
            result += "\\(dq";
        else {
            if (first && code == '.') result += "\\&";
            result += static_cast<char>(code);
        }
    }
    return result;
}

std::string SHELL_QUOTED(std::string_view text) { return "'" + REPLACED(text, "'", "'\\''") + "'"; }

std::string JSON_QUOTED(std::string_view text) {
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            (result += '\\') += c;
        else if (static_cast<unsigned char>(c) < 0x20)
            result += HEX("\\u%04x", static_cast<unsigned char>(c));
        else
            result += c;
    }
    return result + "\"";
}

std::string REGEX_TEXT(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (std::string_view("\\^$.|?*+()[]{}/").find(c) != std::string_view::npos) result += '\\';
        result += c;
    }
    return result;
}

std::string REGEX_ANY(const std::vector<std::string> &words) {
    std::vector<std::string> escaped;
    escaped.reserve(words.size());
    for (const std::string &word : words)
        escaped.push_back(REGEX_TEXT(word));
    return JOINED(escaped, "|");
}
} // namespace morvane
