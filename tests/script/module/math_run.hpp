#pragma once

#include "foundation/base/number_text.hpp"
#include "script/engine/macro.hpp"
#include "script/module/use_all.hpp"
#include "support/capture.hpp"

#include <string>

namespace morvane {
// An engine with all modules and without trace. VALUE runs lines that store a result in v1, or the
// expression behind `v1 :=`, and gives what v1 holds; the number format is as before afterwards.
struct MATH_RUN {
    CAPTURE console;
    TMACRO engine;
    const TFORMAT before = FORMAT;

    MATH_RUN() {
        engine.INIT();
        engine.USE_ALL();
        engine.verbose = false;
        engine.PUTCONSTANT("v1", "untouched");
    }
    ~MATH_RUN() { FORMAT = before; }
    MATH_RUN(const MATH_RUN &) = delete;
    MATH_RUN &operator=(const MATH_RUN &) = delete;

    // What the script prints between its first and last line.
    std::string RUN(std::string_view script) {
        engine.LOADTEXT(script, "test.macro");
        console.CLEAR();
        engine.SINGLERUN();
        std::string text = console.TEXT();
        const std::string begin = "Script runs...\n", end = "Script ends.\n";
        if (text.starts_with(begin)) text.erase(0, begin.size());
        if (text.ends_with(end)) text.erase(text.size() - end.size());
        return text;
    }
    std::string VALUE(const std::string &expression) {
        engine.PUTCONSTANT("v1", "untouched");
        const std::string printed = RUN("v1 := " + expression + "\n");
        return printed + GETUTF8(engine.GETCONSTANTVALUE("v1"));
    }
    // The entries that a line of the calculator leaves on an empty stack, the top first.
    std::string CALCULATE(const std::string &words) {
        const std::string printed = RUN("stack : " + words +
                                        "\nwhile stack.length\nv1 := stack\n"
                                        "print v1\nend\n");
        return printed.empty() ? printed : printed.substr(0, printed.size() - 1);
    }
    REAL NUMBER(const std::string &words) { return GETREAL(CALCULATE(words)); }
};
} // namespace morvane
