#pragma once

#include "field3d/raster/raster.hpp"

namespace morvane {
// Three 8-bit channels on one grid, the storage of byte vector fields: <red, green, blue>.
class T3DRGB {
public:
    BOX window;           // a copy of the channels' window
    UTF16CHARS7 fileName; // the file that filled the field
    T3DGRAY red, green, blue;
    FRAME frame;

    T3DRGB() = default;
    T3DRGB(NAT sizeX, NAT sizeY, NAT sizeZ) { INIT(sizeX, sizeY, sizeZ); }

    void INIT() { DONE(); }
    void INIT(NAT sizeX, NAT sizeY, NAT sizeZ); // all channels, or an empty field
    void DONE();

    NAT SIZEX() const { return red.SIZEX; }
    NAT SIZEY() const { return red.SIZEY; }
    NAT SIZEZ() const { return red.SIZEZ; }
    VECTORNAT SIZE() const { return red.SIZE(); }
    bool EMPTY() const { return red.EMPTY(); }

    VECTORNAT GET(NAT x, NAT y, NAT z) const; // the channels' backgrounds outside the field
    VECTORNAT _GET(NAT x, NAT y, NAT z) const {
        return {red._GET(x, y, z), green._GET(x, y, z), blue._GET(x, y, z)};
    }
    void PUT(NAT x, NAT y, NAT z, const VECTORNAT &value); // each component limited to 0..255
};
} // namespace morvane
