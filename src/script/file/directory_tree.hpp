#pragma once

#include "foundation/base/utf16.hpp"

// Directories with what they hold. Failures are told and give false.
namespace morvane {
// An empty directory, or a link to a directory, which alone goes away. A full one is told and
// stays.
// "/", ".", "..", an empty name and every directory above or at the working one are refused.
bool DELETE_DIRECTORY(const UTF16 &path);
// The same, a full one emptied first. Links inside are deleted and never followed; a directory of
// another file system stays.
bool DELETE_TREE(const UTF16 &path);
// The directory `from` with everything below it as `to`. What `to` holds already stays, files of
// the same name are replaced. Links are copied as links. `to` must not lie in `from`.
bool COPY_TREE(const UTF16 &from, const UTF16 &to);
bool RENAME_DIRECTORY(const UTF16 &from, const UTF16 &to); // no files
} // namespace morvane
