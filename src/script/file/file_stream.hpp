#pragma once

#include "foundation/console/files.hpp"

namespace morvane {
// The bytes of a source appended to an open target, unpacked when `unpacked` is set (a plain file
// comes through as it is). A failure is told; false: the target is not to be kept.
bool APPEND_BYTES(FILE_WRITE &target, const UTF16 &source, bool unpacked);

bool IS_REGULAR_FILE(const UTF16 &name);           // links followed; tells in words when it is not
bool IS_SAME_FILE(const UTF16 &a, const UTF16 &b); // one file of the system under both names
bool REFUSE_SAME(const UTF16 &source, const UTF16 &target); // tells when it is one file
} // namespace morvane
