#include "foundation/console/files.hpp"
#include "foundation/console/log.hpp"
#include "support/capture.hpp"
#include "support/child_process.hpp"
#include "support/temporary_folder.hpp"

#include <csignal>
#include <filesystem>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
unsigned ModeOf(const std::string &path) {
    struct stat status;
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0U;
}

bool Save(const std::string &path, const std::string &bytes) {
    FILE_WRITE file;
    return ASSIGNWRITE(file, path) && file.WRITE(bytes) && file.COMMIT();
}

// No file of this process grows beyond so many bytes: a full disk.
void LimitFileSize(rlim_t bytes) {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{bytes, bytes};
    ::setrlimit(RLIMIT_FSIZE, &limit);
}
} // namespace

TEST_CASE("a written file appears under its name at COMMIT only") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    FILE_WRITE file;
    REQUIRE(ASSIGNWRITE(file, folder.PATH("a")));
    CHECK(console.TEXT() == "Write file (" + folder.PATH("a") + ").\n");
    CHECK(file.WRITE("ab"));
    CHECK(file.WRITELN("µ"));
    CHECK_FALSE(std::filesystem::exists(folder.PATH("a")));
    CHECK(file.COMMIT());
    CHECK_FALSE(file.OPEN());
    CHECK(folder.GET("a") == "ab\xC2\xB5\n");
    CHECK(folder.ENTRIES() == 1);
}

TEST_CASE("without COMMIT the old file stays and no other file is left") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    folder.PUT("a", "old");
    {
        FILE_WRITE file;
        REQUIRE(ASSIGNWRITE(file, folder.PATH("a")));
        file.WRITE(std::string(1 << 20, 'x'));
        CHECK(folder.ENTRIES() == 2);
    }
    CHECK(folder.GET("a") == "old");
    CHECK(folder.ENTRIES() == 1);
}

TEST_CASE("small and large writes arrive in their order") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    const std::string large(400'000, 'x');
    FILE_WRITE file;
    REQUIRE(ASSIGNWRITE(file, folder.PATH("a")));
    CHECK(file.WRITE("begin"));
    CHECK(file.WRITE(large));
    CHECK(file.WRITE("", 0));
    CHECK(file.WRITE("end"));
    CHECK(file.COMMIT());
    CHECK(folder.GET("a") == "begin" + large + "end");
}

TEST_CASE("a replaced file keeps its permissions and a new one follows the process's mask") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    folder.PUT("old", "x");
    REQUIRE(::chmod(folder.PATH("old").c_str(), 0640) == 0);
    CHECK(Save(folder.PATH("old"), "y"));
    CHECK(ModeOf(folder.PATH("old")) == 0640);
    const mode_t mask = ::umask(0027);
    CHECK(Save(folder.PATH("new"), "y"));
    ::umask(mask);
    CHECK(ModeOf(folder.PATH("new")) == 0640);
}

TEST_CASE("a symbolic link stays and its target is written") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    std::filesystem::create_directory(folder.PATH("there"));
    folder.PUT("there/a", "old");
    std::filesystem::create_symlink("there/a", folder.PATH("link"));
    CHECK(Save(folder.PATH("link"), "new"));
    CHECK(std::filesystem::is_symlink(folder.PATH("link")));
    CHECK(folder.GET("there/a") == "new");
}

TEST_CASE("a link to a file that does not exist yet creates that file") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    std::filesystem::create_symlink("later", folder.PATH("link"));
    CHECK(Save(folder.PATH("link"), "new"));
    CHECK(std::filesystem::is_symlink(folder.PATH("link")));
    CHECK(folder.GET("later") == "new");
}

TEST_CASE("links in a circle are told") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    std::filesystem::create_symlink("b", folder.PATH("a"));
    std::filesystem::create_symlink("a", folder.PATH("b"));
    CHECK_FALSE(Save(folder.PATH("a"), "new"));
    CHECK(console.TEXT() == "DOS-Error\n  Path (" + folder.PATH("a") + ") not found.\n");
}

TEST_CASE("a directory cannot be written as a file") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    CHECK_FALSE(Save(folder.PATH(), "x"));
    CHECK(console.TEXT() == "DOS-Error\n  File (" + folder.PATH() + ") access denied.\n");
    CHECK(folder.ENTRIES() == 0);
}

TEST_CASE("a missing directory is told when a file is to be written into it") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    CHECK_FALSE(Save(folder.PATH("none/a"), "x"));
    CHECK(console.TEXT() == "DOS-Error\n  Path (" + folder.PATH("none/a") + ") not found.\n");
}

