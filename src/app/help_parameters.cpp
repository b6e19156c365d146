#include "app/help_entries.hpp"

#include <algorithm>
#include <utility>

namespace morvane {
namespace {
std::string_view Trimmed(std::string_view text) {
    while (text.starts_with(' '))
        text.remove_prefix(1);
    while (text.ends_with(' '))
        text.remove_suffix(1);
    return text;
}

// Cuts the text of a row's parameters into its items.
class PARAMETER_READER {
public:
    std::vector<HELP_PARAMETER> Read(std::string_view text) {
        for (std::size_t i = 0; i < text.size(); ++i) {
            const bool isUnit = text[i] == '[' && !Trimmed(item).empty();
            if (isUnit) {
                const std::size_t end = std::min(text.find(']', i), text.size() - 1);
                item += text.substr(i, end - i + 1);
                i = end;
            } else {
                Take(text[i]);
            }
        }
        Finish();
        return std::move(list);
    }

private:
    void Take(char letter) {
        switch (letter) {
        case '[': opens = isOptional = true; return;
        case ']':
            Finish();
            if (!list.empty()) list.back().closes = true;
            isOptional = false;
            return;
        case '|':
            Finish();
            isAlternative = true;
            return;
        case ',': return Finish();
        default: item += letter;
        }
    }

    void Finish() {
        std::string_view text = Trimmed(item);
        if (text == "..." && !list.empty()) {
            list.back().isRepeated = true;
        } else if (!text.empty()) {
            const std::size_t colon = text.find(": ");
            HELP_PARAMETER parameter;
            parameter.name = text.substr(0, colon);
            parameter.isOptional = isOptional;
            parameter.isAlternative = std::exchange(isAlternative, false);
            parameter.opens = std::exchange(opens, false);
            if (colon != std::string_view::npos) ReadKind(text.substr(colon + 2), parameter);
            list.push_back(parameter);
        }
        item.clear();
    }

    // "kind [unit] ..." behind the name; the unit may stand without its brackets.
    static void ReadKind(std::string_view text, HELP_PARAMETER &parameter) {
        if (text.ends_with("...")) {
            parameter.isRepeated = true;
            text = Trimmed(text.substr(0, text.size() - 3));
        }
        const std::size_t blank = text.find(' ');
        parameter.kind = text.substr(0, blank);
        if (blank == std::string_view::npos) return;
        std::string_view unit = Trimmed(text.substr(blank));
        if (unit.starts_with('[') && unit.ends_with(']')) unit = unit.substr(1, unit.size() - 2);
        parameter.unit = unit;
    }

    std::string item;
    std::vector<HELP_PARAMETER> list;
    bool isOptional = false, isAlternative = false, opens = false;
};
} // namespace

std::vector<HELP_PARAMETER> HELP_PARAMETERS(std::string_view parameters) {
    return PARAMETER_READER().Read(parameters);
}

std::string HELP_SYNTAX(const std::vector<HELP_PARAMETER> &parameters) {
    std::string text;
    for (const HELP_PARAMETER &parameter : parameters) {
        if (!text.empty()) text += parameter.isAlternative ? " | " : " ";
        text += (parameter.opens ? "[" : "") + parameter.name;
        text += (parameter.isRepeated ? " ..." : "");
        text += parameter.closes ? "]" : "";
    }
    return text;
}
} // namespace morvane
