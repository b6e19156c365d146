#pragma once

#include "field3d/format/nifti_header.hpp"

// What a volume file tells about itself, without its data.
namespace morvane {
// The header alone, in the processor's byte order; of a pair that of the .hdr. False: it can't be
// opened (told by the file layer) or has another size, which is in header.sizeof_hdr.
bool INFO_NII_VAR(const UTF16 &file, TNIFTI &header);
bool INFO_NII_GZ_VAR(const UTF16 &file, TNIFTI &header);

// All fields as text: on the console, or in a text file.
bool INFO_NII_TXT(const UTF16 &file);
bool INFO_NII_FILE(const UTF16 &file, const UTF16 &target);
// Kind code, <size>, stacks, <further axes>, parted by tabs. The code is the datatype, 30000 more
// for vectors, 60000 more for tensors; 0 for a file without a readable header.
UTF16 INFO_NII(const UTF16 &file);
} // namespace morvane
