#include "script/engine/row_parameters.hpp"

#include <algorithm>
#include <array>

namespace morvane {
namespace {
constexpr std::array<std::string_view, 11> KINDS = {
    "text", "file", "name", "number", "real", "flag", "vector", "point", "range", "pair", "hyper"};

// Reads a text from left to right; the first error ends the reading.
class READER {
public:
    explicit READER(std::string_view text) : rest(text) {}

    std::vector<PARAMETER_SEQUENCE> READ_ALL() {
        auto choices = READ_CHOICES();
        if (error.empty() && !rest.empty()) error = "\"" + std::string(rest) + "\" is left over";
        return choices;
    }
    std::string error;

private:
    void SKIP_BLANKS() { rest.remove_prefix(std::min(rest.find_first_not_of(' '), rest.size())); }
    bool TAKE(std::string_view sign) {
        SKIP_BLANKS();
        if (!rest.starts_with(sign)) return false;
        rest.remove_prefix(sign.size());
        SKIP_BLANKS();
        return true;
    }
    // Letters, digits and points up to the next sign of the grammar.
    std::string_view TAKE_WORD() {
        SKIP_BLANKS();
        const std::size_t end = std::min(rest.find_first_of(" ,:|[]"), rest.size());
        const std::string_view word = rest.substr(0, end);
        if (word == "...") return {};
        rest.remove_prefix(end);
        return word;
    }

    std::vector<PARAMETER_SEQUENCE> READ_CHOICES() {
        std::vector<PARAMETER_SEQUENCE> choices;
        do
            choices.push_back(READ_SEQUENCE());
        while (error.empty() && TAKE("|"));
        return choices;
    }
    // The comma beside a bracket may stand inside it: "[object: number,] name: text".
    PARAMETER_SEQUENCE READ_SEQUENCE() {
        PARAMETER_SEQUENCE parts;
        TAKE(",");
        bool expected = false; // something has to follow a comma
        while (error.empty() && !rest.empty() && rest.front() != ']' && rest.front() != '|') {
            parts.push_back(rest.front() == '[' ? READ_GROUP() : READ_ONE());
            parts.back().repeated = TAKE("...") || parts.back().repeated;
            const bool comma = TAKE(",");
            expected = comma;
            if (!comma && !parts.back().GROUP() && !rest.starts_with("[")) break;
        }
        if (expected && error.empty() && !rest.starts_with("]")) error = "nothing behind a comma";
        return parts;
    }
    PARAMETER_PART READ_GROUP() {
        PARAMETER_PART group;
        TAKE("[");
        group.choices = READ_CHOICES();
        if (!error.empty()) return group;
        if (!TAKE("]")) error = "a bracket is open";
        for (const PARAMETER_SEQUENCE &choice : group.choices)
            if (choice.empty() && error.empty()) error = "empty brackets";
        return group;
    }
    PARAMETER_PART READ_ONE() {
        PARAMETER_PART part;
        part.name = TAKE_WORD();
        if (part.name.empty() || !TAKE(":")) {
            error = "\"" + part.name + "\" has no kind";
            return part;
        }
        part.kind = TAKE_WORD();
        if (!IS_PARAMETER_KIND(part.kind)) error = "\"" + part.kind + "\" is no kind";
        part.unit = TAKE_UNIT();
        return part;
    }
    // Some words, or what stands in brackets without a colon: "mm", "[mm]".
    std::string TAKE_UNIT() {
        SKIP_BLANKS();
        const std::string_view inside = rest.substr(0, rest.find(']'));
        if (inside.starts_with('[') && inside.size() < rest.size() &&
            inside.find(':') == std::string_view::npos) {
            rest.remove_prefix(inside.size() + 1);
            return std::string(inside.substr(1));
        }
        std::string unit;
        for (std::string_view word = TAKE_WORD(); !word.empty(); word = TAKE_WORD()) {
            if (!unit.empty()) unit += " ";
            unit += word;
        }
        return unit;
    }

