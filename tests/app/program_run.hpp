#pragma once

#include "app/program.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <cstdlib>
#include <string>
#include <vector>

namespace morvane {
inline constexpr std::string_view FIRST_MESSAGE =
    "This is your first run of the program, please specify the file morvane.macro!\n";

// One run of the program, its exit status and its console text.
struct PROGRAM_RUN {
    CAPTURE console;
    int status = -1;

    // Image libraries are not searched for: what the system has installed changes no test.
    explicit PROGRAM_RUN(const std::vector<const char *> &options) {
        ::setenv("MORVANE_FREEIMAGE", "", 1);
        ::setenv("MORVANE_IMAGEMAGICK", "", 1);
        std::vector<const char *> arguments = {"morvane"};
        for (const char *option : options)
            arguments.push_back(option);
        status = RUN_PROGRAM(static_cast<int>(arguments.size()), arguments.data());
        VERBOSE = true;
    }
    bool CONTAINS(std::string_view part) const { return console.CONTAINS(part); }
    // The lines that the script printed.
    std::string SCRIPT() const {
        const std::string begin = "Script runs...\n", end = "Script ends.\n";
        const std::string &text = console.TEXT();
        const std::size_t first = text.find(begin), last = text.rfind(end);
        if (first == std::string::npos || last == std::string::npos) return "(no run)";
        return text.substr(first + begin.size(), last - first - begin.size());
    }
};

// What a script prints for `word`, started with these options.
inline std::string PRINTED(const char *word, std::vector<const char *> options) {
    const SCRATCH_FOLDER folder;
    folder.WRITE("test.macro", "debug.no\nprint " + std::string(word) + "\n");
    options.push_back("-macro=test.macro");
    std::string text = PROGRAM_RUN(options).SCRIPT();
    const std::string trace = "  debug.no|\n";
    return text.starts_with(trace) ? text.substr(trace.size()) : text;
}

inline std::vector<std::string> LINES_OF(const std::string &text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}
} // namespace morvane
