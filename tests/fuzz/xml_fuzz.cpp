// Any bytes as an XML file: its pieces, its listing, single values, and a value put into it.
#include "foundation/console/console.hpp"
#include "script/file/read_xml.hpp"
#include "script/module/xml_show.hpp"

#include <cstdint>
#include <cstdlib>

namespace {
using namespace morvane;

void Require(bool holds) {
    if (!holds) std::abort();
}

// The pieces lie one behind the other and reach to the end or to the fault.
void CheckPieces(std::string_view text) {
    TXMLSCAN scan(text);
    XML_TOKEN token;
    std::size_t end = 0;
    while (scan.NEXT(token)) {
        Require(token.startOffset == end && token.endOffset > end);
        end = token.endOffset;
    }
    Require(scan.FAULT().empty() ? end == text.size() : scan.FAULTOFFSET() == end);
}

// What is put between the tags of an element is what TAG reads from it then.
void CheckReplacement(const TREADXML &xml, NAT number) {
    XML_ELEMENT element;
    if (xml.FIND("a", number, true, element) != TREADXML::SEARCH::FOUND || element.isEmpty) return;
    const std::string_view text = xml.READ();
    Require(element.startOffset < element.contentOffset);
    Require(element.contentOffset <= element.contentEnd && element.contentEnd < element.endOffset);
    std::string changed(text.substr(0, element.contentOffset));
    changed += "5" + std::string(text.substr(element.contentEnd));
    TREADXML after;
    Require(after.LOADBYTES(changed));
    Require(after.TAG("a", "none", number) == UTF16("5"));
}
} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size) {
    static const bool quiet = [] {
        SETSINK([](std::string_view, void *) {}, nullptr);
        return true;
    }();
    const std::string_view text(reinterpret_cast<const char *>(data), size);
    TREADXML xml;
    if (!quiet || !xml.LOADBYTES(text)) return 0;
    CheckPieces(text);
    XML_SHOW(xml);
    for (NAT number = 1; number <= 3; ++number) {
        xml.TAG("a/b", "none", number);
        xml.TAG("/a", "none", number);
        xml.ID("a", "id", "none", number);
        CheckReplacement(xml, number);
    }
    return 0;
}
