#include "field3d/field/scalar_analysis.hpp"

#include "field3d/field/label_file.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/console/files.hpp"

namespace morvane {
namespace {
// One bit has no labels.
bool ISLABEL(const T3D_SCALAR_ANALYSIS &field, NAT value) {
    return field.BITS() >= 8 && value >= 0 && value <= field.VOXELMAX();
}
} // namespace

UTF16 T3D_SCALAR_ANALYSIS::LABELS_GET(NAT value) const {
    if (!ISLABEL(*this, value)) return UTF16();
    const UTF16CHARS7 before("*");
    NAT position = value + 1;
    while (position > 1 && labels.GET(position) == before)
        --position;
    return labels.GET(position);
}

bool T3D_SCALAR_ANALYSIS::LABELS_PUT(NAT value, const UTF16 &text) {
    if (!ISLABEL(*this, value)) return false;
    labels.PUT(value + 1, UTF16CHARS7(text));
    return true;
}

void T3D_SCALAR_ANALYSIS::LABELS_CLEAR() { labels.DONE(); }

void T3D_SCALAR_ANALYSIS::LABELS_CLONE(const T3D_SCALAR_ANALYSIS &other) {
    if (&other == this) return;
    labels.DONE();
    for (NAT i = 1; i <= other.labels.LENGTH; ++i)
        labels.PUSH(other.labels._GET(i));
}

void T3D_SCALAR_ANALYSIS::LABELS_LOAD(const UTF16 &file) {
    if (file.EMPTY()) return;
    LABELS_CLEAR();
    WRITE_FOUND(READLABELS(file, *this));
}

bool T3D_SCALAR_ANALYSIS::LABELS_SAVE(const UTF16 &file) const {
    if (file.EMPTY() || labels.LENGTH == 0) return false;
    FILE_WRITE output;
    if (!ASSIGNWRITE(output, file)) return false;
    for (NAT value = 0; value <= labels.LENGTH; ++value) {
        const UTF16 text = LABELS_GET(value);
        if (!text.EMPTY()) output.WRITELN(GETSTRING(value) + UTF16("\t") + text);
    }
    return output.COMMIT();
}
} // namespace morvane
