#include "script/module/use_all.hpp"
#include "script/module/xml_edit.hpp"
#include "text_script.hpp"

#include <doctest/doctest.h>

using namespace morvane;

namespace {
constexpr std::string_view STUDY =
    "<?xml version=\"1.0\"?>\n<study>\n  <scale unit=\"mm\">0.5</scale>\n"
    "  <files>\n    <file>a.nii</file>\n  </files>\n  <end/>\n"
    "</study>\n";

std::string ShowOf(std::string_view text) {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.xml", text);
    return script.RUN("xml.show a.xml");
}

std::string AfterOf(const std::string &line, std::string_view text) {
    TEXT_SCRIPT script;
    return script.AFTER(line, "a.xml", text);
}
} // namespace

TEST_CASE("xml.show prints one line for each element, indented by its depth") {
    CHECK(ShowOf(STUDY) == "<study>\n  <scale unit=\"mm\"> 0.5\n  <files>\n    <file> a.nii\n"
                           "  <end/>\n");
    TEXT_SCRIPT script;
    script.folder.WRITE("a.xml", "<a/>");
    CHECK(script.RUN("dump.xml a.xml") == "<a/>\n");
}

TEST_CASE("xml.show joins blanks, cuts long texts and leaves comments out") {
    CHECK(ShowOf("<a  x='1'\n y='2'>\n 1\n\t2 <!-- c --></a>") == "<a x='1' y='2'> 1 2\n");
    CHECK(ShowOf("<a>" + std::string(61, 'x') + "</a>") == "<a> " + std::string(60, 'x') + "...\n");
    CHECK(ShowOf("<a>" + std::string(60, 'x') + "</a>") == "<a> " + std::string(60, 'x') + "\n");
    CHECK(ShowOf("<a>1<b/>2<c>3</c>4</a>") == "<a> 1\n  <b/>\n  2\n  <c> 3\n  4\n");
    CHECK(ShowOf("<a>\x1B[2J&#27;&lt;<![CDATA[&lt;]]></a>") == "<a> [2J < &lt;\n");
}

TEST_CASE("xml.show ends at the first fault with one line") {
    CHECK(ShowOf("<a>\n<b>\n</a>") ==
          "<a>\n  <b>\n  Broken XML in line 3 (a.xml): </a> before </b>!\n");
    CHECK(ShowOf("<a></b></a>") == "<a>\n  Broken XML in line 1 (a.xml): </b> closes nothing!\n");
    CHECK(ShowOf("<a>\n<b>") ==
          "<a>\n  <b>\n  Broken XML in line 2 (a.xml): <b> is never closed!\n");
    CHECK(ShowOf("<a><b") == "<a>\n  Broken XML in line 1 (a.xml): a tag without \">\"!\n");
    CHECK(ShowOf("") == "");
}

TEST_CASE("xml.show of tags nested without bound ends with one line") {
    std::string deep;
    for (int i = 0; i < 100000; ++i)
        deep += "<a>";
    const std::string shown = ShowOf(deep);
    CHECK(shown.ends_with("<a>\n  Broken XML in line 1 (a.xml): tags nested too deep!\n"));
    CHECK(std::count(shown.begin(), shown.end(), '\n') == 1002);
}

TEST_CASE("xml.insert.begin puts text behind the opening tag") {
    CHECK(AfterOf("xml.insert.begin a.xml b \"<c/>\"", "<a><b>1</b></a>") == "<a><b><c/>1</b></a>");
}

TEST_CASE("xml.insert.end puts text in front of the closing tag") {
    CHECK(AfterOf("xml.insert.end a.xml a/b 2", "<b/><a><b>1</b ></a>") == "<b/><a><b>12</b ></a>");
    CHECK(AfterOf("xml.insert.end a.xml b x", "<b><b>1</b></b>") == "<b><b>1</b>x</b>");
}

TEST_CASE("xml.replace changes what stands between the tags and keeps every other byte") {
    CHECK(AfterOf("xml.replace a.xml scale 0.25",
                  "<s>\r\n\t<scale u='\xB5'> 1 </scale>\r\n</s>\xFF") ==
          "<s>\r\n\t<scale u='\xB5'>0.25</scale>\r\n</s>\xFF");
}

TEST_CASE("an empty element gets a closing tag when text is put into it") {
    for (const char *command : {"xml.insert.begin", "xml.insert.end", "xml.replace"})
        CHECK(AfterOf(std::string(command) + " a.xml b 1", "<a><b x=\"/\" /></a>") ==
              "<a><b x=\"/\" >1</b></a>");
}

TEST_CASE(
    "xml.delete takes the element with its tags, and its lines when it stands alone on them") {
    CHECK(AfterOf("xml.delete a.xml b", "<a>x<b>1</b>y</a>") == "<a>xy</a>");
    CHECK(AfterOf("xml.delete a.xml b", "<a>\r\n  <b>\r\n1</b> \r\n  <c/>\r\n</a>") ==
          "<a>\r\n  <c/>\r\n</a>");
    CHECK(AfterOf("xml.delete a.xml c", "<a>\n<b/> <c/>\n</a>") == "<a>\n<b/> \n</a>");
    CHECK(AfterOf("xml.delete a.xml a", "<a>1</a>") == "");
}

