#pragma once

#include "foundation/base/records.hpp"

#include <string>
#include <string_view>
#include <vector>

// The parameters text of a command row or a keyword: "name: kind unit" or "name: kind [unit]"
// parted by ", ", optional ones in [ ], repeated ones with " ...", alternatives parted by " | ".
namespace morvane {
struct PARAMETER_PART;
using PARAMETER_SEQUENCE = std::vector<PARAMETER_PART>;

// One parameter, or a group in brackets.
struct PARAMETER_PART {
    std::string name, kind, unit;            // of one parameter; the unit may be empty
    std::vector<PARAMETER_SEQUENCE> choices; // of a group, which may be left out; else empty
    bool repeated = false;                   // may stand any number of times more

    bool GROUP() const { return !choices.empty(); }
};

struct PARAMETER_TEXT {
    std::vector<PARAMETER_SEQUENCE> choices; // one sequence for a text without alternatives
    std::string error;                       // why the text is not well formed; empty when it is
};

// How many parameters a text allows.
struct PARAMETER_COUNT {
    static constexpr NAT UNLIMITED = NATMAX;
    NAT least = 0, most = 0;
};

PARAMETER_TEXT PARSE_PARAMETERS(std::string_view text);
PARAMETER_COUNT COUNT_OF(const PARAMETER_TEXT &text);
bool IS_PARAMETER_KIND(std::string_view word); // text, file, name, number, ...

// How a line with these parameters is written: "report [radius point ...] | name"; each name as
// `form` writes it.
std::string PARAMETER_SYNTAX(const PARAMETER_TEXT &text,
                             std::string (*form)(std::string_view name));
// Whether the parameter at this offset is a file in every line that has one there.
bool IS_FILE_AT(const PARAMETER_TEXT &text, std::size_t offset);
} // namespace morvane
