#include "app/first_words.hpp"

#include "app/check_script.hpp"
#include "app/help.hpp"
#include "app/program_words.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "script/option/build_words.hpp"

#include <span>

namespace morvane {
namespace {
constexpr int USAGE_STATUS = 2; // of a call that lacks its file

int ShowHelp(std::span<const std::string> words) {
    HELP(words);
    return 0;
}

int ShowVersion() {
    WRITELN(UTF16(PROGRAM_NAME) + " " + BUILDVERSION(FIRST_YEAR) + " for " + BUILDPLATFORM());
    return 0;
}

int Check(std::span<const std::string> files) {
    if (files.size() == 1) return CHECK_SCRIPT(GETUTF16(files[0]));
    WRITELN("Usage: morvane --check FILE");
    return USAGE_STATUS;
}
} // namespace

std::optional<int> FIRST_WORDS(const std::vector<std::string> &arguments) {
    if (arguments.size() < 2 || FILEEXISTS(GETUTF16(arguments[1]))) return std::nullopt;
    const std::string &word = arguments[1];
    const auto rest = std::span(arguments).subspan(2);
    if (word == "help") return ShowHelp(rest);
    if (word == "--version" && rest.empty()) return ShowVersion();
    if (word == "--check") return Check(rest);
    return std::nullopt;
}
} // namespace morvane
