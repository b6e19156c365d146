#pragma once

#include "script/engine/macro.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"
#include "support/without_root.hpp"

#include <string>

namespace morvane {
// Runs script lines in an engine with all modules, in a folder of its own.
struct TEXT_SCRIPT {
    SCRATCH_FOLDER folder;
    CAPTURE console;
    TMACRO engine;

    TEXT_SCRIPT() {
        engine.INIT();
        engine.USE_ALL();
        engine.verbose = false;
        engine.PUTCONSTANT("v", "untouched"); // outlives a run, so that a test can read it
    }
    // The console's text between start and end, without the lines of reading and writing.
    std::string RUN(const std::string &script) {
        engine.LOADTEXT(script, "test.macro");
        console.CLEAR();
        engine.SINGLERUN();
        std::string kept;
        for (std::size_t at = 0, end = 0; at < console.TEXT().size(); at = end + 1) {
            end = console.TEXT().find('\n', at);
            const std::string line = console.TEXT().substr(at, end - at);
            if (!line.starts_with("Read file (") && !line.starts_with("Write file (") &&
                line != "Script runs..." && line != "Script ends.")
                kept += line + "\n";
        }
        return kept;
    }
    std::string VALUE(const std::string &expression) { // of a function call
        RUN("v := " + expression);
        return GETUTF8(engine.GETCONSTANTVALUE("v"));
    }
    // What the file holds after the line has run on it.
    std::string AFTER(const std::string &line, const std::string &file, std::string_view text) {
        folder.WRITE(file, text);
        RUN(line);
        return folder.READ(file);
    }
};
} // namespace morvane
