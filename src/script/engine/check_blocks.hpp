#pragma once

#include "script/engine/check_line.hpp"

#include <optional>

namespace morvane {
// The blocks of a script as its reader sees them: each opening word has its own end. Where the
// engine counts otherwise, that is a finding.
class CHECK_BLOCKS {
public:
    explicit CHECK_BLOCKS(CHECK_FINDINGS &list) : findings(list) {}

    // Whether a keyword opens a block as it stands, inline forms aside.
    static bool OPENS(const LINE_PART &part);

    void OPEN(const CHECK_LINE &line);      // a block that runs
    void OPEN_TEXT(const CHECK_LINE &line); // a word in stored or ignored text
    void CLOSE(const CHECK_LINE &line);     // `end` or `until`
    void FINISH();                          // the end of the script
    void WITH(const std::string &prefix);   // of the block just opened
    void WITH_UNKNOWN();

    const CHECK_CONTEXT &CONTEXT() const { return stack.empty() ? outside : stack.back().context; }
    bool IN_TEXT() const { return !stack.empty() && stack.back().text; }
    // Directly in a `store` or `append`, where a line is text of the file.
    bool IN_STORE() const { return IN_TEXT() && stack.back().stores; }
    // Inside a block that is passed over before it first runs, so that an include is read there.
    bool IN_PASSED() const;
    void RUNS(const CHECK_LINE &line);  // a line that runs: tells of those behind an early end
    void LEAVE(const CHECK_LINE &line); // `halt` or `break`

private:
    struct BLOCK {
        std::string word;
        CHECK_LINE head; // its place alone
        CHECK_CONTEXT context;
        bool text = false, stores = false;
        // Position in the stack, from 1, of the innermost block up to here that may be passed over,
        // without and with the loops; 0 for none.
        std::size_t passed = 0, passedOrLoop = 0;
        bool search = false; // minimize or maximize: its end closes the block around it too
        // The first line of text inside that opens a block, with its word.
        std::optional<std::pair<CHECK_LINE, std::string>> opener;
        std::string closedBy; // the search inside whose end has closed this block already
    };
    BLOCK &Push(const CHECK_LINE &line, bool text);
    void TellNesting(const CHECK_LINE &line);

    CHECK_FINDINGS &findings;
    CHECK_FINDINGS searchFindings; // told when the script is written for the reader's count
    std::size_t searchEnds = 0;    // ends of searches inside blocks
    std::string scriptClosedBy;    // the search outside all blocks whose end has ended the script
    CHECK_CONTEXT outside;
    std::vector<BLOCK> stack;
};
} // namespace morvane