TEST_CASE("a number chooses among elements of one name, and a target keeps the file") {
    TEXT_SCRIPT script;
    CHECK(script.AFTER("xml.replace a.xml x 5 b.xml 2", "a.xml", "<x>1</x><x>2</x>") ==
          "<x>1</x><x>2</x>");
    CHECK(script.folder.READ("b.xml") == "<x>1</x><x>5</x>");
    CHECK(AfterOf("xml.delete a.xml x a.xml 2", "<x>1</x><x>2</x>") == "<x>1</x>");
}

TEST_CASE("a tag that is not there is told and the file stays as it was") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.xml", STUDY);
    CHECK(script.RUN("xml.delete a.xml scales") == "  Tag (scales) not found in file (a.xml).\n");
    CHECK(script.RUN("xml.replace a.xml file x b.xml 2") ==
          "  Tag (file) not found in file (a.xml).\n");
    CHECK(script.folder.READ("a.xml") == STUDY);
    CHECK(script.folder.FILES() == 1);
}

TEST_CASE("a broken file is told in one line and stays as it was") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.xml", "<a><b>1</a>");
    CHECK(script.RUN("xml.replace a.xml b 2") ==
          "  Broken XML in line 1 (a.xml): <b> is never closed!\n");
    CHECK(script.folder.READ("a.xml") == "<a><b>1</a>");
}

TEST_CASE("text with tags without their partners is refused") {
    for (const char *text : {"<b>", "</b>", "<b></c>", "<b", "<b><c></b></c>"}) {
        TEXT_SCRIPT script;
        script.folder.WRITE("a.xml", STUDY);
        CHECK(script.RUN("xml.insert.end a.xml study \"" + std::string(text) + "\"") ==
              "  Text (" + std::string(text) + ") has tags without their partners!\n");
        CHECK(script.folder.READ("a.xml") == STUDY);
    }
}

TEST_CASE("xml.gettag and xml.gettag.id give a value or the default") {
    TEXT_SCRIPT script;
    script.folder.WRITE("study.xml", STUDY);
    CHECK(script.VALUE("xml.gettag study.xml scale") == "0.5");
    CHECK(script.VALUE("xml.gettag study.xml files/file none") == "a.nii");
    CHECK(script.VALUE("xml.gettag study.xml size 7") == "7");
    CHECK(script.VALUE("xml.gettag study.xml size") == "");
    CHECK(script.VALUE("xml.gettag study.xml file 7 2") == "7");
    CHECK(script.VALUE("xml.gettag.id study.xml scale unit") == "mm");
    CHECK(script.VALUE("xml.gettag.id study.xml scale name 7") == "7");
    CHECK(script.VALUE("xml.gettag.id study.xml size unit 7 2") == "7");
}

TEST_CASE("a file that is not there is told and gives the default") {
    TEXT_SCRIPT script;
    CHECK(script.RUN("v := xml.gettag a.xml b 7\nprint v\nv := xml.gettag.id a.xml b c 8\nprint v\n"
                     "xml.show a.xml\nxml.delete a.xml b") ==
          "DOS-Error\n  File (a.xml) not found.\n7\nDOS-Error\n  File (a.xml) not found.\n8\n"
          "DOS-Error\n  File (a.xml) not found.\nDOS-Error\n  File (a.xml) not found.\n");
    CHECK(script.folder.FILES() == 0);
}

TEST_CASE("the XML commands report wrong counts and use no disk when told so") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.xml", STUDY);
    CHECK(script.RUN("xml.show") ==
          "Parameter error! Please use one parameter in line 1 (test.macro).\n");
    CHECK(script.RUN("xml.delete a.xml") ==
          "Parameter error! Please use min. 2 parameters in line 1 (test.macro).\n");
    CHECK(script.RUN("xml.delete a b c d e") ==
          "Parameter error! Please use max. 4 parameters in line 1 (test.macro).\n");
    CHECK(script.RUN("v := xml.gettag a") ==
          "Parameter error! Please use min. 2 parameters in line 1 (test.macro).\n");
    script.engine.switches.FILES = false;
    CHECK(script.RUN("xml.show a.xml\nxml.delete a.xml scale") == "");
    CHECK(script.folder.READ("a.xml") == STUDY);
}

TEST_CASE("the usage lines of the XML commands do what they say") {
    TEXT_SCRIPT script;
    script.folder.WRITE("study.xml",
                        "<s><scale unit=\"um\">2</scale><patient/><files></files></s>");
    for (const COMMAND_ROW &row : XML_SET.rows) {
        INFO(std::string(row.usage));
        script.RUN(std::string(row.usage));
        CHECK(script.engine.STATUS.EMPTY());
    }
    CHECK(script.folder.READ("study.xml") ==
          "<s><scale unit=\"um\">0.5</scale>"
          "<files><file>a.nii</file><file>b.nii</file></files></s>");
}
