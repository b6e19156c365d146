#include "field3d/format/file_base.hpp"
#include "field3d/format/stats.hpp"
#include "foundation/base/geometry.hpp"
#include "foundation/console/console.hpp"
#include "orientation/vector/vector_box.hpp"
#include "orientation/vector/vector_formats_table.hpp"
#include "orientation/vector/vector_text.hpp"

#include <algorithm>

// Choosing a format by extension, and joining files.
namespace morvane {
namespace {
enum RULE { ALL_VECTORS, NON_ZERO, BEST };

bool Takes(int rule, const VECTOR &incoming, const VECTOR &here) {
    if (rule == ALL_VECTORS) return true;
    if (incoming == VZERO) return false;
    return rule == NON_ZERO || GETLENGTH(incoming) > GETLENGTH(here);
}

void TellCorners(const char *title, const T3D_VECTOR_ANALYSIS &field) {
    const FRAME &frame = field.GETFRAME();
    WRITELN(UTF16(title) + GETSTRING(frame.L2G(VNORM)) + " .. " +
            GETSTRING(frame.L2G(TO_REAL(field.SIZE()))));
}

bool HasHeader(const UTF16 &name) {
    const UTF16 extension = GETEXTENSION(name);
    return extension == UTF16("nii.gz") || extension == UTF16("nii") || extension == UTF16("hdr");
}

const VECTOR_FORMAT &FormatOf(const UTF16 &name) {
    return VECTOR_FORMAT_OF(GETUTF8(GETEXTENSION(name)));
}
} // namespace

const VECTOR_FORMAT &VECTOR_FORMAT_OF(std::string_view extension) {
    const auto *row =
        std::find_if(VECTOR_FORMATS.begin(), VECTOR_FORMATS.end(),
                     [&](const VECTOR_FORMAT &format) { return format.extension == extension; });
    return row == VECTOR_FORMATS.end() ? VECTOR_FORMATS.back() : *row;
}

bool T3D_VECTOR_ANALYSIS::LOAD(BYTE tag, const UTF16 &name) {
    if (name.EMPTY()) return false;
    const VECTOR_FORMAT &format = FormatOf(name);
    const bool known = GETUTF8(GETEXTENSION(name)) == format.extension; // or only saved as text
    if (known && format.reader) return format.reader(*this, tag, name);
    INIT(tag);
    WRITELN("Unknown vectorfield!");
    return false;
}

bool T3D_VECTOR_ANALYSIS::LOADNII(BYTE tag, const UTF16 &name) {
    return READ_VECTOR_NII(*this, tag, name);
}
bool T3D_VECTOR_ANALYSIS::LOADNII_GZ(BYTE tag, const UTF16 &name) {
    return READ_VECTOR_NII_GZ(*this, tag, name);
}
bool T3D_VECTOR_ANALYSIS::LOADTXT(BYTE tag, const UTF16 &name) {
    return !name.EMPTY() && READ_VECTOR_TXT(*this, tag, name);
}
bool T3D_VECTOR_ANALYSIS::LOADTXT(const UTF16 &name) {
    return !name.EMPTY() && READ_VECTOR_TXT(*this, typeTag, name);
}

bool T3D_VECTOR_ANALYSIS::LOADSTACK(BYTE tag, std::span<const UTF16> names) {
    T3D_VECTOR_ANALYSIS whole(tag);
    for (const UTF16 &name : names) {
        T3D_VECTOR_ANALYSIS part;
        if (!part.LOAD(tag, name)) return INIT(tag), false;
        T3D_VECTOR_ANALYSIS joined(tag);
        const VECTORNAT old = whole.SIZE(), size = old.x > 0 ? old : part.SIZE();
        if (!PREPARE_TARGET(joined, {size.x, size.y, old.z + part._GETSIZEZ()})) return false;
        joined.SETFRAME(old.x > 0 ? whole.GETFRAME() : part.GETFRAME());
        COPY_BOX(whole, VNORMNAT, old, joined, VNORMNAT);
        COPY_BOX(part, VNORMNAT, part.SIZE(), joined, {1, 1, old.z + 1});
        whole.SWAP(joined);
    }
    SWAP(whole);
    return sizeX > 0;
}

bool T3D_VECTOR_ANALYSIS::Merge(const UTF16 &name, const UTF16 &header, int rule) {
    if (typeTag == 0) return false;
    T3D_VECTOR_ANALYSIS source;
    if (!source.LOAD(typeTag, name)) return false;
    if (HasHeader(header) && READ_VECTOR_FRAME(header, source))
        WRITE_FRAME("  New header: ", source.frame);
    TellCorners("  Source     : ", source);
    TellCorners("  Destination: ", *this);
    const UTF16 label = "  Merging";
    const VECTORNAT size = source.SIZE();
    PROGRESS(label, 0);
    for (NAT z = 1; z <= size.z; ++z) {
        for (NAT y = 1; y <= size.y; ++y)
            for (NAT x = 1; x <= size.x; ++x) {
                const VECTOR v = source.GET(x, y, z);
                const VECTOR global = source.frame.L2G(TO_REAL(VECTORNAT{x, y, z}));
                const VECTORNAT to = frame.G2L_ROUND(global);
                if (Takes(rule, v, GET(to.x, to.y, to.z))) PUT(to.x, to.y, to.z, v);
            }
        PROGRESS(label, static_cast<REAL>(z) / static_cast<REAL>(size.z));
    }
    PROGRESS();
    return true;
}

bool T3D_VECTOR_ANALYSIS::APPEND(const UTF16 &name, const UTF16 &header) {
    return Merge(name, header, ALL_VECTORS);
}
bool T3D_VECTOR_ANALYSIS::APPEND0(const UTF16 &name, const UTF16 &header) {
    return Merge(name, header, NON_ZERO);
}
bool T3D_VECTOR_ANALYSIS::APPEND_BEST(const UTF16 &name, const UTF16 &header) {
    return Merge(name, header, BEST);
}

bool T3D_VECTOR_ANALYSIS::SAVE(const UTF16 &name) const {
    if (name.EMPTY()) return false;
    const VECTOR_FORMAT &format = FormatOf(name);
    return format.writer ? format.writer(*this, name) : WRITE_VECTOR_TXT(*this, name);
}

bool T3D_VECTOR_ANALYSIS::SAVE(const UTF16 &name, const VECTOR &scale) const {
    return !name.EMPTY() && SAVETXT(name, scale);
}

bool T3D_VECTOR_ANALYSIS::SAVEHDR(const UTF16 &name) const { return WRITE_VECTOR_HDR(*this, name); }
bool T3D_VECTOR_ANALYSIS::SAVENII(const UTF16 &name) const { return WRITE_VECTOR_NII(*this, name); }
bool T3D_VECTOR_ANALYSIS::SAVENII_GZ(const UTF16 &name) const {
    return WRITE_VECTOR_NII_GZ(*this, name);
}
bool T3D_VECTOR_ANALYSIS::SAVEFLD(const UTF16 &name) const { return WRITE_VECTOR_FLD(*this, name); }
bool T3D_VECTOR_ANALYSIS::SAVETXT_AM(const UTF16 &name) const {
    return WRITE_VECTOR_AM(*this, name);
}
bool T3D_VECTOR_ANALYSIS::SAVETXT(const UTF16 &name) const { return WRITE_VECTOR_TXT(*this, name); }
bool T3D_VECTOR_ANALYSIS::SAVELIMBERT(const UTF16 &name) const {
    return WRITE_VECTOR_LIMBERT(*this, name);
}
} // namespace morvane
