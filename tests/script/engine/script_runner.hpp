#pragma once

#include "foundation/console/console.hpp"
#include "script/engine/macro.hpp"

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <initializer_list>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

// Runs script texts in a fresh engine with a few commands and keeps what the console shows.
namespace morvane {
class SCRIPT_RUNNER {
public:
    TMACRO engine;
    std::string console;
    static inline int exitStatus = -1;
    static inline int ticks = 0;

    SCRIPT_RUNNER() {
        exitStatus = -1;
        ticks = 0;
        TMACRO::EXIT = [](int status) { exitStatus = status; };
        interaction = INTERACTION;
        INTERACTION = false;
        SETSINK([](std::string_view text,
                   void *target) { static_cast<SCRIPT_RUNNER *>(target)->console += text; },
                this);
        engine.verbose = false;
        engine.PUTPROCEDURE("print", PRINT);
        engine.PUTPROCEDURE("list", LIST);
        engine.PUTPROCEDURE("raw", [](TMACRO *e) { SHOW_RAW(e, e->PARAMETERLENGTH()); });
        engine.PUTPROCEDURE("raw3", [](TMACRO *e) { SHOW_RAW(e, 3); });
        engine.PUTPROCEDURE("nop", [](TMACRO *) {});
        engine.PUTPROCEDURE("stop", [](TMACRO *e) { e->STOPSCRIPT("Script stop."); });
        engine.PUTPROCEDURE("trace", [](TMACRO *e) { e->verbose = true; });
        engine.PUTFUNCTION("sum", SUM_REF);
        engine.PUTLAMBDA("tick", TICK_LAMD);
        engine.PUTLAMBDA("zero", [](TMACRO *e) { e->COMMAND_RESULT = "0"; });
    }
    ~SCRIPT_RUNNER() {
        SETSINK(nullptr, nullptr);
        INTERACTION = interaction;
    }
    SCRIPT_RUNNER(const SCRIPT_RUNNER &) = delete;
    SCRIPT_RUNNER &operator=(const SCRIPT_RUNNER &) = delete;

    // What a run shows between "Script runs..." and "Script ends.".
    std::string RUN(const std::string &script) {
        console.clear();
        engine.LOADTEXT(script, "m");
        engine.SINGLERUN();
        const std::string head = "Script runs...\n", tail = "Script ends.\n";
        if (!console.starts_with(head) || !console.ends_with(tail)) return "no run: " + console;
        return console.substr(head.size(), console.size() - head.size() - tail.size());
    }

private:
    bool interaction = false;

    static void PRINT(TMACRO *e) { WRITELN(e->_JOINPARAMETERS(1, {})); }
    // Each parameter in brackets, with its kind.
    static void LIST(TMACRO *e) {
        std::string line;
        for (NAT i = 1; i <= e->PARAMETERLENGTH(); ++i)
            line +=
                std::to_string(e->GETPARAMETERKIND(i)) + "[" + GETUTF8(e->GETPARAMETER(i)) + "]";
        WRITELN(line);
    }
    static void SHOW_RAW(TMACRO *e, NAT count) {
        std::string line;
        for (NAT i = 1; i <= count; ++i)
            line += "[" + GETUTF8(e->GETPARAMETER_RAW(i)) + "]";
        WRITELN(line);
    }
    static void SUM_REF(TMACRO *e) {
        REAL sum = 0;
        for (NAT i = 1; i <= e->PARAMETERLENGTH(); ++i)
            sum += GETREAL(e->GETPARAMETER(i));
        e->COMMAND_RESULT = GETSTRING(sum);
    }
    static void TICK_LAMD(TMACRO *e) { e->COMMAND_RESULT = std::to_string(++ticks); }
};

inline std::string RUN_SCRIPT(const std::string &script) {
    SCRIPT_RUNNER runner;
    return runner.RUN(script);
}

// A folder of its own that the test works in; gone at the end.
class SCRATCH_FOLDER {
public:
    SCRATCH_FOLDER() {
        char name[] = "/tmp/morvane-engine-XXXXXX";
        if (!mkdtemp(name) || !getcwd(before, sizeof before) || chdir(name) != 0) std::abort();
        path = name;
    }
    ~SCRATCH_FOLDER() {
        if (chdir(before) != 0) std::abort();
        const std::string command = "rm -rf '" + path + "'";
        static_cast<void>(!system(command.c_str()));
    }
    SCRATCH_FOLDER(const SCRATCH_FOLDER &) = delete;
    SCRATCH_FOLDER &operator=(const SCRATCH_FOLDER &) = delete;

    static void WRITE_TEXT(const std::string &name, const std::string &text) {
        std::ofstream(name, std::ios::binary) << text;
    }
    static std::string TEXT(const std::string &name) {
        std::ifstream file(name, std::ios::binary);
        if (!file) return "no file";
        std::stringstream text;
        text << file.rdbuf();
        return text.str();
    }

private:
    std::string path;
    char before[4096] = {};
};
} // namespace morvane
