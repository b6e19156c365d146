#include "app/help_entries.hpp"
#include "script/engine/row_parameters.hpp"

namespace morvane {
namespace {
void Append(const std::vector<PARAMETER_SEQUENCE> &choices, bool isOptional,
            std::vector<HELP_PARAMETER> &list) {
    for (const PARAMETER_SEQUENCE &choice : choices) {
        const std::size_t first = list.size();
        for (const PARAMETER_PART &part : choice) {
            if (part.GROUP())
                Append(part.choices, true, list);
            else
                list.push_back({part.name, part.kind, part.unit, isOptional});
            if (part.repeated && !list.empty()) list.back().isRepeated = true;
        }
        if (&choice != choices.data() && list.size() > first) list[first].isAlternative = true;
    }
}
} // namespace

std::vector<HELP_PARAMETER> HELP_PARAMETERS(std::string_view parameters) {
    std::vector<HELP_PARAMETER> list;
    Append(PARSE_PARAMETERS(parameters).choices, false, list);
    return list;
}

std::string HELP_SYNTAX(std::string_view parameters) {
    return PARAMETER_SYNTAX(PARSE_PARAMETERS(parameters),
                            [](std::string_view name) { return std::string(name); });
}
} // namespace morvane
