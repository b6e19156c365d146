#include "generated_files.hpp"

namespace morvane {
namespace {
constexpr GENERATED_FILE FILES[] = {
    {"docs/commands.md", COMMANDS_PAGE},
    {"docs/formats.md", FORMATS_PAGE},
    {"docs/man/morvane.1", MAN_PAGE},
    {"completions/morvane.bash", BASH_COMPLETION},
    {"completions/_morvane", ZSH_COMPLETION},
    {"completions/morvane.fish", FISH_COMPLETION},
    {"editors/vscode/package.json", EXTENSION_MANIFEST},
    {"editors/vscode/syntaxes/morvane.tmLanguage.json", TEXTMATE_GRAMMAR},
    {"editors/vim/syntax/morvane.vim", VIM_SYNTAX},
};
} // namespace

std::span<const GENERATED_FILE> GENERATED_FILES() { return FILES; }
} // namespace morvane
