#include "script/module/io_file_handlers.hpp"

#include "foundation/base/number_text.hpp"
#include "foundation/console/files.hpp"
#include "foundation/console/paths.hpp"
#include "script/engine/macro.hpp"
#include "script/file/directory_tree.hpp"
#include "script/file/file_repair.hpp"
#include "script/file/shell_escapes.hpp"
#include "script/module/io_lists.hpp"

namespace morvane {
namespace {
// Calls an operation for each parameter from `first` on; nothing while the disk is switched off.
template <class OPERATION> void ForEach(TMACRO *engine, NAT first, OPERATION operation) {
    if (!engine->switches.FILES) return;
    for (NAT i = first; i <= engine->PARAMETERLENGTH(); ++i)
        operation(engine->GETPARAMETER(i));
}

// Calls an operation on both parameters.
template <class OPERATION> void FromTo(TMACRO *engine, OPERATION operation) {
    if (!engine->switches.FILES) return;
    const UTF16 from = engine->GETPARAMETER(1);
    operation(from, engine->GETPARAMETER(2));
}

// Calls an operation on the first parameter and all the others.
template <class OPERATION> void FirstAndRest(TMACRO *engine, OPERATION operation) {
    std::vector<UTF16> rest;
    ForEach(engine, 2, [&rest](const UTF16 &text) { rest.push_back(text); });
    if (engine->switches.FILES) operation(engine->GETPARAMETER(1), rest);
}

void Answer(TMACRO *engine, NAT (*query)(const UTF16 &name)) {
    const UTF16 name = engine->GETPARAMETER(1);
    engine->COMMAND_RESULT = GETSTRING_NAT(engine->switches.FILES ? query(name) : -1);
}

void NamePart(TMACRO *engine, UTF16 (*part)(const UTF16 &path)) {
    engine->COMMAND_RESULT = part(engine->GETPARAMETER(1));
}

const char *MethodWord() {
    switch (IO.METHOD) {
    case COPY_METHOD::AUTO: return "auto";
    case COPY_METHOD::BYTES: return "bytes";
    case COPY_METHOD::PACK: return "pack";
    case COPY_METHOD::UNPACK: return "unpack";
    }
    return "";
}
} // namespace

void IO_FILE_DELETE(TMACRO *engine) { ForEach(engine, 1, DELETE_FILES); }
void IO_FILE_REPAIR(TMACRO *engine) { ForEach(engine, 1, REPAIR_FILES); }

// join target mask ...
void IO_FILE_JOIN(TMACRO *engine) { FirstAndRest(engine, JOIN_FILES); }

void IO_FILE_COPY_METHOD(TMACRO *engine) {
    const UTF16 word = engine->GETPARAMETER(1);
    if (!READ_COPY_METHOD(word, IO.METHOD)) engine->ERROR("unknown copy method: " + word);
}
void IO_FILE_COPY_METHOD_REF(TMACRO *engine) { engine->COMMAND_RESULT = MethodWord(); }

void IO_FILE_COPY(TMACRO *engine) {
    FromTo(engine, [](const UTF16 &mask, const UTF16 &to) { COPY_FILES(mask, to, IO.METHOD); });
}
void IO_FILE_MOVE(TMACRO *engine) { FromTo(engine, MOVE_FILES); }
void IO_FILE_RENAME(TMACRO *engine) { FromTo(engine, RENAME_FILE); }

// copy.to directory mask ...
void IO_FILE_COPY_TO(TMACRO *engine) {
    FirstAndRest(engine, [](const UTF16 &directory, const std::vector<UTF16> &masks) {
        COPY_FILES_TO(directory, masks, IO.METHOD);
    });
}
void IO_FILE_MOVE_TO(TMACRO *engine) { FirstAndRest(engine, MOVE_FILES_TO); }

void IO_FILE_GETSIZE_REF(TMACRO *engine) { Answer(engine, FILESIZE); }
void IO_FILE_GETAGE_REF(TMACRO *engine) { Answer(engine, FILEAGE); }
void IO_FILE_GETATTR_REF(TMACRO *engine) { Answer(engine, FILEATTR); }

void IO_DIR_MAKE(TMACRO *engine) { ForEach(engine, 1, HARDMKDIR); }
void IO_DIR_DELETE(TMACRO *engine) { ForEach(engine, 1, DELETE_DIRECTORY); }
void IO_DIR_HARDDELETE(TMACRO *engine) { ForEach(engine, 1, DELETE_TREE); }
void IO_DIR_COPY(TMACRO *engine) { FromTo(engine, COPY_TREE); }
void IO_DIR_RENAME(TMACRO *engine) { FromTo(engine, RENAME_DIRECTORY); }
void IO_DIR_CHANGE(TMACRO *engine) { ForEach(engine, 1, CHDIR); }
void IO_DIR_HARDCHANGE(TMACRO *engine) { ForEach(engine, 1, HARDCHDIR); }

void IO_SORTING(TMACRO *engine) { FORMAT.SORTING = GETBOOLEAN(engine->GETPARAMETER(1)); }
void IO_SORTING_REF(TMACRO *engine) { engine->COMMAND_RESULT = GETSTRING(FORMAT.SORTING); }
void IO_ALIGN(TMACRO *engine) { FORMAT.ALIGN = GETBOOLEAN(engine->GETPARAMETER(1)); }
void IO_ALIGN_REF(TMACRO *engine) { engine->COMMAND_RESULT = GETSTRING(FORMAT.ALIGN); }
void IO_FILESHORT(TMACRO *engine) { FILESHORT = GETBOOLEAN(engine->GETPARAMETER(1)); }
void IO_FILESHORT_REF(TMACRO *engine) { engine->COMMAND_RESULT = GETSTRING(FILESHORT); }

void IO_WORKDIR_LAMD(TMACRO *engine) {
    engine->COMMAND_RESULT = engine->switches.FILES ? GETCURRENTDIR() : UTF16();
}

void IO_GETDIR_REF(TMACRO *engine) { NamePart(engine, GETDIR); }
void IO_GETFILE_REF(TMACRO *engine) { NamePart(engine, GETFILE); }
void IO_GETFILENAME_REF(TMACRO *engine) { NamePart(engine, GETFILENAME); }
void IO_GETSHORTFILENAME_REF(TMACRO *engine) { NamePart(engine, GET_SHORTFILENAME); }
void IO_GETFULLFILEEXTENSION_REF(TMACRO *engine) { NamePart(engine, GET_FULLFILEEXTENSION); }
void IO_GETFILEEXTENSION_REF(TMACRO *engine) { NamePart(engine, GETFILEEXTENSION); }
void IO_GETBASH_REF(TMACRO *engine) { NamePart(engine, WITHOUT_SHELL_ESCAPES); }
void IO_GETSHORTDIR_REF(TMACRO *engine) {
    const UTF16 path = engine->GETPARAMETER(1);
    engine->COMMAND_RESULT = GETSHORTDIR(path, GETNAT(engine->GETPARAMETER(2)));
}
} // namespace morvane
