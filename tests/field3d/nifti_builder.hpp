#pragma once

#include "field3d/format/nifti_header.hpp"
#include "support/temporary_folder.hpp"

#include <cstring>
#include <string>
#include <vector>
#include <zlib.h>

namespace morvane {
// The header of a .nii with samples of bitpix and datatype, pixdim 1, no frame of its own.
inline TNIFTI HEADER_OF(std::int16_t bitpix, std::int16_t datatype, std::int16_t x, std::int16_t y,
                        std::int16_t z) {
    TNIFTI header;
    header.sizeof_hdr = 348;
    header.dim[0] = 3, header.dim[1] = x, header.dim[2] = y, header.dim[3] = z;
    header.bitpix = bitpix;
    header.datatype = datatype;
    header.pixdim[1] = header.pixdim[2] = header.pixdim[3] = 1;
    header.vox_offset = 352;
    std::memcpy(header.magic, "n+1", 4);
    return header;
}

inline std::string BYTES_OF(const TNIFTI &header) {
    return {reinterpret_cast<const char *>(&header), sizeof header};
}

// A whole .nii: header, extension, samples.
template <class SAMPLE> std::string NII(const TNIFTI &header, const std::vector<SAMPLE> &samples) {
    return BYTES_OF(header) + std::string(4, '\0') +
           std::string(reinterpret_cast<const char *>(samples.data()),
                       samples.size() * sizeof(SAMPLE));
}

inline std::string ZIPPED(const std::string &bytes) {
    z_stream stream{};
    deflateInit2(&stream, 6, Z_DEFLATED, 15 + 16, 8, Z_DEFAULT_STRATEGY);
    std::string result(bytes.size() + 1000, '\0');
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef *>(result.data());
    stream.avail_out = static_cast<uInt>(result.size());
    deflate(&stream, Z_FINISH);
    result.resize(stream.total_out);
    deflateEnd(&stream);
    return result;
}
} // namespace morvane
