#pragma once

#include "foundation/base/records.hpp"

#include <string>
#include <string_view>
#include <vector>

// The pieces of an XML text in order, without a document type and without validation. All offsets
// are bytes from 0.
namespace morvane {
enum class XML_KIND : BYTE {
    TEXT,    // characters between tags, entities as they stand
    CDATA,   // the characters of <![CDATA[...]]>, no entities in them
    OPEN,    // <name ...>
    EMPTY,   // <name .../>
    CLOSE,   // </name>, and <\name> of some devices
    SKIPPED, // <?...?>, <!...> and comments
};

struct XML_TOKEN {
    XML_KIND kind = XML_KIND::TEXT;
    std::string_view name;                      // of OPEN, EMPTY and CLOSE
    std::string_view attributes;                // behind the name of OPEN and EMPTY
    std::string_view text;                      // of TEXT and CDATA
    std::size_t startOffset = 0, endOffset = 0; // of the whole piece; the end is one behind it
};

// Walks a text that outlives it.
class TXMLSCAN {
public:
    explicit TXMLSCAN(std::string_view whole) : text(whole) {}
    // The next piece; false at the end of the text and at a piece that never ends.
    [[nodiscard]] bool NEXT(XML_TOKEN &token);
    // Why NEXT stopped before the end, in a few words; empty otherwise.
    std::string_view FAULT() const { return fault; }
    std::size_t FAULTOFFSET() const { return offset; } // where the piece that never ends begins

private:
    bool Tag(XML_TOKEN &token);
    bool Closing(XML_TOKEN &token);
    bool Between(XML_TOKEN &token, std::string_view first, std::string_view last,
                 std::string_view complaint);
    bool Declaration(XML_TOKEN &token);
    bool Fail(std::string_view complaint);
    bool Finish(XML_TOKEN &token, std::size_t endOffset);

    std::string_view text;
    std::size_t offset = 0;
    std::string_view fault;
};

// The open elements, outermost first.
class TXMLPATH {
public:
    static constexpr std::size_t DEEPEST = 1000;

    [[nodiscard]] bool OPEN(std::string_view name); // false: nested deeper than DEEPEST
    // Closes the innermost open element of this name and all inside it: how many closed; 0: none
    // of that name is open, and nothing changes.
    std::size_t CLOSE(std::string_view name);
    std::size_t DEPTH() const { return names.size(); }
    // Whether `last` as the next element inside would end the path "a/b/last"; a path that starts
    // with "/" begins at the root.
    bool ENDSWITH(std::string_view path, std::string_view last) const;

private:
    std::vector<std::string_view> names;
};

// The value of an attribute as it is written, quotes removed; false when there is none.
[[nodiscard]] bool XML_ATTRIBUTE(std::string_view attributes, std::string_view name,
                                 std::string_view &value);
// The five named entities and numbers such as &#181; or &#xB5; as UTF-8; others stay as they are.
std::string XML_DECODED(std::string_view text);
std::string_view XML_TRIMMED(std::string_view text);     // without blanks and line ends around it
NAT XML_LINE(std::string_view text, std::size_t offset); // the line, from 1, of an offset
} // namespace morvane
