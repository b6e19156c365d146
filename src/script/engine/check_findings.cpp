#include "script/engine/check_line.hpp"

#include <unordered_set>

namespace morvane {
// A file that is imported twice gives the same findings twice.
std::vector<std::string> CHECK_FINDINGS::LINES() const {
    std::unordered_set<std::string_view> told;
    std::vector<std::string> lines;
    for (const FINDING &finding : found)
        if (told.insert(finding.text).second) lines.push_back(finding.text);
    return lines;
}
} // namespace morvane