    std::string_view rest;
};

NAT SUM(NAT a, NAT b) {
    return a == PARAMETER_COUNT::UNLIMITED || b == PARAMETER_COUNT::UNLIMITED
               ? PARAMETER_COUNT::UNLIMITED
               : a + b;
}

PARAMETER_COUNT COUNT_OF_CHOICES(const std::vector<PARAMETER_SEQUENCE> &choices) {
    PARAMETER_COUNT count{PARAMETER_COUNT::UNLIMITED, 0};
    for (const PARAMETER_SEQUENCE &choice : choices) {
        PARAMETER_COUNT sum;
        for (const PARAMETER_PART &part : choice) {
            const PARAMETER_COUNT one =
                part.GROUP() ? COUNT_OF_CHOICES(part.choices) : PARAMETER_COUNT{1, 1};
            if (!part.GROUP()) sum.least += one.least;
            sum.most = SUM(sum.most, part.repeated ? PARAMETER_COUNT::UNLIMITED : one.most);
        }
        count.least = std::min(count.least, sum.least);
        count.most = std::max(count.most, sum.most);
    }
    return count;
}

using FORM = std::string (*)(std::string_view);

std::string SYNTAX_OF(const std::vector<PARAMETER_SEQUENCE> &choices, FORM form) {
    std::string text;
    for (const PARAMETER_SEQUENCE &choice : choices) {
        if (&choice != choices.data()) text += " | ";
        for (const PARAMETER_PART &part : choice) {
            if (&part != choice.data()) text += " ";
            const std::string more = part.repeated ? " ..." : "";
            text += part.GROUP() ? "[" + SYNTAX_OF(part.choices, form) + more + "]"
                                 : form(part.name) + more;
        }
    }
    return text;
}

// The parameters of a line in order.
using LINE = std::vector<const PARAMETER_PART *>;

// Every line that the choices allow, a repeated parameter once; of a group each choice and none.
std::vector<LINE> LINES_OF(const std::vector<PARAMETER_SEQUENCE> &choices) {
    std::vector<LINE> all;
    for (const PARAMETER_SEQUENCE &choice : choices) {
        std::vector<LINE> lines(1);
        for (const PARAMETER_PART &part : choice) {
            std::vector<LINE> endings = {{&part}};
            if (part.GROUP()) endings = LINES_OF(part.choices);
            if (part.GROUP()) endings.emplace_back();
            std::vector<LINE> longer;
            for (const LINE &line : lines)
                for (const LINE &ending : endings) {
                    longer.push_back(line);
                    longer.back().insert(longer.back().end(), ending.begin(), ending.end());
                }
            lines = std::move(longer);
        }
        all.insert(all.end(), lines.begin(), lines.end());
    }
    return all;
}
} // namespace

PARAMETER_TEXT PARSE_PARAMETERS(std::string_view text) {
    PARAMETER_TEXT parsed;
    READER reader(text);
    parsed.choices = reader.READ_ALL();
    parsed.error = reader.error;
    return parsed;
}

PARAMETER_COUNT COUNT_OF(const PARAMETER_TEXT &text) { return COUNT_OF_CHOICES(text.choices); }

bool IS_PARAMETER_KIND(std::string_view word) {
    return std::find(KINDS.begin(), KINDS.end(), word) != KINDS.end();
}

std::string PARAMETER_SYNTAX(const PARAMETER_TEXT &text, FORM form) {
    return SYNTAX_OF(text.choices, form);
}

bool IS_FILE_AT(const PARAMETER_TEXT &text, std::size_t offset) {
    bool found = false;
    for (const LINE &line : LINES_OF(text.choices)) {
        if (line.empty() || (offset >= line.size() && !line.back()->repeated)) continue;
        if (line[std::min(offset, line.size() - 1)]->kind != "file") return false;
        found = true;
    }
    return found;
}
} // namespace morvane
