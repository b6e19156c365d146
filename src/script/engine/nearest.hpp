#pragma once

#include <cstdint>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

// Which known names a misspelled one may stand for.
namespace morvane {
// Names parted at their first point and kept once, so that many words are compared with them in
// little time.
class NAME_INDEX {
public:
    NAME_INDEX() = default;
    explicit NAME_INDEX(std::span<const std::string_view> known);

    // At most `count` names, the nearest first, equal ones in the order of the index: spelled
    // nearly alike, the same behind another, a missing or a needless namespace, or the word as a
    // beginning. Empty when none is near. Case doesn't count; a name that is the word itself is
    // left out.
    std::vector<std::string> NEAREST(std::string_view word, std::size_t count) const;

private:
    // The distinct first or second parts of the names, each with the set of its letters.
    struct PARTS {
        std::vector<std::string> texts;
        std::vector<std::uint64_t> letters;
        std::map<std::string, std::size_t, std::less<>> offsets;
        std::size_t Put(const std::string &text);
        std::vector<std::size_t> Distances(std::string_view part, std::size_t most) const;
    };
    struct NAME {
        std::string text;
        std::size_t space, rest; // offsets of its parts; a name without a point has the space ""
    };
    PARTS spaces, rests;
    std::vector<NAME> names;
};

// The same for one word. The names are lower case.
std::vector<std::string> NEAREST_NAMES(std::string_view word,
                                       std::span<const std::string_view> names, std::size_t count);
// Edits that turn a into b: letters put in, taken out, exchanged, and neighbours swapped. A number
// above `most` means more than that many.
std::size_t SPELLING_DISTANCE(std::string_view a, std::string_view b, std::size_t most);
// "  Nearest: a, b" for a list; empty for an empty one.
std::string NEAREST_LINE(std::span<const std::string> names);
} // namespace morvane
