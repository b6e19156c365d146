#pragma once

#include "foundation/base/records.hpp"
#include "foundation/container/poly.hpp"

#include <type_traits>

// What differs between the voxel widths: how a voxel lies in the block, its range and its type tag.
namespace morvane {
inline constexpr BYTE TAG_MONO = 149, TAG_GRAY = 150, TAG_FULLGRAY = 151, TAG_RGB = 170;

template <class VOXEL> struct VOXEL_KIND;
template <> struct VOXEL_KIND<bool> {
    using ELEMENT = BYTE; // eight voxels
    static constexpr BYTE TAG = TAG_MONO;
    static constexpr NAT BITS = 1, MAXIMUM = 1;
    static constexpr const char *NAME = "Mono";
};
template <> struct VOXEL_KIND<BYTE> {
    using ELEMENT = BYTE;
    static constexpr BYTE TAG = TAG_GRAY;
    static constexpr NAT BITS = 8, MAXIMUM = 255;
    static constexpr const char *NAME = "Grey";
};
template <> struct VOXEL_KIND<WORD> {
    using ELEMENT = WORD;
    static constexpr BYTE TAG = TAG_FULLGRAY;
    static constexpr NAT BITS = 16, MAXIMUM = 65535;
    static constexpr const char *NAME = "Fullgrey";
};

// The voxels of one field in one block of zero-filled memory. Positions are 1-based and unchecked.
template <class VOXEL> class VOXEL_BLOCK {
public:
    using ELEMENT = typename VOXEL_KIND<VOXEL>::ELEMENT;

    // False: memory ran out, which has been told, and the block is empty.
    bool INIT(NAT count) {
        block.DONE();
        block.INIT(ElementsFor(count), static_cast<NAT>(sizeof(ELEMENT)));
        return block.LENGTH > 0;
    }
    void DONE() { block.DONE(); }
    NAT ELEMENTS() const { return block.LENGTH; }
    ELEMENT *DATA() { return static_cast<ELEMENT *>(block.DATA); }
    const ELEMENT *DATA() const { return static_cast<const ELEMENT *>(block.DATA); }

    VOXEL _GET(NAT index) const {
        if constexpr (std::is_same_v<VOXEL, bool>)
            return (DATA()[(index - 1) / 8] >> ((index - 1) % 8) & 1) != 0;
        else
            return DATA()[index - 1];
    }
    void _PUT(NAT index, VOXEL value) {
        if constexpr (std::is_same_v<VOXEL, bool>) {
            BYTE &element = DATA()[(index - 1) / 8];
            const auto bit = static_cast<BYTE>(1U << ((index - 1) % 8));
            element = static_cast<BYTE>(value ? element | bit : element & ~bit);
        } else {
            DATA()[index - 1] = value;
        }
    }

private:
    // 1-bit blocks hold a spare byte even when the count is a multiple of 8.
    static NAT ElementsFor(NAT count) {
        return std::is_same_v<VOXEL, bool> ? count / 8 + 1 : count;
    }

    TPOLY block;
};
} // namespace morvane
