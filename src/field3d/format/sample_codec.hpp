#pragma once

#include "foundation/base/records.hpp"
#include "foundation/base/utf16.hpp"

// Stored samples to voxels. A sample type is one number: its bits modulo 1000; 1000 floats, 2000
// colours of bytes, 3000 colours of words; negative signed. See GETNIFTICODE.
namespace morvane {
// How values become voxels: scaled by fixed rules (SCALE; floats from low..high onto the voxel
// range), or through the load filter v + offset, (v + offset) * factor, (v + offset) / -factor.
enum class SAMPLE_RULE { SCALE, ADD, MULTIPLY, DIVIDE };
SAMPLE_RULE GETRULE(NAT filterOffset, NAT filterFactor); // both 0: SCALE

struct SAMPLE_MAP {
    NAT code = 0;               // the sample type
    NAT offset = 0, factor = 0; // the load filter
    RANGE range;                // of floats under SCALE
};

// `count` samples in the processor's byte order into voxels: a byte or a word each; 1-bit voxels
// are bytes 0 and 1. The result is limited to the voxel range.
template <class OUT>
using SAMPLE_CODEC = void(const BYTE *samples, NAT count, OUT *voxels, const SAMPLE_MAP &map);
template <class VOXEL> struct CODEC_OUT { using TYPE = VOXEL; };
template <> struct CODEC_OUT<bool> { using TYPE = BYTE; };
// The one function for a sample type, a voxel width (bool, BYTE, WORD) and a rule; null for an
// unknown type.
template <class VOXEL>
SAMPLE_CODEC<typename CODEC_OUT<VOXEL>::TYPE> *GETCODEC(NAT code, SAMPLE_RULE rule);

// Samples as plain numbers, without any scaling; T is REAL or NAT. Colours give their sum; floats
// round and limit on their way to NAT. Null for an unknown type.
template <class T> using SAMPLE_DECODER = void(const BYTE *samples, NAT count, T *values);
template <class T> SAMPLE_DECODER<T> *GETDECODER(NAT code);

NAT GETSAMPLEBYTES(NAT code); // real bytes of one sample; 0 for an unknown type
NAT GETCODEBYTES(NAT code);   // bytes by the type's number, as file sizes and stacks are counted
bool ISFLOAT(NAT code);
void SWAPSAMPLES(NAT code, BYTE *samples, NAT count); // reverses the bytes of each number
void WIDEN(NAT code, const BYTE *samples, NAT count, RANGE &range); // by finite float samples
UTF16 GETFAMILY(NAT code);                                          // "-Fullgrey"; floats "32Float"
} // namespace morvane
