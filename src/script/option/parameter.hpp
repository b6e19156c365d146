#pragma once

#include "foundation/base/utf16chars7.hpp"

#include <string>
#include <string_view>
#include <vector>

namespace morvane {
// The command line. There is no declared table of options: the caller asks for each option in
// turn, and the call that answers its value prints its line of the listing, so that the help and
// the values in force come from one sequence of calls.
class TPARAMETER {
public:
    // The process arguments, the program's path first.
    explicit TPARAMETER(std::vector<std::string> processArguments)
        : arguments(std::move(processArguments)) {}
    TPARAMETER(int argc, const char *const *argv) : arguments(argv, argv + argc) {}

    // Banner, paths, and the first argument "-strict", which ends interaction for the whole run.
    // True when the first argument was "-update": the fetch is over, and the process has to end
    // with status 0.
    [[nodiscard]] bool INIT(const UTF16 &name, const UTF16 &author, NAT firstYear,
                            const UTF16 &address);
    // The usage line, the arguments, the help flags, the options of every program and the options
    // file, whose pairs stand behind the arguments.
    void USAGE(const UTF16 &line);
    // Frees the lists; true when help was asked, and the process has to end with status 1.
    [[nodiscard]] bool DONE();

    UTF16 GETVERSION() const { return version; } // "9.4.8": years since the first, month, day
    UTF16 GETMAKER() const { return makerLine; } // "2017-2026 author"
    UTF16 GETADDRESS() const { return makerAddress; }

    void TOPIC(const UTF16 &text);        // a section title of the listing
    void LEGEND(const UTF16 &text) const; // an indented line under an option, in the help only
    void EXAMPLE(const UTF16 &text);      // closes the listing

    // One option each: its value or the default, and its line of the listing.
    UTF16 GETSTRING(const UTF16 &name, const UTF16 &standard, const UTF16 &legend) const;
    UTF16 GETLASTSTRING(const UTF16 &name, const UTF16 &standard, const UTF16 &legend) const;
    NAT GETNAT(const UTF16 &name, NAT standard, NAT min, NAT max, const UTF16 &legend) const;
    VECTOR GETVECTOR(const UTF16 &name, const VECTOR &standard, const UTF16 &legend) const;
    bool GETBOOLEAN(const UTF16 &name, bool standard, const UTF16 &legend) const;
    // A switch that is off as a rule: "-name" alone turns it on, not off.
    bool GETFLAG(const UTF16 &name, const UTF16 &legend) const;

    NAT PAIR_LENGTH() const;                                  // entries with a name
    bool GETPAIR(NAT index, UTF16 &name, UTF16 &value) const; // the index-th of those, from 1
    UTF16 GETUNKNOWN() const; // the last value without a name, or empty

private:
    struct PAIR {
        UTF16CHARS7 name; // empty: a positional value
        UTF16CHARS7 value;
        bool bare = false; // "-name" alone: its text is "false", as a flag it is on
    };

    void _READARGUMENTS();
    void _READTOKEN(const UTF16 &token, bool &isReplaceable);
    void _READHELPFLAGS();
    void _STANDARDOPTIONS();
    void _LOGOPTION();
    UTF16 _OPTIONSFILE() const; // the name that is looked for when none is given
    void _READOPTIONSFILE(const UTF16 &file);
    bool _ISAMONG(const UTF16 &name, std::size_t count) const; // among the first pairs
    const PAIR *_SEARCH(const UTF16 &name) const; // the first of the exact name, or null
    bool _ISASKED(const UTF16 &name) const;       // given with a value
    void _PRINTLINE(std::string_view head, const UTF16 &name, const UTF16 &legend,
                    const UTF16 &value) const;
    void _WAIT() const;

    std::vector<std::string> arguments;
    UTF16CHARS7 programName, titleLine, makerLine, makerAddress, programPath, currentDirectory;
    UTF16CHARS7 version;
    bool isHelp = false;              // the defaults are shown and the process ends at DONE
    bool isWaiting = false;           // TOPIC and EXAMPLE wait for the enter key
    NAT year = 0, month = 0, day = 0; // of the build
    std::vector<PAIR> pairs;
};
} // namespace morvane
