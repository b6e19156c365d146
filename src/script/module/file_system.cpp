#include "script/module/use_all.hpp"

#include "script/engine/macro.hpp"
#include "script/module/io_file_handlers.hpp"
#include "script/module/io_list_handlers.hpp"

namespace morvane {
namespace {
constexpr std::string_view MASKS = "mask: file ...", NAMES = "name: text ...", PATH = "path: text",
                           LIST_FILE = "list: file", DIRECTORIES = "directory: file ...",
                           INTO = "directory: file, mask: file ...",
                           FROM_TO = "from: file, to: file", ENTRY = "entry: number";

constexpr COMMAND_ROW IO_ROWS[] = {
    PROPERTY("sorting", IO_SORTING, IO_SORTING_REF, EXACTLY(1), "ascending: flag",
             "io.sorting true", "lists sort ascending, else descending"),
    PROPERTY("align", IO_ALIGN, IO_ALIGN_REF, EXACTLY(1), "characters: flag", "io.align true",
             "texts compare by characters only, else by length first"),
    PROPERTY("fileshort", IO_FILESHORT, IO_FILESHORT_REF, EXACTLY(1), "short: flag",
             "io.fileshort true", "messages show long paths shortened"),
    PROCEDURE("files", IO_FILES, AT_LEAST(1), MASKS, "io.files data/*.pgm",
              "fill the file list by masks"),
    PROCEDURE("dirs", IO_DIRS_NEW, AT_LEAST(1), MASKS, "io.dirs data/*",
              "fill the directory list by masks"),
    LAMBDA("workdir", IO_WORKDIR_LAMD, "a := io.workdir", "the working directory"),
    FUNCTION("getdir", IO_GETDIR_REF, EXACTLY(1), PATH, "a := io.getdir data/head.nii.gz",
             "directory of a path"),
    FUNCTION("getfile", IO_GETFILE_REF, EXACTLY(1), PATH, "a := io.getfile data/head.nii.gz",
             "file of a path"),
    FUNCTION("getfilename", IO_GETFILENAME_REF, EXACTLY(1), PATH,
             "a := io.getfilename data/head.nii.gz", "file of a path without its extension"),
    FUNCTION("getshortfilename", IO_GETSHORTFILENAME_REF, EXACTLY(1), PATH,
             "a := io.getshortfilename data/head.nii.gz", "file of a path up to the first point"),
    FUNCTION("getfullfileextension", IO_GETFULLFILEEXTENSION_REF, EXACTLY(1), PATH,
             "a := io.getfullfileextension data/head.v2.nii", "everything behind the first point"),
    FUNCTION("getfileextension", IO_GETFILEEXTENSION_REF, EXACTLY(1), PATH,
             "a := io.getfileextension data/head.nii.gz", "extension; nii.gz is one"),
    FUNCTION("getshortdir", IO_GETSHORTDIR_REF, EXACTLY(2), "path: text, length: number",
             "a := io.getshortdir data/subject/head.nii 20", "path of at most so many characters"),
    FUNCTION("getbash", IO_GETBASH_REF, EXACTLY(1), PATH, "a := io.getbash 'a\\ b.txt'",
             "name without the escapes of a shell"),
};
static_assert(ROWS_ARE_SOUND(IO_ROWS));

constexpr COMMAND_ROW IO_FILES_ROWS[] = {
    LAMBDA("length", IO_FILES_LIST::LENGTH_LAMD, "a := io.files.length", "count of files"),
    LAMBDA("size", IO_FILES_LIST::LENGTH_LAMD, "a := io.files.size", "count of files"),
    LAMBDA("rest", IO_FILES_LIST::REST_LAMD, "a := io.files.rest",
           "count of files behind the current one"),
    LAMBDA("get", IO_FILES_LIST::GET_LAMD, "a := io.files.get", "current file"),
    LAMBDA("getdir", IO_FILES_GETDIR_LAMD, "a := io.files.getdir", "directory of the current file"),
    LAMBDA("getprec", IO_FILES_GETPREC_LAMD, "a := io.files.getprec",
           "file before the current one"),
    LAMBDA("getfile", IO_FILES_GETFILE_LAMD, "a := io.files.getfile",
           "current file without its directory"),
    LAMBDA("getsucc", IO_FILES_GETSUCC_LAMD, "a := io.files.getsucc",
           "file behind the current one"),
    LAMBDA("getname", IO_FILES_GETNAME_LAMD, "a := io.files.getname",
           "current file without directory and extension"),
    LAMBDA("getshort", IO_FILES_GETSHORT_LAMD, "a := io.files.getshort",
           "current file without directory, up to the first point"),
    LAMBDA("getfileextension", IO_FILES_GETFILEEXTENSION_LAMD, "a := io.files.getfileextension",
           "extension of the current file; nii.gz is one"),
    LAMBDA("getextension", IO_FILES_GETEXTENSION_LAMD, "a := io.files.getextension",
           "all of the current file's name behind the first point"),
    PROCEDURE("new", IO_FILES_NEW, AT_LEAST(1), MASKS, "io.files.new *.pgm",
              "fill the file list by masks in the directories of the directory list"),
    PROCEDURE("fromfile", IO_FILES_FROMFILE, EXACTLY(1), LIST_FILE, "io.files.fromfile names.txt",
              "fill the file list from a text, one name a line"),
    PROCEDURE("add", IO_FILES_ADD, AT_LEAST(1), MASKS, "io.files.add *.pgm",
              "as io.files.new, behind the list"),
    PROCEDURE("add.fromfile", IO_FILES_ADD_FROMFILE, EXACTLY(1), LIST_FILE,
              "io.files.add.fromfile names.txt", "as io.files.fromfile, behind the list"),
    PROCEDURE("sub", IO_FILES_LIST::SUB, AT_LEAST(1), NAMES, "io.files.sub data/b.pgm",
              "take exactly these names off the list"),
    PROCEDURE("subweak", IO_FILES_LIST::SUBWEAK, AT_LEAST(1), NAMES, "io.files.subweak backup",
              "take the names that hold a text off the list"),
    PROCEDURE("clear", IO_FILES_LIST::CLEAR, EXACTLY(0), "", "io.files.clear", "empty list"),
    PROCEDURE("first", IO_FILES_LIST::FIRST, EXACTLY(0), "", "io.files.first", "to the first file"),
    PROCEDURE("next", IO_FILES_LIST::NEXT, EXACTLY(0), "", "io.files.next", "to the next file"),
    PROCEDURE("before", IO_FILES_LIST::BEFORE, EXACTLY(0), "", "io.files.before",
              "to the file before"),
    PROCEDURE("last", IO_FILES_LIST::LAST, EXACTLY(0), "", "io.files.last", "to the last file"),
    PROCEDURE("get", IO_FILES_LIST::NUMBER, EXACTLY(1), ENTRY, "io.files.get 2",
              "to the file of that number; below 0 from the end"),
    PROCEDURE("sort", IO_FILES_LIST::SORT, EXACTLY(0), "", "io.files.sort", "sort by name"),
    PROCEDURE("sort.real", IO_FILES_LIST::SORT_REAL, EXACTLY(0), "", "io.files.sort.real",
              "sort by the numbers in the names"),
    PROCEDURE("sort.size", IO_FILES_LIST::SORT_SIZE, EXACTLY(0), "", "io.files.sort.size",
              "sort by size"),
    PROCEDURE("sort.date", IO_FILES_LIST::SORT_DATE, EXACTLY(0), "", "io.files.sort.date",
              "sort by age, oldest first"),
    PROCEDURE("number", IO_FILES_LIST::NUMBER, EXACTLY(1), ENTRY, "io.files.number 2",
              "to the file of that number; below 0 from the end"),
    PROCEDURE("flip", IO_FILES_LIST::FLIP, EXACTLY(0), "", "io.files.flip", "reverse the list"),
    PROCEDURE("replacetxt", IO_FILES_REPLACETXT, AT_LEAST(1), "find: text, [replacement: text]",
              "io.files.replacetxt .pgm .png", "replace a text in all names of the list"),
};
static_assert(ROWS_ARE_SOUND(IO_FILES_ROWS));

constexpr COMMAND_ROW IO_FILE_ROWS[] = {
    PROCEDURE("delete", IO_FILE_DELETE, AT_LEAST(1), MASKS, "io.file.delete old/*.tmp",
              "delete files"),
    PROCEDURE("remove", IO_FILE_DELETE, AT_LEAST(1), MASKS, "io.file.remove old/*.tmp",
              "delete files"),
    PROCEDURE("erase", IO_FILE_DELETE, AT_LEAST(1), MASKS, "io.file.erase old/*.tmp",
              "delete files"),
    PROCEDURE("join", IO_FILE_JOIN, AT_LEAST(2), "target: file, mask: file ...",
              "io.file.join all.txt part?.txt", "files one behind the other as one file"),
    PROPERTY("copy.method", IO_FILE_COPY_METHOD, IO_FILE_COPY_METHOD_REF, EXACTLY(1),
             "method: name", "io.file.copy.method bytes", "copy by auto, bytes, pack or unpack"),
    PROCEDURE("copy", IO_FILE_COPY, EXACTLY(2), FROM_TO, "io.file.copy a.txt backup/a.txt",
              "copy a file, or the files of a mask into a directory"),
    PROCEDURE("copy.to", IO_FILE_COPY_TO, AT_LEAST(2), INTO, "io.file.copy.to backup *.txt",
              "copy files into a directory"),
    PROCEDURE("move", IO_FILE_MOVE, EXACTLY(2), FROM_TO, "io.file.move a.txt done/a.txt",
              "move a file, or the files of a mask into a directory"),
    PROCEDURE("move.to", IO_FILE_MOVE_TO, AT_LEAST(2), INTO, "io.file.move.to done *.txt",
              "move files into a directory"),
    PROCEDURE("rename", IO_FILE_RENAME, EXACTLY(2), FROM_TO, "io.file.rename a.txt b.txt",
              "give a file another name"),
    PROCEDURE("repair", IO_FILE_REPAIR, AT_LEAST(1), MASKS, "io.file.repair table.csv",
              "line ends and characters of a text, or a damaged gz file"),
    FUNCTION("getsize", IO_FILE_GETSIZE_REF, EXACTLY(1), "name: file", "a := io.file.getsize a.txt",
             "bytes of a file, -1 for none"),
    FUNCTION("getage", IO_FILE_GETAGE_REF, EXACTLY(1), "name: file", "a := io.file.getage a.txt",
             "last change in seconds since 1970, -1 for none"),
    FUNCTION("getattr", IO_FILE_GETATTR_REF, EXACTLY(1), "name: file", "a := io.file.getattr a.txt",
             "mode bits of a file, -1 for none"),
};
static_assert(ROWS_ARE_SOUND(IO_FILE_ROWS));

constexpr COMMAND_ROW IO_DIRS_ROWS[] = {
    LAMBDA("length", IO_DIRS_LIST::LENGTH_LAMD, "a := io.dirs.length", "count of directories"),
    LAMBDA("size", IO_DIRS_LIST::LENGTH_LAMD, "a := io.dirs.size", "count of directories"),
    LAMBDA("rest", IO_DIRS_LIST::REST_LAMD, "a := io.dirs.rest",
           "count of directories behind the current one"),
    LAMBDA("get", IO_DIRS_LIST::GET_LAMD, "a := io.dirs.get", "current directory of the list"),
    PROCEDURE("new", IO_DIRS_NEW, AT_LEAST(1), MASKS, "io.dirs.new data/*",
              "fill the directory list by masks"),
    PROCEDURE("complete", IO_DIRS_COMPLETE, AT_LEAST(1), MASKS, "io.dirs.complete data",
              "fill it with directories and all below them"),
    PROCEDURE("add", IO_DIRS_ADD, AT_LEAST(1), MASKS, "io.dirs.add data/*",
              "as io.dirs.new, behind the list"),
    PROCEDURE("sub", IO_DIRS_LIST::SUB, AT_LEAST(1), NAMES, "io.dirs.sub data/old",
              "take exactly these names off the list"),
    PROCEDURE("subweak", IO_DIRS_LIST::SUBWEAK, AT_LEAST(1), NAMES, "io.dirs.subweak backup",
              "take the names that hold a text off the list"),
    PROCEDURE("clear", IO_DIRS_LIST::CLEAR, EXACTLY(0), "", "io.dirs.clear", "empty list"),
    PROCEDURE("first", IO_DIRS_LIST::FIRST, EXACTLY(0), "", "io.dirs.first",
              "to the first directory"),
    PROCEDURE("next", IO_DIRS_LIST::NEXT, EXACTLY(0), "", "io.dirs.next", "to the next directory"),
    PROCEDURE("before", IO_DIRS_LIST::BEFORE, EXACTLY(0), "", "io.dirs.before",
              "to the directory before"),
    PROCEDURE("last", IO_DIRS_LIST::LAST, EXACTLY(0), "", "io.dirs.last", "to the last directory"),
    PROCEDURE("sort", IO_DIRS_LIST::SORT, EXACTLY(0), "", "io.dirs.sort", "sort by name"),
    PROCEDURE("sort.real", IO_DIRS_LIST::SORT_REAL, EXACTLY(0), "", "io.dirs.sort.real",
              "sort by the numbers in the names"),
    PROCEDURE("sort.date", IO_DIRS_LIST::SORT_DATE, EXACTLY(0), "", "io.dirs.sort.date",
              "sort by age, oldest first"),
    PROCEDURE("number", IO_DIRS_LIST::NUMBER, EXACTLY(1), ENTRY, "io.dirs.number 2",
              "to the directory of that number; below 0 from the end"),
    PROCEDURE("flip", IO_DIRS_LIST::FLIP, EXACTLY(0), "", "io.dirs.flip", "reverse the list"),
    PROCEDURE("rnew", IO_DIRS_RNEW, AT_LEAST(1), MASKS, "io.dirs.rnew data/mask*",
              "fill it with what the last part fits at every depth"),
    PROCEDURE("complete.add", IO_DIRS_COMPLETE_ADD, AT_LEAST(1), MASKS, "io.dirs.complete.add data",
              "as io.dirs.complete, behind the list"),
    PROCEDURE("radd", IO_DIRS_RADD, AT_LEAST(1), MASKS, "io.dirs.radd data/mask*",
              "as io.dirs.rnew, behind the list"),
};
static_assert(ROWS_ARE_SOUND(IO_DIRS_ROWS));

constexpr COMMAND_ROW IO_DIR_ROWS[] = {
    PROCEDURE("make", IO_DIR_MAKE, AT_LEAST(1), DIRECTORIES, "io.dir.make results/maps",
              "make directories with those above them"),
    PROCEDURE("delete", IO_DIR_DELETE, AT_LEAST(1), DIRECTORIES, "io.dir.delete results",
              "delete empty directories"),
    PROCEDURE("remove", IO_DIR_DELETE, AT_LEAST(1), DIRECTORIES, "io.dir.remove results",
              "delete empty directories"),
    PROCEDURE("erase", IO_DIR_DELETE, AT_LEAST(1), DIRECTORIES, "io.dir.erase results",
              "delete empty directories"),
    PROCEDURE("harddelete", IO_DIR_HARDDELETE, AT_LEAST(1), DIRECTORIES,
              "io.dir.harddelete results", "delete directories and all in them"),
    PROCEDURE("hardremove", IO_DIR_HARDDELETE, AT_LEAST(1), DIRECTORIES,
              "io.dir.hardremove results", "delete directories and all in them"),
    PROCEDURE("harderase", IO_DIR_HARDDELETE, AT_LEAST(1), DIRECTORIES, "io.dir.harderase results",
              "delete directories and all in them"),
    PROCEDURE("copy", IO_DIR_COPY, EXACTLY(2), FROM_TO, "io.dir.copy results archive/results",
              "copy a directory and all in it"),
    PROCEDURE("rename", IO_DIR_RENAME, EXACTLY(2), FROM_TO, "io.dir.rename results maps",
              "give a directory another name"),
    PROCEDURE("change", IO_DIR_CHANGE, EXACTLY(1), "directory: file", "io.dir.change data",
              "work in another directory"),
    PROCEDURE("hardchange", IO_DIR_HARDCHANGE, EXACTLY(1), "directory: file",
              "io.dir.hardchange results", "work in another directory, made when it is missing"),
};
static_assert(ROWS_ARE_SOUND(IO_DIR_ROWS));

constexpr COMMAND_ROW IO_LISTS_ROWS[] = {
    PROCEDURE("io.files.to.list", IO_FILES_LIST::TO_LIST, EXACTLY(0), "", "io.files.to.list",
              "the files as the list in use"),
    PROCEDURE("list.to.io.files", IO_FILES_LIST::FROM_LIST, EXACTLY(0), "", "list.to.io.files",
              "the list in use as the file list"),
    PROCEDURE("io.dirs.to.list", IO_DIRS_LIST::TO_LIST, EXACTLY(0), "", "io.dirs.to.list",
              "the directories as the list in use"),
    PROCEDURE("list.to.io.dirs", IO_DIRS_LIST::FROM_LIST, EXACTLY(0), "", "list.to.io.dirs",
              "the list in use as the directory list"),
};
static_assert(ROWS_ARE_SOUND(IO_LISTS_ROWS));
} // namespace

const COMMAND_SET IO_SET{"io.", IO_ROWS};
const COMMAND_SET IO_FILES_SET{"io.files.", IO_FILES_ROWS};
const COMMAND_SET IO_FILE_SET{"io.file.", IO_FILE_ROWS};
const COMMAND_SET IO_DIRS_SET{"io.dirs.", IO_DIRS_ROWS};
const COMMAND_SET IO_DIR_SET{"io.dir.", IO_DIR_ROWS};
const COMMAND_SET IO_LISTS_SET{"", IO_LISTS_ROWS};

void TMACRO::USE_IO() {
    INIT_IO();
    REGISTER(IO_SET);
    REGISTER(IO_FILES_SET);
    REGISTER(IO_FILE_SET);
    REGISTER(IO_DIRS_SET);
    REGISTER(IO_DIR_SET);
    REGISTER(IO_LISTS_SET);
}
} // namespace morvane
