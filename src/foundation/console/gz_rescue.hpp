#pragma once

#include "foundation/console/files.hpp"

namespace morvane {
struct GZ_RESCUE {
    bool opened = false; // false: the source or the target failed, which is told
    bool broken = false; // the stream is damaged or cut, or is none
    NAT count = 0;       // bytes that it gives all the same, up to the damage
};
// Unpacks a gz file by its blocks, so that no byte before a damage is lost, where GZ_READ gives
// whole pieces only. `target` may be null: then the bytes are just counted.
GZ_RESCUE RESCUE_GZ(const UTF16 &source, FILE_WRITE *target);
} // namespace morvane
