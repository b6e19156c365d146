#include "script/engine/check_parameters.hpp"

#include <algorithm>

namespace morvane {
namespace {
std::string_view Trimmed(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '['))
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

// A bracket around a parameter makes it optional; one around a unit has no colon in it.
bool OpensOptional(std::string_view text, std::size_t at) {
    const std::size_t close = text.find(']', at);
    return text.substr(at, close - at).find(':') != std::string_view::npos;
}
} // namespace

bool ROW_PARAMETER::IS_FILE() const {
    const std::size_t colon = text.find(':');
    return colon != std::string_view::npos && Trimmed(text.substr(colon + 1)).starts_with("file");
}

std::vector<std::vector<ROW_PARAMETER>> PARAMETER_FORMS(std::string_view text) {
    std::vector<std::vector<ROW_PARAMETER>> forms(1);
    std::size_t start = 0;
    bool optional = false, inUnit = false, isOptional = false;
    const auto put = [&](std::size_t end) {
        const std::string_view parameter = Trimmed(text.substr(start, end - start));
        if (parameter.find(':') != std::string_view::npos)
            forms.back().push_back({parameter, isOptional});
        isOptional = optional;
        start = end + 1;
    };
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char c = text[i];
        if (c == '[' && OpensOptional(text, i))
            optional = isOptional = true;
        else if (c == '[')
            inUnit = true;
        else if (c == ']' && inUnit)
            inUnit = false;
        else if (c == ']')
            optional = false;
        else if (c == ',' && !inUnit)
            put(i);
        else if (c == '|') {
            put(i);
            forms.emplace_back();
        }
    }
    put(text.size());
    return forms;
}

PARAMETER_COUNT COUNT_OF(std::string_view text) {
    PARAMETER_COUNT count;
    bool first = true;
    for (const std::vector<ROW_PARAMETER> &form : PARAMETER_FORMS(text)) {
        const NAT least = std::count_if(form.begin(), form.end(),
                                        [](const ROW_PARAMETER &one) { return !one.optional; });
        const bool any = std::any_of(form.begin(), form.end(), [](const ROW_PARAMETER &one) {
            return one.text.find("...") != std::string_view::npos;
        });
        count.least = first ? least : std::min(count.least, least);
        if (any || count.most < 0)
            count.most = -1;
        else
            count.most = std::max(count.most, static_cast<NAT>(form.size()));
        first = false;
    }
    return count;
}

bool IS_FILE_AT(const std::vector<std::vector<ROW_PARAMETER>> &forms, std::size_t offset) {
    bool found = false;
    for (const std::vector<ROW_PARAMETER> &form : forms) {
        if (offset >= form.size()) continue;
        if (!form[offset].IS_FILE()) return false;
        found = true;
    }
    return found;
}
} // namespace morvane
