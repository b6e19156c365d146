#pragma once

#include "foundation/container/poly_types.hpp"

#include <span>
#include <string_view>

// Numbers to colours. Tables hold reals of 0..1 (red, green, blue, alpha), blended linearly from
// key colours.
namespace morvane {
class TCOLORMAP : public TPOLYHYPER {
public:
    TCOLORMAP() { INIT(); }

    using TPOLYHYPER::INIT; // an empty dynamic list, or `count` transparent black entries

    // Fills the table, whose LENGTH is set before, between key points at x of 0..1, ascending, with
    // their colours. Key points outside 0..1 are passed over. Unchanged when a list is empty.
    void BUILD(const TPOLYCOMPLEX &points, const TPOLYHYPER &colours);
    // A new table of `length` entries between key colours of 0..255 at equal spacing.
    void PUT(NAT length, std::span<const VECTORNAT> colours);
    void PUT(NAT length, std::span<const HYPERNAT> colours);
    using TPOLYHYPER::PUT;
    // A new table of a map named in capitals ("VIRIDIS"); false, and unchanged, for unknown ones.
    bool PUT(NAT length, std::string_view builder);

    // The entry (|index| - 1) mod LENGTH + 1, so that indices wrap round; 0 is the last entry. Zero
    // on an empty table.
    HYPER GETRGBA(NAT index) const;
    VECTOR GETRGB(NAT index) const;
    // The entry at the place of value within low..high, limited to them.
    HYPER GETRGBA(REAL low, REAL high, REAL value) const;
    VECTOR GETRGB(REAL low, REAL high, REAL value) const;

    void SETALPHA_BW();    // alpha rises from 0 to 1 along the table
    void SETALPHA_WB();    // falls from 1 to 0
    void SETALPHA_BLACK(); // 0 for black entries
    void SETALPHA_GRAY();  // 0 for entries of three equal components other than black and white
    void SETALPHA_WHITE(); // 0 for white entries
};

// The maps of a family; each call builds map `index` of it with `steps` entries and gives the name
// that is shown. An index outside 1..LENGTH is limited to it, as are steps to 1..2^20.
enum class COLOUR_FAMILY : BYTE {
    DEFAULTMAP,
    SPECIAL,
    VOLUME1,
    VOLUME2,
    CHART1,
    CHART2,
    WARN,
    ART,
    TOPO,
};
NAT FAMILY_LENGTH(COLOUR_FAMILY family);
std::string_view BUILD_FAMILY(TCOLORMAP &map, COLOUR_FAMILY family, NAT index, NAT steps);

// The map that scripts choose and images are coloured with; "BW" with 256 entries at start.
TCOLORMAP &CURRENTMAP();

// Grey of a colour: (r+g+b)/3, and r+g+b of 0..765.
constexpr NAT RGBTOGRAY(NAT r, NAT g, NAT b) { return (r + g + b) / 3; }
constexpr NAT RGBTOFULLGRAY(NAT r, NAT g, NAT b) { return r + g + b; }
// b over a (Porter and Duff 1984); the components stay multiplied by the new alpha.
HYPER OVER(const HYPER &a, const HYPER &b);
// The colour with its lightness (HSL) replaced, hue and saturation kept; all of 0..1.
VECTOR PRESERVE_LUMINOSITY(const VECTOR &colour, REAL lightness);
REAL GETLIGHTNESS(const VECTOR &colour); // (max + min) / 2
// The same with 1 minus its lightness.
VECTOR INVERT_LUMINOSITY(REAL r, REAL g, REAL b);
inline constexpr HYPERNAT HWHITE{255, 255, 255, 255}; // the white limit of colours
HYPERNAT LIGHTUP(const HYPERNAT &colour);             // each component 64 more, limited to HWHITE
} // namespace morvane
