#include "foundation/console/paths.hpp"
#include "script/engine/macro.hpp"
#include "script/module/io_lists.hpp"
#include "script/module/use_all.hpp"
#include "support/capture.hpp"
#include "support/scratch_folder.hpp"

#include <filesystem>
#include <string>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
const COMMAND_SET *const SETS[] = {&IO_SET,      &IO_FILES_SET, &IO_FILE_SET,
                                   &IO_DIRS_SET, &IO_DIR_SET,   &IO_LISTS_SET};

struct IO_RUN {
    CAPTURE console;
    SCRATCH_FOLDER folder;
    TMACRO engine;
    TFORMAT format = FORMAT;

    IO_RUN() {
        engine.INIT();
        engine.USE_ALL();
        engine.verbose = false;
        engine.PUTCONSTANT("a", "untouched");
    }
    ~IO_RUN() {
        FORMAT = format;
        FILESHORT = true;
        INIT_IO();
    }
    void RUN(const std::string &script) {
        engine.LOADTEXT(script, "test.macro");
        console.CLEAR();
        engine.SINGLERUN();
    }
    std::string RESULT() { return GETUTF8(engine.GETCONSTANTVALUE("a")); }
};

// What the usage lines name.
void PREPARE(const SCRATCH_FOLDER &folder) {
    for (const char *name : {"data/mask1", "old", "results", "done"})
        std::filesystem::create_directories(name);
    for (const char *name : {"a.txt", "data/b.pgm", "c.pgm", "part1.txt", "table.csv", "old/x.tmp"})
        folder.WRITE(name, "line\r\n");
    folder.WRITE("names.txt", "a.txt\ndata/b.pgm\n");
}

bool GIVES_A_VALUE(const COMMAND_ROW &row) {
    return row.kind == COMMAND_KIND::FUNCTION || row.kind == COMMAND_KIND::LAMBDA;
}
} // namespace

TEST_CASE("the usage line of every command under io runs as it stands") {
    for (const COMMAND_SET *set : SETS)
        for (const COMMAND_ROW &row : set->rows) {
            CAPTURE(row.usage);
            IO_RUN run;
            PREPARE(run.folder);
            // A list with a current entry in the middle, so that each lambda has something to give.
            const std::string lists =
                "io.files.fromfile names.txt\nio.files.add.fromfile names.txt\n"
                "io.files.get 2\nio.dirs data old\n";
            const bool leavesFolder = row.name.ends_with("change");
            run.RUN(lists + std::string(row.usage));
            CHECK(run.engine.STATUS.EMPTY());
            CHECK_FALSE(run.console.CONTAINS("Error"));
            if (GIVES_A_VALUE(row)) CHECK(run.RESULT() != "untouched");
            if (GIVES_A_VALUE(row)) CHECK_FALSE(run.RESULT().empty());
            CHECK(leavesFolder == run.console.CONTAINS("Change directory"));
        }
}

TEST_CASE("every command that is said to delete deletes") {
    for (const char *name : {"delete", "remove", "erase"}) {
        IO_RUN run;
        PREPARE(run.folder);
        run.RUN("io.file." + std::string(name) + " old/*.tmp");
        CHECK(run.console.CONTAINS("Delete file (old/x.tmp).\n"));
        CHECK_FALSE(run.folder.HAS("old/x.tmp"));
        run.RUN("io.dir." + std::string(name) + " results");
        CHECK_FALSE(run.folder.HAS("results"));
        run.RUN("io.dir.hard" + std::string(name) + " data");
        CHECK_FALSE(run.folder.HAS("data"));
        CHECK(run.folder.HAS("a.txt"));
    }
}

TEST_CASE("an engine without files touches no disk by any command under io") {
    for (const COMMAND_SET *set : SETS)
        for (const COMMAND_ROW &row : set->rows) {
            CAPTURE(row.usage);
            IO_RUN run;
            PREPARE(run.folder);
            const std::string here = std::filesystem::current_path().string();
            const long before = run.folder.FILES();
            run.engine.switches.FILES = false;
            run.RUN(std::string(row.usage));
            CHECK(run.engine.STATUS.EMPTY());
            CHECK(run.folder.FILES() == before);
            CHECK(run.folder.READ("a.txt") == "line\r\n");
            CHECK(run.folder.READ("table.csv") == "line\r\n");
            CHECK(run.folder.HAS("old/x.tmp"));
            CHECK(run.folder.HAS("data/mask1"));
            CHECK(std::filesystem::current_path().string() == here);
            CHECK(IO.FILES.LENGTH() == 0);
            CHECK(IO.DIRS.LENGTH() == 0);
            CHECK(run.console.TEXT() == "Script runs...\nScript ends.\n");
        }
}

TEST_CASE("functions of a file tell of none while the engine has no files") {
    IO_RUN run;
    PREPARE(run.folder);
    run.engine.switches.FILES = false;
    for (const char *name : {"getsize", "getage", "getattr"}) {
        run.RUN("a := io.file." + std::string(name) + " a.txt");
        CHECK(run.RESULT() == "-1");
    }
}

TEST_CASE("a fresh engine starts with empty name lists and copies by auto") {
    IO_RUN run;
    PREPARE(run.folder);
    run.RUN("io.files *\nio.dirs *\nio.file.copy.method pack");
    CHECK(IO.FILES.LENGTH() > 0);
    CHECK(IO.DIRS.LENGTH() == 4);
    TMACRO other;
    other.INIT();
    other.USE_ALL();
    CHECK(IO.FILES.LENGTH() == 0);
    CHECK(IO.DIRS.LENGTH() == 0);
    CHECK(IO.METHOD == COPY_METHOD::AUTO);
}

TEST_CASE("the position of a name list stays between before the first and behind the last") {
    IO_LIST<TFILELIST> list;
    CHECK(list.GET().EMPTY());
    list.NEXT();
    list.BEFORE();
    list.BEFORE();
    CHECK(list.GET().EMPTY());
    for (const char *name : {"a", "b", "c"})
        list.names.PUSH(name);
    list.GOTO(-3);
    CHECK(list.GET() == UTF16("a"));
    CHECK(list.REST() == 2);
    list.GOTO(-4);
    CHECK(list.position == 0);
    list.GOTO(std::numeric_limits<NAT>::min());
    CHECK(list.position == 0);
    list.GOTO(std::numeric_limits<NAT>::max());
    CHECK(list.position == 4);
    list.NEXT();
    CHECK(list.position == 4);
    CHECK(list.REST() == 0);
    // A list that became shorter under its position.
    list.names.NEWLENGTH(1);
    list.BEFORE();
    CHECK(list.GET() == UTF16("a"));
}
