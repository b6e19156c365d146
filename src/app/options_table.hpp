#pragma once

#include "foundation/base/records.hpp"

#include <span>
#include <string_view>

// The options of the program as rows, in reading order. A value read is also a script constant.
namespace morvane {
enum class OPTION_KIND : BYTE {
    TOPIC,  // a section title
    LEGEND, // a line of the help under the option before it
    STRING,
    LOWERSTRING, // kept in lower case
    NATURAL,     // limited to min..max
    VECTOR,
    SEED // of all random numbers; drawn from the system when it is not given
};

struct OPTION_ROW {
    OPTION_KIND kind;
    std::string_view name;     // of the option; the text of a topic or a legend
    std::string_view standard; // the value when the option is not given
    std::string_view legend;
    std::string_view constant; // name for scripts; may differ from the option's
    NAT min = 0, max = 0;
};

extern const std::span<const OPTION_ROW> OPTIONS;
} // namespace morvane
