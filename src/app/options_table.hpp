#pragma once

#include "foundation/base/utf16.hpp"

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
    LIBRARY, // on or off: an image library that was found at run time
    STATUS,  // on or off: the exit status tells of a failed script
    SEED     // of all random numbers; drawn from the system when it is not given
};

// Whether a row is there: some are only for one of the image libraries, or without any.
enum class OPTION_NEED : BYTE { NOTHING, FREEIMAGE, IMAGEMAGICK, NO_LIBRARY };

struct OPTION_ROW {
    OPTION_KIND kind;
    std::string_view name;     // of the option; the text of a topic or a legend
    std::string_view standard; // the value when the option is not given
    std::string_view legend;
    std::string_view constant; // name for scripts; may differ from the option's
    NAT min = 0, max = 0;
    OPTION_NEED need = OPTION_NEED::NOTHING;
};

extern const std::span<const OPTION_ROW> OPTIONS;

// An image library that may be found at run time, and what the options need of it.
struct IMAGE_LIBRARY {
    OPTION_NEED need;    // FREEIMAGE or IMAGEMAGICK
    bool (*answers)();   // it was found and isn't switched off
    UTF16 (*title)();    // its name and version
    void (*switchOff)(); // for the rest of the run
};
// The libraries that this build knows. Another list is for tests.
extern std::span<const IMAGE_LIBRARY> IMAGE_LIBRARIES;
// The library of a row that needs one, when it answers, else null.
const IMAGE_LIBRARY *ANSWERING_LIBRARY(OPTION_NEED need);
bool OPTION_IS_THERE(const OPTION_ROW &row);
} // namespace morvane
