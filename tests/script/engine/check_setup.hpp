#pragma once

#include "script/engine/check_script.hpp"
#include "script/engine/macro.hpp"
#include "script/engine/script_runner.hpp"

// A few commands of the shapes that a check tells apart, and a script checked against them.
namespace morvane::check_setup {
inline void Nothing(TMACRO *) {}

inline constexpr COMMAND_ROW PLAIN_ROWS[] = {
    PROCEDURE("print", Nothing, OWN_COUNT, "[value: text ...]", "print 5", "print"),
    PROCEDURE("stop", Nothing, OWN_COUNT, "", "stop", "stop"),
    PROCEDURE("wait", Nothing, EXACTLY(1), "time: real [s]", "wait 1", "wait"),
    FUNCTION("max", Nothing, AT_LEAST(1), "value: real ...", "a := max 1 2", "largest"),
    LAMBDA("random", Nothing, "print random", "random"),
};
inline constexpr COMMAND_ROW SCALAR_ROWS[] = {
    PROCEDURE("load", Nothing, AT_MOST(1), "field: file", "scalar.load a.nii", "load"),
    PROCEDURE("save", Nothing, EXACTLY(1), "field: file", "scalar.save a.nii", "save"),
    PROCEDURE("smooth", Nothing, AT_MOST(1), "[passes: number]", "scalar.smooth", "smooth"),
    PROCEDURE("invert", Nothing, EXACTLY(0), "", "scalar.invert", "invert"),
    PROCEDURE("mix", Nothing, AT_LEAST(2), "a: name, b: name ...", "scalar.mix a b", "mix"),
    FUNCTION("copy", Nothing, AT_MOST(1), "[factor: real]", "new := scalar.copy", "copy"),
    FUNCTION("count", Nothing, EXACTLY(2), "low: real, high: real", "a := scalar.count 0 1",
             "count"),
    LAMBDA("size", Nothing, "print scalar.size", "size"),
    PROPERTY("scale", Nothing, Nothing, EXACTLY(1), "scale: vector", "scalar.scale <1,1,1>",
             "scale"),
};
inline constexpr COMMAND_SET PLAIN_SET{"", PLAIN_ROWS}, FIELD_SET{"scalar.", SCALAR_ROWS};
inline constexpr const COMMAND_SET *SETS[] = {&PLAIN_SET, &FIELD_SET};
inline constexpr std::string_view CONSTANTS[] = {"scalar.input", "thread.max"};

// The findings of a script "m" in the working folder, without "m:" and one a line.
inline std::string FOUND(const std::string &script) {
    SCRATCH_FOLDER::WRITE_TEXT("m", script);
    const CHECK_RESULT result = CHECK_MACRO("m", {SETS, CONSTANTS});
    std::string text = result.read ? "" : "not read";
    for (const std::string &finding : result.findings)
        text += (finding.starts_with("m:") ? finding.substr(2) : finding) + "\n";
    return text;
}
} // namespace morvane::check_setup
