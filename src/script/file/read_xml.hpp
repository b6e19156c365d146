#pragma once

#include "script/file/file.hpp"
#include "script/file/xml_scan.hpp"

namespace morvane {
// Where an element stands in the text of a TREADXML, in bytes from 0; each end is one behind.
struct XML_ELEMENT {
    std::size_t startOffset = 0, endOffset = 0;    // from its "<" to behind its last ">"
    std::size_t contentOffset = 0, contentEnd = 0; // between its tags
    std::string_view name, attributes;
    bool isEmpty = false; // written as <name/>
};

// An XML file in memory, for single values out of it. A tag is named by its name, or by the end of
// its path as "study/scale", or from the root as "/project/study/scale"; upper and lower case
// differ. For a walk over all of it see TXMLSCAN on READ.
class TREADXML {
public:
    bool LOAD(const UTF16 &name); // packed files too; a failure is told and leaves no text
    bool LOADBYTES(std::string_view bytes, const UTF16 &name = "memory");
    void DONE();

    std::string_view READ() const { return file.VIEW(); } // the whole text in one string
    // The characters of the number-th such element, of the elements inside it too: entities are
    // replaced, blanks and line ends around it removed. `otherwise` when there is none.
    UTF16 TAG(std::string_view tag, const UTF16 &otherwise, NAT number = 1) const;
    // The value of an attribute of the number-th such element.
    UTF16 ID(std::string_view tag, std::string_view id, const UTF16 &otherwise,
             NAT number = 1) const;
    // Looks for the number-th such element; BROKEN has been told in one line. Without `whole` its
    // end is not looked for.
    enum class SEARCH : BYTE { FOUND, MISSING, BROKEN };
    [[nodiscard]] SEARCH FIND(std::string_view tag, NAT number, bool whole,
                              XML_ELEMENT &element) const;
    // "Broken XML in line n (name): why!"
    void TELLFAULT(std::size_t offset, std::string_view why) const;

private:
    bool Loaded(bool loaded, const UTF16 &name);
    SEARCH Broken(std::size_t offset, std::string_view why) const;
    SEARCH FindEnd(TXMLSCAN &scan, TXMLPATH &path, XML_ELEMENT &element) const;

    TFILE file;
    UTF16 fileName;
};
} // namespace morvane
