#include "script/engine/script_runner.hpp"

#include <doctest/doctest.h>

#include <sys/stat.h>

using namespace morvane;

namespace {
// Runs a script in a folder with the given files, without the lines that tell of reading them.
struct IMPORTER : SCRATCH_FOLDER {
    SCRIPT_RUNNER runner;
    std::string RUN(const std::string &script) {
        std::string shown = runner.RUN(script);
        for (std::size_t at = 0; (at = shown.find("Read file (", at)) != std::string::npos;)
            shown.erase(at, shown.find('\n', at) + 1 - at);
        return shown;
    }
};
} // namespace

TEST_CASE("the lines of an imported file are carried out from the first one") {
    IMPORTER here;
    here.WRITE_TEXT("part", "print one\nprint two\n");
    CHECK(here.RUN("print a\nimport part\nprint b\n") == "a\none\ntwo\nb\n");
}

TEST_CASE("a missing import file stops the script") {
    IMPORTER here;
    CHECK(here.RUN("import none\nprint b\n") ==
          "Error (import file (none) not found) in line 1 (m)!\n");
    CHECK(here.RUN("import\n") ==
          "Parameter error! Please use min. one parameter in line 1 (m).\n");
    CHECK(here.RUN("import \"\"\n") ==
          "Parameter error! Please use min. one parameter in line 1 (m).\n");
    ::mkdir("folder", 0700);
    CHECK(here.RUN("import folder\nprint b\n").starts_with("Error (import file (folder) not "));
}

TEST_CASE("a file that imports itself is told with the chain") {
    IMPORTER here;
    here.WRITE_TEXT("a", "print a\nimport b\n");
    here.WRITE_TEXT("b", "print b\nimport c\n");
    here.WRITE_TEXT("c", "print c\nimport ./a\n");
    CHECK(here.RUN("import a\nprint never\n") ==
          "a\nb\nc\nError (import in a circle: a > b > c > ./a) in line 2 (c)!\n");
    here.WRITE_TEXT("self", "import self\n");
    CHECK(here.RUN("import self\n") ==
          "Error (import in a circle: self > self) in line 1 (self)!\n");
}

TEST_CASE("a file may be imported twice, one behind the other") {
    IMPORTER here;
    here.WRITE_TEXT("part", "print x\n");
    CHECK(here.RUN("import part\nimport part\n") == "x\nx\n");
}

TEST_CASE("imports in each other keep their order, and reports their own lines and files") {
    IMPORTER here;
    here.WRITE_TEXT("outer", "print 1\nimport inner\nxyz\n");
    here.WRITE_TEXT("inner", "print 2\n\nprint 3\n");
    CHECK(here.RUN("import outer\n") ==
          "1\n2\n3\nSyntax error (xyz) in line 3 (outer)! Unknown procedure!\n");
    here.WRITE_TEXT("outer", "import inner\nprint 4\n");
    CHECK(here.RUN("print 0\nimport outer\nxyz\n") ==
          "0\n2\n3\n4\nSyntax error (xyz) in line 3 (m)! Unknown procedure!\n");
}

TEST_CASE("a file without lines leaves an empty line") {
    IMPORTER here;
    here.WRITE_TEXT("none", "");
    here.WRITE_TEXT("one", "\n");
    CHECK(here.RUN("import none\nprint a\nimport one\nprint b\n") == "a\nb\n");
    CHECK(here.RUN("print a\nimport none\n") == "a\n");
}

TEST_CASE("the first line of an imported file is empty when it begins with an exclamation mark") {
    IMPORTER here;
    here.WRITE_TEXT("part", "!/usr/bin/env morvane\nprint x\n");
    CHECK(here.RUN("import part\nprint y\n") == "x\ny\n");
    here.WRITE_TEXT("part", "\xEF\xBB\xBFprint marked\n");
    CHECK(here.RUN("print a\nimport part\n") == "a\nmarked\n");
    here.WRITE_TEXT("part", "print x\n!no\n");
    CHECK(here.RUN("import part\n") ==
          "x\nSyntax error (!no) in line 2 (part)! Unknown procedure!\n");
}

TEST_CASE("a loop imports a file once and runs its lines at every pass") {
    IMPORTER here;
    here.WRITE_TEXT("part", "print for.count\nprint x\n");
    CHECK(here.RUN("for 3\nimport part\nend\nprint behind\n") == "1\nx\n2\nx\n3\nx\nbehind\n");
    here.WRITE_TEXT("part", "print a\na -= a 1\n");
    CHECK(here.RUN("a := 2\nwhile a\nimport part\nend\nprint behind\n") == "2\n1\nbehind\n");
    CHECK(here.RUN("a := 2\nrepeat\nimport part\nuntil 1\nprint behind\n") == "2\nbehind\n");
}

