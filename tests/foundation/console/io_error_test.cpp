#include "foundation/console/files.hpp"
#include "foundation/console/io_error.hpp"
#include "support/capture.hpp"

#include <cerrno>
#include <string>

#include <doctest/doctest.h>

using namespace morvane;

TEST_CASE("IOERROR without a failure is false and silent") {
    CAPTURE console;
    SETIORESULT(0);
    CHECK_FALSE(IOERROR("x"));
    CHECK(console.TEXT().empty());
}

TEST_CASE("IOERROR tells the class, then the detail, and clears the result") {
    CAPTURE console;
    SETIORESULT(2);
    CHECK(IOERROR("a.nii"));
    CHECK(console.TEXT() == "DOS-Error\n  File (a.nii) not found.\n");
    CHECK_FALSE(IOERROR("a.nii"));
}

TEST_CASE("the class is bright red on a terminal with interaction") {
    CAPTURE console;
    INTERACTION = true;
    SETTERMINAL(true);
    SETIORESULT(101);
    IOERROR("x");
    RESETTERMINAL();
    CHECK(console.TEXT() == "\033[91mI/O-Error\033[0m\n  Disk (x) write error.\n");
}

TEST_CASE("a code without a row tells its number") {
    CAPTURE console;
    SETIORESULT(107);
    IOERROR("x");
    CHECK(console.TEXT() == "?\?\?-Error\n  Error number: 107 from x\n");
}

TEST_CASE("every code belongs to the class of its range") {
    for (const NAT code : {0, 1, 18, 99, 107, 149, 163, 300})
        CHECK(IO_ERROR_CLASS(code) == "?\?\?-Error");
    for (const NAT code : {2, 6, 12, 17})
        CHECK(IO_ERROR_CLASS(code) == "DOS-Error");
    for (const NAT code : {100, 106})
        CHECK(IO_ERROR_CLASS(code) == "I/O-Error");
    for (const NAT code : {150, 162})
        CHECK(IO_ERROR_CLASS(code) == "Fatal-Error");
}

TEST_CASE("every row has words around the name and its place in the order") {
    NAT former = 0;
    for (const IO_ERROR_ROW &row : IO_ERROR_ROWS()) {
        CHECK(row.code > former);
        former = row.code;
        CHECK(IO_ERROR_DETAIL(row.code, "N") ==
              std::string(row.before) + "N" + std::string(row.after));
        CHECK(row.before.starts_with("  "));
        CHECK(row.before.ends_with("("));
        CHECK(row.after.starts_with(")"));
        CHECK(row.after.ends_with("."));
    }
    CHECK(IO_ERROR_ROWS().size() == 29);
}

TEST_CASE("the detail texts stand as they are, with their spelling") {
    CHECK(IO_ERROR_DETAIL(3, "N") == "  Path (N) not found.");
    CHECK(IO_ERROR_DETAIL(12, "N") == "  Invalide file (N) access code.");
    CHECK(IO_ERROR_DETAIL(15, "N") == "  Invalide drive (N) number.");
    CHECK(IO_ERROR_DETAIL(151, "N") == "  Bad drive (N) request struct length.");
    CHECK(IO_ERROR_DETAIL(162, "N") == "  Hardware (N) failure.");
}

TEST_CASE("system errors go to the nearest row") {
    CHECK(IOCODE(0, true) == 0);
    CHECK(IOCODE(ENOENT, false) == 2);
    CHECK(IOCODE(ENOTDIR, false) == 3);
    CHECK(IOCODE(EMFILE, false) == 4);
    CHECK(IOCODE(EACCES, false) == 5);
    CHECK(IOCODE(EISDIR, true) == 5);
    CHECK(IOCODE(EXDEV, true) == 17);
    CHECK(IOCODE(EIO, false) == 100);
    CHECK(IOCODE(EIO, true) == 101);
    CHECK(IOCODE(ENOSPC, true) == 101);
    CHECK(IOCODE(EROFS, true) == 150);
}

TEST_CASE("a system error without a near row keeps its number behind 200") {
    CHECK(IOCODE(ENOMEM, false) == 200 + ENOMEM);
}

TEST_CASE("a missing file in a missing directory is a missing path") {
    CAPTURE console;
    SETSYSTEMRESULT(ENOENT, "/no-such-directory/x", false);
    IOERROR("/no-such-directory/x");
    CHECK(console.CONTAINS("  Path (/no-such-directory/x) not found."));
}
