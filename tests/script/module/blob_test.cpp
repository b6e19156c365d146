#include "script/module/blob_bytes.hpp"
#include "script/module/use_all.hpp"
#include "text_script.hpp"

#include <sys/stat.h>

#include <doctest/doctest.h>

using namespace morvane;

namespace {
const std::string BLOB("AB\0\xFF\n12AB\x7F", 10);
} // namespace

TEST_CASE("blob.count counts occurrences that do not overlap") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.dat", "aaaa" + BLOB);
    CHECK(script.VALUE("blob.count a.dat aa") == "2");
    CHECK(script.VALUE("blob.count a.dat AB") == "2");
    CHECK(script.VALUE("blob.count a.dat zz") == "0");
    CHECK(script.VALUE("blob.count a.dat \"hex:00 ff\"") == "1");
}

TEST_CASE("blob.pos gives positions from 1, from a start on, and 0 for none") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.dat", BLOB);
    CHECK(script.VALUE("blob.pos a.dat AB") == "1");
    CHECK(script.VALUE("blob.pos a.dat AB 2") == "8");
    CHECK(script.VALUE("blob.pos a.dat AB 8") == "8");
    CHECK(script.VALUE("blob.pos a.dat AB 9") == "0");
    CHECK(script.VALUE("blob.pos a.dat AB -5") == "1");
    CHECK(script.VALUE("blob.pos a.dat hex:FF") == "4");
}

TEST_CASE("blob.get cleans bytes below 32 and above 127 to blanks") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.dat", BLOB);
    CHECK(script.VALUE("blob.get a.dat 1 10") == "AB   12AB\x7F");
    CHECK(script.VALUE("blob.get a.dat 6 2") == "12");
}

TEST_CASE("blob.get gives as many bytes as exist, none outside the file") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.dat", BLOB);
    CHECK(script.VALUE("blob.get a.dat 8 9223372036854775807") == "AB\x7F");
    for (const char *range : {"0 5", "-1 5", "11 1", "1 0", "1 -3", "9223372036854775807 1"})
        CHECK(script.VALUE("blob.get a.dat " + std::string(range)) == "");
    script.folder.WRITE("a.dat", std::string(1000, 'x'));
    CHECK(script.VALUE("blob.get a.dat 1 1000") == std::string(254, 'x'));
}

TEST_CASE("blob.get shows hex digits on demand") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.dat", BLOB);
    CHECK(script.VALUE("blob.get a.dat 2 4 hex") == "4200FF0A");
    CHECK(script.RUN("v := blob.get a.dat 1 2 octal") ==
          "Error (unknown form: octal) in line 1 (test.macro)!\n");
    script.folder.WRITE("a.dat", std::string(1000, 'x'));
    CHECK(script.VALUE("blob.get a.dat 1 1000 hex").size() == 254);
}

TEST_CASE("blob.replace replaces bytes across lines and of any length") {
    TEXT_SCRIPT script;
    CHECK(script.AFTER("blob.replace a.dat AB x", "a.dat", BLOB) ==
          std::string("x\0\xFF\n12x\x7F", 8));
    CHECK(script.AFTER("blob.replace a.dat \"hex:FF0A31\" \"hex:00\"", "a.dat", BLOB) ==
          std::string("AB\0\0"
                      "2AB\x7F",
                      8));
    CHECK(script.AFTER("blob.replace a.dat \"hex:00\"", "a.dat", BLOB) == "AB\xFF\n12AB\x7F");
    CHECK(script.AFTER("blob.replace a.dat zz y", "a.dat", BLOB) == BLOB);
}

TEST_CASE("blob.replace writes another file when a target is named") {
    TEXT_SCRIPT script;
    CHECK(script.AFTER("blob.replace a.dat AB xyz b.dat", "a.dat", "AB\n") == "AB\n");
    CHECK(script.folder.READ("b.dat") == "xyz\n");
}

TEST_CASE("a result that cannot be put in place is saved with .fail behind the name") {
    TEXT_SCRIPT script;
    script.folder.WRITE("a.dat", "AB\n");
    REQUIRE(std::filesystem::create_directory("d"));
    CHECK(script.RUN("blob.replace a.dat AB x d").starts_with("DOS-Error\n"));
    CHECK(script.folder.READ("d.fail") == "x\n");
    CHECK(script.folder.READ("a.dat") == "AB\n");
    REQUIRE(chmod("a.dat", 0444) == 0);
    const WITHOUT_ROOT user;
    CHECK(script.RUN("blob.replace a.dat AB x") == "DOS-Error\n  File (a.dat) access denied.\n");
    CHECK(script.folder.READ("a.dat") == "AB\n");
    CHECK(script.folder.READ("a.dat.fail") == "x\n");
}

TEST_CASE("hex digits that make no bytes stop the script") {
    std::string bytes;
    CHECK(BYTES_OF("hex:", bytes));
    CHECK(bytes == "");
    CHECK_FALSE(BYTES_OF("hex:123", bytes));
    CHECK_FALSE(BYTES_OF("hex:1g", bytes));
    CHECK(BYTES_OF("Hex:1", bytes));
    CHECK(bytes == "Hex:1");
    TEXT_SCRIPT script;
    CHECK(script.RUN("v := blob.count a.dat hex:1") ==
          "Error (no bytes: hex:1) in line 1 (test.macro)!\n");
    script.folder.WRITE("a.dat", BLOB);
    CHECK(script.RUN("blob.replace a.dat hex: x") ==
          "Error (empty text to search for) in line 1 (test.macro)!\n");
    CHECK(script.folder.READ("a.dat") == BLOB);
}

TEST_CASE("the blob commands report wrong counts, missing files and use no disk when told so") {
    TEXT_SCRIPT script;
    CHECK(script.RUN("v := blob.count a.dat") ==
          "Parameter error! Please use 2 parameters in line 1 (test.macro).\n");
    CHECK(script.RUN("v := blob.pos a") ==
          "Parameter error! Please use min. 2 parameters in line 1 (test.macro).\n");
    CHECK(script.RUN("blob.replace a b c d e") ==
          "Parameter error! Please use max. 4 parameters in line 1 (test.macro).\n");
    CHECK(script.RUN("v := blob.count a.dat x") == "DOS-Error\n  File (a.dat) not found.\n");
    CHECK(script.VALUE("blob.count a.dat x") == "");
    script.folder.WRITE("a.dat", BLOB);
    script.engine.switches.FILES = false;
    script.RUN("blob.replace a.dat AB x");
    CHECK(script.folder.READ("a.dat") == BLOB);
}

TEST_CASE("the usage lines of the blob commands run") {
    TEXT_SCRIPT script;
    script.folder.WRITE("scan.dat", "OLD DATA");
    for (const COMMAND_ROW &row : BLOB_SET.rows) {
        INFO(std::string(row.usage));
        CHECK(script.RUN(std::string(row.usage)) == "");
    }
    CHECK(script.folder.READ("scan.dat") == "NEW DATA");
}
