#include "script/module/xml_show.hpp"

#include "foundation/console/console.hpp"
#include "script/file/read_xml.hpp"

#include <algorithm>

namespace morvane {
namespace {
constexpr std::size_t DEEPEST_INDENT = 40; // levels; deeper ones stand below one another
constexpr NAT LONGEST_LINE_TEXT = 60;      // units of an element's text and of its attributes

// One line for the console: runs of blanks, line ends and control characters become one blank.
std::string Shown(std::string_view text) {
    std::string line;
    for (const char c : text) {
        const bool isBlank = (c >= 0 && c <= ' ') || c == 127;
        if (!isBlank) line += c;
        if (isBlank && !line.empty() && !line.ends_with(' ')) line += ' ';
    }
    if (line.ends_with(' ')) line.pop_back();
    const UTF16 units(line);
    if (units.LENGTH() <= LONGEST_LINE_TEXT) return line;
    return GETUTF8(COPY(units, 1, LONGEST_LINE_TEXT)) + "...";
}

// Gathers a line until what comes next shows that it is whole.
class LISTING {
public:
    explicit LISTING(const TREADXML &shown) : xml(shown) {}

    // False when the text is at fault here, which has been told.
    bool Take(const XML_TOKEN &token) {
        switch (token.kind) {
        case XML_KIND::SKIPPED: return true;
        case XML_KIND::TEXT: return Text(XML_DECODED(token.text));
        case XML_KIND::CDATA: return Text(token.text);
        case XML_KIND::CLOSE: return Close(token);
        case XML_KIND::OPEN:
        case XML_KIND::EMPTY: break;
        }
        return Open(token);
    }
    // The line under way; at the end of the text what is still open is a fault.
    void Finish(bool atEnd) {
        Print();
        if (atEnd && !starts.empty())
            xml.TELLFAULT(starts.back(), "<" + std::string(names.back()) + "> is never closed");
    }

private:
    bool Open(const XML_TOKEN &token) {
        Print();
        line = Indent() + "<" + std::string(token.name);
        if (!token.attributes.empty()) line += " " + Shown(token.attributes);
        line += token.kind == XML_KIND::EMPTY ? "/>" : ">";
        if (token.kind == XML_KIND::EMPTY) {
            Print();
            return true;
        }
        if (!path.OPEN(token.name)) return Fault(token, "tags nested too deep");
        starts.push_back(token.startOffset);
        names.push_back(token.name);
        return true;
    }
    bool Close(const XML_TOKEN &token) {
        const std::size_t closed = path.CLOSE(token.name);
        const std::string name(token.name);
        if (closed == 0) return Fault(token, "</" + name + "> closes nothing");
        if (closed > 1)
            return Fault(token, "</" + name + "> before </" + std::string(names.back()) + ">");
        starts.pop_back();
        names.pop_back();
        Print();
        return true;
    }
    bool Text(std::string_view text) {
        const std::string shown = Shown(text);
        if (shown.empty()) return true;
        line += line.empty() ? Indent() + shown : " " + shown;
        return true;
    }
    bool Fault(const XML_TOKEN &token, std::string_view why) {
        Print();
        xml.TELLFAULT(token.startOffset, why);
        return false;
    }
    void Print() {
        if (!line.empty()) WRITELN(line);
        line.clear();
    }
    std::string Indent() const {
        return std::string(2 * std::min(path.DEPTH(), DEEPEST_INDENT), ' ');
    }

    const TREADXML &xml;
    TXMLPATH path;
    std::vector<std::size_t> starts; // of the open elements
    std::vector<std::string_view> names;
    std::string line;
};
} // namespace

void XML_SHOW(const TREADXML &xml) {
    TXMLSCAN scan(xml.READ());
    LISTING listing(xml);
    XML_TOKEN token;
    while (scan.NEXT(token))
        if (!listing.Take(token)) return;
    listing.Finish(scan.FAULT().empty());
    if (!scan.FAULT().empty()) xml.TELLFAULT(scan.FAULTOFFSET(), scan.FAULT());
}
} // namespace morvane
