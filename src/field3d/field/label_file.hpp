#pragma once

#include "foundation/base/utf16.hpp"

namespace morvane {
class T3D_SCALAR_ANALYSIS;

// Label files of three kinds: an atlas (lines with "<area" and a name="...", values from 0 by
// appearance), a table (value, tab, name) and plain names, one a line, from 0. All store into the
// field and return how many names they stored.
NAT READLABELS(const UTF16 &file,
               T3D_SCALAR_ANALYSIS &field); // an atlas beside the file goes first
// The atlas of a volume: base name and ".atlas.xml". -1: there is none.
NAT READATLAS(const UTF16 &volume, T3D_SCALAR_ANALYSIS &field);
void WRITE_FOUND(NAT count); // "  Found one label."
} // namespace morvane
