#include "app/check_script.hpp"

#include "app/options_table.hpp"
#include "app/program.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "script/engine/check_script.hpp"

namespace morvane {
namespace {
// What the program sets before a script runs.
std::vector<std::string_view> ConstantNames() {
    std::vector<std::string_view> names{"thread.max"};
    for (const OPTION_ROW &row : OPTIONS)
        if (!row.constant.empty()) names.push_back(row.constant);
    return names;
}
} // namespace

int CHECK_SCRIPT(const UTF16 &file) {
    const std::vector<std::string_view> constants = ConstantNames();
    const CHECK_RESULT result = CHECK_MACRO(file, {COMMAND_SETS(), constants});
    if (!result.read) {
        WRITELN("Script (" + file + ") cannot be read!");
        return 2;
    }
    for (const std::string &finding : result.findings)
        WRITELN(finding);
    if (!result.findings.empty()) return 2;
    WRITELN(file + ": no findings");
    return 0;
}
} // namespace morvane
