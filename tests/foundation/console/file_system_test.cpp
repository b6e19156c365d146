#include "foundation/console/files.hpp"
#include "foundation/console/paths.hpp"
#include "support/capture.hpp"
#include "support/child_process.hpp"
#include "support/temporary_folder.hpp"

#include <ctime>
#include <filesystem>
#include <string>
#include <sys/stat.h>

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("DELETE removes a file and tells it") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    const std::string path = folder.PUT("a", "x");
    CHECK(DELETE(UTF16(path)));
    CHECK(console.TEXT() == "Delete file (" + path + ").\n");
    CHECK_FALSE(std::filesystem::exists(path));
    console.CLEAR();
    CHECK_FALSE(DELETE(UTF16(path)));
    CHECK(console.TEXT() == "DOS-Error\n  File (" + path + ") not found.\n");
}

TEST_CASE("RENAME gives a file another name and tells the old one") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    const std::string path = folder.PUT("a", "x");
    CHECK(RENAME(path, folder.PATH("b")));
    CHECK(console.TEXT() == "Rename file (" + path + ").\n");
    CHECK(folder.GET("b") == "x");
    CHECK_FALSE(RENAME(path, folder.PATH("c")));
}

TEST_CASE("directories are made, renamed and removed with their lines") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    const std::string a = folder.PATH("a"), b = folder.PATH("b");
    CHECK(MKDIR(a));
    CHECK(console.TEXT() == "Make directory (" + a + ").\n");
    CHECK_FALSE(MKDIR(a));
    console.CLEAR();
    CHECK(RENAMEDIR(a, b));
    CHECK(console.TEXT() == "Rename directory (" + a + " -> " + b + ").\n");
    console.CLEAR();
    CHECK(RMDIR(b));
    CHECK(console.TEXT() == "Remove directory (" + b + ").\n");
    CHECK_FALSE(RMDIR(b));
    CHECK_FALSE(RENAMEDIR(a, b));
}

TEST_CASE("HARDMKDIR with an empty path gives true") {
    CAPTURE console;
    CHECK(HARDMKDIR(""));
    CHECK(console.TEXT().empty());
}

TEST_CASE("HARDMKDIR of a directory that exists is true and silent") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    CHECK(HARDMKDIR(folder.PATH()));
    CHECK(console.TEXT().empty());
}

TEST_CASE("HARDMKDIR builds a chain from the deepest directory that exists") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    CHECK(HARDMKDIR(folder.PATH("a/b//c/")));
    CHECK(std::filesystem::is_directory(folder.PATH("a/b/c")));
    CHECK(console.CONTAINS("Make directory (" + folder.PATH("a") + ").\n"));
    CHECK(console.CONTAINS("Make directory (" + folder.PATH("a/b//c") + ").\n"));
}

TEST_CASE("HARDMKDIR below a file is told and false") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    folder.PUT("a", "x");
    CHECK_FALSE(HARDMKDIR(folder.PATH("a/b")));
    CHECK(console.CONTAINS("DOS-Error"));
}

TEST_CASE("HARDMKDIR of a path longer than the system takes is false and makes nothing") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    std::string path = folder.PATH();
    for (int i = 0; i < 100'000; ++i)
        path += "/d";
    CHECK_FALSE(HARDMKDIR(path));
    CHECK(console.CONTAINS("DOS-Error\n  Path ("));
    CHECK(folder.ENTRIES() == 0);
}

TEST_CASE("CHDIR changes the working directory and tells it") {
    TEMPORARY_FOLDER folder;
    CHECK(IN_CHILD([&] {
              CAPTURE console;
              if (!CHDIR(folder.PATH())) return 1;
              if (console.TEXT() != "Change directory (" + folder.PATH() + ").\n") return 2;
              if (CHDIR(folder.PATH("none"))) return 3;
              return GETUTF8(GETCURRENTDIR()) == folder.PATH() ? 7 : 4;
          }) == 7);
}

TEST_CASE("HARDCHDIR makes what is missing and is silent when it is there already") {
    TEMPORARY_FOLDER folder;
    CHECK(IN_CHILD([&] {
              CAPTURE console;
              if (!HARDCHDIR(folder.PATH("a/b"))) return 1;
              if (GETUTF8(GETCURRENTDIR()) != folder.PATH("a/b")) return 2;
              console.CLEAR();
              if (!HARDCHDIR(folder.PATH("a/b")) || !HARDCHDIR("")) return 3;
              return console.TEXT().empty() ? 7 : 4;
          }) == 7);
}

TEST_CASE("the queries of a file answer without a line") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    const std::string path = folder.PUT("a", "12345");
    ::chmod(path.c_str(), 0640);
    CHECK(FILESIZE(path) == 5);
    CHECK(FILEEXISTS(path));
    CHECK_FALSE(DIRECTORYEXISTS(path));
    CHECK((FILEATTR(path) & 07777) == 0640);
    CHECK(FILEAGE(path) > 1'600'000'000);
    CHECK(FILEAGE(path) <= std::time(nullptr) + 1);
    CHECK(console.TEXT().empty());
}

TEST_CASE("the queries of what is not there give -1 and false") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    const std::string path = folder.PATH("none");
    CHECK(FILESIZE(path) == -1);
    CHECK(FILEAGE(path) == -1);
    CHECK(FILEATTR(path) == -1);
    CHECK_FALSE(FILEEXISTS(path));
    CHECK_FALSE(DIRECTORYEXISTS(path));
    CHECK_FALSE(FILEEXISTS(""));
    CHECK(console.TEXT().empty());
}

TEST_CASE("a directory exists as a directory and not as a file") {
    TEMPORARY_FOLDER folder;
    CHECK(DIRECTORYEXISTS(folder.PATH()));
    CHECK_FALSE(FILEEXISTS(folder.PATH()));
}
