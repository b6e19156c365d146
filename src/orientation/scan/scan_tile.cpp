#include "orientation/scan/scan_tile.hpp"

#include <algorithm>
#include <cstring>

namespace morvane {
namespace {
constexpr NAT BLOCK = SCAN_LANES; // rows are whole blocks; loops over one are unrolled into vectors

// Lowest value above 0 and highest value of whole blocks.
RANGENAT RangeAboveZero(const WORD *cells, NAT count) {
    WORD least[BLOCK], most[BLOCK] = {};
    std::fill_n(least, BLOCK, WORD{65535}); // of value - 1, so that 0 becomes the largest
    for (NAT at = 0; at < count; at += BLOCK)
        for (NAT i = 0; i < BLOCK; ++i) {
            least[i] = std::min(least[i], static_cast<WORD>(cells[at + i] - 1));
            most[i] = std::max(most[i], cells[at + i]);
        }
    return {*std::min_element(least, least + BLOCK) + NAT{1},
            *std::max_element(most, most + BLOCK)};
}

template <class STORED>
NAT ReadRun(const STORED *centre, const std::int32_t *forward, const std::int32_t *backward, NAT n,
            STORED zero, NAT shift, NAT *samples) {
    if (n < 1) return 0;
    const bool back = centre[forward[0]] == zero && centre[backward[0]] != zero;
    const std::int32_t *offsets = back ? backward : forward;
    NAT s = 0, count = 0;
    while (s < n && centre[offsets[s]] == zero)
        ++s;
    for (; s < n && centre[offsets[s]] != zero; ++s)
        samples[count++] = centre[offsets[s]] + shift;
    return count;
}
} // namespace

bool SCAN_TILE::INIT(const TILE_SHAPE &tileShape) {
    shape = tileShape;
    return cells.INIT(shape.ELEMENTS()) && zeroBlocks.INIT(shape.height);
}

void SCAN_TILE::LOAD(const SCAN_VOLUME &volume, const VECTORNAT &first) {
    if (volume.bits == 16) {
        COPY<WORD>(volume, first);
        CONVERT_WORDS();
    } else {
        COPY<BYTE>(volume, first);
        CONVERT_BYTES();
    }
    if (narrow)
        FIND_ZEROS<std::int8_t>(NARROW_ZERO);
    else
        FIND_ZEROS<std::int16_t>(WIDE_ZERO);
}

const void *SCAN_TILE::CENTRE(NAT row, NAT column) const {
    const NAT at = shape.CENTRE(row) + column;
    if (narrow) return reinterpret_cast<const std::int8_t *>(cells.DATA()) + at;
    return cells.DATA() + at;
}

bool SCAN_TILE::ZEROS(NAT row, NAT column) const {
    const NAT first = column / BLOCK;
    const NAT last = (column + SCAN_LANES - 1 + shape.left + shape.right) / BLOCK;
    const std::uint64_t mask = ((std::uint64_t{2} << (last - first)) - 1) << first;
    const NAT top = row * shape.factor;
    for (NAT y = top; y <= top + shape.above + shape.below; ++y)
        if (zeroBlocks[y] & mask) return true;
    return false;
}

NAT SCAN_TILE::GETLINE_W0(const void *centre, const LINE_OFFSETS &lines, NAT direction,
                          NAT *samples) const {
    const std::uint32_t begin = lines.begins[direction];
    const NAT n = lines.begins[direction + 1] - NAT{begin};
    if (narrow)
        return ReadRun(static_cast<const std::int8_t *>(centre), lines.forward + begin,
                       lines.backward + begin, n, NARROW_ZERO, shift, samples);
    return ReadRun(static_cast<const std::int16_t *>(centre), lines.forward + begin,
                   lines.backward + begin, n, WIDE_ZERO, shift, samples);
}

template <class VOXEL>
void SCAN_TILE::COPY_ROW(const SCAN_VOLUME &volume, NAT firstX, NAT y, NAT z, VOXEL *target) const {
    const VECTORNAT &size = volume.size;
    const bool outside = y < 1 || z < 1 || y > size.y || z > size.z;
    const VOXEL *row = static_cast<const VOXEL *>(volume.voxels);
    if (!outside && row != nullptr) row += (y - 1 + (z - 1) * size.y) * size.x;
    for (NAT phase = 0; phase < shape.factor; ++phase, target += shape.stride) {
        std::memset(target, 0, static_cast<std::size_t>(shape.stride) * sizeof(VOXEL));
        if (outside || row == nullptr) continue;
        // Element i is the voxel x + i * factor; the first one inside and the first one behind.
        const NAT x = firstX + phase, f = shape.factor;
        const NAT from = x >= 1 ? 0 : (f - x) / f;
        const NAT to = std::min(shape.stride, size.x < x ? 0 : (size.x - x) / f + 1);
        if (to <= from) continue;
        const VOXEL *source = row + (x - 1);
        if (f == 1)
            std::memcpy(target + from, source + from,
                        static_cast<std::size_t>(to - from) * sizeof(VOXEL));
        else
            for (NAT i = from; i < to; ++i)
                target[i] = source[i * f];
    }
}

template <class VOXEL> void SCAN_TILE::COPY(const SCAN_VOLUME &volume, const VECTORNAT &first) {
    VOXEL *target = reinterpret_cast<VOXEL *>(cells.DATA());
    const NAT firstX = first.x - shape.left * shape.factor;
    for (NAT z = first.z - shape.front; z <= first.z + shape.behind; ++z)
        for (NAT j = 0; j < shape.height; ++j, target += shape.stride * shape.factor)
            COPY_ROW<VOXEL>(volume, firstX, first.y - shape.above + j, z, target);
}

void SCAN_TILE::CONVERT_BYTES() {
    narrow = true;
    shift = 128;
    largest = 127;
    BYTE *data = reinterpret_cast<BYTE *>(cells.DATA());
    const NAT count = shape.ELEMENTS();
    for (NAT at = 0; at < count; at += BLOCK)
        for (NAT i = 0; i < BLOCK; ++i)
            data[at + i] ^= 128;
}

void SCAN_TILE::CONVERT_WORDS() {
    const RANGENAT range =
        RangeAboveZero(reinterpret_cast<const WORD *>(cells.DATA()), shape.ELEMENTS());
    const NAT spread = std::max(range.max - range.min, NAT{0}); // no value above 0: 0
    largest = (spread + 1) / 2;
    shift = std::min(range.min, NAT{65535}) + largest;
    narrow = spread <= 254;
    if (narrow)
        CONVERT_WORDS_TO<std::int8_t>(NARROW_ZERO);
    else
        CONVERT_WORDS_TO<std::int16_t>(WIDE_ZERO);
}

// In place: a block is read before it is written, and nothing is written behind it.
template <class STORED> void SCAN_TILE::CONVERT_WORDS_TO(NAT zero) {
    const NAT count = shape.ELEMENTS();
    const std::int32_t base = static_cast<std::int32_t>(shift);
    char *bytes = reinterpret_cast<char *>(cells.DATA());
    WORD source[BLOCK];
    STORED target[BLOCK];
    for (NAT at = 0; at < count; at += BLOCK) {
        std::memcpy(source, bytes + at * NAT{sizeof(WORD)}, sizeof source);
        for (NAT i = 0; i < BLOCK; ++i)
            target[i] = static_cast<STORED>(source[i] == 0 ? zero : source[i] - base);
        std::memcpy(bytes + at * NAT{sizeof(STORED)}, target, sizeof target);
    }
}

template <class STORED> void SCAN_TILE::FIND_ZEROS(STORED zero) {
    const STORED *data = reinterpret_cast<const STORED *>(cells.DATA());
    std::fill_n(zeroBlocks.DATA(), shape.height, std::uint64_t{0});
    const NAT blocks = shape.stride / BLOCK;
    for (NAT z = 0; z < shape.depth; ++z)
        for (NAT y = 0; y < shape.height; ++y)
            for (NAT b = 0; b < blocks * shape.factor; ++b, data += BLOCK) {
                STORED least = data[0];
                for (NAT i = 0; i < BLOCK; ++i)
                    least = std::min(least, data[i]);
                if (least == zero) zeroBlocks[y] |= std::uint64_t{1} << (b % blocks);
            }
}
} // namespace morvane
