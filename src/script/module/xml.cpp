#include "script/module/use_all.hpp"

#include "foundation/base/number_text.hpp"
#include "script/file/read_xml.hpp"
#include "script/module/on_disk.hpp"
#include "script/module/xml_edit.hpp"
#include "script/module/xml_show.hpp"

#include <algorithm>

namespace morvane {
namespace {
void XML_SHOW_FILE(TMACRO *engine) {
    TREADXML xml;
    if (xml.LOAD(engine->GETPARAMETER(1))) XML_SHOW(xml);
}

// The optional parameter as the number of an element, 1 when it is left out.
NAT ELEMENT_NUMBER(TMACRO *engine, NAT index) {
    const UTF16 number = engine->GETPARAMETER_ERRORFREE(index);
    return number.EMPTY() ? 1 : GETNAT(number);
}

void XML_GETTAG_REF(TMACRO *engine) {
    TREADXML xml;
    const UTF16 otherwise = engine->GETPARAMETER_ERRORFREE(3);
    const bool loaded = xml.LOAD(engine->GETPARAMETER(1));
    const std::string tag = GETUTF8(engine->GETPARAMETER(2));
    engine->COMMAND_RESULT =
        loaded ? xml.TAG(tag, otherwise, ELEMENT_NUMBER(engine, 4)) : otherwise;
}

void XML_GETTAG_ID_REF(TMACRO *engine) {
    TREADXML xml;
    const UTF16 otherwise = engine->GETPARAMETER_ERRORFREE(4);
    const bool loaded = xml.LOAD(engine->GETPARAMETER(1));
    const std::string tag = GETUTF8(engine->GETPARAMETER(2));
    const std::string id = GETUTF8(engine->GETPARAMETER(3));
    engine->COMMAND_RESULT =
        loaded ? xml.ID(tag, id, otherwise, ELEMENT_NUMBER(engine, 5)) : otherwise;
}

// file, tag, the text unless an element goes, [target [number]].
template <XML_EDIT EDIT> void XML_EDIT_FILE(TMACRO *engine) {
    constexpr NAT TEXTS = EDIT == XML_EDIT::REMOVE ? 2 : 3;
    XML_REQUEST request;
    request.file = engine->GETPARAMETER(1);
    request.tag = GETUTF8(engine->GETPARAMETER(2));
    if (TEXTS == 3) request.text = GETUTF8(engine->GETPARAMETER(3));
    request.target = engine->GETPARAMETER_ERRORFREE(TEXTS + 1);
    if (request.target.EMPTY()) request.target = request.file;
    request.number = ELEMENT_NUMBER(engine, TEXTS + 2);
    XML_REWRITE(EDIT, request);
}

constexpr std::string_view EDIT_PARAMETERS =
    "file: file, tag: text, xml: text, [target: file, number: number]";

constexpr COMMAND_ROW XML_ROWS[] = {
    PROCEDURE("dump.xml", ON_DISK<XML_SHOW_FILE, 1>, EXACTLY(1), "file: file", "dump.xml study.xml",
              "print the elements of an XML file"),
    PROCEDURE("xml.show", ON_DISK<XML_SHOW_FILE, 1>, EXACTLY(1), "file: file", "xml.show study.xml",
              "print the elements of an XML file"),
    PROCEDURE("xml.insert.begin", ON_DISK<XML_EDIT_FILE<XML_EDIT::INSERT_BEGIN>, 5>, AT_LEAST(3),
              EDIT_PARAMETERS, "xml.insert.begin study.xml files \"<file>a.nii</file>\"",
              "put text behind the opening tag"),
    PROCEDURE("xml.replace", ON_DISK<XML_EDIT_FILE<XML_EDIT::REPLACE>, 5>, AT_LEAST(3),
              EDIT_PARAMETERS, "xml.replace study.xml scale 0.5",
              "replace what stands between the tags"),
    PROCEDURE("xml.delete", ON_DISK<XML_EDIT_FILE<XML_EDIT::REMOVE>, 4>, AT_LEAST(2),
              "file: file, tag: text, [target: file, number: number]",
              "xml.delete study.xml patient", "delete an element with its tags"),
    PROCEDURE("xml.insert.end", ON_DISK<XML_EDIT_FILE<XML_EDIT::INSERT_END>, 5>, AT_LEAST(3),
              EDIT_PARAMETERS, "xml.insert.end study.xml files \"<file>b.nii</file>\"",
              "put text in front of the closing tag"),
    FUNCTION("xml.gettag", ON_DISK<XML_GETTAG_REF, 4>, AT_LEAST(2),
             "file: file, tag: text, [default: text, number: number]",
             "a := xml.gettag study.xml scale 1", "text between the tags, or the default"),
    FUNCTION("xml.gettag.id", ON_DISK<XML_GETTAG_ID_REF, 5>, AT_LEAST(3),
             "file: file, tag: text, id: text, [default: text, number: number]",
             "a := xml.gettag.id study.xml scale unit mm", "attribute of a tag, or the default"),
};
static_assert(ROWS_ARE_SOUND(XML_ROWS));
} // namespace

const COMMAND_SET XML_SET{"", XML_ROWS};

void TMACRO::USE_XML() { REGISTER(XML_SET); }
} // namespace morvane
