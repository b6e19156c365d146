#include "field3d/field/label_file.hpp"
#include "field3d/field/scalar_analysis.hpp"
#include "field3d/format/file_base.hpp"
#include "field3d/format/nifti.hpp"
#include "foundation/console/console.hpp"

namespace morvane {
// Frees the field, makes it anew and lets the reader fill it; the load filter stays.
template <class READER> void T3D_SCALAR_ANALYSIS::Load(BYTE tag, const UTF16 &file, READER read) {
    if (file.EMPTY()) return;
    const NAT offset = loadFilterOffset, factor = loadFilterFactor;
    DONE();
    INIT(tag);
    loadFilterOffset = offset;
    loadFilterFactor = factor;
    if (!active) return;
    _DISPATCH([&](auto &raster) { read(raster); });
    if (!ISNOTEMPTY()) return;
    if (const NAT count = READATLAS(file, *this); count >= 0) WRITE_FOUND(count);
    fileName = file;
}

void T3D_SCALAR_ANALYSIS::LOADNII(BYTE tag, const UTF16 &file, NAT stack) {
    Load(tag, file, [&](auto &raster) {
        morvane::LOADNII(raster, file, stack, loadFilterOffset, loadFilterFactor);
    });
}

void T3D_SCALAR_ANALYSIS::LOADNII_GZ(BYTE tag, const UTF16 &file, NAT stack) {
    Load(tag, file, [&](auto &raster) {
        morvane::LOADNII_GZ(raster, file, stack, loadFilterOffset, loadFilterFactor);
    });
}

void T3D_SCALAR_ANALYSIS::LOAD(BYTE tag, const UTF16 &file) {
    const UTF16 extension = GETEXTENSION(file);
    const UTF16 kind = COPY(extension, 1, 3), packing = COPY(extension, 4, extension.LENGTH());
    const bool nifti = kind == UTF16("nii") || kind == UTF16("hdr") || kind == UTF16("img");
    if (nifti && packing.EMPTY()) return LOADNII(tag, file);
    if (nifti && packing == UTF16(".gz")) return LOADNII_GZ(tag, file);
    Load(tag, file, [&](auto &raster) {
        raster.__WRITE_ERROR(UTF16("Unknown fileextension (") + extension +
                             UTF16(")! Create empty field."));
    });
}

bool T3D_SCALAR_ANALYSIS::SAVE(const UTF16 &file) const {
    if (file.EMPTY()) return false;
    const bool written = _DISPATCH([&](const auto &raster) { return morvane::SAVE(raster, file); });
    if (written && labels.LENGTH > 0) LABELS_SAVE(GETBASENAME(file) + UTF16(".labels"));
    return written;
}
} // namespace morvane
