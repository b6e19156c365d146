#pragma once

namespace morvane {
class TMACRO;

// Handlers of files, directories and name parts. Those that reach the disk do nothing while the
// engine's switch FILES is off; their functions give -1 then.
void IO_FILE_DELETE(TMACRO *engine);
void IO_FILE_JOIN(TMACRO *engine);
void IO_FILE_COPY_METHOD(TMACRO *engine);
void IO_FILE_COPY_METHOD_REF(TMACRO *engine);
void IO_FILE_COPY(TMACRO *engine);
void IO_FILE_COPY_TO(TMACRO *engine);
void IO_FILE_MOVE(TMACRO *engine);
void IO_FILE_MOVE_TO(TMACRO *engine);
void IO_FILE_RENAME(TMACRO *engine);
void IO_FILE_REPAIR(TMACRO *engine);
void IO_FILE_GETSIZE_REF(TMACRO *engine);
void IO_FILE_GETAGE_REF(TMACRO *engine);
void IO_FILE_GETATTR_REF(TMACRO *engine);

void IO_DIR_MAKE(TMACRO *engine);
void IO_DIR_DELETE(TMACRO *engine);
void IO_DIR_HARDDELETE(TMACRO *engine);
void IO_DIR_COPY(TMACRO *engine);
void IO_DIR_RENAME(TMACRO *engine);
void IO_DIR_CHANGE(TMACRO *engine);
void IO_DIR_HARDCHANGE(TMACRO *engine);

void IO_SORTING(TMACRO *engine);
void IO_SORTING_REF(TMACRO *engine);
void IO_ALIGN(TMACRO *engine);
void IO_ALIGN_REF(TMACRO *engine);
void IO_FILESHORT(TMACRO *engine);
void IO_FILESHORT_REF(TMACRO *engine);
void IO_WORKDIR_LAMD(TMACRO *engine);
void IO_GETDIR_REF(TMACRO *engine);
void IO_GETFILE_REF(TMACRO *engine);
void IO_GETFILENAME_REF(TMACRO *engine);
void IO_GETSHORTFILENAME_REF(TMACRO *engine);
void IO_GETFULLFILEEXTENSION_REF(TMACRO *engine);
void IO_GETFILEEXTENSION_REF(TMACRO *engine);
void IO_GETSHORTDIR_REF(TMACRO *engine);
void IO_GETBASH_REF(TMACRO *engine);
} // namespace morvane
