#pragma once

#include "foundation/base/utf16.hpp"

namespace morvane {
enum class XML_EDIT : BYTE { INSERT_BEGIN, REPLACE, REMOVE, INSERT_END };

struct XML_REQUEST {
    UTF16 file;
    std::string tag;  // as TREADXML finds it
    std::string text; // XML as it stands; not of REMOVE
    UTF16 target;     // may be the file itself
    NAT number = 1;   // the number-th such element
};

// Rewrites a file around one element and leaves every other byte as it is: text behind its opening
// tag, in place of its content, or in front of its closing tag; REMOVE takes the element with its
// tags, and its lines when nothing else stands on them. False, and nothing written, when the file
// cannot be read or written, the element isn't there or the text has tags without their partners;
// each is told in one line.
bool XML_REWRITE(XML_EDIT edit, const XML_REQUEST &request);
} // namespace morvane