TEST_CASE("an import in the body of a procedure comes back to the line of the call") {
    IMPORTER here;
    here.WRITE_TEXT("part", "print 1\nprint 2\nprint 3\n");
    CHECK(here.RUN("procedure p\nimport part\nend\np\nprint a\np\nprint b\n") ==
          "1\n2\n3\na\n1\n2\n3\nb\n");
}

TEST_CASE("commands that are declared behind an import are still found at their lines") {
    IMPORTER here;
    here.WRITE_TEXT("part", "print 1\nprint 2\n");
    CHECK(here.RUN("procedure p\nimport part\nend\nprocedure q\nprint q\nend\n"
                   "function f\nresult := 7\nend\np\nq\nx := f\nprint x\n") == "1\n2\nq\n7\n");
    CHECK(here.RUN("procedure outer\nfor 2\np\nend\nend\nprocedure p\nimport part\nend\n"
                   "outer\nprint end\n") == "1\n2\n1\n2\nend\n");
}

TEST_CASE("an import in a function called from a loop keeps the loop") {
    IMPORTER here;
    here.WRITE_TEXT("part", "// three\n// lines\nresult := parameter\n");
    CHECK(here.RUN("function f\nimport part\nend\nfor 2\nx := f for.count\nprint x\nend\n") ==
          "1\n2\n");
}

TEST_CASE("an imported file may declare commands, and blocks reach across its end") {
    IMPORTER here;
    here.WRITE_TEXT("library", "procedure hello\nprint hello\nend\n");
    here.WRITE_TEXT("open", "for 2\nprint for.count\n");
    CHECK(here.RUN("import library\nhello\n") == "hello\n");
    CHECK(here.RUN("import open\nend\nprint behind\n") == "1\n2\nbehind\n");
}

TEST_CASE("a skipped import is not read, and the words in its file are not seen") {
    IMPORTER here;
    here.WRITE_TEXT("open", "for 2\n");
    CHECK(here.RUN("ignore\nimport open\nimport none\nend\nprint behind\n") == "behind\n");
    CHECK(here.RUN("if 0\nthen\nimport none\nend\nelse\nprint other\nend\n") == "other\n");
}

TEST_CASE("an import line in store is text") {
    IMPORTER here;
    here.WRITE_TEXT("part", "print x\n");
    here.RUN("store out\nimport part\nend\n");
    CHECK(here.TEXT("out") == "import part\n");
}

TEST_CASE("import behind a condition asks for a block") {
    IMPORTER here;
    here.WRITE_TEXT("part", "print x\n");
    CHECK(here.RUN("if 1\nthen import part\n") ==
          "Error (import stands alone on its line; put it into a block) in line 2 (m)!\n");
    CHECK(here.RUN("if 1\nthen\nimport part\nend\n") == "x\n");
    CHECK(here.RUN("if 0\nthen import part\nprint on\n") == "on\n");
}

TEST_CASE("the name of an import may be a variable, and import itself may be one") {
    IMPORTER here;
    here.WRITE_TEXT("part.1", "print x\n");
    CHECK(here.RUN("file := part.1\nimport file\nn := 1\nimport \"part.@n\"\n") == "x\nx\n");
    CHECK(here.RUN("import := 5\nprint import\n") == "5\n");
}

TEST_CASE("a file that is not in the working folder is looked for beside the importing one") {
    IMPORTER here;
    ::mkdir("folder", 0700);
    here.WRITE_TEXT("folder/a", "import b\n");
    here.WRITE_TEXT("folder/b", "print beside\n");
    CHECK(here.RUN("import folder/a\n") == "beside\n");
    here.WRITE_TEXT("b", "print here\n");
    CHECK(here.RUN("import folder/a\n") == "here\n");
}

TEST_CASE("import traces its file") {
    IMPORTER here;
    here.WRITE_TEXT("part", "nop\n");
    here.runner.engine.verbose = true;
    CHECK(here.RUN("import part\n") == "  import|part|\n  nop|\n");
}

TEST_CASE("files that import ever more files end in a report") {
    IMPORTER here;
    for (int i = 0; i < 70; ++i)
        here.WRITE_TEXT("f" + std::to_string(i), "import f" + std::to_string(i + 1) + "\n");
    CHECK(here.RUN("import f0\n").find("not loaded) in line 1 (f63)!") != std::string::npos);
    std::string many;
    here.WRITE_TEXT("part", "nop\n");
    for (int i = 0; i < 1001; ++i)
        many += "import part\n";
    CHECK(here.RUN(many) == "Error (too many import files) in line 1001 (m)!\n");
}

TEST_CASE("without files no import reaches the disk") {
    IMPORTER here;
    here.WRITE_TEXT("part", "print x\n");
    here.runner.engine.switches.FILES = false;
    CHECK(here.RUN("import part\n") == "Error (import file (part) not found) in line 1 (m)!\n");
}
