#include "script/engine/nearest.hpp"

#include <algorithm>
#include <array>

namespace morvane {
namespace {
constexpr std::size_t MOST_EDITS = 3, NOT_NEAR = MOST_EDITS + 1;
constexpr std::size_t LONGEST_WORD = 254; // no name is longer
// What a name costs beside its edits; edits count twice, so that a plain slip comes first.
constexpr std::size_t NO_SPACE = 2, OTHER_SPACE = 3, BEGINNING = 5, FAR = 100;

char Lower(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

std::string LowerOf(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), Lower);
    return lower;
}

// One bit for each of 64 groups of letters that stand in the text.
std::uint64_t LettersOf(std::string_view text) {
    std::uint64_t letters = 0;
    for (const char c : text)
        letters |= std::uint64_t{1} << (static_cast<unsigned char>(c) & 63U);
    return letters;
}

// Whether more than `most` bits are set; a few steps where a count of all would be a call.
bool MoreThan(std::size_t most, std::uint64_t bits) {
    while (bits != 0 && most > 0) {
        bits &= bits - 1;
        --most;
    }
    return bits != 0;
}

// A third of the letters may differ; of one or two letters none.
std::size_t EditsFor(std::size_t length) {
    if (length < 3) return 0;
    return std::min(MOST_EDITS, length < 6 ? 1 : length / 3);
}

struct SPLIT_NAME {
    std::string_view space, rest;
};

SPLIT_NAME SplitName(std::string_view name) {
    const std::size_t point = name.find('.');
    if (point == std::string_view::npos) return {{}, name};
    return {name.substr(0, point), name.substr(point + 1)};
}

// One word of the search beside the parts it is compared with.
struct PART_SEARCH {
    std::string_view text;
    std::uint64_t letters;
    std::size_t most;

    std::size_t DistanceTo(std::string_view other, std::uint64_t otherLetters) const {
        const std::size_t gap =
            text.size() > other.size() ? text.size() - other.size() : other.size() - text.size();
        if (gap > most) return NOT_NEAR;
        if (MoreThan(most, letters & ~otherLetters) || MoreThan(most, otherLetters & ~letters))
            return NOT_NEAR;
        const std::size_t distance = SPELLING_DISTANCE(text, other, most);
        return distance > most ? NOT_NEAR : distance;
    }
};

// The last part of a longer name, or the word as the beginning of a name.
bool EndsWithPart(std::string_view name, std::string_view part) {
    return name.size() > part.size() && name.ends_with(part) &&
           name[name.size() - part.size() - 1] == '.';
}
bool Begins(std::string_view name, std::string_view word) {
    return word.size() >= 3 && name.size() > word.size() && name.starts_with(word);
}
} // namespace

std::size_t SPELLING_DISTANCE(std::string_view a, std::string_view b, std::size_t most) {
    if (a.size() > LONGEST_WORD || b.size() > LONGEST_WORD) return most + 1;
    if (a.size() > b.size() + most || b.size() > a.size() + most) return most + 1;
    // The last three rows of the matrix; only a band of it can stay below the limit.
    std::array<std::array<std::size_t, LONGEST_WORD + 1>, 3> rows;
    const std::size_t far = most + 1;
    for (std::size_t j = 0; j <= std::min(b.size(), far); ++j)
        rows[0][j] = j;
    for (std::size_t i = 1; i <= a.size(); ++i) {
        auto &row = rows[i % 3];
        const auto &above = rows[(i + 2) % 3], &beforeThat = rows[(i + 1) % 3];
        const std::size_t first = i > far ? i - far : 1, last = std::min(b.size(), i + most);
        row[first - 1] = first == 1 ? i : far;
        std::size_t least = row[first - 1];
        for (std::size_t j = first; j <= last; ++j) {
            row[j] = std::min(row[j - 1] + 1, above[j - 1] + (a[i - 1] != b[j - 1] ? 1U : 0U));
            row[j] = std::min(row[j], above[j] + 1);
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                row[j] = std::min(row[j], beforeThat[j - 2] + 1);
            least = std::min(least, row[j]);
        }
        if (last < b.size()) row[last + 1] = far;
        if (least > far) return far; // a swap may still save one
    }
    return std::min(rows[a.size() % 3][b.size()], far);
}

std::size_t NAME_INDEX::PARTS::Put(const std::string &text) {
    const auto [place, isNew] = offsets.try_emplace(text, texts.size());
    if (isNew) {
        texts.push_back(text);
        letters.push_back(LettersOf(text));
    }
    return place->second;
}

NAME_INDEX::NAME_INDEX(std::span<const std::string_view> known) {
    std::map<std::string, bool, std::less<>> seen;
    names.reserve(known.size());
    for (const std::string_view name : known) {
        if (name.empty() || !seen.try_emplace(std::string(name), true).second) continue;
        const SPLIT_NAME parts = SplitName(name);
        names.push_back({std::string(name), spaces.Put(std::string(parts.space)),
                         rests.Put(std::string(parts.rest))});
    }
}

