#include "field3d/format/nifti.hpp"

#include "field3d/format/file_base.hpp"
#include "field3d/format/stats.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/console.hpp"
#include "foundation/console/files.hpp"

#include <algorithm>

namespace morvane {
namespace {
constexpr NAT BLOCK_BYTES = 16777215;
// Deliberate: a 1-bit file is written, but no reader of this system takes it back.
constexpr NIFTI_KIND KIND_OF(const T3DMONO &) { return {1, 1}; }
constexpr NIFTI_KIND KIND_OF(const T3DGRAY &) { return {2, 8}; }
constexpr NIFTI_KIND KIND_OF(const T3DFULLGRAY &) { return {512, 16}; }
constexpr NIFTI_KIND KIND_OF(const T3DRGB &) { return {128, 24}; }

UTF16 SIZE_TEXT(const VECTORNAT &size) {
    return GETSTRING(size.x) + UTF16("x") + GETSTRING(size.y) + UTF16("x") + GETSTRING(size.z);
}

template <class VOXEL>
void LOAD_NIFTI(RASTER<VOXEL> &field, const UTF16 &name, NAT stack, NAT filterOffset,
                NAT filterFactor, bool zipped) {
    if (name.EMPTY()) return;
    NIFTI_SOURCE source;
    if (source.OPEN(name, stack, zipped)) {
        if (!__READRAW(field, source.SOURCE, source.VOLUME(filterOffset, filterFactor))) return;
    } else {
        if (!source.ONLYHEADER) return field.__WRITE_ERROR(source.PROBLEM);
        WRITELN(source.PROBLEM);
        if (!MAKEZERO(field, source.SIZE())) return;
    }
    field.frame = source.GETFRAME();
    __WRITE_STATS(field);
    field.fileName = name;
}

template <class VOXEL> bool WRITE_VOXELS(NIFTI_TARGET &target, const RASTER<VOXEL> &field) {
    const UTF16 label = UTF16("  3D") + UTF16(VOXEL_KIND<VOXEL>::NAME) + UTF16(" with (") +
                        SIZE_TEXT(field.SIZE()) + UTF16(")");
    return target.WRITE(label, field.VOXELS(), field.BYTES());
}

bool WRITE_VOXELS(NIFTI_TARGET &target, const T3DRGB &field) {
    const UTF16 label = UTF16("  3DRGB with (") + SIZE_TEXT(field.SIZE()) + UTF16(")");
    const NAT count = field.red.COUNT(), piece = BLOCK_BYTES / 3;
    TPOLYBYTE buffer(std::min(count, piece) * 3);
    if (buffer.LENGTH == 0) return false;
    const BYTE *const channels[] = {field.red.VOXELS(), field.green.VOXELS(), field.blue.VOXELS()};
    for (NAT done = 0; done < count; done += piece) {
        const NAT part = std::min(piece, count - done);
        BYTE *out = buffer.ELEMENTS();
        for (NAT i = done; i < done + part; ++i)
            for (const BYTE *channel : channels)
                *out++ = channel[i];
        if (!target.WRITE(label, buffer.ELEMENTS(), part * 3)) return false;
    }
    return true;
}

template <class FIELD> bool SAVE_NIFTI(const FIELD &field, const UTF16 &name) {
    if (field.SIZE().x < 1) {
        WRITELN("  Empty field - not written!");
        return false;
    }
    NIFTI_TARGET target;
    if (!target.OPEN(name, KIND_OF(field), field.SIZE(), field.frame)) return false;
    // A failed write is told by DONE, where the file is closed.
    WRITE_VOXELS(target, field);
    return target.DONE();
}
} // namespace

bool FITS_NIFTI(const VECTORNAT &size) {
    if (std::max({size.x, size.y, size.z}) <= INT16_MAX) return true;
    WRITELN(UTF16("  Field (") + SIZE_TEXT(size) + UTF16(") too large for this format!"));
    return false;
}

bool NIFTI_TARGET::OPEN(const UTF16 &name, const NIFTI_KIND &kind, const VECTORNAT &size,
                        const FRAME &frame) {
    if (!FITS_NIFTI(size)) return false;
    const UTF16 extension = GETEXTENSION(name);
    pair = extension == UTF16("hdr");
    const bool zipped = extension == UTF16("nii.gz");
    const TNIFTI head = MAKENIFTI(kind, size, frame, !pair);
    written = 0;
    total = size.x * size.y * size.z * kind.bitpix / 8 * std::max<NAT>(kind.components, 1) + 1;
    if (pair) {
        const UTF16 image = GETBASENAME(name) + UTF16(".img");
        return ASSIGNWRITE(header, name) && header.WRITE(&head, sizeof head) &&
               ASSIGNWRITE(data, image);
    }
    constexpr char EXTENSION[4] = {};
    const bool opened = zipped ? ASSIGNGZWRITE(data, name) : ASSIGNWRITE(data, name);
    return opened && data.WRITE(&head, sizeof head) && data.WRITE(EXTENSION, sizeof EXTENSION);
}

bool NIFTI_TARGET::WRITE(const UTF16 &label, const void *bytes, NAT count) {
    const BYTE *next = static_cast<const BYTE *>(bytes);
    if (written == 0) PROGRESS(label, 0);
    for (NAT done = 0; done < count; done += BLOCK_BYTES) {
        const NAT part = std::min(BLOCK_BYTES, count - done);
        if (!data.WRITE(next + done, part)) return false;
        written += part;
        PROGRESS(label, static_cast<REAL>(written) / static_cast<REAL>(total));
    }
    return true;
}

bool NIFTI_TARGET::DONE() {
    PROGRESS();
    if (data.COMMIT()) return !pair || header.COMMIT();
    header.ABANDON();
    return false;
}

template <class VOXEL>
void LOADNII(RASTER<VOXEL> &field, const UTF16 &name, NAT stack, NAT filterOffset,
             NAT filterFactor) {
    LOAD_NIFTI(field, name, stack, filterOffset, filterFactor, false);
}

template <class VOXEL>
void LOADNII_GZ(RASTER<VOXEL> &field, const UTF16 &name, NAT stack, NAT filterOffset,
                NAT filterFactor) {
    LOAD_NIFTI(field, name, stack, filterOffset, filterFactor, true);
}

template <class FIELD> bool SAVENII(const FIELD &field, const UTF16 &name) {
    return SAVE_NIFTI(field, WITHEXTENSION(name, "nii"));
}

template <class FIELD> bool SAVENII_GZ(const FIELD &field, const UTF16 &name) {
    return SAVE_NIFTI(field, WITHEXTENSION(name, "nii.gz"));
}

template <class FIELD> bool SAVEHDR(const FIELD &field, const UTF16 &name) {
    return SAVE_NIFTI(field, WITHEXTENSION(name, "hdr"));
}

template <class FIELD> bool SAVE(const FIELD &field, const UTF16 &name) {
    const UTF16 extension = GETEXTENSION(name);
    if (extension == UTF16("hdr")) return SAVEHDR(field, name);
    if (extension == UTF16("nii")) return SAVENII(field, name);
    if (extension == UTF16("nii.gz")) return SAVENII_GZ(field, name);
    WRITELN(UTF16("Unknown fileextension (") + extension + UTF16(")! File not written."));
    return false;
}

template void LOADNII(T3DMONO &, const UTF16 &, NAT, NAT, NAT);
template void LOADNII_GZ(T3DMONO &, const UTF16 &, NAT, NAT, NAT);
template void LOADNII(T3DGRAY &, const UTF16 &, NAT, NAT, NAT);
template void LOADNII_GZ(T3DGRAY &, const UTF16 &, NAT, NAT, NAT);
template void LOADNII(T3DFULLGRAY &, const UTF16 &, NAT, NAT, NAT);
template void LOADNII_GZ(T3DFULLGRAY &, const UTF16 &, NAT, NAT, NAT);
template bool SAVENII(const T3DMONO &, const UTF16 &);
template bool SAVENII_GZ(const T3DMONO &, const UTF16 &);
template bool SAVEHDR(const T3DMONO &, const UTF16 &);
template bool SAVE(const T3DMONO &, const UTF16 &);
template bool SAVENII(const T3DGRAY &, const UTF16 &);
template bool SAVENII_GZ(const T3DGRAY &, const UTF16 &);
template bool SAVEHDR(const T3DGRAY &, const UTF16 &);
template bool SAVE(const T3DGRAY &, const UTF16 &);
template bool SAVENII(const T3DFULLGRAY &, const UTF16 &);
template bool SAVENII_GZ(const T3DFULLGRAY &, const UTF16 &);
template bool SAVEHDR(const T3DFULLGRAY &, const UTF16 &);
template bool SAVE(const T3DFULLGRAY &, const UTF16 &);
template bool SAVENII(const T3DRGB &, const UTF16 &);
template bool SAVENII_GZ(const T3DRGB &, const UTF16 &);
template bool SAVEHDR(const T3DRGB &, const UTF16 &);
template bool SAVE(const T3DRGB &, const UTF16 &);
} // namespace morvane
