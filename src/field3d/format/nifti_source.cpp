#include "field3d/format/nifti_source.hpp"

#include "field3d/format/file_base.hpp"
#include "field3d/format/sample_codec.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/rounding.hpp"
#include "foundation/container/space.hpp"

#include <algorithm>

namespace morvane {
namespace {
constexpr NAT DATA_START = 352; // of a file that doesn't tell it

NAT TIMES(NAT a, NAT b) { return b > 0 && a > NATMAX / b ? NATMAX : a * b; }

UTF16 DIMS(const TNIFTI &h, std::size_t first) {
    return GETSTRING(VECTORNAT{h.dim[first], h.dim[first + 1], h.dim[first + 2]});
}

// The other half of a pair, in the same case of letters: ".hdr" for ".img" and back.
UTF16 PARTNER(const UTF16 &name, bool wantImage) {
    const UTF16 extension = COPY(name, GETBASENAME(name).LENGTH() + 2, name.LENGTH());
    const bool upper = extension == UPPERCASE(extension);
    const UTF16 wanted(wantImage ? "img" : "hdr");
    return GETBASENAME(name) + UTF16(".") + (upper ? UPPERCASE(wanted) : wanted) +
           COPY(extension, 4, extension.LENGTH());
}

bool ISPAIR(const UTF16 &extension) {
    const UTF16 kind = COPY(extension, 1, 3);
    return kind == UTF16("hdr") || kind == UTF16("img");
}
} // namespace

HEADER_STATE READNIFTI(BYTE_SOURCE &source, TNIFTI &header, bool &swapped) {
    header = TNIFTI();
    swapped = false;
    const bool whole = source.READ(&header, sizeof header) == static_cast<NAT>(sizeof header);
    if (header.sizeof_hdr != 348 && header.sizeof_hdr != 540) {
        swapped = true;
        SWAPNIFTI(header);
    }
    if (header.sizeof_hdr == 540) return HEADER_STATE::VERSION2;
    return whole && header.sizeof_hdr == 348 ? HEADER_STATE::GOOD : HEADER_STATE::WRONG;
}

bool NIFTI_SOURCE::Fail(const UTF16 &text) {
    PROBLEM = text;
    SOURCE.CLOSE();
    return false;
}

bool NIFTI_SOURCE::OpenHeader(const UTF16 &name, bool zipped) {
    if (!SOURCE.OPEN(name, zipped))
        return Fail(UTF16("  Couldn't read File (") + name + UTF16(")! Create empty field."));
    switch (READNIFTI(SOURCE, HEADER, SWAP)) {
    case HEADER_STATE::GOOD: return true;
    case HEADER_STATE::VERSION2:
        return Fail(UTF16("  Nifti-2 currently not supported! Create empty field."));
    default: return Fail(UTF16("  Wrong header! Create empty field."));
    }
}

bool NIFTI_SOURCE::OpenPair(const UTF16 &name, bool zipped) {
    if (!OpenHeader(PARTNER(name, false), zipped)) return false;
    START = 0;
    const UTF16 image = PARTNER(name, true);
    if (SOURCE.OPEN(image, zipped)) return true;
    const VECTORNAT size = SIZE();
    ONLYHEADER =
        HEADER.dim[0] >= 3 && HEADER.dim[0] <= 7 && VOXEL_COUNT(size.x, size.y, size.z) > 0;
    return Fail(UTF16("  Couldn't read File (") + image +
                UTF16(ONLYHEADER ? ")! Create field without values."
                                 : ") and bad dim size! Create empty field."));
}

void NIFTI_SOURCE::Fold() {
    std::int16_t *const dim = HEADER.dim;
    if (dim[4] < 2) {
        dim[4] = std::max<std::int16_t>(dim[4], 1);
        return;
    }
    for (std::size_t axis = 1; axis <= 3; ++axis)
        if (dim[axis] == 1) {
            std::copy(dim + axis + 1, dim + 5, dim + axis);
            dim[4] = 1;
            return;
        }
}

bool NIFTI_SOURCE::IsRank() const {
    const std::int16_t *const dim = HEADER.dim;
    if (dim[0] < 3 || dim[0] > 7) return false;
    return std::all_of(dim + 1, dim + 1 + dim[0], [](std::int16_t side) { return side > 0; });
}

NAT NIFTI_SOURCE::STACKS() const {
    NAT stacks = std::max<NAT>(HEADER.dim[4], 1);
    for (int axis = 5; axis <= std::min<int>(HEADER.dim[0], 7); ++axis)
        stacks *= std::max<NAT>(HEADER.dim[axis], 1);
    return stacks;
}

bool NIFTI_SOURCE::CheckStack(NAT stack) {
    if (stack < 0) stack = HEADER.dim[4] + std::max<NAT>(stack, -NAT{HEADER.dim[4]}) + 1;
    STACK = std::max<NAT>(stack, 1);
    if (STACK <= STACKS()) return true;
    return Fail(UTF16("  Wrong selected stack ") + GETSTRING(STACK) + UTF16(" from [1..") +
                GETSTRING(STACKS()) + UTF16("]! Create empty field."));
}

bool NIFTI_SOURCE::OPEN(const UTF16 &name, NAT stack, bool zipped) {
    PROBLEM = UTF16();
    ONLYHEADER = false;
    position = -1;
    if (ISPAIR(GETEXTENSION(name))) {
        if (!OpenPair(name, zipped)) return false;
    } else {
        if (!OpenHeader(name, zipped)) return false;
        // Written so that NaN counts as not above 0.
        START = HEADER.vox_offset > 0 ? ROUND(static_cast<REAL>(HEADER.vox_offset)) : DATA_START;
    }
    Fold();
    if (!IsRank())
        return Fail(UTF16("  Bad dim size (") + GETSTRING(NAT{HEADER.dim[0]}) + UTF16(" ") +
                    DIMS(HEADER, 1) + UTF16(" ") + GETSTRING(NAT{HEADER.dim[4]}) + UTF16(" ") +
                    DIMS(HEADER, 5) + UTF16(")! Create empty field."));
    if (!CheckStack(stack)) return false;
    CODE = GETNIFTICODE(HEADER);
    if (CODE == 0) return Fail(UTF16("  Bad dim values! Create empty field."));
    return true;
}

FRAME NIFTI_SOURCE::GETFRAME() const {
    MATRIX3 matrix;
    VECTOR offset;
    GETNIFTI_TRANSFORM(HEADER, matrix, offset);
    FRAME frame;
    frame.SETMATRIX(matrix);
    frame.SETMOVE(offset);
    return frame;
}

RAW_VOLUME NIFTI_SOURCE::VOLUME(NAT filterOffset, NAT filterFactor) const {
    // Deliberate: scl_slope and scl_inter take no part, voxels are the raw samples.
    RAW_VOLUME volume;
    volume.header = START;
    volume.stack = STACK;
    volume.swap = SWAP;
    volume.code = CODE;
    if (ISFLOAT(CODE))
        volume.range = {static_cast<REAL>(HEADER.cal_min), static_cast<REAL>(HEADER.cal_max)};
    volume.size = SIZE();
    volume.filterOffset = filterOffset;
    volume.filterFactor = filterFactor;
    return volume;
}

bool NIFTI_SOURCE::LACKS(NAT stacks) const {
    const VECTORNAT size = SIZE();
    const NAT bytes = TIMES(VOXEL_COUNT(size.x, size.y, size.z), GETSAMPLEBYTES(CODE));
    return SOURCE.LACKS(START, TIMES(bytes, stacks));
}

template <class T> bool NIFTI_SOURCE::ReadSlice(NAT stack, NAT z, T *target) {
    const VECTORNAT size = SIZE();
    const NAT samples = size.x * size.y, width = GETSAMPLEBYTES(CODE), bytes = samples * width;
    std::fill(target, target + samples, T{});
    if (buffer.LENGTH != bytes) buffer.INIT(bytes);
    if (buffer.LENGTH != bytes || stack < 1 || stack > STACKS() || z < 1 || z > size.z)
        return false;
    const NAT slice = TIMES(bytes, (stack - 1) * size.z + z - 1);
    const NAT start = slice > NATMAX - START ? NATMAX : slice + START;
    if (position != start && !SOURCE.SEEK(start)) {
        position = -1;
        return false;
    }
    const NAT got = SOURCE.READ(buffer.ELEMENTS(), bytes);
    position = start + got;
    if (SWAP) SWAPSAMPLES(CODE, buffer.ELEMENTS(), got / width);
    GETDECODER<T>(CODE)(buffer.ELEMENTS(), got / width, target);
    return got == bytes;
}
template bool NIFTI_SOURCE::ReadSlice(NAT, NAT, REAL *);
template bool NIFTI_SOURCE::ReadSlice(NAT, NAT, NAT *);
} // namespace morvane