namespace {
// A word with what is asked of every name.
struct WORD_SEARCH {
    SPLIT_NAME parts;
    std::uint64_t letters, restLetters;
    std::size_t wholeMost, restMost; // edits

    explicit WORD_SEARCH(std::string_view word)
        : parts(SplitName(word)), letters(LettersOf(word)), restLetters(LettersOf(parts.rest)),
          wholeMost(EditsFor(word.size())), restMost(EditsFor(parts.rest.size())) {}

    // What a name costs, by the edits of its two parts. `other` holds the letters of the name's
    // rest, `all` those of the whole name.
    std::size_t Cost(std::string_view name, std::size_t spaceEdits, std::size_t restEdits,
                     std::uint64_t other, std::uint64_t all) const {
        if (restEdits < NOT_NEAR) return CostOfRest(name, spaceEdits, restEdits);
        const bool inside = (restLetters & ~other) == 0;
        const bool whole =
            parts.space.empty() && wholeMost > 0 && !MoreThan(wholeMost, letters & ~all);
        if (!inside && !whole) return FAR;
        const SPLIT_NAME known = SplitName(name);
        if (spaceEdits == 0 && Begins(known.rest, parts.rest)) return BEGINNING;
        if (EndsWithPart(known.rest, parts.rest)) {
            if (parts.space.empty()) return BEGINNING + 1;
            if (spaceEdits == 0) return BEGINNING;
        }
        if (!whole || known.space.empty()) return FAR;
        const std::size_t edits = SPELLING_DISTANCE(parts.rest, name, wholeMost);
        return edits <= wholeMost ? 2 * edits : FAR;
    }

private:
    std::size_t CostOfRest(std::string_view name, std::size_t spaceEdits,
                           std::size_t restEdits) const {
        if (spaceEdits < NOT_NEAR) return 2 * (restEdits + spaceEdits);
        const bool plain = parts.space.empty() || name.find('.') == std::string_view::npos;
        if (plain) return 2 * restEdits + NO_SPACE;
        return restEdits == 0 ? OTHER_SPACE : FAR;
    }
};
} // namespace

std::vector<std::size_t> NAME_INDEX::PARTS::Distances(std::string_view part,
                                                      std::size_t most) const {
    const PART_SEARCH search{part, LettersOf(part), most};
    std::vector<std::size_t> edits(texts.size());
    for (std::size_t i = 0; i < edits.size(); ++i)
        edits[i] = search.DistanceTo(texts[i], letters[i]);
    return edits;
}

std::vector<std::string> NAME_INDEX::NEAREST(std::string_view word, std::size_t count) const {
    if (word.size() > LONGEST_WORD) return {};
    const std::string lower = LowerOf(word);
    const WORD_SEARCH search(lower);
    // Behind the right namespace a rest of two letters may have one slip: print.rd.
    const std::size_t shortMost = search.parts.rest.size() == 2 ? 1 : search.restMost;
    const std::vector<std::size_t> spaceEdits =
        spaces.Distances(search.parts.space, EditsFor(search.parts.space.size()));
    const std::vector<std::size_t> restEdits = rests.Distances(search.parts.rest, shortMost);
    // A word of several parts that lacks its namespace: labels.dump.
    const std::vector<std::size_t> wholeEdits =
        search.parts.space.empty() ? std::vector<std::size_t>(rests.texts.size(), NOT_NEAR)
                                   : rests.Distances(lower, search.wholeMost);
    std::vector<std::pair<std::size_t, std::size_t>> found; // cost, offset
    for (std::size_t i = 0; i < names.size(); ++i) {
        const NAME &name = names[i];
        const std::size_t space = spaceEdits[name.space];
        std::size_t rest = restEdits[name.rest];
        if (space == 0 && rest == 0) continue; // the word itself
        if (rest > search.restMost && (space > 0 || rests.texts[name.rest].size() < 2))
            rest = NOT_NEAR;
        const std::uint64_t other = rests.letters[name.rest];
        std::size_t cost =
            search.Cost(name.text, space, rest, other, other | spaces.letters[name.space]);
        if (const std::size_t whole = wholeEdits[name.rest]; whole < NOT_NEAR)
            cost = std::min(cost, 2 * whole + NO_SPACE);
        if (cost < FAR) found.emplace_back(cost, i);
    }
    std::sort(found.begin(), found.end());
    std::vector<std::string> nearest;
    for (const auto &[cost, offset] : found) {
        // Much farther ones are no help beside a near one.
        if (nearest.size() >= count || cost > found.front().first + 2) break;
        nearest.push_back(names[offset].text);
    }
    return nearest;
}

std::vector<std::string> NEAREST_NAMES(std::string_view word,
                                       std::span<const std::string_view> names, std::size_t count) {
    return NAME_INDEX(names).NEAREST(word, count);
}

std::string NEAREST_LINE(std::span<const std::string> names) {
    std::string line;
    for (const std::string &name : names)
        line += (line.empty() ? "  Nearest: " : ", ") + name;
    return line;
}
} // namespace morvane
