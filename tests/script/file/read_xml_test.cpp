#include "script/file/read_xml.hpp"
#include "support/capture.hpp"
#include "support/temporary_folder.hpp"

#include <string>
#include <vector>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
// The pieces of a text: "[name attributes]" opens, "[name/]" is empty, "[/name]" closes, "{text}",
// "{{cdata}}", "-" is skipped and "!" a piece that never ends.
std::string PiecesOf(std::string_view text) {
    TXMLSCAN scan(text);
    XML_TOKEN token;
    std::string pieces;
    const auto put = [&](std::string_view first, std::string_view inside, std::string_view last) {
        pieces += std::string(first) + std::string(inside) + std::string(last);
    };
    while (scan.NEXT(token)) {
        std::string tag(token.name);
        if (!token.attributes.empty()) tag += " " + std::string(token.attributes);
        switch (token.kind) {
        case XML_KIND::TEXT: put("{", token.text, "}"); break;
        case XML_KIND::CDATA: put("{{", token.text, "}}"); break;
        case XML_KIND::OPEN: put("[", tag, "]"); break;
        case XML_KIND::EMPTY: put("[", tag, "/]"); break;
        case XML_KIND::CLOSE: put("[/", token.name, "]"); break;
        case XML_KIND::SKIPPED: pieces += "-"; break;
        }
    }
    return pieces + (scan.FAULT().empty() ? "" : "!");
}

struct XML {
    CAPTURE console;
    TREADXML xml;
    explicit XML(std::string_view text) { CHECK(xml.LOADBYTES(text, "a.xml")); }
    std::string TAG(std::string_view tag, NAT number = 1) {
        return GETUTF8(xml.TAG(tag, "none", number));
    }
    std::string ID(std::string_view tag, std::string_view id, NAT number = 1) {
        return GETUTF8(xml.ID(tag, id, "none", number));
    }
};

std::string Repeated(const char *text, int count) {
    std::string repeated;
    for (int i = 0; i < count; ++i)
        repeated += text;
    return repeated;
}
} // namespace

TEST_CASE("a text is cut into tags and what stands between them") {
    CHECK(PiecesOf("<?xml version=\"1.0\"?><a><b x='1'/>t</a>") == "-[a][b x='1'/]{t}[/a]");
    CHECK(PiecesOf("<a\n  x = \"1\" >\n</a >") == "[a x = \"1\"]{\n}[/a]");
    CHECK(PiecesOf("") == "");
    CHECK(PiecesOf("no tag") == "{no tag}");
}

TEST_CASE("comments, declarations and instructions are skipped whole") {
    CHECK(PiecesOf("<!-- <a> > -- --><b/>") == "-[b/]");
    CHECK(PiecesOf("<!DOCTYPE d [<!ENTITY e \"]>\"> <!-- ' -->]><b/>") == "-[b/]");
    CHECK(PiecesOf("<?p a>b?><b/>") == "-[b/]");
    CHECK(PiecesOf("<![CDATA[<a>&amp;]]]>") == "{{<a>&amp;]}}");
}

TEST_CASE("a > inside the quotes of an attribute does not end the tag") {
    CHECK(PiecesOf("<a x=\"1>2\" y='\"'>") == "[a x=\"1>2\" y='\"']");
}

TEST_CASE("a < that begins no tag is a character") {
    CHECK(PiecesOf("<a>1 < 2 <3 <</a>") == "[a]{1 < 2 <3 <}[/a]");
    CHECK(PiecesOf("<") == "{<}");
    CHECK(PiecesOf("</ a>") == "{</ a>}");
}

TEST_CASE("a closing tag may be written with a backslash") {
    CHECK(PiecesOf("<clip>1<\\clip>") == "[clip]{1}[/clip]");
}

TEST_CASE("a piece that never ends is a fault at its start") {
    for (const char *text : {"x<a", "x<a b='>", "x<a <b>", "x</a", "x<!-- a ->", "x<![CDATA[]>",
                             "x<?p >", "x<!D [ >", "x<!D '>"}) {
        TXMLSCAN scan(text);
        XML_TOKEN token;
        CHECK(scan.NEXT(token));
        CHECK_FALSE(scan.NEXT(token));
        INFO(text);
        CHECK_FALSE(scan.FAULT().empty());
        CHECK(scan.FAULTOFFSET() == 1);
    }
}

TEST_CASE("attributes are found by name in both quotes, without any, and without a value") {
    std::string_view value;
    constexpr std::string_view ATTRIBUTES = "a=\"1 2\" b = 'x\"y' c=z d e=\"\"";
    CHECK(XML_ATTRIBUTE(ATTRIBUTES, "a", value));
    CHECK(value == "1 2");
    CHECK(XML_ATTRIBUTE(ATTRIBUTES, "b", value));
    CHECK(value == "x\"y");
    CHECK(XML_ATTRIBUTE(ATTRIBUTES, "c", value));
    CHECK(value == "z");
    CHECK(XML_ATTRIBUTE(ATTRIBUTES, "d", value));
    CHECK(value == "");
    CHECK(XML_ATTRIBUTE(ATTRIBUTES, "e", value));
    CHECK_FALSE(XML_ATTRIBUTE(ATTRIBUTES, "x", value));
    CHECK_FALSE(XML_ATTRIBUTE("= = '", "a", value));
}

