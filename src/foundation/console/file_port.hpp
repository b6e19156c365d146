#pragma once

#include "foundation/console/files.hpp"

// The ports to the C library's files, used inside foundation/console only.
namespace morvane {
// Opens for reading; 0, or the errno value.
int OPENFILE(FILE_READ &file, const std::string &path);
// The unpacking side of a descriptor as a gzip handle, which owns it from then on; null when
// memory runs out.
void *GZ_ATTACH(int descriptor, int level);
// 0, or the errno value of the failure.
int GZ_WRITE(void *handle, const void *bytes, NAT count);
int GZ_FINISH(void *handle);

// "Empty filename!" is written and false given for a name without characters.
bool ISNAMED(const UTF16 &name);
// Writes `what`, the shortened path and ").".
void TELLFILE(const char *what, const UTF16 &path);
} // namespace morvane
