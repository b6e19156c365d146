#include "script/engine/check_script.hpp"

#include "script/engine/check_commands.hpp"
#include "script/engine/check_reader.hpp"

#include <new>

namespace morvane {
namespace {
CHECK_RESULT Check(const UTF16 &file, const CHECK_PROGRAM &program) {
    CHECK_RESULT result;
    CHECK_NAMES names(program);
    CHECK_FINDINGS findings;
    CHECK_READER reader(names, findings);
    result.read = reader.READ(file);
    if (!result.read) return result;
    CHECK_COMMANDS(names, findings).CHECK(reader.LINES(), reader.MISSING());
    result.findings = findings.LINES();
    return result;
}
} // namespace

// The lines of a script are kept whole, so its size decides about the memory.
CHECK_RESULT CHECK_MACRO(const UTF16 &file, const CHECK_PROGRAM &program) {
    try {
        return Check(file, program);
    } catch (const std::bad_alloc &) {
        return {};
    }
}
} // namespace morvane