TEST_CASE("unwritable directories and files are told and keep the old file") {
    TEMPORARY_FOLDER folder;
    folder.PUT("a", "old");
    REQUIRE(::chmod(folder.PATH("a").c_str(), 0444) == 0);
    REQUIRE(::chmod(folder.PATH().c_str(), 0755) == 0);
    CHECK(IN_CHILD([&] {
              CAPTURE console;
              // Root may write everywhere; as nobody else the permissions count.
              if (::geteuid() == 0 && ::seteuid(65534) != 0) return 1;
              const std::string denied =
                  "DOS-Error\n  File (" + folder.PATH("a") + ") access denied.\n";
              if (Save(folder.PATH("a"), "new") || console.TEXT() != denied) return 2;
              ::chmod(folder.PATH().c_str(), 0555);
              if (Save(folder.PATH("b"), "new")) return 3;
              return console.CONTAINS(folder.PATH("b") + ") access denied.") ? 7 : 4;
          }) == 7);
    CHECK(folder.GET("a") == "old");
    CHECK(folder.ENTRIES() == 1);
}

TEST_CASE("a full disk is told once and leaves the old file and no other") {
    TEMPORARY_FOLDER folder;
    folder.PUT("a", "old");
    CHECK(IN_CHILD([&] {
              CAPTURE console;
              LimitFileSize(4096);
              if (Save(folder.PATH("a"), std::string(1 << 20, 'x'))) return 1;
              const std::string told = "Write file (" + folder.PATH("a") +
                                       ").\nI/O-Error\n  Disk (" + folder.PATH("a") +
                                       ") write error.\n";
              return console.TEXT() == told ? 7 : 2;
          }) == 7);
    CHECK(folder.GET("a") == "old");
    CHECK(folder.ENTRIES() == 1);
}

TEST_CASE("a full disk under a gzip file is told too") {
    TEMPORARY_FOLDER folder;
    folder.PUT("a.gz", "old");
    CHECK(IN_CHILD([&] {
              CAPTURE console;
              LimitFileSize(64);
              std::string bytes(1 << 20, '\0');
              unsigned state = 1;
              for (char &byte : bytes)
                  byte = static_cast<char>((state = state * 1664525U + 1013904223U) >> 24);
              FILE_WRITE file;
              if (!ASSIGNGZWRITE(file, folder.PATH("a.gz"))) return 1;
              file.WRITE(bytes);
              if (file.COMMIT()) return 2;
              return console.CONTAINS("  Disk (" + folder.PATH("a.gz") + ") write error.") ? 7 : 3;
          }) == 7);
    CHECK(folder.GET("a.gz") == "old");
    CHECK(folder.ENTRIES() == 1);
}

TEST_CASE("after a failed write every further one is refused") {
    CAPTURE console;
    FILE_WRITE file;
    REQUIRE(ASSIGNWRITE(file, "/dev/full"));
    CHECK_FALSE(file.WRITE(std::string(1 << 20, 'x')));
    CHECK_FALSE(file.WRITE("y"));
    CHECK_FALSE(file.COMMIT());
    CHECK_FALSE(file.COMMIT());
    CHECK(console.TEXT() ==
          "Write file (/dev/full).\nI/O-Error\n  Disk (/dev/full) write error.\n");
}

TEST_CASE("a failed write is told even when its owner leaves without COMMIT") {
    CAPTURE console;
    {
        FILE_WRITE file;
        REQUIRE(ASSIGNWRITE(file, "/dev/full"));
        CHECK_FALSE(file.WRITE(std::string(1 << 20, 'x')));
    }
    CHECK(console.CONTAINS("  Disk (/dev/full) write error."));
}

TEST_CASE("devices are written directly") {
    CAPTURE console;
    CHECK(Save("/dev/null", "x"));
    CHECK_FALSE(std::filesystem::is_regular_file("/dev/null"));
}

TEST_CASE("a name as long as the system allows can be written") {
    TEMPORARY_FOLDER folder;
    CAPTURE console;
    const std::string name(255, 'n');
    CHECK(Save(folder.PATH(name), "x"));
    CHECK(folder.GET(name) == "x");
    CHECK(folder.ENTRIES() == 1);
}

TEST_CASE("a name in the current directory needs no directory part") {
    TEMPORARY_FOLDER folder;
    CHECK(IN_CHILD([&] {
              CAPTURE console;
              return ::chdir(folder.PATH().c_str()) == 0 && Save("a", "x") ? 7 : 1;
          }) == 7);
    CHECK(folder.GET("a") == "x");
}

TEST_CASE("a process that is ended by a signal leaves no file under way") {
    TEMPORARY_FOLDER folder;
    folder.PUT("a", "old");
    const pid_t child = ::fork();
    if (child == 0) {
        CAPTURE console;
        CONSOLE_START();
        FILE_WRITE file;
        if (ASSIGNWRITE(file, folder.PATH("a"))) ::raise(SIGTERM);
        ::_exit(1);
    }
    int status = 0;
    REQUIRE(::waitpid(child, &status, 0) == child);
    CHECK(WIFSIGNALED(status));
    CHECK(WTERMSIG(status) == SIGTERM);
    CHECK(folder.GET("a") == "old");
    CHECK(folder.ENTRIES() == 1);
}
