#include "script/file/read_xml.hpp"

#include "foundation/console/console.hpp"

namespace morvane {
namespace {
constexpr std::string_view TOO_DEEP = "tags nested too deep";

bool Opens(const XML_TOKEN &token) {
    return token.kind == XML_KIND::OPEN || token.kind == XML_KIND::EMPTY;
}

std::string CharactersOf(std::string_view content) {
    TXMLSCAN scan(content);
    XML_TOKEN token;
    std::string characters;
    while (scan.NEXT(token)) {
        if (token.kind == XML_KIND::TEXT) characters += XML_DECODED(token.text);
        if (token.kind == XML_KIND::CDATA) characters += token.text;
    }
    return characters;
}
} // namespace

bool TREADXML::LOAD(const UTF16 &name) {
    DONE();
    return Loaded(file.LOAD(name), name);
}

bool TREADXML::LOADBYTES(std::string_view bytes, const UTF16 &name) {
    DONE();
    return Loaded(file.LOADBYTES(bytes), name);
}

// Two-byte text is refused here, since no tag would ever be found in it.
bool TREADXML::Loaded(bool loaded, const UTF16 &name) {
    fileName = name;
    if (!loaded) return false;
    if (!READ().starts_with("\xFF\xFE") && !READ().starts_with("\xFE\xFF")) return true;
    WRITELN("  XML file (" + GETUTF8(name) + ") is not UTF-8!");
    DONE();
    return false;
}

void TREADXML::DONE() {
    file.DONE();
    fileName = {};
}

void TREADXML::TELLFAULT(std::size_t offset, std::string_view why) const {
    WRITELN("  Broken XML in line " + std::to_string(XML_LINE(READ(), offset)) + " (" +
            GETUTF8(fileName) + "): " + std::string(why) + "!");
}

TREADXML::SEARCH TREADXML::Broken(std::size_t offset, std::string_view why) const {
    TELLFAULT(offset, why);
    return SEARCH::BROKEN;
}

TREADXML::SEARCH TREADXML::FIND(std::string_view tag, NAT number, bool whole,
                                XML_ELEMENT &element) const {
    element = {};
    if (tag.empty() || number < 1) return SEARCH::MISSING;
    TXMLSCAN scan(READ());
    TXMLPATH path;
    XML_TOKEN token;
    while (scan.NEXT(token)) {
        if (token.kind == XML_KIND::CLOSE) path.CLOSE(token.name);
        if (!Opens(token)) continue;
        const bool found = path.ENDSWITH(tag, token.name) && --number == 0;
        const bool isEmpty = token.kind == XML_KIND::EMPTY;
        if (found) {
            element = {token.startOffset, token.endOffset,  token.endOffset, token.endOffset,
                       token.name,        token.attributes, isEmpty};
            if (isEmpty || !whole) return SEARCH::FOUND;
        }
        if (!isEmpty && !path.OPEN(token.name)) return Broken(token.startOffset, TOO_DEEP);
        if (found) return FindEnd(scan, path, element);
    }
    return scan.FAULT().empty() ? SEARCH::MISSING : Broken(scan.FAULTOFFSET(), scan.FAULT());
}

// Goes on to the closing tag of the element just opened. A closing tag of an element around it
// means that its own is missing; one that closes nothing is passed over.
TREADXML::SEARCH TREADXML::FindEnd(TXMLSCAN &scan, TXMLPATH &path, XML_ELEMENT &element) const {
    const std::size_t depth = path.DEPTH();
    XML_TOKEN token;
    while (scan.NEXT(token)) {
        if (token.kind == XML_KIND::OPEN && !path.OPEN(token.name))
            return Broken(token.startOffset, TOO_DEEP);
        if (token.kind != XML_KIND::CLOSE) continue;
        const std::size_t before = path.DEPTH(), closed = path.CLOSE(token.name);
        if (before - closed >= depth) continue;
        if (before - closed < depth - 1) break;
        element.contentEnd = token.startOffset;
        element.endOffset = token.endOffset;
        return SEARCH::FOUND;
    }
    if (!scan.FAULT().empty()) return Broken(scan.FAULTOFFSET(), scan.FAULT());
    return Broken(element.startOffset, "<" + std::string(element.name) + "> is never closed");
}

UTF16 TREADXML::TAG(std::string_view tag, const UTF16 &otherwise, NAT number) const {
    XML_ELEMENT element;
    if (FIND(tag, number, true, element) != SEARCH::FOUND) return otherwise;
    const std::size_t length = element.contentEnd - element.contentOffset;
    return GETUTF16(XML_TRIMMED(CharactersOf(READ().substr(element.contentOffset, length))));
}

UTF16 TREADXML::ID(std::string_view tag, std::string_view id, const UTF16 &otherwise,
                   NAT number) const {
    XML_ELEMENT element;
    std::string_view value;
    if (FIND(tag, number, false, element) != SEARCH::FOUND) return otherwise;
    return XML_ATTRIBUTE(element.attributes, id, value) ? GETUTF16(XML_DECODED(value)) : otherwise;
}
} // namespace morvane
