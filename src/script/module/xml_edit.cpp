#include "script/module/xml_edit.hpp"

#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "script/file/read_xml.hpp"
#include "script/module/text_target.hpp"

namespace morvane {
namespace {
constexpr std::size_t NONE = std::string_view::npos;

// Whether every tag that the text opens is closed in it, and no other.
bool IsBalanced(std::string_view text) {
    TXMLSCAN scan(text);
    TXMLPATH path;
    XML_TOKEN token;
    while (scan.NEXT(token)) {
        if (token.kind == XML_KIND::OPEN && !path.OPEN(token.name)) return false;
        if (token.kind == XML_KIND::CLOSE && path.CLOSE(token.name) != 1) return false;
    }
    return scan.FAULT().empty() && path.DEPTH() == 0;
}

// Bytes that go, and what comes in their place.
struct CHANGE {
    std::size_t startOffset, endOffset;
    std::string text;
};

// The change widened to whole lines when only blanks stand beside the element on them.
void WidenToLines(std::string_view text, CHANGE &change) {
    constexpr std::string_view BLANKS = " \t";
    const std::size_t last = text.substr(0, change.startOffset).find_last_not_of(BLANKS);
    const std::size_t next = text.find_first_not_of(BLANKS, change.endOffset);
    const bool atStart = last == NONE || text[last] == '\n' || text[last] == '\r';
    const bool atEnd = next == NONE || text[next] == '\n' || text[next] == '\r';
    if (!atStart || !atEnd) return;
    change.startOffset = last == NONE ? 0 : last + 1;
    change.endOffset = next == NONE ? text.size() : next + (text.substr(next, 2) == "\r\n" ? 2 : 1);
}

CHANGE ChangeOf(XML_EDIT edit, const XML_ELEMENT &element, std::string_view text,
                const std::string &with) {
    if (edit == XML_EDIT::REMOVE) {
        CHANGE change{element.startOffset, element.endOffset, {}};
        WidenToLines(text, change);
        return change;
    }
    if (element.isEmpty) { // <name .../> gets a closing tag
        const std::size_t slash = text.rfind('/', element.endOffset - 1);
        return {slash, element.endOffset, ">" + with + "</" + std::string(element.name) + ">"};
    }
    if (edit == XML_EDIT::INSERT_BEGIN) return {element.contentOffset, element.contentOffset, with};
    if (edit == XML_EDIT::INSERT_END) return {element.contentEnd, element.contentEnd, with};
    return {element.contentOffset, element.contentEnd, with};
}
} // namespace

bool XML_REWRITE(XML_EDIT edit, const XML_REQUEST &request) {
    if (!IsBalanced(request.text)) {
        WRITELN("  Text (" + request.text + ") has tags without their partners!");
        return false;
    }
    TREADXML xml;
    XML_ELEMENT element;
    if (!xml.LOAD(request.file)) return false;
    const TREADXML::SEARCH found = xml.FIND(request.tag, request.number, true, element);
    if (found == TREADXML::SEARCH::MISSING)
        WRITELN("  Tag (" + request.tag + ") not found in file (" + GETUTF8(request.file) + ").");
    if (found != TREADXML::SEARCH::FOUND) return false;
    const CHANGE change = ChangeOf(edit, element, xml.READ(), request.text);
    FILE_WRITE target;
    if (!ASSIGNWRITE_BY_NAME(target, request.target)) return false;
    target.WRITE(xml.READ().substr(0, change.startOffset));
    target.WRITE(change.text);
    target.WRITE(xml.READ().substr(change.endOffset));
    return target.COMMIT();
}
} // namespace morvane
