#pragma once

#include "script/engine/check_files.hpp"

namespace morvane {
// The commands of the lines that run, each against its row or keyword.
class CHECK_COMMANDS {
public:
    CHECK_COMMANDS(CHECK_NAMES &nameList, CHECK_FINDINGS &list)
        : names(nameList), findings(list), files(nameList, list) {}

    void CHECK(const std::vector<CHECK_LINE> &lines, const std::vector<MISSING_FILE> &missing);

private:
    // What a line calls: its row if it is one of the program's, and its parameters.
    struct CALL {
        const COMMAND_ENTRY *entry = nullptr;
        std::vector<TOKEN> tokens;
        bool certain = true; // the count of parameters is that of the run
        const COMMAND_ROW *Row() const { return entry ? entry->row : nullptr; }
    };
    CALL Find(const CHECK_LINE &line) const;
    const COMMAND_ENTRY *FindFunction(const CHECK_LINE &line, const LINE_PART &value) const;
    void CheckLine(const CHECK_LINE &line, const CALL &call);
    void CheckKeyword(const CHECK_LINE &line, const CALL &call);
    void CheckNames(const CHECK_LINE &line, const CALL &call);
    void CheckAssignment(const CHECK_LINE &line, const CALL &call);
    void CheckOperator(const CHECK_LINE &line, const CALL &call);
    void CheckTarget(const CHECK_LINE &line, const CALL &call);
    void CheckValue(const CHECK_LINE &line, const LINE_PART &value);
    void CheckProcedure(const CHECK_LINE &line, const CALL &call);
    void CheckCount(const CHECK_LINE &line, const CALL &call);
    void TellTaken(const CHECK_LINE &line, NAT column, const std::string &name);

    CHECK_NAMES &names;
    CHECK_FINDINGS &findings;
    CHECK_FILES files;
};
} // namespace morvane
