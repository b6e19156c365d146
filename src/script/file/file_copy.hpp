#pragma once

#include "foundation/base/utf16.hpp"

#include <vector>

// Copying, moving and joining files. Targets are written beside and renamed, so a failure leaves
// an old target as it was; missing directories of a target are made. Failures are told.
namespace morvane {
// What happens to the bytes on their way. AUTO packs a plain file into a name with ".gz", unpacks
// in the other direction, and copies the bytes when both names or none end so.
enum class COPY_METHOD { AUTO, BYTES, PACK, UNPACK };
bool READ_COPY_METHOD(const UTF16 &text, COPY_METHOD &method); // "auto", "bytes", "pack", "unpack"

bool IS_GZ_NAME(const UTF16 &name); // the extension is, or ends with, "gz"

// The files of a name or mask, sorted. A name with "*" or "?" that is there as it stands is just
// that file. Nothing fits: none, without a line.
std::vector<UTF16> FILES_OF(const UTF16 &mask);

// One regular file to another name. An existing target is replaced; the same file as source and
// target is refused.
bool COPY_FILE(const UTF16 &source, const UTF16 &target, COPY_METHOD method);
// A name without wildcards goes to `target`, or into it when it is a directory or ends with "/";
// all files of a mask go into the directory `target`. False: at least one failed.
bool COPY_FILES(const UTF16 &mask, const UTF16 &target, COPY_METHOD method);
// Every file of the masks into a directory under its own name, with ".gz" added by PACK and cut by
// UNPACK. Of several files that would get one name the first goes; the others are told, so that
// none replaces another.
bool COPY_FILES_TO(const UTF16 &directory, const std::vector<UTF16> &masks, COPY_METHOD method);

// By renaming, else MOVE_BY_COPY. A write-protected target is told and stays, as with a copy.
bool MOVE_FILE(const UTF16 &source, const UTF16 &target);
// The way between two file systems: copy with permissions and times, then delete the source.
bool MOVE_BY_COPY(const UTF16 &source, const UTF16 &target);
bool MOVE_FILES(const UTF16 &mask, const UTF16 &target);                     // as COPY_FILES
bool MOVE_FILES_TO(const UTF16 &directory, const std::vector<UTF16> &masks); // as COPY_FILES_TO
bool RENAME_FILE(const UTF16 &from, const UTF16 &to); // as MOVE_FILE on one file system

// The files of the masks one behind the other as one file. Sources with ".gz" are unpacked, a
// target with ".gz" is packed. A mask leaves the target itself out; named as a source it is
// refused. A source that fails: no change.
bool JOIN_FILES(const UTF16 &target, const std::vector<UTF16> &masks);

void DELETE_FILES(const UTF16 &mask); // every file of the mask, never a directory
} // namespace morvane
