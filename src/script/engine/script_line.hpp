#pragma once

#include "script/engine/names.hpp"
#include "script/file/file_command.hpp"

#include <memory>
#include <vector>

// What is known of a script line before it runs: made once, used by every pass of a loop.
namespace morvane {
struct KEYWORD;

// One parameter as it was cut, before names are replaced by values.
struct TOKEN {
    UTF16 text; // delimiters stripped, at most LONGEST_TEXT units
    BYTE kind = 0;
    NAME_REF name;   // of a word in a script line
    NAT command = 0; // entry of the function (kind 8) or lambda (kind 9)
};

// A remainder cut into parameters by both sets of rules.
struct TOKENS {
    std::vector<TOKEN> cut, raw;
    bool shared = false;     // both lists give the same values, and no lambda stands in them
    bool anyCommand = false; // a function or a lambda stands in them
};

// A command word and what stands behind it. An inline form such as `then print x` has its second
// word as the NEXT part.
struct LINE_PART {
    UTF16 rawWord; // as written
    UTF16 word;    // lower case
    UTF16 rest;    // without blanks in front
    const KEYWORD *keyword = nullptr;
    bool atWord = false, atRest = false; // an "@" stands in it
    bool blankInRest = false;
    bool assignment = false; // the remainder has the shape of an assignment
    bool behind = false;     // stands behind another word on its line

    // Kept between passes; valid while the version is that of the command table.
    struct CACHE {
        TOKENS tokens;
        NAT tokensVersion = -1;
        NAT command = 0; // entry that a look-up of `word` finds, 0 for none
        NAT commandVersion = -1;
        unsigned commandGroups = 0; // the kinds it was looked up for
        NAME_REF target;            // `word` as the target of an assignment
        NAT targetVersion = -1;     // when the target was found to be no command
        std::unique_ptr<LINE_PART> next;
    };
    mutable CACHE cache;

    const LINE_PART &NEXT() const; // the first word of `rest` as the command
};

// Cuts the first word at the first blank.
LINE_PART PREPARE_PART(const UTF16 &text);
// The line without blanks and tabs at its ends and without its comment.
UTF16 CUT_COMMENT(const UTF16 &line);
// The same of a line that may open a script: a mark of the byte order is no part of it, and a first
// line for the shell ("!...") is empty.
UTF16 CUT_COMMENT(const UTF16 &line, bool opens);

// The prepared lines of a script, made when control first reaches them.
class SCRIPT_LINES {
public:
    // The parts of a line, null when it is empty or a comment.
    const LINE_PART *GET(const TFILECOMMAND &script, NAT line) {
        const std::size_t offset = static_cast<std::size_t>(line - 1);
        if (offset >= lines.size() || !lines[offset].ready) Prepare(script, line);
        return lines[offset].part.get();
    }
    void CLEAR(); // another script was loaded
    // `count` lines stand where one stood. The old part stays alive: a block may be working on it.
    // With `opens` the first of them is read as the first line of a script.
    void INSERTED(NAT line, NAT count, bool opens = false);

private:
    struct SLOT {
        std::unique_ptr<LINE_PART> part;
        bool ready = false;
        bool opens = false; // the first line of an imported file
    };
    void Prepare(const TFILECOMMAND &script, NAT line);

    std::vector<SLOT> lines;
    std::vector<std::unique_ptr<LINE_PART>> replaced;
};
} // namespace morvane
