#pragma once

#include "script/file/file_text.hpp"

namespace morvane {
// A line of a text file and the bytes of its end: none, one or two.
struct TEXT_LINE {
    std::string_view text, end;
};

inline TEXT_LINE LINE_OF(const TFILEREADTEXT &file, NAT line) {
    const std::string_view text = file.GETVIEW(line);
    const NAT behind = line < file.LENGTH() ? file.POSGET(line + 1) - 1 : file.SIZE();
    const auto end = static_cast<std::size_t>(file.POSGET(line) - 1) + text.size();
    return {text, file.VIEW().substr(end, static_cast<std::size_t>(behind) - end)};
}

// Whether a line holds the text; no line holds an empty one.
inline bool HOLDS(std::string_view line, std::string_view text) {
    return !text.empty() && line.find(text) != std::string_view::npos;
}
} // namespace morvane
