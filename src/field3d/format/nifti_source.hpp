#pragma once

#include "field3d/format/byte_source.hpp"
#include "field3d/format/nifti_header.hpp"
#include "field3d/format/read_raw.hpp"
#include "foundation/container/poly_types.hpp"

namespace morvane {
// What reading a header came to.
enum class HEADER_STATE { GOOD, UNOPENED, WRONG, VERSION2 };
// The 348 bytes at the start of a source, turned into the processor's byte order; `swapped` tells
// that the data need it too.
HEADER_STATE READNIFTI(BYTE_SOURCE &source, TNIFTI &header, bool &swapped);

// An opened NIfTI-1 or Analyze file (or pair) with its checked header, ready to be read.
class NIFTI_SOURCE {
public:
    TNIFTI HEADER;      // in the processor's byte order; singleton axes folded, dim[4] at least 1
    BYTE_SOURCE SOURCE; // the data
    bool SWAP = false;  // samples are in the other byte order
    NAT START = 0;      // byte at which the data of stack 1 start
    NAT CODE = 0;       // sample type, see GETNIFTICODE
    NAT STACK = 1;      // the chosen stack, checked
    UTF16 PROBLEM;      // after a false answer: the line to print
    bool ONLYHEADER = false; // after a false answer: header and size are good, the image is missing

    // Opens `name` (.hdr and .img, also with .gz, select a pair) and checks rank, size, stack and
    // sample type. A negative stack counts from the end, 0 is the first. False: see PROBLEM;
    // nothing is printed but what opening a file prints.
    bool OPEN(const UTF16 &name, NAT stack, bool zipped);
    VECTORNAT SIZE() const { return {HEADER.dim[1], HEADER.dim[2], HEADER.dim[3]}; }
    NAT STACKS() const; // dim[4] and the further axes of the rank; 3 in a vector file
    FRAME GETFRAME() const;
    // Where __READRAW finds the chosen stack.
    RAW_VOLUME VOLUME(NAT filterOffset, NAT filterFactor) const;
    // The data can't hold that many stacks: by the size of a plain file, or as no stream of this
    // packed size could. Ask before allocating.
    bool LACKS(NAT stacks) const;
    // The x*y samples of slice z (from 1) of a stack (from 1) as stored, without scaling. Integers
    // beyond the target's range are limited, floats round for NAT, colours give their sum.
    // False: the data end before the slice does, the rest of `target` is zero.
    bool READSLICE(NAT stack, NAT z, REAL *target) { return ReadSlice(stack, z, target); }
    bool READSLICE(NAT stack, NAT z, NAT *target) { return ReadSlice(stack, z, target); }

private:
    bool Fail(const UTF16 &text);
    bool OpenHeader(const UTF16 &name, bool zipped);
    bool OpenPair(const UTF16 &name, bool zipped);
    void Fold();
    bool IsRank() const;
    bool CheckStack(NAT stack);
    template <class T> bool ReadSlice(NAT stack, NAT z, T *target);

    TPOLYBYTE buffer;  // one slice of samples
    NAT position = -1; // where SOURCE stands; -1: unknown
};
} // namespace morvane