TEST_CASE("entities are replaced, and unknown ones stay") {
    CHECK(XML_DECODED("a &lt; b &amp;&gt; &quot;&apos;") == "a < b &> \"'");
    CHECK(XML_DECODED("&#181;m &#xB5;m &#8364;") == "µm µm €");
    CHECK(XML_DECODED("&#x1F600;") == "\xF0\x9F\x98\x80");
    CHECK(XML_DECODED("&amp;lt;") == "&lt;");
    for (const char *text : {"&nbsp;", "&", "&;", "&#;", "&#x;", "&#0;", "&#xD800;", "&#x110000;",
                             "&#99999999999;", "& lt;", "&#-1;"})
        CHECK(XML_DECODED(text) == text);
}

TEST_CASE("a line is counted by line feeds and carriage returns") {
    CHECK(XML_LINE("ab", 0) == 1);
    CHECK(XML_LINE("a\nb\r\nc\rd", 6) == 3);
    CHECK(XML_LINE("a\nb\r\nc\rd", 7) == 4);
}

TEST_CASE("TAG gives the characters between the tags without blanks around them") {
    XML file("<s><scale>\n  0.5 &#181;m </scale><e/><m>a<b>c</b><!-- x --><![CDATA[<d>]]></m></s>");
    CHECK(file.TAG("scale") == "0.5 µm");
    CHECK(file.TAG("e") == "");
    CHECK(file.TAG("m") == "ac<d>");
    CHECK(file.TAG("Scale") == "none");
    CHECK(file.TAG("") == "none");
    CHECK(file.console.TEXT() == "");
}

TEST_CASE("the tag may be the end of a path, or a path from the root") {
    XML file("<a><x>1</x><b><x>2</x></b><c><b><x>3</x></b></c></a>");
    CHECK(file.TAG("x") == "1");
    CHECK(file.TAG("b/x") == "2");
    CHECK(file.TAG("c/b/x") == "3");
    CHECK(file.TAG("/a/x") == "1");
    CHECK(file.TAG("/x") == "none");
    CHECK(file.TAG("a/c/x") == "none");
    CHECK(file.TAG("z/a/x") == "none");
}

TEST_CASE("the number counts the elements that fit") {
    XML file("<a><x>1</x><x k='v'>2<x>3</x></x></a>");
    CHECK(file.TAG("x", 2) == "23");
    CHECK(file.TAG("x", 3) == "3");
    CHECK(file.TAG("x", 4) == "none");
    CHECK(file.TAG("x", 0) == "none");
    CHECK(file.ID("x", "k", 2) == "v");
    CHECK(file.ID("x", "k", 1) == "none");
}

TEST_CASE("ID gives an attribute's value with its entities replaced") {
    XML file("<a n=\"x &lt; 1\"><b/></a>");
    CHECK(file.ID("a", "n") == "x < 1");
    CHECK(file.ID("a", "m") == "none");
    CHECK(file.ID("b", "n") == "none");
    CHECK(file.ID("c", "n") == "none");
}

TEST_CASE("a text that breaks off gives the default and one line with the place") {
    XML file("<a>\n<b>1</b>\n<c x='1>");
    CHECK(file.TAG("b") == "1");
    CHECK(file.console.TEXT() == "");
    CHECK(file.TAG("c") == "none");
    CHECK(file.console.TEXT() == "  Broken XML in line 3 (a.xml): a tag without \">\"!\n");
}

TEST_CASE("an element that is never closed is told, whether the text or its parent ends") {
    XML file("<a><b>1</a>");
    CHECK(file.TAG("b") == "none");
    CHECK(file.console.TEXT() == "  Broken XML in line 1 (a.xml): <b> is never closed!\n");
    CHECK(file.TAG("a") == "1");
    CHECK(XML("<a><b>1").TAG("b") == "none");
    CHECK(XML("<a>1</b>2</a>").TAG("a") == "12");
}

TEST_CASE("tags nested a thousand deep are read and deeper ones told") {
    const std::string deep = Repeated("<a>", 999) + "<x>7</x>" + Repeated("</a>", 999);
    CHECK(XML(deep).TAG("x") == "7");
    XML file(Repeated("<a>", 200000));
    CHECK(file.TAG("x") == "none");
    CHECK(file.console.TEXT() == "  Broken XML in line 1 (a.xml): tags nested too deep!\n");
}

TEST_CASE("LOAD reads packed files and READ gives the whole text") {
    const TEMPORARY_FOLDER folder;
    XML file("");
    TFILE packed;
    REQUIRE(packed.LOADBYTES("<a>1</a>"));
    REQUIRE(packed.SAVE(folder.PATH("a.xml.gz")));
    CHECK(file.xml.LOAD(folder.PATH("a.xml.gz")));
    CHECK(file.xml.READ() == "<a>1</a>");
    CHECK_FALSE(file.xml.LOAD(folder.PATH("b.xml")));
    CHECK(file.console.CONTAINS("not found"));
    CHECK(file.xml.READ() == "");
}

TEST_CASE("two-byte text is refused in one line") {
    CAPTURE console;
    TREADXML xml;
    CHECK_FALSE(xml.LOADBYTES(std::string_view("\xFF\xFE<\0a\0>\0", 8), "a.xml"));
    CHECK(console.TEXT() == "  XML file (a.xml) is not UTF-8!\n");
    CHECK(xml.READ() == "");
    CHECK(XML("\xEF\xBB\xBF<a>1</a>").TAG("a") == "1");
}
