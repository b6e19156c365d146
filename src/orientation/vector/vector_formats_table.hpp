#pragma once

#include "foundation/base/utf16.hpp"

#include <array>
#include <string_view>

namespace morvane {
class T3D_VECTOR_ANALYSIS;

// One file format of vector fields. `reader` keeps the kind `tag`; null: the format cannot be read
// or written.
struct VECTOR_FORMAT {
    std::string_view extension; // lower case, without the point
    bool (*reader)(T3D_VECTOR_ANALYSIS &field, BYTE tag, const UTF16 &name);
    bool (*writer)(const T3D_VECTOR_ANALYSIS &field, const UTF16 &name);
    std::string_view legend;
};

bool READ_VECTOR_NII(T3D_VECTOR_ANALYSIS &field, BYTE tag, const UTF16 &name);
bool READ_VECTOR_NII_GZ(T3D_VECTOR_ANALYSIS &field, BYTE tag, const UTF16 &name);
bool READ_VECTOR_TXT(T3D_VECTOR_ANALYSIS &field, BYTE tag, const UTF16 &name);
bool WRITE_VECTOR_HDR(const T3D_VECTOR_ANALYSIS &field, const UTF16 &name);
bool WRITE_VECTOR_NII(const T3D_VECTOR_ANALYSIS &field, const UTF16 &name);
bool WRITE_VECTOR_NII_GZ(const T3D_VECTOR_ANALYSIS &field, const UTF16 &name);
bool WRITE_VECTOR_FLD(const T3D_VECTOR_ANALYSIS &field, const UTF16 &name);
bool WRITE_VECTOR_AM(const T3D_VECTOR_ANALYSIS &field, const UTF16 &name);
bool WRITE_VECTOR_LIMBERT(const T3D_VECTOR_ANALYSIS &field, const UTF16 &name);
bool WRITE_VECTOR_TXT(const T3D_VECTOR_ANALYSIS &field, const UTF16 &name);

// The row of an extension is the first that has it; the last row, text, takes every other one when
// a field is saved. A file of no row's extension is not loaded.
inline constexpr std::array<VECTOR_FORMAT, 8> VECTOR_FORMATS{{
    {"nii", READ_VECTOR_NII, WRITE_VECTOR_NII, "NIfTI-1, header and data in one file"},
    {"nii.gz", READ_VECTOR_NII_GZ, WRITE_VECTOR_NII_GZ, "NIfTI-1, compressed"},
    {"hdr", READ_VECTOR_NII, WRITE_VECTOR_HDR, "NIfTI-1, header with an .img beside it"},
    {"img", READ_VECTOR_NII, nullptr, "the data of a NIfTI-1 pair"},
    {"fld", nullptr, WRITE_VECTOR_FLD, "AVS field"},
    {"am", nullptr, WRITE_VECTOR_AM, "AmiraMesh, text"},
    {"limbert", nullptr, WRITE_VECTOR_LIMBERT, "numbered vectors, text"},
    {"txt", READ_VECTOR_TXT, WRITE_VECTOR_TXT, "positions and vectors, text"},
}};
const VECTOR_FORMAT &VECTOR_FORMAT_OF(std::string_view extension);
} // namespace morvane
