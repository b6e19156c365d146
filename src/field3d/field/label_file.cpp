#include "field3d/field/label_file.hpp"

#include "field3d/field/scalar_analysis.hpp"
#include "field3d/format/file_base.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"
#include "script/file/file_text.hpp"

namespace morvane {
namespace {
// The name="..." of an "<area" line; false when the line is none or has none.
bool AREA_NAME(const UTF16 &line, UTF16 &name) {
    const UTF16 lower = LOWERCASE(line), key("name=\"");
    if (POS(UTF16("<area"), lower) == 0) return false;
    const NAT start = POS(key, lower);
    if (start == 0) return false;
    const NAT first = start + key.LENGTH();
    const NAT end = POS(UTF16("\""), line, first);
    if (end == 0) return false;
    name = COPY(line, first, end - first);
    return true;
}

NAT READ_AREAS(const TFILEREADTEXT &text, T3D_SCALAR_ANALYSIS &field) {
    NAT count = 0;
    UTF16 name;
    for (NAT i = 1; i <= text.LENGTH(); ++i)
        if (AREA_NAME(text.GET(i), name) && field.LABELS_PUT(count, name)) ++count;
    return count;
}

// Lines of a value and a name; a first line whose value is no number is the heading.
NAT READ_TABLE(const TFILEREADTEXT &text, T3D_SCALAR_ANALYSIS &field) {
    NAT count = 0;
    for (NAT i = 1; i <= text.LENGTH(); ++i) {
        UTF16 name = text.GET(i);
        const UTF16 value = SPLIT(name, UTF16(POS(UTF16("\t"), name) > 0 ? "\t" : "#"));
        if (!ISDIGIT(value) || name.EMPTY()) continue;
        if (field.LABELS_PUT(GETNAT(value), name)) ++count;
    }
    return count;
}

NAT READ_NAMES(const TFILEREADTEXT &text, T3D_SCALAR_ANALYSIS &field) {
    NAT count = 0;
    for (NAT i = 1; i <= text.LENGTH(); ++i)
        if (field.LABELS_PUT(i - 1, text.GET(i))) ++count;
    return count;
}
} // namespace

NAT READATLAS(const UTF16 &volume, T3D_SCALAR_ANALYSIS &field) {
    const UTF16 atlas = GETBASENAME(volume) + UTF16(".atlas.xml");
    TFILEREADTEXT text;
    if (!FILEEXISTS(atlas) || !text.LOAD(atlas)) return -1;
    return READ_AREAS(text, field);
}

NAT READLABELS(const UTF16 &file, T3D_SCALAR_ANALYSIS &field) {
    if (const NAT count = READATLAS(file, field); count >= 0) return count;
    TFILEREADTEXT text;
    if (!text.LOAD(file)) return 0;
    const UTF16 first = text.GET(1);
    if (POS(UTF16("<atlas>"), LOWERCASE(first)) > 0) return READ_AREAS(text, field);
    if (POS(UTF16("\t"), first) > 0 || POS(UTF16("#"), first) > 0) return READ_TABLE(text, field);
    return READ_NAMES(text, field);
}

void WRITE_FOUND(NAT count) {
    if (count == 0)
        WRITELN("  Found nothing.");
    else if (count == 1)
        WRITELN("  Found one label.");
    else
        WRITELN(UTF16("  Found ") + GETSTRING(count) + UTF16(" labels."));
}
} // namespace morvane
