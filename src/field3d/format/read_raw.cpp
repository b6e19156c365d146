#include "field3d/format/read_raw.hpp"

#include "field3d/format/sample_codec.hpp"
#include "foundation/base/number_text.hpp"
#include "foundation/base/safe_arithmetic.hpp"
#include "foundation/console/console.hpp"
#include "foundation/container/poly_types.hpp"
#include "foundation/container/space.hpp"

#include <algorithm>

namespace morvane {
namespace {
constexpr NAT BUFFER_BYTES = 4194300;
constexpr NAT DIRECT_BYTES = NAT{1} << 24; // a step of the direct read

NAT TIMES(NAT a, NAT b) { return b > 0 && a > NATMAX / b ? NATMAX : a * b; }
NAT PLUS(NAT a, NAT b) { return a > NATMAX - b ? NATMAX : a + b; }
REAL SHARE(NAT part, NAT whole) { return static_cast<REAL>(part) / static_cast<REAL>(whole); }

UTF16 SIZE_TEXT(const VECTORNAT &size) {
    return GETSTRING(size.x) + UTF16("x") + GETSTRING(size.y) + UTF16("x") + GETSTRING(size.z);
}
UTF16 TITLE(const UTF16 &words, const VECTORNAT &size) {
    return UTF16("  3D") + words + UTF16(" with (") + SIZE_TEXT(size) + UTF16(")");
}

// Bytes of the voxels of a field.
template <class VOXEL> NAT FIELD_BYTES(NAT count) {
    return VOXEL_KIND<VOXEL>::BITS == 1 ? count / 8 + 1 : TIMES(count, sizeof(VOXEL));
}

// What parts the voxels of a 1-bit field, as its progress line shows it.
UTF16 THRESHOLD(NAT code) {
    if (code < 0) return UTF16("0");
    switch (code) {
    case 16: return UTF16("$7FFF");
    case 32: return UTF16("$7FFF:FFFF");
    case 64: return UTF16("$7FFF:FFFF:FFFF:FFFF");
    default: return UTF16("3*$7F");
    }
}

bool ISRANGE(const RAW_VOLUME &volume) { return volume.range.max - volume.range.min > 0; }

template <class VOXEL> UTF16 LABEL(const RAW_VOLUME &volume) {
    constexpr bool bit = std::is_same_v<VOXEL, bool>;
    const bool filter = volume.filterOffset != 0 || volume.filterFactor != 0;
    const UTF16 own(VOXEL_KIND<VOXEL>::NAME);
    UTF16 family = GETFAMILY(volume.code);
    if (ISFLOAT(volume.code)) {
        family += UTF16(filter ? "_f" : ISRANGE(volume) ? "_o" : "_a");
        if (bit && filter) family += UTF16("|0");
    } else if (bit) {
        family += UTF16("|") + THRESHOLD(volume.code);
    }
    if (family == own) return TITLE(own, volume.size);
    return TITLE(own + UTF16(" (") + family + UTF16(")"), volume.size);
}

// Tells data that end early: the voxels behind them stay zero.
void WRITE_SHORT(NAT filled) {
    PROGRESS();
    WRITELN(UTF16("  Data end behind voxel ") + GETSTRING(filled) + UTF16("! The rest is zero."));
}

// The samples of one stack in pieces: f(samples in the processor's order, index of the first from
// 0, count). The count of samples, less when the data end early.
template <class F>
NAT FOR_SAMPLES(BYTE_SOURCE &source, const RAW_VOLUME &volume, NAT position, const UTF16 &label,
                RANGE shares, F f) {
    const NAT count = volume.size.x * volume.size.y * volume.size.z;
    const NAT width = GETSAMPLEBYTES(volume.code);
    const NAT piece = BUFFER_BYTES / width;
    TPOLYBYTE buffer(BUFFER_BYTES);
    if (buffer.LENGTH == 0 || !source.SEEK(position)) return 0;
    for (NAT done = 0; done < count; done += piece) {
        const NAT wanted = std::min(piece, count - done);
        const NAT got = source.READ(buffer.ELEMENTS(), wanted * width) / width;
        if (volume.swap) SWAPSAMPLES(volume.code, buffer.ELEMENTS(), got);
        f(static_cast<const BYTE *>(buffer.ELEMENTS()), done, got);
        PROGRESS(label, shares.min + SHARE(done + got, count) * (shares.max - shares.min));
        if (got < wanted) return done + got;
    }
    return count;
}

// Samples that are voxels already go straight into the field.
template <class VOXEL> bool ISDIRECT(const RAW_VOLUME &volume) {
    const bool plain =
        volume.filterOffset == 0 && (volume.filterFactor == 0 || volume.filterFactor == 1);
    return plain && !std::is_same_v<VOXEL, bool> && volume.code == VOXEL_KIND<VOXEL>::BITS;
}

template <class VOXEL>
void READ_DIRECT(RASTER<VOXEL> &field, BYTE_SOURCE &source, const RAW_VOLUME &volume, NAT position,
                 const UTF16 &label) {
    constexpr NAT width = sizeof(VOXEL);
    auto *bytes = static_cast<BYTE *>(static_cast<void *>(field.VOXELS()));
    const NAT total = field.COUNT() * width;
    if (!source.SEEK(position)) return WRITE_SHORT(0);
    for (NAT done = 0; done < total; done += DIRECT_BYTES) {
        const NAT wanted = std::min(DIRECT_BYTES, total - done);
        const NAT got = source.READ(bytes + done, wanted);
        std::fill(bytes + done + got / width * width, bytes + done + got, BYTE{0});
        if (volume.swap) SWAPSAMPLES(volume.code, bytes + done, got / width);
        PROGRESS(label, SHARE(done + got, total));
        if (got < wanted) return WRITE_SHORT((done + got) / width);
    }
    PROGRESS();
}

template <class VOXEL>
void STORE(RASTER<VOXEL> &field, const BYTE *samples, NAT first, NAT count,
           SAMPLE_CODEC<typename CODEC_OUT<VOXEL>::TYPE> *codec, const SAMPLE_MAP &map) {
    if constexpr (std::is_same_v<VOXEL, bool>) {
        constexpr NAT step = 4096;
        BYTE bits[step];
        const NAT width = count > 0 ? GETSAMPLEBYTES(map.code) : 0;
        for (NAT at = 0; at < count; at += step) {
            const NAT part = std::min(step, count - at);
            codec(samples + at * width, part, bits, map);
            for (NAT i = 0; i < part; ++i)
                if (bits[i] != 0) field._PUTINDEX(first + at + i + 1, true);
        }
    } else {
        codec(samples, count, field.VOXELS() + first, map);
    }
}

// The range of float samples, told in the closing line.
template <class VOXEL> void WRITE_RANGE(const RANGE &range) {
    const UTF16 head = UTF16("  New min (") + GETSTRING(range.min) + UTF16(") max (") +
                       GETSTRING(range.max) + UTF16(") values -> ");
    if constexpr (std::is_same_v<VOXEL, bool>)
        WRITELN(head + UTF16("threshold=") + GETSTRING((range.min + range.max) / 2));
    else
        WRITELN(head + UTF16("0..") + GETSTRING(VOXEL_KIND<VOXEL>::MAXIMUM) + UTF16("!"));
}

template <class VOXEL>
void READ_CONVERTED(RASTER<VOXEL> &field, BYTE_SOURCE &source, const RAW_VOLUME &volume,
                    NAT position, const UTF16 &label) {
    const SAMPLE_RULE rule = GETRULE(volume.filterOffset, volume.filterFactor);
    const bool mapped = ISFLOAT(volume.code) && rule == SAMPLE_RULE::SCALE;
    RANGE range = volume.range;
    RANGE shares{0, 1};
    if (mapped && !ISRANGE(volume)) {
        range = {REALMAX, -REALMAX};
        FOR_SAMPLES(source, volume, position, label, {0, 0.5},
                    [&](const BYTE *samples, NAT, NAT count) {
                        WIDEN(volume.code, samples, count, range);
                    });
        if (range.min > range.max) range = {0, 0}; // no sample is a number
        shares.min = 0.5;
    }
    auto *const codec = GETCODEC<VOXEL>(volume.code, rule);
    const SAMPLE_MAP map{volume.code, volume.filterOffset, volume.filterFactor, range};
    const NAT filled = FOR_SAMPLES(source, volume, position, label, shares,
                                   [&](const BYTE *samples, NAT first, NAT count) {
                                       STORE(field, samples, first, count, codec, map);
                                   });
    if (filled < field.COUNT())
        WRITE_SHORT(filled);
    else
        PROGRESS();
    if (mapped) WRITE_RANGE<VOXEL>(range);
}

void WRITE_WRONGSIZE(const BYTE_SOURCE &source, NAT header, NAT count, NAT bytes) {
    WRITELN(UTF16("  Wrong file size! Header: ") + GETSTRING(header) + UTF16(" +Dim: ") +
            GETSTRING(count) + UTF16(" *Bytes: ") + GETSTRING(bytes));
    WRITELN(UTF16("  Calculated type (bytes):") +
            GETSTRING(SHARE(source.SIZE() - std::min(header, source.SIZE()), count)));
}

template <class VOXEL> bool REFUSE(RASTER<VOXEL> &field, const VECTORNAT &size) {
    field.__WRITE_ERROR(UTF16("  Couldn't fill field (") + SIZE_TEXT(size) +
                        UTF16(") from so few data! Create empty field."));
    return false;
}
} // namespace

template <class VOXEL> bool MAKEZERO(RASTER<VOXEL> &field, const VECTORNAT &size) {
    const NAT count = VOXEL_COUNT(size.x, size.y, size.z);
    if (FIELD_BYTES<VOXEL>(count) > SHORT_FIELD_BYTES) return REFUSE(field, size);
    constexpr NAT bits = VOXEL_KIND<VOXEL>::BITS;
    PROGRESS(TITLE(bits == 8   ? UTF16("Grey (GreyZero)")
                   : bits == 1 ? UTF16("Fullgrey (MonoZero)")
                               : UTF16("Fullgrey (GreyZero)"),
                   size),
             0);
    field.INIT(size.x, size.y, size.z);
    PROGRESS();
    return !field.EMPTY();
}

template <class VOXEL>
bool __READRAW(RASTER<VOXEL> &field, BYTE_SOURCE &source, const RAW_VOLUME &volume) {
    const VECTORNAT &size = volume.size;
    const NAT count = VOXEL_COUNT(size.x, size.y, size.z);
    if (count < 1) {
        PROGRESS(TITLE(UTF16(VOXEL_KIND<VOXEL>::NAME), VZERONAT), 0);
        field.INIT();
        PROGRESS();
        return true;
    }
    const NAT bytes = TIMES(count, GETCODEBYTES(volume.code));
    const NAT start = std::max<NAT>(volume.header, 0);
    if (source.LACKS(start, bytes)) {
        if (!source.ZIPPED()) {
            WRITE_WRONGSIZE(source, start, count, GETCODEBYTES(volume.code));
            return MAKEZERO(field, size);
        }
        if (FIELD_BYTES<VOXEL>(count) > SHORT_FIELD_BYTES) return REFUSE(field, size);
    }
    field.INIT(size.x, size.y, size.z);
    if (field.EMPTY()) return false; // told by the container
    const NAT position = PLUS(TIMES(volume.stack - 1, bytes), start);
    const UTF16 label = LABEL<VOXEL>(volume);
    PROGRESS(label, 0);
    if constexpr (!std::is_same_v<VOXEL, bool>)
        if (ISDIRECT<VOXEL>(volume)) {
            READ_DIRECT(field, source, volume, position, label);
            return true;
        }
    READ_CONVERTED(field, source, volume, position, label);
    return true;
}

template bool MAKEZERO(T3DMONO &, const VECTORNAT &);
template bool MAKEZERO(T3DGRAY &, const VECTORNAT &);
template bool MAKEZERO(T3DFULLGRAY &, const VECTORNAT &);
template bool __READRAW(T3DMONO &, BYTE_SOURCE &, const RAW_VOLUME &);
template bool __READRAW(T3DGRAY &, BYTE_SOURCE &, const RAW_VOLUME &);
template bool __READRAW(T3DFULLGRAY &, BYTE_SOURCE &, const RAW_VOLUME &);
} // namespace morvane
